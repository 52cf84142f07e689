#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/store/criteria.h"

namespace store {

/// Compares rows of a table by their number in ID order: texts in Japanese order, numbers by value, NULL
/// before everything, ties by ID. Keeps what it compares, so that later writes do not move rows that are
/// being sorted.
class RowSorter {
 public:
  RowSorter(const Order& order, const TableSchema& schema,
            const std::function<const TextColumn&(int column)>& columnOf);

  /// The rows stay in ID order, forwards or backwards.
  bool byIdAlone() const { return m_keys.empty(); }
  bool idDescending() const { return m_idDescending; }
  bool before(uint32_t a, uint32_t b) const;

 private:
  struct Key {
    std::shared_ptr<const TextColumn::Numbers> numbers;
    std::shared_ptr<ColumnTexts> texts;
    SortedAs kind;
    bool descending;
    int compare(uint32_t a, uint32_t b) const;
  };
  std::vector<Key> m_keys;
  bool m_idDescending = false;
};

/// The columns that an order needs in memory. A key behind ID decides nothing and is left out.
Result<QVector<int>> sortedColumns(const Order& order, const TableSchema& schema);

/// IDs of rows that lie in no file, in the order in which their table would give them.
Result<std::vector<qint64>> orderedIds(const TableRow& table, const QList<QHash<QString, Value>>& rows,
                                       const QString& order);

}  // namespace store
