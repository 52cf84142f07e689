#include "platform/store/order.h"

#include <algorithm>
#include <numeric>

#include "platform/store/collation.h"

namespace store {
namespace {

bool isNumber(ColumnType type) {
  return type == ColumnType::Integer || type == ColumnType::YesNo || type == ColumnType::Counter;
}

/// Eight bytes that compare as the numbers do.
QByteArray numberKey(qint64 number) {
  const quint64 shifted = static_cast<quint64>(number) ^ (quint64(1) << 63);
  QByteArray key(8, '\0');
  for (int place = 0; place < 8; ++place) key[place] = static_cast<char>(shifted >> (56 - 8 * place));
  return key;
}

/// Compares two rows by one column, making the keys of its texts when first needed.
class ColumnOrder {
 public:
  ColumnOrder(const SortColumn& column, bool number, bool descending)
      : m_column(column), m_keys(column.keys()), m_number(number), m_descending(descending) {
    m_keys.resize(column.texts().size());
  }

  int compare(uint32_t a, uint32_t b) const {
    const uint32_t codeA = m_column.codeOf(a), codeB = m_column.codeOf(b);
    if (codeA == codeB) return 0;
    const int order = codeA == SortColumn::kNull   ? -1
                      : codeB == SortColumn::kNull ? 1
                                                   : key(codeA).compare(key(codeB));
    return m_descending ? -order : order;
  }

 private:
  const QByteArray& key(uint32_t code) const {
    QByteArray& made = m_keys[code];
    if (made.isNull()) {
      const QString& text = m_column.texts()[code];
      made = m_number ? numberKey(text.toLongLong()) : japaneseSortKey(text);
    }
    return made;
  }

  const SortColumn& m_column;
  std::vector<QByteArray>& m_keys;
  bool m_number;
  bool m_descending;
};

}  // namespace

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

void sortRows(std::vector<uint32_t>& rows, const Order& order, const TableSchema& schema,
              const std::function<const SortColumn&(int column)>& columnOf) {
  std::vector<ColumnOrder> columns;
  bool idDescending = false;
  for (const SortKey& key : order) {
    const int column = schema.find(key.column);
    const ColumnType type = schema.type(column);
    if (type == ColumnType::Counter) {
      idDescending = key.descending;
      break;
    }
    columns.emplace_back(columnOf(column), isNumber(type), key.descending);
  }
  if (columns.empty()) {
    if (idDescending) std::reverse(rows.begin(), rows.end());
    return;
  }
  std::sort(rows.begin(), rows.end(), [&](uint32_t a, uint32_t b) {
    for (const ColumnOrder& column : columns)
      if (const int order = column.compare(a, b)) return order < 0;
    return idDescending ? a > b : a < b;
  });
}

void sortRows(std::vector<uint32_t>& rows, const Order& order, const TableCopy& copy) {
  sortRows(rows, order, copy.schema(), [&](int column) -> const SortColumn& { return copy.sorted(column); });
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
  QHash<int, SortColumn> columns;
  for (const int column : *sorted)
    for (const QHash<QString, Value>& row : byId) columns[column].append(row.value(schema.name(column)));
  std::vector<uint32_t> numbers(static_cast<size_t>(byId.size()));
  std::iota(numbers.begin(), numbers.end(), 0u);
  sortRows(numbers, *keys, schema, [&](int column) -> const SortColumn& { return columns[column]; });
  std::vector<qint64> ids;
  for (const uint32_t number : numbers) ids.push_back(byId[number].value(id).toLongLong());
  return ids;
}

}  // namespace store
