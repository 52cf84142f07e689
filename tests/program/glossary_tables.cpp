#include "tests/program/glossary_tables.h"

#include <QFile>
#include <QRegularExpression>

namespace program {

using namespace Qt::StringLiterals;

namespace {

QString textOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList cellsOf(const QString& line) {
  QStringList cells = line.split(u'|');
  cells.removeFirst();
  cells.removeLast();
  for (QString& cell : cells) cell = cell.remove(u'`').trimmed();
  return cells;
}

}  // namespace

QList<QStringList> glossaryRows(const QString& heading) {
  QList<QStringList> rows;
  bool inside = false;
  for (const QString& line : textOf(QStringLiteral(SOURCE_FOLDER "/docs/glossary.md")).split(u'\n')) {
    if (line.startsWith(u'#')) inside = line == heading;
    if (inside && line.startsWith(u'|')) rows += cellsOf(line);
  }
  return rows.mid(2);
}

QStringList listedColumns(const QString& cell) {
  static const QRegularExpression kSeries(u"^(.*?)(\\d+)\\.\\.\\1(\\d+)$"_s);
  QStringList columns;
  for (const QString& part : cell.split(u", "_s)) {
    const QRegularExpressionMatch series = kSeries.match(part);
    if (!series.hasMatch()) {
      columns += part;
      continue;
    }
    for (int number = series.captured(2).toInt(); number <= series.captured(3).toInt(); ++number)
      columns += series.captured(1) + QString::number(number);
  }
  return columns;
}

}  // namespace program
