#include "platform/screen/data_source.h"

#include "platform/screen/control_book.h"
#include "platform/screen/control_grid.h"
#include "platform/screen/screen.h"
#include "platform/screen/screen_parts.h"
#include "platform/store/database.h"

namespace screen {
namespace {

/// After a move or a deletion: the set goes back from before its first and from after its last row.
void stayInside(store::RecordSet& rows) {
  if (rows.recordCount() == 0) return;
  if (rows.eof()) rows.moveLast();
  if (rows.bof()) rows.moveFirst();
}

}  // namespace

bool DataSource::open(const QString& path) {
  auto database = store::Database::open(path);
  auto rows = database ? store::RecordSet::open(database.value(), QString::fromUtf16(m_table.name()))
                       : store::Result<store::RecordSet>(database.fault());
  if (!rows) {
    m_openFault = rows.fault().message;
    return reportIfFailed(rows.fault());
  }
  assign(std::move(rows.value()));
  return true;
}

bool DataSource::hasCurrentRow() const {
  return m_rows.isOpen() && (m_rows.adding() || m_rows.absolutePosition() >= 0);
}

bool DataSource::ensureOpen() {
  if (!isOpen()) m_screen.messages().tellDataFault(m_openFault);
  return isOpen();
}

bool DataSource::ensureRead() { return reportIfFailed(m_rows.readRow()); }

void DataSource::assign(store::RecordSet rows) {
  m_rows = std::move(rows);
  show();
}

void DataSource::show() {
  const store::Done read = m_rows.readRow();
  const bool hasRow = read && hasCurrentRow();
  for (Control* control : m_screen.m_parts->book.boundTo(m_number))
    control->load(hasRow ? m_rows.value(control->column()) : store::Value());
  for (GridControl* grid : m_screen.m_parts->book.gridsOf(m_number)) grid->follow();
  m_screen.rowShown(m_number);
  reportIfFailed(read);
}

bool DataSource::pending() const {
  if (!m_rows.isOpen()) return false;
  if (m_rows.adding()) return true;
  for (const Control* control : m_screen.m_parts->book.boundTo(m_number))
    if (control->changed()) return true;
  return false;
}

store::Done DataSource::setChangedColumns() {
  for (const Control* control : m_screen.m_parts->book.boundTo(m_number)) {
    if (!control->changed()) continue;
    if (auto done = m_rows.setValue(control->column(), control->stored()); !done) return done;
  }
  return {};
}

bool DataSource::write() {
  if (!pending()) return true;
  const bool adding = m_rows.adding();
  if (!adding && !m_rows.editing() && !reportIfFailed(m_rows.edit())) return false;
  auto done = setChangedColumns();
  if (done) done = m_rows.update();
  if (!done) {
    // What was typed stays on the screen; the next write reads the row afresh. A new row is kept open.
    if (!adding) m_rows.cancelUpdate();
    return reportIfFailed(done);
  }
  for (Control* control : m_screen.m_parts->book.boundTo(m_number)) control->settle();
  if (adding) m_rows.setBookmark(m_rows.lastModified());
  show();
  return true;
}

bool DataSource::addNew() {
  if (!m_rows.isOpen() || !leaveRow() || !reportIfFailed(m_rows.addNew())) return false;
  show();
  return true;
}

bool DataSource::addNewAsShown() {
  if (!m_rows.isOpen()) return false;
  const auto controls = m_screen.m_parts->book.boundTo(m_number);
  QStringList shown;
  for (const Control* control : controls) shown << control->text();
  if (m_rows.editing() || m_rows.adding()) m_rows.cancelUpdate();
  if (!reportIfFailed(m_rows.addNew())) return false;
  show();
  for (qsizetype i = 0; i < shown.size(); ++i) controls[size_t(i)]->putText(shown[i]);
  return true;
}

bool DataSource::remove() {
  if (!m_rows.isOpen()) return false;
  if (m_rows.editing() || m_rows.adding()) m_rows.cancelUpdate();
  if (!reportIfFailed(m_rows.remove())) return false;
  stayInside(m_rows);
  show();
  return true;
}

void DataSource::drop() {
  if (!m_rows.isOpen()) return;
  if (m_rows.editing() || m_rows.adding()) m_rows.cancelUpdate();
  show();
}

void DataSource::moveFirst() { move(&store::RecordSet::moveFirst); }
void DataSource::movePrevious() { move(&store::RecordSet::movePrevious); }
void DataSource::moveNext() { move(&store::RecordSet::moveNext); }
void DataSource::moveLast() { move(&store::RecordSet::moveLast); }

void DataSource::move(void (store::RecordSet::*step)()) {
  if (!m_rows.isOpen() || !leaveRow()) return;
  moveAndShow([step](store::RecordSet& rows) {
    if (rows.recordCount() > 0) (rows.*step)();
    stayInside(rows);
  });
}

bool DataSource::moveAndShow(const std::function<void(store::RecordSet&)>& move) {
  if (!reportIfFailed(m_rows.moveAndRead(move))) return false;
  show();
  return true;
}

bool DataSource::moveTo(int position) {
  if (!m_rows.isOpen() || !leaveRow()) return false;
  return moveAndShow([position](store::RecordSet& rows) { rows.setAbsolutePosition(position); });
}

bool DataSource::leaveRow() {
  if (onLeaveRow) return onLeaveRow();
  if (writesOnMove) return write();
  if (m_rows.editing() || m_rows.adding()) m_rows.cancelUpdate();
  return true;
}

bool DataSource::reportIfFailed(const store::Done& done) {
  if (!done) m_screen.messages().tellDataFault(done.fault().message);
  return done.ok();
}

QString DataSource::positionText() const {
  const int position = m_rows.isOpen() ? m_rows.absolutePosition() : -1;
  return QStringLiteral("ﾚｺｰﾄﾞ: ") + QString::number(position + 1);
}

}  // namespace screen
