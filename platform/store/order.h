#pragma once

#include <vector>

#include "platform/store/criteria.h"

namespace store {

/// The columns that an order needs in memory. A key behind ID decides nothing and is left out.
Result<QVector<int>> sortedColumns(const Order& order, const TableSchema& schema);

/// Puts rows (their numbers, in ID order) in the order: texts in Japanese order, numbers by value, NULL before
/// everything, ties by ID.
void sortRows(std::vector<uint32_t>& rows, const Order& order, const TableSchema& schema,
              const std::function<const SortColumn&(int column)>& columnOf);
void sortRows(std::vector<uint32_t>& rows, const Order& order, const TableCopy& copy);

/// IDs of rows that lie in no file, in the order in which their table would give them.
Result<std::vector<qint64>> orderedIds(const TableRow& table, const QList<QHash<QString, Value>>& rows,
                                       const QString& order);

}  // namespace store
