#pragma once

#include <QString>
#include <memory>

namespace voice {

/// Turns a text into kana, digits and pauses, for a voice that cannot read kanji. Readings come from the
/// system's dictionary of Japanese; without it the words of the trade, dates and signs are still read.
class KanaReader {
 public:
  KanaReader();
  ~KanaReader();
  KanaReader(const KanaReader&) = delete;
  KanaReader& operator=(const KanaReader&) = delete;

  /// The reading; no kanji is left in it.
  QString read(const QString& text) const;
  bool hasDictionary() const;

 private:
  struct Dictionary;
  std::unique_ptr<Dictionary> m_dictionary;
};

}  // namespace voice
