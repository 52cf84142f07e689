#include "platform/store/order.h"

#include <algorithm>
#include <numeric>

namespace store {
namespace {

SortedAs kindOf(const TableSchema& schema, int column) {
  const ColumnType type = schema.type(column);
  if (type == ColumnType::Integer || type == ColumnType::YesNo) return SortedAs::Number;
  return sortsAsDate(schema.name(column)) ? SortedAs::Date : SortedAs::Text;
}

}  // namespace

RowSorter::RowSorter(const Order& order, const TableSchema& schema,
                     const std::function<const TextColumn&(int column)>& columnOf) {
  for (const SortKey& key : order) {
    const int column = schema.find(key.column);
    if (schema.type(column) == ColumnType::Counter) {
      m_idDescending = key.descending;
      break;
    }
    const TextColumn& content = columnOf(column);
    m_keys.push_back({content.numbers(), content.texts(), kindOf(schema, column), key.descending});
  }
}

int RowSorter::Key::compare(uint32_t a, uint32_t b) const {
  const uint32_t left = (*numbers)[a], right = (*numbers)[b];
  if (left == right) return 0;
  const int order = left == ColumnTexts::kNull    ? -1
                    : right == ColumnTexts::kNull ? 1
                                                  : texts->key(left, kind).compare(texts->key(right, kind));
  return descending ? -order : order;
}

bool RowSorter::before(uint32_t a, uint32_t b) const {
  for (const Key& key : m_keys)
    if (const int order = key.compare(a, b)) return order < 0;
  return m_idDescending ? a > b : a < b;
}

Result<QVector<int>> sortedColumns(const Order& order, const TableSchema& schema) {
  QVector<int> columns;
  for (const SortKey& key : order) {
    const int column = schema.find(key.column);
    if (column < 0) return unknownColumn(key.column, schema.table());
    if (schema.type(column) == ColumnType::Counter) break;
    columns += column;
  }
  return columns;
}

Result<std::vector<qint64>> orderedIds(const TableRow& table, const QList<QHash<QString, Value>>& rows,
                                       const QString& order) {
  TableSchema schema(QString::fromUtf16(table.table));
  for (const ColumnRow& column : table.columns) schema.add(QString::fromUtf16(column.name), column.type);
  const Result<Order> keys = parseOrder(order);
  if (!keys) return keys.fault();
  const Result<QVector<int>> sorted = sortedColumns(*keys, schema);
  if (!sorted) return sorted.fault();

  const QString id = schema.name(0);
  QList<QHash<QString, Value>> byId = rows;
  std::stable_sort(byId.begin(), byId.end(), [&](const auto& a, const auto& b) {
    return a.value(id).toLongLong() < b.value(id).toLongLong();
  });
  QHash<int, TextColumn> columns;
  for (const int column : *sorted)
    for (const QHash<QString, Value>& row : byId) columns[column].append(row.value(schema.name(column)));
  std::vector<uint32_t> numbers(static_cast<size_t>(byId.size()));
  std::iota(numbers.begin(), numbers.end(), 0u);
  const RowSorter sorter(*keys, schema, [&](int column) -> const TextColumn& { return columns[column]; });
  std::sort(numbers.begin(), numbers.end(), [&](uint32_t a, uint32_t b) { return sorter.before(a, b); });
  std::vector<qint64> ids;
  for (const uint32_t number : numbers) ids.push_back(byId[number].value(id).toLongLong());
  return ids;
}

}  // namespace store
