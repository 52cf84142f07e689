#include "tools/bench/read_back.h"

#include <QProcess>

namespace bench {

namespace {

QString withoutBlanks(const QString& text) {
  QString dense;
  dense.reserve(text.size());
  for (const QChar c : text)
    if (!c.isSpace()) dense += c;
  return dense;
}

QStringList pagesOf(const QString& pdf) {
  QProcess reader;
  // In the order of the document: by place on the paper, wrapped columns would run into each other.
  reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-raw"), pdf, QStringLiteral("-")});
  if (!reader.waitForFinished(600000) || reader.exitCode() != 0) return {};
  return QString::fromUtf8(reader.readAllStandardOutput()).split(u'\f');
}

}  // namespace

double readBack(const QString& pdf, const QVector<QStringList>& pages) {
  const QStringList read = pagesOf(pdf);
  if (read.size() < pages.size()) return -1;
  qint64 printed = 0, found = 0;
  for (int i = 0; i < pages.size(); ++i) {
    const QString page = withoutBlanks(read[i]);
    for (const QString& text : pages[i]) {
      ++printed;
      if (page.contains(withoutBlanks(text))) ++found;
    }
  }
  return printed == 0 ? 0 : 100.0 * static_cast<double>(found) / static_cast<double>(printed);
}

}  // namespace bench
