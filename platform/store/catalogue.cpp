#include "platform/store/catalogue.h"

#include <QStringList>
#include <deque>
#include <vector>

#include "platform/store/catalogue_columns.h"

namespace store {
namespace {

int trailingNumberStart(const QString& name) {
  qsizetype start = name.size();
  while (start > 0 && name[start - 1] >= u'0' && name[start - 1] <= u'9') --start;
  return static_cast<int>(start);
}

/// "t1..t3" as t1, t2, t3; a plain name as itself.
QStringList namesOf(const QString& entry) {
  const QStringList ends = entry.split(QStringLiteral(".."));
  if (ends.size() != 2) return {entry};
  const int digits = trailingNumberStart(ends[0]);
  const QString stem = ends[0].left(digits);
  const int first = ends[0].mid(digits).toInt();
  const int last = ends[1].mid(trailingNumberStart(ends[1])).toInt();
  QStringList names;
  for (int number = first; number != last; number += first < last ? 1 : -1)
    names += stem + QString::number(number);
  return names += ends[1];
}

/// Owns the names and rows that catalogue() hands out, made once from the written lists.
class Catalogue {
 public:
  Catalogue() {
    for (const TableText& text : tableTexts()) m_tables.push_back(tableRow(text));
  }
  std::span<const TableRow> tables() const { return m_tables; }

 private:
  TableRow tableRow(const TableText& text) {
    std::vector<ColumnRow>& columns = m_columns.emplace_back();
    columns.push_back({u"ID", ColumnType::Counter, false});
    for (const ColumnsText& part : text.columns) {
      for (const QString& entry : QString::fromUtf16(part.names).split(u',')) {
        for (const QString& name : namesOf(entry))
          columns.push_back({m_names.emplace_back(name.toStdU16String()).c_str(), part.type, part.added});
      }
    }
    return {text.file, text.folderEntry, text.table, columns};
  }

  std::deque<std::u16string> m_names;
  std::deque<std::vector<ColumnRow>> m_columns;
  std::vector<TableRow> m_tables;
};

}  // namespace

std::span<const TableRow> catalogue() {
  static const Catalogue made;
  return made.tables();
}

const TableRow* tableOfFile(const QString& fileName) {
  for (const TableRow& row : catalogue())
    if (fileName == QStringView(row.file)) return &row;
  return nullptr;
}

bool sortsAsDate(const QString& column) { return column == QStringView(u"治療日チェック"); }

const ColumnRow* findColumn(const TableRow& table, const QString& column) {
  for (const ColumnRow& row : table.columns)
    if (column.compare(QStringView(row.name), Qt::CaseInsensitive) == 0) return &row;
  return nullptr;
}

}  // namespace store
