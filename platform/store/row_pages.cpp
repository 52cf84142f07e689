#include "platform/store/row_pages.h"

#include <algorithm>

namespace store {
namespace {

constexpr int kRowsOfPage = 64;
constexpr int kMostPages = 64;

}  // namespace

void RowPages::clear() { m_pages.clear(); }

const RowPages::Page* RowPages::page(const TableFile& file, const std::vector<qint64>& ids, int number) {
  if (const auto kept = m_pages.constFind(number); kept != m_pages.constEnd()) return &*kept;
  if (m_pages.size() >= kMostPages) m_pages.clear();
  Page made;
  const size_t first = static_cast<size_t>(number) * kRowsOfPage;
  const size_t end = std::min(first + kRowsOfPage, ids.size());
  for (size_t row = first; row < end; ++row) {
    const Result<Row> read = file.read(ids[row], m_columns);
    made.push_back(read ? *read : Row());
  }
  return &*m_pages.insert(number, std::move(made));
}

Value RowPages::value(Engine& engine, const TableFile& file, const std::vector<qint64>& ids, int position,
                      int column) {
  if (m_writes != engine.writes()) {
    m_pages.clear();
    m_writes = engine.writes();
  }
  if (!m_placeOf.contains(column)) {
    m_pages.clear();
    m_placeOf.insert(column, static_cast<int>(m_columns.size()));
    m_columns += column;
  }
  const Page* rows = page(file, ids, position / kRowsOfPage);
  const Row& row = (*rows)[static_cast<size_t>(position % kRowsOfPage)];
  return row.isEmpty() ? Value() : row[m_placeOf.value(column)];
}

}  // namespace store
