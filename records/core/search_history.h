#pragma once

#include <QString>
#include <QStringList>

#include "platform/text/result.h"

namespace records {

/// The search words of earlier searches, newest first: the file word.txt in the program folder, one word a
/// line.
class SearchHistory {
 public:
  /// Lines that the file may have.
  static constexpr int kMaxLines = 11;
  /// Older words that stay when the search dialog puts a new one before them.
  static constexpr int kMaxOlder = 9;
  /// The same of the patient screen: all that the file may have with the new word.
  static constexpr int kMaxOlderOfRegister = kMaxLines - 1;

  explicit SearchHistory(const QString& programFolder);

  /// The words of the file; none if the file is missing or cannot be read.
  QStringList words() const;
  /// Puts a word into the file: a new one becomes the first line, a known one leaves its place, a blank one
  /// changes nothing.
  text::Done remember(const QString& word, int maxOlder = kMaxOlder) const;

  /// The rule of remember() over the lines alone.
  static QStringList remembered(const QStringList& lines, const QString& word, int maxOlder = kMaxOlder);

 private:
  QString m_path;
};

}  // namespace records
