#pragma once

#include <map>
#include <memory>
#include <vector>

#include "platform/store/order.h"

namespace store {

/// IDs of the rows of a record set by position, sorted where somebody looks: a list of a hundred thousand
/// rows shows its first window long before the last row would have its place.
class RowList {
 public:
  RowList() = default;
  /// `rows` are the numbers of rows in ID order, `ids` the IDs of all rows by number.
  RowList(const std::vector<qint64>& ids, const std::vector<uint32_t>& rows, RowSorter sorter);

  /// All rows of a table, forwards or backwards; nothing is copied.
  RowList(std::shared_ptr<const std::vector<qint64>> ids, bool backwards)
      : m_ids(std::move(ids)), m_backwards(backwards) {}

  int size() const { return static_cast<int>(m_ids ? m_ids->size() : m_entries.size()); }
  bool empty() const { return size() == 0; }
  qint64 at(int position) const;
  /// Position of the ID, -1 where it is not in the list.
  int find(qint64 id) const;
  /// All IDs in their order.
  std::vector<qint64> ids() const;
  /// All IDs, the smallest first, whatever the order of the list.
  std::vector<qint64> idsAscending() const;
  void append(qint64 id);
  void erase(int position);

 private:
  struct Entry {
    qint64 id;
    uint32_t row;
  };
  /// Makes entries of a whole table's list, to change them.
  void copyIds();
  void settle(size_t position) const;
  bool before(const Entry& a, const Entry& b) const { return m_sorter->before(a.row, b.row); }

  std::shared_ptr<const std::vector<qint64>> m_ids;  ///< a whole table's, else null
  bool m_backwards = false;
  mutable std::vector<Entry> m_entries;
  std::shared_ptr<const RowSorter> m_sorter;
  /// Stretches that are not sorted yet, from start to end: whatever stands in one belongs into it.
  mutable std::map<size_t, size_t> m_unsorted;
};

}  // namespace store
