#pragma once

#include <span>

#include "platform/store/catalogue.h"

namespace store {

/// Columns of one type, written as the comma-separated list of their names with series as "d1..d31".
struct ColumnsText {
  ColumnType type;
  bool added;
  const char16_t* names;
};

struct TableText {
  const char16_t* file;
  int folderEntry;
  const char16_t* table;
  std::span<const ColumnsText> columns;
};

/// The catalogue as it is written down; catalogue() is the same with one row a column.
std::span<const TableText> tableTexts();

}  // namespace store
