#pragma once

#include <optional>

#include "platform/store/table_file.h"

namespace store {

/// The current row of a set. Rows of some three hundred columns are read whole only where more is asked of
/// them than a walk asks of every row: the columns that are asked first (the month, the patient's key) are
/// learnt and read alone.
///
/// A row that could not be read is not tried again until forget(), readAhead() or another row: a form asks
/// for forty columns, and each would wait for a locked file.
class CurrentRow {
 public:
  /// The value of a column of the row with the ID; null where the row is gone.
  Result<Value> value(const TableFile& file, qint64 id, int column);
  /// All columns as a store compares them with the file; an empty row where it is gone.
  Result<Row> whole(const TableFile& file, qint64 id);
  /// Whether the row still exists.
  Result<bool> exists(const TableFile& file, qint64 id);
  /// Reads all columns now, from which value() answers afterwards. Tries again after a fault.
  Done readAhead(const TableFile& file, qint64 id);
  /// Forgets what was read, and keeps which columns were learnt.
  void forget();

 private:
  void goTo(qint64 id);
  Done readFirst(const TableFile& file);

  qint64 m_id = kNoBookmark;
  QVector<int> m_firstColumns{0};  ///< ID and what is asked first
  QString m_firstSelect;
  // Each is none until it is read and empty where the row is gone.
  std::optional<Row> m_first;  ///< the values of m_firstColumns
  std::optional<Row> m_whole;  ///< the row as it counts as seen
  std::optional<Row> m_ahead;  ///< the row as it was read before anybody asked
  std::optional<Fault> m_fault;
};

}  // namespace store
