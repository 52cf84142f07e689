#include "platform/store/order.h"

#include <algorithm>

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

void sortRows(std::vector<uint32_t>& rows, const Order& order, const TableCopy& copy) {
  std::vector<ColumnOrder> columns;
  bool idDescending = false;
  for (const SortKey& key : order) {
    const int column = copy.schema().find(key.column);
    const ColumnType type = copy.schema().type(column);
    if (type == ColumnType::Counter) {
      idDescending = key.descending;
      break;
    }
    columns.emplace_back(copy.sorted(column), isNumber(type), key.descending);
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

}  // namespace store
