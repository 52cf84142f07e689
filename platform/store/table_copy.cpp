#include "platform/store/table_copy.h"

#include <algorithm>
#include <numeric>

namespace store {

TableCopy::TableCopy(TableFile file, const QVector<int>& columns)
    : m_file(std::move(file)), m_haveIds(true), m_order(columns) {
  for (const int column : columns) m_columns.try_emplace(column);
}

void TableCopy::append(qint64 id, RowViews values) {
  m_ids->push_back(id);
  for (int place = 0; place < m_order.size(); ++place)
    m_columns.at(m_order[place]).append(values[static_cast<size_t>(place)]);
}

std::vector<qint64>& TableCopy::ownIds() {
  if (m_ids.use_count() > 1) m_ids = std::make_shared<std::vector<qint64>>(*m_ids);
  return *m_ids;
}

QVector<int> TableCopy::missing(const QVector<int>& columns) const {
  QVector<int> lacking;
  for (const int column : columns)
    if (!m_columns.contains(column) && !lacking.contains(column)) lacking += column;
  return lacking;
}

Result<bool> TableCopy::loadUnbrokenIds(StatementCache& statements) {
  const QString table = quotedName(schema().table());
  Result<Statement*> ends = statements.get(
      QStringLiteral(
          "SELECT (SELECT count(*) FROM %1), (SELECT min(\"ID\") FROM %1), (SELECT max(\"ID\") FROM %1)")
          .arg(table));
  if (!ends) return ends.fault();
  if (const Result<bool> row = (*ends)->step(); !row) return row.fault();
  const qint64 count = (*ends)->number(0), first = (*ends)->number(1), last = (*ends)->number(2);
  (*ends)->rewind();
  if (count > 0 && last - first + 1 != count) return false;
  m_ids = std::make_shared<std::vector<qint64>>(static_cast<size_t>(count));
  std::iota(m_ids->begin(), m_ids->end(), first);
  m_haveIds = true;
  return true;
}

Done TableCopy::load(StatementCache& statements, const QVector<int>& wanted) {
  const QVector<int> columns = missing(wanted);
  if (columns.isEmpty()) {
    if (m_haveIds) return {};
    const Result<bool> unbroken = loadUnbrokenIds(statements);
    if (!unbroken) return unbroken.fault();
    if (*unbroken) return {};
  }
  QString sql = QStringLiteral("SELECT \"ID\"");
  for (const int column : columns) sql += QLatin1Char(',') + quotedName(schema().name(column));
  sql += QStringLiteral(" FROM ") + quotedName(schema().table()) + QStringLiteral(" ORDER BY \"ID\"");
  Result<Statement> rows = Statement::prepare(statements.handle(), statements.path(), sql);
  if (!rows) return rows.fault();

  std::vector<qint64> ids;
  std::vector<TextColumn> read(static_cast<size_t>(columns.size()));
  for (;;) {
    const Result<bool> row = rows->step();
    if (!row) return row.fault();
    if (!row.value()) break;
    ids.push_back(rows->number(0));
    for (int place = 0; place < columns.size(); ++place)
      read[static_cast<size_t>(place)].append(rows->view(place + 1, schema().type(columns[place])));
  }
  if (m_haveIds && ids != *m_ids) {  // another program wrote between: all columns must be of one moment
    m_columns.clear();
    m_haveIds = false;
    return load(statements, wanted);
  }
  if (!m_haveIds) m_ids = std::make_shared<std::vector<qint64>>(std::move(ids));
  m_haveIds = true;
  for (int place = 0; place < columns.size(); ++place)
    m_columns.emplace(columns[place], std::move(read[static_cast<size_t>(place)]));
  return {};
}

Done TableCopy::rowWritten(qint64 id) {
  if (!m_haveIds) return {};
  const Result<Row> read = m_file.read(id);
  if (!read) return read.fault();
  const Row& row = *read;
  const auto place = std::lower_bound(m_ids->begin(), m_ids->end(), id);
  const size_t at = static_cast<size_t>(place - m_ids->begin());
  const bool known = place != m_ids->end() && *place == id;
  if (!known && at != m_ids->size()) {  // an ID in the middle: rare enough to read all again
    m_haveIds = false;
    m_columns.clear();
    return {};
  }
  if (!known) ownIds().push_back(id);
  for (auto& [column, cells] : m_columns) {
    if (known)
      cells.replace(at, row[column]);
    else
      cells.append(row[column]);
  }
  return {};
}

void TableCopy::rowRemoved(qint64 id) {
  const auto place = std::lower_bound(m_ids->begin(), m_ids->end(), id);
  if (place == m_ids->end() || *place != id) return;
  const std::ptrdiff_t at = place - m_ids->begin();
  std::vector<qint64>& ids = ownIds();
  ids.erase(ids.begin() + at);
  for (auto& [column, cells] : m_columns) cells.erase(static_cast<size_t>(at));
}

}  // namespace store
