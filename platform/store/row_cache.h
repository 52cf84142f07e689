#pragma once

#include <QHash>
#include <optional>

#include "platform/store/engine.h"

namespace store {

/// What lists read: of each row that they show, the columns that they ask for, kept for a while, so that
/// scrolling through a hundred thousand rows reads only what it shows.
class RowCache {
 public:
  /// The value of a column of a row; null where the row is gone. While another program holds the file, the
  /// first call waits for it; the others give its fault at once until tryAgain().
  Result<Value> value(Engine& engine, const TableFile& file, qint64 id, int column);
  /// Gives the fault without waiting for the file, until tryAgain().
  void giveUp(const Fault& busy) { m_busy = busy; }
  /// Reads again what could not be read.
  void tryAgain() { m_busy.reset(); }
  void clear();

 private:
  QHash<qint64, Row> m_rows;  ///< the first columns of m_columns, as many as were asked for at the time
  QVector<int> m_columns;     ///< columns asked for so far
  QString m_select;           ///< reads them
  quint64 m_writes = 0;
  std::optional<Fault> m_busy;
};

}  // namespace store
