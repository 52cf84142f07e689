#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>
#include <span>

#include "platform/store/column.h"
#include "platform/text/result.h"

namespace store {

using text::Done;
using text::Fault;
using text::Result;

class Database;

/// A place in a record set that stays valid while rows come and go: the row's ID.
using Bookmark = qint64;
inline constexpr Bookmark kNoBookmark = -1;

/// One column's value. All values travel as text: a null QString is NULL in the file, yes/no is "-1"
/// or "0", a number its decimal digits.
using Value = QString;

/// The values of the columns that a walk asked for, in their order, valid during the call alone: a null view
/// is NULL, yes/no is "-1" or "0".
using RowViews = std::span<const QStringView>;

/// The rows of one table as a screen walks them: one current row, moved by the calls below.
///
/// The set holds the IDs of its rows in order; a row is read when it becomes current, so that a list of
/// a hundred thousand rows never reads the table whole. A filtered or sorted set is a copy made by
/// openRecordset(); the original is not changed.
///
/// A row that another computer changed between edit() (or the reading of the row) and update() is
/// refused with the engine's text, and the row buffer is kept. Text longer than its column holds is
/// refused likewise, never cut.
class RecordSet {
 public:
  RecordSet();
  ~RecordSet();
  RecordSet(RecordSet&&) noexcept;
  RecordSet& operator=(RecordSet&&) noexcept;

  /// Opens a bare table name as a whole row set in ID order.
  static Result<RecordSet> open(std::shared_ptr<Database> database, const QString& table);

  bool isOpen() const;
  QString table() const;
  std::shared_ptr<Database> database() const;

  int recordCount() const;
  bool bof() const;
  bool eof() const;
  /// Position of the current row counted from 0; -1 where there is none.
  int absolutePosition() const;
  void setAbsolutePosition(int position);

  void moveFirst();
  void moveLast();
  void moveNext();
  void movePrevious();
  /// Runs a move (moveNext(), setBookmark(), ...) and reads the row that it leads to. Where that row cannot
  /// be read, the set stays on the present one, whose values need not be read again. What is being entered is
  /// dropped, as by every move.
  Done moveAndRead(const std::function<void(RecordSet& set)>& move);
  /// Reads the current row whole, so that value() answers without the file until the set moves or the row is
  /// written. A row that is gone is no fault: its values are null.
  Done readRow() const;

  Bookmark bookmark() const;
  void setBookmark(Bookmark bookmark);
  /// The row that the last update() wrote.
  Bookmark lastModified() const;

  /// The current row's value (of the row buffer while editing). A column that the table lacks reads null, and
  /// so does one that cannot be read: fault() says so then. After readRow() or moveAndRead() all can be read.
  Value value(const QString& column) const;
  /// The same of a column of the catalogue. One of another table is a mistake of the program: critical.
  Value value(const Column& column) const;
  /// Whether the column holds marks, "-1" and "0".
  bool isYesNo(const QString& column) const;
  bool isYesNo(const Column& column) const { return isYesNo(own(column)); }
  /// The value of any row of the set by position, for lists; the current row does not move. What cannot be
  /// read is null, and fault() says so.
  Value valueAt(int position, const QString& column) const;
  Value valueAt(int position, const Column& column) const { return valueAt(position, own(column)); }
  /// The same, with the fault in the value's place.
  Result<Value> readAt(int position, const QString& column) const;
  Result<Value> readAt(int position, const Column& column) const { return readAt(position, own(column)); }
  /// Why value() or valueAt() gave null since the last move, readRow() or refresh(); none where all was read.
  const std::optional<Fault>& fault() const;

  Done addNew();
  Done edit();
  bool editing() const;
  bool adding() const;
  /// Sets a column of the row buffer. Refuses an unknown column.
  Done setValue(const QString& column, const Value& value);
  Done setValue(const Column& column, const Value& value) { return setValue(own(column), value); }
  /// Writes the row buffer. The current row stays where it was (moving to the new row is the caller's:
  /// setBookmark(lastModified())).
  Done update();
  void cancelUpdate();
  /// Deletes the current row; the set then stands before the next one, as after movePrevious().
  Done remove();

  /// Calls `each` with the columns of every row of the set in one pass, as the file holds them at one moment:
  /// for sums and counts over many rows. Goes in ID order whatever the order of the set, does not move the
  /// current row and passes over rows that are gone. The function must not write to the file. Refuses an
  /// unknown column.
  Done forEach(const QStringList& columns, const std::function<void(RowViews values)>& each) const;
  /// Writes one column of every row of the set in one transaction, all or none. `newValue` makes it from the
  /// columns `reads` as they stand in the file at that moment, under the write lock: what another computer
  /// stored meanwhile is seen, never overwritten. No value, or the one that stands already: the row is not
  /// written. Rows that are gone are passed over, current row and lastModified() stay. Refused while a row is
  /// being entered, and with the engine's text where the file is in use elsewhere or a value does not fit.
  Done updateAll(const QStringList& reads, const QString& column,
                 const std::function<std::optional<Value>(RowViews values)>& newValue);

  /// Criteria of the closed query subset, for openRecordset(); blank: all rows. May end in "order by ID".
  void setFilter(const QString& criteria);
  /// "<column> ASC", "<column> DESC", or a comma-separated list of such.
  void setSort(const QString& order);
  /// The filtered and sorted copy; a wrong criteria text gives the engine's error text.
  Result<RecordSet> openRecordset() const;

  Done findFirst(const QString& criteria);
  Done findNext(const QString& criteria);
  bool noMatch() const;

  /// Reads the set again from the file, keeping filter, sort and, where it still stands, the row.
  Done refresh();

 private:
  /// The column's name, after a look whether it is of this set's table.
  QString own(const Column& column) const;
  struct State;
  std::unique_ptr<State> m_state;
};

}  // namespace store
