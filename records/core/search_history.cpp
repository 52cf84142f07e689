#include "records/core/search_history.h"

#include <QDir>
#include <QFile>

#include "platform/text/sjis.h"
#include "platform/text/whole_file.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

SearchHistory::SearchHistory(const QString& programFolder)
    : m_path(QDir(programFolder).filePath(u"word.txt"_s)) {}

QStringList SearchHistory::words() const {
  QFile file(m_path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QStringList lines = text::fromSjisKeepingAll(file.readAll()).split(QLatin1Char('\n'));
  for (QString& line : lines)
    if (line.endsWith(QLatin1Char('\r'))) line.chop(1);
  lines.removeAll(QString());
  return lines.mid(0, kMaxLines);
}

QStringList SearchHistory::remembered(const QStringList& lines, const QString& word, int maxOlder) {
  if (word.isEmpty() || lines.contains(word)) return lines;
  return QStringList{word} + lines.mid(0, maxOlder);
}

text::Done SearchHistory::remember(const QString& word, int maxOlder) const {
  const QStringList before = words();
  const QStringList after = remembered(before, word, maxOlder);
  if (after == before) return {};
  QString content;
  for (const QString& line : after) content += line + u"\r\n"_s;
  return text::writeWholeFile(m_path, text::toSjisKeepingAll(content));
}

}  // namespace records
