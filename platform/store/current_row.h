#pragma once

#include "platform/store/table_file.h"

namespace store {

/// The row at hand of a set that is walked through. Rows of some three hundred columns are read whole only
/// where more is asked of them than a walk asks of every row: the columns that are asked first (the month,
/// the patient's key) are learnt and read alone.
class CurrentRow {
 public:
  /// The value of a column of the row with the ID; null where the row is gone.
  Value value(const TableFile& file, qint64 id, int column);
  /// All columns; an empty row where it is gone.
  const Row& whole(const TableFile& file, qint64 id);
  /// Whether the row is still there.
  bool stands(const TableFile& file, qint64 id);
  /// Forgets what was read, and keeps what was learnt.
  void forget();

 private:
  void goTo(qint64 id);
  void readFirst(const TableFile& file);

  qint64 m_id = kNoBookmark;
  QVector<int> m_firstColumns{0};  ///< ID and what is asked first
  QString m_firstSelect;
  Row m_first;
  Row m_whole;
  bool m_firstRead = false;
  bool m_wholeRead = false;
};

}  // namespace store
