#include "platform/store/current_row.h"

namespace store {
namespace {

/// Enough for the walks of this program; a form, which asks for more, reads its row whole at once.
constexpr qsizetype kMaxFirstColumns = 9;

}  // namespace

void CurrentRow::forget() {
  m_id = kNoBookmark;
  m_first.reset();
  m_whole.reset();
  m_ahead.reset();
  m_fault.reset();
}

void CurrentRow::goTo(qint64 id) {
  if (m_id == id) return;
  forget();
  m_id = id;
}

Done CurrentRow::readFirst(const TableFile& file) {
  if (m_first) return {};
  if (m_ahead) {
    m_first.emplace();
    if (m_ahead->isEmpty()) return {};
    for (const int column : m_firstColumns) *m_first += (*m_ahead)[column];
    return {};
  }
  if (m_firstSelect.isEmpty()) m_firstSelect = file.selectText(m_firstColumns);
  Result<Row> read = file.read(m_id, m_firstColumns, m_firstSelect);
  if (!read) return *(m_fault = read.fault());
  m_first = std::move(*read);
  return {};
}

Done CurrentRow::readAhead(const TableFile& file, qint64 id) {
  goTo(id);
  m_fault.reset();
  if (m_whole || m_ahead) return {};
  Result<Row> read = file.read(id);
  if (!read) return *(m_fault = read.fault());
  m_ahead = std::move(*read);
  return {};
}

Result<Row> CurrentRow::whole(const TableFile& file, qint64 id) {
  goTo(id);
  if (m_whole) return *m_whole;
  Result<Row> read = file.read(id);
  if (!read) return *(m_fault = read.fault());
  m_whole = std::move(*read);
  // What was read first counts as seen: a change since then must be noticed when the row is stored.
  if (!m_whole->isEmpty() && m_first)
    for (qsizetype i = 0; i < m_first->size(); ++i) (*m_whole)[m_firstColumns[i]] = (*m_first)[i];
  return *m_whole;
}

Result<bool> CurrentRow::exists(const TableFile& file, qint64 id) {
  goTo(id);
  if (m_whole) return !m_whole->isEmpty();
  m_fault.reset();
  if (const Done read = readFirst(file); !read) return read.fault();
  return !m_first->isEmpty();
}

Result<Value> CurrentRow::value(const TableFile& file, qint64 id, int column) {
  goTo(id);
  if (m_fault) return *m_fault;
  if (!m_whole) {
    const qsizetype place = m_firstColumns.indexOf(column);
    if (place >= 0) {
      if (const Done read = readFirst(file); !read) return read.fault();
      return place < m_first->size() ? (*m_first)[place] : Value();
    }
    if (m_ahead)
      m_whole = m_ahead;
    else if (const Result<Row> read = whole(file, id); !read)
      return read.fault();
    if (m_firstColumns.size() < kMaxFirstColumns) {  // learnt for the rows to come
      m_firstColumns += column;
      m_firstSelect.clear();
    }
  }
  return m_whole->isEmpty() ? Value() : (*m_whole)[column];
}

}  // namespace store
