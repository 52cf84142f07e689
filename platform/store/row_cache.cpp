#include "platform/store/row_cache.h"

namespace store {

void RowCache::clear() {
  m_rows.clear();
  m_columns.clear();
}

Value RowCache::value(Engine& engine, const TableFile& file, qint64 id, int column) {
  constexpr int kMostRows = 8192;
  if (m_writes != engine.writes() || m_rows.size() > kMostRows) {
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
    Result<Row> read = file.read(id, m_columns, m_select);
    if (!read || read->isEmpty()) return {};
    row = m_rows.insert(id, std::move(*read));
  }
  return (*row)[place];
}

}  // namespace store
