#include "platform/store/selection.h"

#include <algorithm>
#include <numeric>
#include <optional>

#include "platform/store/order.h"
#include "platform/store/row_walk.h"

namespace store {
namespace {

Order orderOf(std::span<const Criteria> all, const Order& order) {
  if (!order.empty()) return order;
  for (const Criteria& one : all)
    if (!one.order.empty()) return one.order;
  return {};
}

/// So few rows are read from the file one by one rather than a whole column for their sake.
bool few(size_t rows, size_t all) {
  constexpr size_t kMaxRows = 4096;
  return rows <= kMaxRows && rows * 16 <= all;
}

/// A table of so many rows is read once for all steps rather than once for each.
constexpr size_t kReadAtOnce = 200000;

/// The selection of one set: criteria after criteria, then the order.
class Selecting {
 public:
  Selecting(Engine& engine, std::shared_ptr<const TableSchema> schema)
      : m_engine(engine), m_schema(std::move(schema)) {}

  /// The columns that each step needs are read when its turn comes, where few rows are left of these rows
  /// alone. `atOnce`: all columns are read for all rows first, so that no other program can write between.
  /// False: another program wrote between.
  Result<bool> run(std::span<const Criteria> all, const Order& order, bool atOnce);
  RowList take(const Order& order);

 private:
  Result<bool> provide(const QVector<int>& columns, const QVector<int>& laterColumns);
  Done readRows(QVector<int> columns);

  Engine& m_engine;
  std::shared_ptr<const TableSchema> m_schema;
  const TableCopy* m_copy = nullptr;
  std::optional<TableCopy> m_few;
  std::shared_ptr<const std::vector<qint64>> m_ids;
  std::optional<std::vector<uint32_t>> m_rows;  ///< none: every row
};

Done Selecting::readRows(QVector<int> columns) {
  std::vector<qint64> ids;
  for (const uint32_t row : *m_rows) ids.push_back((*m_ids)[row]);
  std::sort(columns.begin(), columns.end());
  columns.erase(std::unique(columns.begin(), columns.end()), columns.end());
  m_few.emplace(TableFile(m_engine.statements(), QStringLiteral("main"), m_schema), columns);
  m_copy = &*m_few;
  m_rows.reset();
  return walkRows(m_engine, *m_schema, ids, columns,
                  [&](qint64 id, RowViews values) { m_few->append(id, values); });
}

Result<bool> Selecting::provide(const QVector<int>& columns, const QVector<int>& laterColumns) {
  if (m_few) return true;
  if (m_rows && few(m_rows->size(), m_ids->size()) && !m_copy->has(columns)) {
    const Done read = readRows(columns + laterColumns);
    if (!read) return read.fault();
    return true;
  }
  Result<TableCopy*> copy = m_engine.copy(m_schema->table(), {});
  if (!copy) return copy.fault();
  if (!(*copy)->has(columns))
    copy = m_engine.copy(m_schema->table(),
                         (*copy)->ids().size() > kReadAtOnce ? columns : columns + laterColumns);
  if (!copy) return copy.fault();
  m_copy = *copy;
  if (m_ids && m_ids != m_copy->sharedIds()) return false;
  m_ids = m_copy->sharedIds();
  return true;
}

Result<bool> Selecting::run(std::span<const Criteria> all, const Order& order, bool atOnce) {
  const Result<QVector<int>> sorted = sortedColumns(order, *m_schema);
  if (!sorted) return sorted.fault();
  std::vector<QVector<int>> steps;
  for (const Criteria& one : all) {
    const Result<QVector<int>> searched = searchedColumns(one, *m_schema);
    if (!searched) return searched.fault();
    steps.push_back(*searched);
  }
  steps.push_back(*sorted);
  const auto from = [&](size_t step) {
    QVector<int> columns;
    for (; step < steps.size(); ++step) columns += steps[step];
    return columns;
  };
  if (atOnce)
    if (const Result<bool> provided = provide(from(0), {}); !provided) return provided.fault();
  for (size_t step = 0; step < steps.size(); ++step) {
    const bool sorts = step == all.size();
    if (!sorts && all[step].anyOf.empty()) continue;
    if (!atOnce) {
      const Result<bool> provided = provide(steps[step], from(step + 1));
      if (!provided || !*provided) return provided;
    }
    if (!sorts) m_rows = fittingRows(all[step], *m_copy, m_rows ? &*m_rows : nullptr);
  }
  return true;
}

RowList Selecting::take(const Order& order) {
  RowSorter sorter(order, *m_schema, [&](int column) -> const TextColumn& { return m_copy->column(column); });
  if (!m_rows && sorter.byIdAlone()) return RowList(m_copy->sharedIds(), sorter.idDescending());
  if (!m_rows) {
    m_rows.emplace(m_copy->ids().size());
    std::iota(m_rows->begin(), m_rows->end(), 0u);
  }
  return RowList(m_copy->ids(), *m_rows, std::move(sorter));
}

}  // namespace

Result<RowList> selectRows(Engine& engine, const QString& table, std::span<const Criteria> all,
                           const Order& order) {
  const Result<std::shared_ptr<const TableSchema>> schema = engine.schema(table);
  if (!schema) return schema.fault();
  const Order wanted = orderOf(all, order);
  constexpr int kAttempts = 3;
  for (int attempt = 1;; ++attempt) {
    Selecting selecting(engine, *schema);
    const Result<bool> selected = selecting.run(all, wanted, attempt == kAttempts);
    if (!selected) return selected.fault();
    if (*selected) return selecting.take(wanted);
  }
}

}  // namespace store
