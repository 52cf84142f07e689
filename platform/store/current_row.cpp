#include "platform/store/current_row.h"

namespace store {
namespace {

constexpr qsizetype kMostFirstColumns = 9;

}  // namespace

void CurrentRow::forget() {
  m_id = kNoBookmark;
  m_first.clear();
  m_whole.clear();
  m_firstRead = m_wholeRead = false;
}

void CurrentRow::goTo(qint64 id) {
  if (m_id == id) return;
  forget();
  m_id = id;
}

void CurrentRow::readFirst(const TableFile& file) {
  if (m_firstRead) return;
  m_firstRead = true;
  if (m_firstSelect.isEmpty()) m_firstSelect = file.selectText(m_firstColumns);
  if (Result<Row> read = file.read(m_id, m_firstColumns, m_firstSelect)) m_first = std::move(*read);
}

const Row& CurrentRow::whole(const TableFile& file, qint64 id) {
  goTo(id);
  if (!m_wholeRead) {
    m_wholeRead = true;
    if (Result<Row> read = file.read(m_id)) m_whole = std::move(*read);
    // What was read first counts as seen: a change since then must be noticed when the row is stored.
    if (!m_whole.isEmpty())
      for (qsizetype i = 0; i < m_first.size(); ++i) m_whole[m_firstColumns[i]] = m_first[i];
  }
  return m_whole;
}

bool CurrentRow::stands(const TableFile& file, qint64 id) {
  goTo(id);
  if (m_wholeRead) return !m_whole.isEmpty();
  readFirst(file);
  return !m_first.isEmpty();
}

Value CurrentRow::value(const TableFile& file, qint64 id, int column) {
  goTo(id);
  if (!m_wholeRead) {
    const qsizetype place = m_firstColumns.indexOf(column);
    if (place >= 0) {
      readFirst(file);
      return m_first.isEmpty() ? Value() : m_first[place];
    }
    (void)whole(file, id);
    if (m_firstColumns.size() < kMostFirstColumns) {  // learnt for the rows to come
      m_firstColumns += column;
      m_firstSelect.clear();
    }
  }
  const Row& row = whole(file, id);
  return row.isEmpty() ? Value() : row[column];
}

}  // namespace store
