#include "platform/store/record_set.h"

#include "platform/store/record_set_state.h"
#include "platform/store/row_walk.h"

namespace store {
namespace {

Fault noCurrentRow() { return {QStringLiteral("カレントレコードがありません。")}; }

}  // namespace

RecordSet::RecordSet() : m_state(std::make_unique<State>()) {}
RecordSet::~RecordSet() = default;
RecordSet::RecordSet(RecordSet&&) noexcept = default;
RecordSet& RecordSet::operator=(RecordSet&&) noexcept = default;

Result<RecordSet> RecordSet::open(std::shared_ptr<Database> database, const QString& table) {
  Result<std::shared_ptr<const TableSchema>> known = database->engine().schema(table);
  if (!known) return known.fault();
  RecordSet set;
  set.m_state->file.emplace(database->engine().statements(), QStringLiteral("main"), *known);
  set.m_state->database = std::move(database);
  if (const Done loaded = set.m_state->load(); !loaded) return loaded.fault();
  return set;
}

bool RecordSet::isOpen() const { return m_state && m_state->database; }
QString RecordSet::table() const { return isOpen() ? m_state->schema().table() : QString(); }
std::shared_ptr<Database> RecordSet::database() const { return m_state ? m_state->database : nullptr; }

int RecordSet::recordCount() const { return m_state->count(); }
bool RecordSet::bof() const { return m_state->position < 0; }
bool RecordSet::eof() const { return m_state->ids.empty() || m_state->position >= m_state->count(); }
int RecordSet::absolutePosition() const { return m_state->onRow() ? m_state->position : -1; }

void RecordSet::setAbsolutePosition(int position) {
  if (position >= 0 && position < m_state->count()) m_state->moveTo(position);
}

void RecordSet::moveFirst() {
  if (m_state->count() > 0) m_state->moveTo(0);
}
void RecordSet::moveLast() {
  if (m_state->count() > 0) m_state->moveTo(m_state->count() - 1);
}
void RecordSet::moveNext() {
  if (!eof()) m_state->moveTo(m_state->position + 1);
}
void RecordSet::movePrevious() {
  if (!bof()) m_state->moveTo(m_state->position - 1);
}

Done RecordSet::moveAndRead(const std::function<void(RecordSet&)>& move) {
  if (!isOpen()) return noCurrentRow();
  const int position = m_state->position;
  const CurrentRow row = m_state->row();
  move(*this);
  const Done read = readRow();
  if (read) return {};
  m_state->moveTo(position);
  m_state->current = row;
  return read;
}

Done RecordSet::readRow() const {
  if (!isOpen() || m_state->buffer != Buffer::None || !m_state->onRow()) return {};
  m_state->fault.reset();
  const Done read = m_state->row().readAhead(*m_state->file, m_state->id());
  if (read)
    m_state->shown.tryAgain();
  else if (m_state->engine().isBusy())
    m_state->shown.giveUp(read.fault());  // the lists need not wait once more
  return read;
}

Bookmark RecordSet::bookmark() const { return m_state->id(); }

void RecordSet::setBookmark(Bookmark bookmark) {
  const int place = m_state->ids.find(bookmark);
  if (place >= 0) m_state->moveTo(place);
}

Bookmark RecordSet::lastModified() const { return m_state->lastModified; }

Value RecordSet::value(const QString& column) const {
  if (!isOpen()) return {};
  const int index = m_state->schema().find(column);
  if (index < 0) return {};
  if (const auto change = m_state->changes.constFind(index); change != m_state->changes.constEnd())
    return *change;
  if (m_state->buffer == Buffer::Adding)
    return m_state->schema().type(index) == ColumnType::YesNo ? QStringLiteral("0") : Value();
  if (m_state->buffer == Buffer::Editing) return m_state->seen[index];
  if (!m_state->onRow()) return {};
  return m_state->valueOrFault(m_state->row().value(*m_state->file, m_state->id(), index));
}

QString RecordSet::own(const Column& column) const {
  if (isOpen() && m_state->schema().table() != QStringView(column.table().name()))
    qCritical("column %s does not belong to table %s", qUtf8Printable(column.text()),
              qUtf8Printable(table()));
  return column.text();
}

Value RecordSet::value(const Column& column) const { return value(own(column)); }

bool RecordSet::isYesNo(const QString& column) const {
  const int index = isOpen() ? m_state->schema().find(column) : -1;
  return index >= 0 && m_state->schema().type(index) == ColumnType::YesNo;
}

Value RecordSet::valueAt(int position, const QString& column) const {
  return isOpen() ? m_state->valueOrFault(readAt(position, column)) : Value();
}

Result<Value> RecordSet::readAt(int position, const QString& column) const {
  if (!isOpen() || position < 0 || position >= m_state->count()) return Value();
  const int index = m_state->schema().find(column);
  return index < 0 ? Value() : m_state->valueAt(position, index);
}

const std::optional<Fault>& RecordSet::fault() const { return m_state->fault; }

Done RecordSet::addNew() {
  if (!isOpen()) return noCurrentRow();
  m_state->endEditing();
  m_state->buffer = Buffer::Adding;
  return {};
}

Done RecordSet::edit() {
  if (!isOpen() || !m_state->onRow()) return noCurrentRow();
  m_state->endEditing();
  const Result<Row> row = m_state->row().whole(*m_state->file, m_state->id());
  if (!row) return row.fault();
  if (row->isEmpty()) return rowIsGone();
  m_state->seen = *row;
  m_state->buffer = Buffer::Editing;
  return {};
}

bool RecordSet::editing() const { return m_state->buffer == Buffer::Editing; }
bool RecordSet::adding() const { return m_state->buffer == Buffer::Adding; }

Done RecordSet::setValue(const QString& column, const Value& value) {
  if (m_state->buffer == Buffer::None)
    return Fault{
        QStringLiteral("追加または編集を始めていないため、項目「%1」を変更できません。").arg(column)};
  const int index = m_state->schema().find(column);
  if (index < 0) return unknownColumn(column, table());
  const bool key = m_state->schema().type(index) == ColumnType::Counter;
  if (key && editing() && value != m_state->seen[index])
    return Fault{QStringLiteral("項目「%1」は、変更できません。").arg(column)};
  if (!(key && editing())) m_state->changes.insert(index, value);
  return {};
}

Done RecordSet::update() {
  State& state = *m_state;
  if (state.buffer == Buffer::None)
    return Fault{QStringLiteral("追加または編集を始めていないため、登録できません。")};
  const Result<RowValues> values = state.bufferedValues();
  if (!values) return values.fault();
  const bool adds = adding();
  const Done done = state.write(
      [&]() -> Result<qint64> { return adds ? state.file->insert(*values) : state.writeEdited(*values); });
  if (!done) return done;
  if (adds) state.ids.append(state.lastModified);
  state.endEditing();
  return {};
}

void RecordSet::cancelUpdate() {
  m_state->endEditing();
  m_state->current.forget();
}

Done RecordSet::remove() {
  State& state = *m_state;
  if (!isOpen() || !state.onRow()) return noCurrentRow();
  state.endEditing();
  const qint64 id = state.id();
  quint32 before = 0;
  const int changed = state.engine().rowsChanged();
  const Done done = state.engine().write([&] {
    before = state.engine().counterAtBegin();
    return state.file->remove(id);
  });
  if (!done) return done;
  if (state.engine().rowsChanged() != changed) state.engine().rowRemoved(table(), id, before);
  state.ids.erase(state.position);
  state.moveTo(state.position - 1);
  return {};
}

Done RecordSet::forEach(const QStringList& columns, const std::function<void(RowViews)>& each) const {
  if (!isOpen()) return noCurrentRow();
  const Result<QVector<int>> places = m_state->columns(columns);
  if (!places) return places.fault();
  return walkRows(m_state->engine(), m_state->schema(), m_state->ids.idsAscending(), *places,
                  [&](qint64, RowViews values) { each(values); });
}

Done RecordSet::updateAll(const QStringList& reads, const QString& column,
                          const std::function<std::optional<Value>(RowViews)>& newValue) {
  if (!isOpen()) return noCurrentRow();
  if (m_state->buffer != Buffer::None)
    return Fault{
        QStringLiteral("入力中のレコードがあるため、項目「%1」をまとめて変更できません。").arg(column)};
  const Result<QVector<int>> places = m_state->columns(reads + QStringList{column});
  if (!places) return places.fault();
  return m_state->writeColumn(*places, newValue);
}

void RecordSet::setFilter(const QString& criteria) { m_state->nextFilter = criteria; }
void RecordSet::setSort(const QString& order) { m_state->nextSort = order; }

Result<RecordSet> RecordSet::openRecordset() const {
  if (!isOpen()) return noCurrentRow();
  RecordSet copy;
  State& made = *copy.m_state;
  made.database = m_state->database;
  made.file = m_state->file;
  made.filters = m_state->filters;
  Result<Criteria> filter = parseCriteria(m_state->nextFilter);
  if (!filter) return filter.fault();
  Result<Order> order = parseOrder(m_state->nextSort);
  if (!order) return order.fault();
  made.order = !order->empty() ? *order : !filter->order.empty() ? filter->order : m_state->order;
  made.filters.push_back(std::move(*filter));
  if (const Done loaded = made.load(); !loaded) return loaded.fault();
  return copy;
}

Done RecordSet::findFirst(const QString& criteria) {
  if (!isOpen()) return noCurrentRow();
  return m_state->find(criteria, 0);
}

Done RecordSet::findNext(const QString& criteria) {
  if (!isOpen()) return noCurrentRow();
  return m_state->find(criteria, m_state->position + 1);
}

bool RecordSet::noMatch() const { return m_state->noMatch; }

Done RecordSet::refresh() {
  if (!isOpen()) return noCurrentRow();
  State& state = *m_state;
  const qint64 id = state.id();
  state.endEditing();
  if (const Done loaded = state.load(); !loaded) return loaded;
  if (id != kNoBookmark) setBookmark(id);
  return {};
}

}  // namespace store
