#include "platform/store/record_set_state.h"

#include <algorithm>

#include "platform/store/row_walk.h"

namespace store {

/// The current row. It is read again when this program wrote to it since.
CurrentRow& RecordSet::State::row() const {
  if (engine().lastWriteTo(schema().table(), id()) > currentWrites) current.forget();
  currentWrites = engine().writes();
  return current;
}

Value RecordSet::State::valueOrFault(Result<Value> read) const {
  if (read) return std::move(*read);
  fault = read.fault();
  return {};
}

Result<Value> RecordSet::State::valueAt(int place, int column) const {
  return shown.value(engine(), *file, ids.at(place), column);
}

void RecordSet::State::endEditing() {
  buffer = Buffer::None;
  changes.clear();
  seen.clear();
}

void RecordSet::State::moveTo(int place) {
  endEditing();
  fault.reset();
  position = place;
}

Done RecordSet::State::load() {
  Result<std::shared_ptr<const TableSchema>> known = engine().schema(schema().table());
  if (!known) return known.fault();
  if (*known != file->sharedSchema()) file.emplace(engine().statements(), QStringLiteral("main"), *known);
  Result<RowList> found = selectRows(engine(), schema().table(), filters, order);
  if (!found) return found.fault();
  ids = std::move(*found);
  shown.clear();
  current.forget();
  fault.reset();
  position = ids.empty() ? -1 : 0;
  return {};
}

Done RecordSet::State::find(const QString& criteria, int from) {
  endEditing();
  noMatch = true;
  const Result<Criteria> parsed = parseCriteria(criteria);
  if (!parsed) return parsed.fault();
  const Order byId{{QStringLiteral("ID"), false}};
  const Result<RowList> rows = selectRows(engine(), schema().table(), {&*parsed, 1}, byId);
  if (!rows) return rows.fault();
  const std::vector<qint64> hits = rows->ids();
  for (int place = from; place < count(); ++place) {
    if (!std::binary_search(hits.begin(), hits.end(), ids.at(place))) continue;
    moveTo(place);
    noMatch = false;
    break;
  }
  return {};
}

Result<RowValues> RecordSet::State::bufferedValues() const {
  RowValues values;
  for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
    Result<Value> value = columnValue(schema(), change.key(), change.value());
    if (!value) return value.fault();
    values.append({change.key(), *value});
  }
  std::sort(values.begin(), values.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  return values;
}

/// Runs the work, which gives the ID that it wrote, in one transaction and takes note of it.
Done RecordSet::State::write(const std::function<Result<qint64>()>& work) {
  quint32 before = 0;
  qint64 written = kNoBookmark;
  const int changed = engine().rowsChanged();
  const Done done = engine().write([&]() -> Done {
    before = engine().counterAtBegin();
    const Result<qint64> wrote = work();
    if (!wrote) return wrote.fault();
    written = *wrote;
    return {};
  });
  if (!done) return done;
  if (engine().rowsChanged() != changed) engine().rowWritten(schema().table(), written, before);
  lastModified = written;
  return {};
}

Result<QVector<int>> RecordSet::State::columns(const QStringList& names) const {
  QVector<int> found;
  for (const QString& name : names) {
    found += schema().find(name);
    if (found.back() < 0) return unknownColumn(name, schema().table());
  }
  return found;
}

Done RecordSet::State::writeColumn(const QVector<int>& columns,
                                   const std::function<std::optional<Value>(RowViews)>& newValue) {
  const size_t own = static_cast<size_t>(columns.size()) - 1;
  quint32 before = 0;
  std::vector<qint64> written;
  std::vector<std::pair<qint64, Value>> changed;
  const Done done = engine().write([&]() -> Done {
    before = engine().counterAtBegin();
    const Done walked =
        walkRows(engine(), schema(), ids.idsAscending(), columns, [&](qint64 id, RowViews values) {
          const std::optional<Value> made = newValue(values.first(own));
          if (made && (*made != values[own] || made->isNull() != values[own].isNull()))
            changed.emplace_back(id, *made);
        });
    if (!walked) return walked;
    for (const auto& [id, made] : changed) {
      const Result<Value> value = columnValue(schema(), columns.back(), made);
      if (!value) return value.fault();
      if (const Done one = file->update(id, {{columns.back(), *value}}); !one) return one;
      written.push_back(id);
    }
    return {};
  });
  if (done) engine().rowsWritten(schema().table(), written, before);
  return done;
}

Result<qint64> RecordSet::State::writeEdited(const RowValues& values) {
  const Result<Row> now = file->read(id());
  if (!now) return now.fault();
  if (now->isEmpty()) return rowIsGone();
  if (*now != seen) return changedMeanwhile();
  if (const Done done = file->update(id(), TableFile::differing(*now, values)); !done) return done.fault();
  return id();
}

}  // namespace store
