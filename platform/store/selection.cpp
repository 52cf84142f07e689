#include "platform/store/selection.h"

#include <algorithm>

#include "platform/store/order.h"

namespace store {
namespace {

Order orderOf(std::span<const Criteria> all, const Order& order) {
  if (!order.empty()) return order;
  for (const Criteria& one : all)
    if (!one.order.empty()) return one.order;
  return {};
}

bool everyRow(std::span<const Criteria> all) {
  return std::all_of(all.begin(), all.end(), [](const Criteria& one) { return one.anyOf.empty(); });
}

}  // namespace

Result<RowList> selectRows(Engine& engine, const QString& table, std::span<const Criteria> all,
                           const Order& order) {
  const Result<std::shared_ptr<const TableSchema>> schema = engine.schema(table);
  if (!schema) return schema.fault();
  const Order wanted = orderOf(all, order);
  const Result<QVector<int>> sorted = sortedColumns(wanted, **schema);
  if (!sorted) return sorted.fault();
  QVector<int> searched;
  for (const Criteria& one : all) {
    const Result<QVector<int>> columns = searchedColumns(one, **schema);
    if (!columns) return columns.fault();
    searched += *columns;
  }
  const Result<TableCopy*> copy = engine.copy(table, searched, *sorted);
  if (!copy) return copy.fault();
  RowSorter sorter(wanted, **schema,
                   [&](int column) -> const SortColumn& { return (*copy)->sorted(column); });
  if (searched.isEmpty() && sorter.byIdAlone() && everyRow(all))
    return RowList((*copy)->sharedIds(), sorter.idDescending());
  const std::vector<qint64>& ids = (*copy)->ids();
  std::vector<char> fitting(ids.size(), 1);
  for (const Criteria& one : all)
    if (!one.anyOf.empty()) keepFitting(one, **copy, fitting);
  std::vector<uint32_t> rows;
  rows.reserve(ids.size());
  for (size_t row = 0; row < fitting.size(); ++row)
    if (fitting[row]) rows.push_back(static_cast<uint32_t>(row));
  return RowList(ids, rows, std::move(sorter));
}

}  // namespace store
