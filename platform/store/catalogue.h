#pragma once

#include <QString>
#include <span>

namespace store {

enum class ColumnType { Counter, Text255, LongText, Integer, YesNo };

struct ColumnRow {
  const char16_t* name;
  ColumnType type;
  bool added;  ///< came with a growth run, not with the first schema
};

struct TableRow {
  const char16_t* file;  ///< file name in the program folder, e.g. 臨床QV2000N.mdb
  int folderEntry;       ///< index in the data folders, -1: always in the program folder
  const char16_t* table;
  std::span<const ColumnRow> columns;
};

/// The one catalogue of all files, tables and columns; the store, fresh files, growth runs, binder tests
/// and backups read it.
std::span<const TableRow> catalogue();
/// The row of a file name (nullptr: not of this program).
const TableRow* tableOfFile(const QString& fileName);
/// Whether the texts of a column are western dates, "yyyy/m/d", that sort as dates: the shadow columns that
/// stand beside dates kept as they were typed.
bool sortsAsDate(const QString& column);
/// The column of a table of a file, nullptr where it has none.
const ColumnRow* findColumn(const TableRow& table, const QString& column);

}  // namespace store
