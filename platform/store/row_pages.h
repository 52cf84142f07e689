#pragma once

#include <QHash>
#include <vector>

#include "platform/store/engine.h"

namespace store {

/// What lists read: some columns of neighbouring rows, read together and kept for a while, so that scrolling
/// through a hundred thousand rows reads only what it shows.
class RowPages {
 public:
  /// The value of the row at the position of `ids`; null where the row is gone.
  Value value(Engine& engine, const TableFile& file, const std::vector<qint64>& ids, int position, int column);
  void clear();

 private:
  using Page = std::vector<Row>;
  const Page* page(const TableFile& file, const std::vector<qint64>& ids, int number);

  QHash<int, Page> m_pages;
  QVector<int> m_columns;         ///< columns asked for so far, as they stand in a page's rows
  QHash<int, int> m_placeOf;      ///< column to its place in them
  quint64 m_writes = 0;
};

}  // namespace store
