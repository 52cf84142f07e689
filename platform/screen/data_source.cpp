#include "platform/screen/data_source.h"

#include "platform/screen/control_book.h"
#include "platform/screen/control_grid.h"
#include "platform/screen/screen.h"
#include "platform/screen/screen_parts.h"
#include "platform/store/database.h"

namespace screen {

bool DataSource::open(const QString& path) {
  auto database = store::Database::open(path);
  auto rows = database ? store::RecordSet::open(database.value(), QString::fromUtf16(m_table.name()))
                       : store::Result<store::RecordSet>(database.fault());
  if (!rows) {
    m_openFault = rows.fault().message;
    return told(rows.fault());
  }
  assign(std::move(rows.value()));
  return true;
}

bool DataSource::holdsRow() const {
  return m_rows.isOpen() && (m_rows.adding() || m_rows.absolutePosition() >= 0);
}

bool DataSource::ready() {
  if (!isOpen()) m_screen.messages().tellDataFault(m_openFault);
  return isOpen();
}

void DataSource::assign(store::RecordSet rows) {
  m_rows = std::move(rows);
  show();
}

void DataSource::show() {
  const bool hasRow = holdsRow();
  for (Control* control : m_screen.m_parts->book.boundTo(m_number))
    control->load(hasRow ? m_rows.value(control->column()) : store::Value());
  for (GridControl* grid : m_screen.m_parts->book.gridsOf(m_number)) grid->follow();
  m_screen.rowShown(m_number);
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
  if (!adding && !m_rows.editing() && !told(m_rows.edit())) return false;
  auto done = setChangedColumns();
  if (done) done = m_rows.update();
  if (!done) {
    // What was typed stays on the screen; the next write reads the row afresh. A new row is kept open.
    if (!adding) m_rows.cancelUpdate();
    return told(done);
  }
  for (Control* control : m_screen.m_parts->book.boundTo(m_number)) control->settle();
  if (adding) m_rows.setBookmark(m_rows.lastModified());
  show();
  return true;
}

bool DataSource::addNew() {
  if (!m_rows.isOpen() || !leaveRow() || !told(m_rows.addNew())) return false;
  show();
  return true;
}

bool DataSource::addNewAsShown() {
  if (!m_rows.isOpen()) return false;
  const auto controls = m_screen.m_parts->book.boundTo(m_number);
  QStringList shown;
  for (const Control* control : controls) shown << control->text();
  if (m_rows.editing() || m_rows.adding()) m_rows.cancelUpdate();
  if (!told(m_rows.addNew())) return false;
  show();
  for (qsizetype i = 0; i < shown.size(); ++i) controls[size_t(i)]->putText(shown[i]);
  return true;
}

bool DataSource::remove() {
  if (!m_rows.isOpen()) return false;
  if (m_rows.editing() || m_rows.adding()) m_rows.cancelUpdate();
  if (!told(m_rows.remove())) return false;
  stayInside();
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
  if (m_rows.recordCount() > 0) (m_rows.*step)();
  stayInside();
  show();
}

bool DataSource::moveTo(int position) {
  if (!m_rows.isOpen() || !leaveRow()) return false;
  m_rows.setAbsolutePosition(position);
  show();
  return true;
}

bool DataSource::leaveRow() {
  if (onLeaveRow) return onLeaveRow();
  if (writesOnMove) return write();
  if (m_rows.editing() || m_rows.adding()) m_rows.cancelUpdate();
  return true;
}

void DataSource::stayInside() {
  if (m_rows.recordCount() == 0) return;
  if (m_rows.eof()) m_rows.moveLast();
  if (m_rows.bof()) m_rows.moveFirst();
}

bool DataSource::told(const store::Done& done) {
  if (!done) m_screen.messages().tellDataFault(done.fault().message);
  return done.ok();
}

QString DataSource::positionText() const {
  const int position = m_rows.isOpen() ? m_rows.absolutePosition() : -1;
  return QStringLiteral("ﾚｺｰﾄﾞ: ") + QString::number(position + 1);
}

}  // namespace screen
