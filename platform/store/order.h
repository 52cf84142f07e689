#pragma once

#include <vector>

#include "platform/store/criteria.h"

namespace store {

/// The columns that an order needs in memory. A key behind ID decides nothing and is left out.
Result<QVector<int>> sortedColumns(const Order& order, const TableSchema& schema);

/// Puts rows of the memory copy (their numbers, ascending) in the order: texts in Japanese order, numbers by
/// value, NULL before everything, ties by ID.
void sortRows(std::vector<uint32_t>& rows, const Order& order, const TableCopy& copy);

}  // namespace store
