#pragma once

#include <QHash>

#include "platform/store/engine.h"

namespace store {

/// What lists read: of each row that they show, the columns that they ask for, kept for a while, so that
/// scrolling through a hundred thousand rows reads only what it shows.
class RowCache {
 public:
  /// The value of a column of a row; null where the row is gone.
  Value value(Engine& engine, const TableFile& file, qint64 id, int column);
  void clear();

 private:
  QHash<qint64, Row> m_rows;  ///< the first columns of m_columns, as many as were asked for at the time
  QVector<int> m_columns;     ///< columns asked for so far
  QString m_select;           ///< reads them
  quint64 m_writes = 0;
};

}  // namespace store
