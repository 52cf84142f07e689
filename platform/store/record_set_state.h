#pragma once

#include <optional>

#include "platform/store/current_row.h"
#include "platform/store/database.h"
#include "platform/store/row_cache.h"
#include "platform/store/selection.h"

namespace store {

/// What is being entered: nothing, changes of the current row, or a new row.
enum class Buffer { None, Editing, Adding };

/// What a record set holds: how it was made, its rows in order, the row at hand and what is being entered.
struct RecordSet::State {
  std::shared_ptr<Database> database;
  std::optional<TableFile> file;

  std::vector<Criteria> filters;  ///< what this set was made with, all of which hold
  Order order;
  QString nextFilter;  ///< for the copy that openRecordset() makes
  QString nextSort;

  RowList ids;
  int position = -1;
  Bookmark lastModified = kNoBookmark;
  bool noMatch = false;

  mutable RowCache shown;
  mutable CurrentRow current;
  mutable quint64 currentWrites = 0;
  mutable std::optional<Fault> fault;  ///< of the last value that could not be read since the last move

  Buffer buffer = Buffer::None;
  Row seen;  ///< the row as it stood when editing began
  QHash<int, Value> changes;

  Engine& engine() const { return database->engine(); }
  const TableSchema& schema() const { return file->schema(); }
  int count() const { return ids.size(); }
  bool onRow() const { return position >= 0 && position < count(); }
  qint64 id() const { return onRow() ? ids.at(position) : kNoBookmark; }

  CurrentRow& row() const;
  /// The value, or null with its fault remembered.
  Value valueOrFault(Result<Value> read) const;
  Result<Value> valueAt(int place, int column) const;
  void endEditing();
  void moveTo(int place);
  Done load();
  Done find(const QString& criteria, int from);
  Result<RowValues> bufferedValues() const;
  Done write(const std::function<Result<qint64>()>& work);
  Result<qint64> writeEdited(const RowValues& values);
  /// The columns of the names; an unknown one is a fault.
  Result<QVector<int>> columns(const QStringList& names) const;
  /// updateAll(): the last of the columns is the one to write.
  Done writeColumn(const QVector<int>& columns,
                   const std::function<std::optional<Value>(RowViews)>& newValue);
};

}  // namespace store
