#pragma once

#include <QString>
#include <QStringList>

#include "platform/text/result.h"

namespace records {

/// The search words of earlier searches, newest first: the file word.txt beside the program, one word a line.
class SearchHistory {
 public:
  /// Lines that the file may hold.
  static constexpr int kMostLines = 11;
  /// Older lines that stay when a new word of the search dialog comes in front.
  static constexpr int kOlderKept = 9;
  /// The patient screen keeps the whole list with its new word, as far as the file may hold it.
  static constexpr int kWholeListKept = kMostLines - 1;

  explicit SearchHistory(const QString& programFolder);

  /// The words of the file; none where the file is missing or cannot be read.
  QStringList words() const;
  /// Puts a word into the file: a new one becomes the first line, a known one leaves its place, a blank one
  /// changes nothing.
  text::Done remember(const QString& word, int olderKept = kOlderKept) const;

  /// The rule of remember() over the lines alone.
  static QStringList remembered(const QStringList& lines, const QString& word, int olderKept = kOlderKept);

 private:
  QString m_path;
};

}  // namespace records
