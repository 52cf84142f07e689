#pragma once

#include <QString>
#include <span>

#include "platform/store/column.h"

namespace store {

struct TableRow {
  const char16_t* file;  ///< file name in the program folder, e.g. 臨床QV2000N.mdb
  int folderEntry;       ///< index in the data folders, -1: always in the program folder
  const char16_t* table;
  std::span<const ColumnRow> columns;
};

/// The one catalogue of all files, tables and columns; the store, fresh files, growth runs, binder tests
/// and backups read it. The columns of a table are written down in platform/store/tables.
std::span<const TableRow> catalogue();
/// The row of a file name (nullptr: not of this program).
const TableRow* tableOfFile(const QString& fileName);
/// Whether the texts of a column are western dates, "yyyy/m/d", that sort as dates: the shadow columns of
/// dates that are stored as they were typed.
bool sortsAsDate(const QString& column);
/// The column of a table of a file, nullptr where it has none.
const ColumnRow* findColumn(const TableRow& table, const QString& column);

}  // namespace store
