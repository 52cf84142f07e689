#pragma once

#include <QHash>
#include <QString>
#include <functional>

#include "platform/store/record_set.h"

namespace screen {

class Screen;

/// A screen's data source: a record set whose current row the bound controls show. Faults are reported by the
/// data-control message; the row stays. A move to a row that cannot be read is such a fault.
class DataSource {
 public:
  DataSource(Screen& screen, int number, const store::Table& table)
      : m_screen(screen), m_number(number), m_table(table) {}

  /// Opens the source's table in the file; on a fault reports it and stays closed (the screen still works).
  bool open(const QString& path);
  const store::Table& table() const { return m_table; }
  bool isOpen() const { return m_rows.isOpen(); }
  /// A row is on the screen, stored or being added.
  bool hasCurrentRow() const;
  /// For a command that needs the file: reports again what kept it from opening. False: reported.
  bool ensureOpen();
  /// For a command that works on the values of the current row: reports what keeps it from being read, after
  /// trying again. False: reported.
  bool ensureRead();
  store::RecordSet& rows() { return m_rows; }
  const store::RecordSet& rows() const { return m_rows; }
  /// Puts another set (a filtered or sorted copy) in the place of the present one and shows its row.
  void assign(store::RecordSet rows);

  /// Shows the current row in the bound controls (and moves the grid). A row that cannot be read is reported
  /// and leaves them blank.
  void show();
  /// True when a bound control differs from what show() put there, or a row is being added.
  bool pending() const;
  /// Writes the pending controls into the row (Edit, Update). False: a fault was reported, the row stays.
  bool write();
  /// Starts a new row: bound controls go blank. False: reported.
  bool addNew();
  /// Starts a new row with what the bound controls show: a text typed before is not lost. The row on view
  /// stays as it was stored. False: reported, the controls are as they were.
  bool addNewAsShown();
  /// Deletes the current row and shows the neighbour. False: reported.
  bool remove();
  /// Drops pending edits: an open AddNew is lost, the controls show the row again.
  void drop();

  // Moves of the record buttons and F1 to F4: pending edits are written first when `writesOnMove`.
  void moveFirst();
  void movePrevious();
  void moveNext();
  void moveLast();
  /// Makes the row at the position (from 0) current, as the other moves do. False: pending edits were
  /// refused, or the row cannot be read; the present one stays.
  bool moveTo(int position);
  /// Runs a move of the record set and shows the row that it leads to. False: that row cannot be read, which
  /// is reported; the present one stays as it is shown.
  bool moveAndShow(const std::function<void(store::RecordSet& rows)>& move);
  /// Whether moving away writes pending edits (bound screens do; the claim form does not).
  bool writesOnMove = true;
  /// Settles pending edits in their place before the row changes, where it is set; false: refused and
  /// reported, the row stays.
  std::function<bool()> onLeaveRow;

  /// "ﾚｺｰﾄﾞ: " and the position plus one.
  QString positionText() const;

 private:
  void move(void (store::RecordSet::*step)());
  /// Writes or drops what is pending before the row changes. False: refused.
  bool leaveRow();
  bool reportIfFailed(const store::Done& done);
  store::Done setChangedColumns();
  Screen& m_screen;
  int m_number;
  const store::Table& m_table;
  store::RecordSet m_rows;
  QString m_openFault;
};

}  // namespace screen
