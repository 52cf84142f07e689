#include "platform/store/row_list.h"

#include <algorithm>

namespace store {
namespace {

/// So many rows are sorted at once: a window of a list and what stands next to it.
constexpr size_t kWindow = 256;

}  // namespace

RowList::RowList(const std::vector<qint64>& ids, const std::vector<uint32_t>& rows, RowSorter sorter)
    : m_sorter(std::make_shared<const RowSorter>(std::move(sorter))) {
  m_entries.reserve(rows.size());
  for (const uint32_t row : rows) m_entries.push_back({ids[row], row});
  if (!m_sorter->byIdAlone())
    m_unsorted.emplace(0, m_entries.size());
  else if (m_sorter->idDescending())
    std::reverse(m_entries.begin(), m_entries.end());
}

void RowList::copyIds() {
  if (!m_ids) return;
  m_entries.reserve(m_ids->size() + 1);
  for (const qint64 id : *m_ids) m_entries.push_back({id, 0});
  if (m_backwards) std::reverse(m_entries.begin(), m_entries.end());
  m_ids.reset();
}

void RowList::append(qint64 id) {
  copyIds();
  m_entries.push_back({id, 0});
}

void RowList::settle(size_t position) const {
  auto stretch = m_unsorted.upper_bound(position);
  if (stretch == m_unsorted.begin()) return;
  --stretch;
  const auto [start, end] = *stretch;
  if (position >= end) return;
  const size_t first = std::max(start, position - position % kWindow);
  const size_t last = std::min(end, first + kWindow);
  const auto at = [&](size_t place) { return m_entries.begin() + static_cast<std::ptrdiff_t>(place); };
  const auto order = [&](const Entry& a, const Entry& b) { return before(a, b); };
  if (first > start) std::nth_element(at(start), at(first), at(end), order);
  if (last < end) std::nth_element(at(first), at(last), at(end), order);
  std::sort(at(first), at(last), order);
  m_unsorted.erase(stretch);
  if (first > start) m_unsorted.emplace(start, first);
  if (last < end) m_unsorted.emplace(last, end);
}

qint64 RowList::at(int position) const {
  const size_t place = static_cast<size_t>(position);
  if (m_ids) return (*m_ids)[m_backwards ? m_ids->size() - 1 - place : place];
  settle(place);
  return m_entries[place].id;
}

int RowList::find(qint64 id) const {
  if (m_ids) {
    const auto place = std::lower_bound(m_ids->begin(), m_ids->end(), id);
    if (place == m_ids->end() || *place != id) return -1;
    const auto forwards = static_cast<int>(place - m_ids->begin());
    return m_backwards ? size() - 1 - forwards : forwards;
  }
  const auto place =
      std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& entry) { return entry.id == id; });
  if (place == m_entries.end()) return -1;
  const size_t seen = static_cast<size_t>(place - m_entries.begin());
  auto stretch = m_unsorted.upper_bound(seen);
  if (stretch == m_unsorted.begin() || seen >= (--stretch)->second) return static_cast<int>(seen);
  const Entry wanted = *place;
  size_t position = stretch->first;  // its place in the stretch is the number of those before it
  for (size_t other = stretch->first; other < stretch->second; ++other)
    position += before(m_entries[other], wanted);
  settle(position);
  return static_cast<int>(position);
}

std::vector<qint64> RowList::ids() const {
  std::vector<qint64> all;
  all.reserve(m_entries.size());
  for (int position = 0; position < size(); ++position) all.push_back(at(position));
  return all;
}

std::vector<qint64> RowList::idsAscending() const {
  if (m_ids) return *m_ids;
  std::vector<qint64> all;
  all.reserve(m_entries.size());
  for (const Entry& entry : m_entries) all.push_back(entry.id);
  if (!std::is_sorted(all.begin(), all.end())) std::sort(all.begin(), all.end());
  return all;
}

void RowList::erase(int position) {
  copyIds();
  const size_t place = static_cast<size_t>(position);
  settle(place);
  m_entries.erase(m_entries.begin() + position);
  std::map<size_t, size_t> moved;
  for (const auto& [start, end] : m_unsorted)
    moved.emplace(start > place ? start - 1 : start, start > place ? end - 1 : end);
  m_unsorted = std::move(moved);
}

}  // namespace store
