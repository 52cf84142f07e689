#include "platform/store/row_cache.h"

namespace store {

void RowCache::clear() {
  m_rows.clear();
  m_columns.clear();
  tryAgain();
}

Result<Value> RowCache::value(Engine& engine, const TableFile& file, qint64 id, int column) {
  constexpr int kMaxRows = 8192;
  if (m_writes != engine.writes() || m_rows.size() > kMaxRows) {
    m_rows.clear();
    m_writes = engine.writes();
  }
  qsizetype place = m_columns.indexOf(column);
  if (place < 0) {
    place = m_columns.size();
    m_columns += column;
    m_select = file.selectText(m_columns);
  }
  auto row = m_rows.find(id);
  if (row == m_rows.end() || row->size() <= place) {
    if (m_busy) return *m_busy;
    Result<Row> read = file.read(id, m_columns, m_select);
    if (!read && engine.isBusy()) m_busy = read.fault();
    if (!read) return read.fault();
    if (read->isEmpty()) return Value();
    row = m_rows.insert(id, std::move(*read));
  }
  return (*row)[place];
}

}  // namespace store
