#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace report {

/// One word of a template line; quoted words are texts.
struct PrpWord {
  QString text;
  bool quoted = false;
};

/// A fault of a template, for its author: file, line, and what was expected there.
struct PrpFault {
  QString file;
  int line = 0;
  QString expected;

  QString message() const { return QStringLiteral("%1:%2: expected %3").arg(file).arg(line).arg(expected); }
};

/// The words of one line, read from left to right. Every reader throws PrpFault when the line holds
/// something else; the loader catches it.
class PrpLine {
 public:
  PrpLine(const QString& file, int number, const QString& text);

  bool empty() const { return m_at >= m_words.size(); }
  bool nextIsText() const { return !empty() && m_words[m_at].quoted; }
  QString word(const char* what);
  QString text(const char* what);
  double number(const char* what);
  int count(const char* what);
  /// Takes the next word if it is this one.
  bool take(const char* word);
  /// Everything that is left, words set off by one blank.
  QString rest();
  void end() const;
  [[noreturn]] void fail(const QString& expected) const;

  int line() const { return m_line; }
  const QString& file() const { return m_file; }

 private:
  void split(const QString& text);

  QString m_file;
  int m_line;
  std::vector<PrpWord> m_words;
  size_t m_at = 0;
};

/// "day1..31" is day1 to day31; a name without the two dots is itself.
/// Nothing when the range is upside down or longer than 1000.
std::optional<QStringList> expandNames(const QString& name);

}  // namespace report
