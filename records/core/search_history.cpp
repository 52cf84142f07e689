#include "records/core/search_history.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

#include "platform/text/sjis.h"

namespace records {

SearchHistory::SearchHistory(const QString& programFolder)
    : m_path(QDir(programFolder).filePath(QStringLiteral("word.txt"))) {}

QStringList SearchHistory::words() const {
  QFile file(m_path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QStringList lines = text::fromSjisKeepingAll(file.readAll()).split(QLatin1Char('\n'));
  for (QString& line : lines)
    if (line.endsWith(QLatin1Char('\r'))) line.chop(1);
  lines.removeAll(QString());
  return lines.mid(0, kMostLines);
}

QStringList SearchHistory::remembered(const QStringList& lines, const QString& word, int olderKept) {
  if (word.isEmpty() || lines.contains(word)) return lines;
  return QStringList{word} + lines.mid(0, olderKept);
}

text::Done SearchHistory::remember(const QString& word, int olderKept) const {
  const QStringList before = words();
  const QStringList after = remembered(before, word, olderKept);
  if (after == before) return {};
  // Written beside and renamed: a fault leaves the old history whole.
  QSaveFile file(m_path);
  if (!file.open(QIODevice::WriteOnly)) return text::Fault{file.errorString()};
  QString content;
  for (const QString& line : after) content += line + QStringLiteral("\r\n");
  file.write(text::toSjisKeepingAll(content));
  if (!file.commit()) return text::Fault{file.errorString()};
  return {};
}

}  // namespace records
