#include "platform/store/selection.h"

#include "platform/store/order.h"

namespace store {
namespace {

Order orderOf(std::span<const Criteria> all, const Order& order) {
  if (!order.empty()) return order;
  for (const Criteria& one : all)
    if (!one.order.empty()) return one.order;
  return {};
}

}  // namespace

Result<std::vector<qint64>> selectRows(Engine& engine, const QString& table, std::span<const Criteria> all,
                                       const Order& order) {
  const Result<std::shared_ptr<const TableSchema>> schema = engine.schema(table);
  if (!schema) return schema.fault();
  const Order wanted = orderOf(all, order);
  const Result<QVector<int>> sorted = sortedColumns(wanted, **schema);
  if (!sorted) return sorted.fault();
  const auto load = [&](const QVector<int>& searched) { return engine.copy(table, searched, *sorted); };
  Result<TableCopy*> copy = load({});
  if (!copy) return copy.fault();
  std::vector<char> fitting((*copy)->ids().size(), 1);
  for (const Criteria& one : all) {
    if (one.anyOf.empty()) continue;
    const Result<std::vector<char>> marks = fittingRows(one, load, **schema);
    if (!marks) return marks.fault();
    fitting.resize(marks->size());
    for (size_t row = 0; row < fitting.size(); ++row) fitting[row] &= (*marks)[row];
  }
  std::vector<uint32_t> rows;
  for (size_t row = 0; row < fitting.size(); ++row)
    if (fitting[row]) rows.push_back(static_cast<uint32_t>(row));
  copy = load({});
  if (!copy) return copy.fault();
  if ((*copy)->ids().size() != fitting.size())  // another program wrote meanwhile
    return selectRows(engine, table, all, order);
  sortRows(rows, wanted, **copy);
  std::vector<qint64> ids;
  ids.reserve(rows.size());
  for (const uint32_t row : rows) ids.push_back((*copy)->ids()[row]);
  return ids;
}

}  // namespace store
