#include "platform/store/pair.h"

#include <sqlite3.h>

#include <QFile>
#include <array>
#include <optional>

#include "platform/store/engine.h"

namespace store {
namespace {

constexpr int kBusyMilliseconds = 5000;

Fault halfIsMissing(qint64 id) {
  return {QStringLiteral("ID %1 のレコードは、2つのファイルにそろっていません。").arg(id)};
}

}  // namespace

/// One half: its rows through the joined handle, and the file as the record sets of this program hold it.
struct Half {
  std::shared_ptr<Database> database;
  TableFile file;
  quint32 before = 0;           ///< the file's counter when the transaction began
  std::vector<qint64> written;  ///< passed to the file's record sets after the commit
  std::vector<qint64> removed;
};

struct PairStore::State {
  ~State() {
    statements.reset();
    sqlite3_close_v2(handle);
  }

  Fault fault() const { return engineFault(handle, path); }
  std::array<Half*, 2> halves() { return {&*first, &*second}; }

  Done attach(const QString& file);
  Result<Half> openHalf(const QString& file, const QString& qualifier, const QString& table);
  Done transact(const std::function<Done()>& work);
  Done nested(const std::function<Done()>& work);
  void tellRecordSets();
  Result<qint64> nextId() const;
  Done checkSeen(const Half& half, const Row& now, const Columns* seen) const;
  Done updateHalf(Half& half, qint64 id, const Columns& columns, const Columns* seen);

  sqlite3* handle = nullptr;
  QString path;
  std::unique_ptr<StatementCache> statements;
  std::optional<Half> first, second;
  bool inTransaction = false;
};

Done PairStore::State::attach(const QString& file) {
  Result<Statement> statement = Statement::prepare(handle, file, QStringLiteral("ATTACH ?1 AS second"));
  if (!statement) return statement.fault();
  statement->bindText(1, file);
  return statement->run();
}

Result<Half> PairStore::State::openHalf(const QString& file, const QString& qualifier, const QString& table) {
  Result<std::shared_ptr<Database>> database = Database::open(file);
  if (!database) return database.fault();
  Result<TableSchema> schema = readSchema(handle, file, qualifier, table);
  if (!schema) return schema.fault();
  return Half{*database,
              TableFile(*statements, qualifier, std::make_shared<const TableSchema>(std::move(*schema))),
              0,
              {},
              {}};
}

/// One call among several of a transaction: its own fault undoes it alone, so that no half of it stays.
Done PairStore::State::nested(const std::function<Done()>& work) {
  if (const Done begun = execute(handle, path, QStringLiteral("SAVEPOINT call")); !begun) return begun;
  const Done done = work();
  if (!done) sqlite3_exec(handle, "ROLLBACK TO call", nullptr, nullptr, nullptr);
  if (const Done released = execute(handle, path, QStringLiteral("RELEASE call")); !released) return released;
  return done;
}

/// Runs the work in the open transaction or in one of its own.
Done PairStore::State::transact(const std::function<Done()>& work) {
  if (inTransaction) return nested(work);
  for (Half* half : halves())
    if (sqlite3_db_readonly(half->database->handle(), "main") == 1) return readOnly(half->database->path());
  Transaction transaction(handle, path);
  if (const Done begun = transaction.begin(); !begun) return begun;
  for (Half* half : halves()) {
    half->before = half->database->engine().counterAtBegin();
    half->written.clear();
    half->removed.clear();
  }
  inTransaction = true;
  const Done done = work();
  inTransaction = false;
  if (!done) return done;
  if (const Done committed = transaction.commit(); !committed) return committed;
  tellRecordSets();
  return {};
}

void PairStore::State::tellRecordSets() {
  for (Half* half : halves()) {
    Engine& engine = half->database->engine();
    const QString& table = half->file.schema().table();
    engine.rowsWritten(table, half->written, half->before);
    for (const qint64 id : half->removed) engine.rowRemoved(table, id, half->before);
  }
}

/// An ID that neither file has ever given out, so that both halves can carry it.
Result<qint64> PairStore::State::nextId() const {
  Result<Statement*> statement = statements->get(
      QStringLiteral("SELECT max(seq) FROM (SELECT seq FROM main.sqlite_sequence WHERE name=?1 "
                     "UNION ALL SELECT seq FROM second.sqlite_sequence WHERE name=?1)"));
  if (!statement) return statement.fault();
  (*statement)->bindText(1, first->file.schema().table());
  const Result<bool> row = (*statement)->step();
  if (!row) return row.fault();
  const qint64 last = (*statement)->number(0);
  (*statement)->rewind();
  return last + 1;
}

Done PairStore::State::checkSeen(const Half& half, const Row& now, const Columns* seen) const {
  if (!seen) return {};
  for (auto column = seen->cbegin(); column != seen->cend(); ++column) {
    const int index = half.file.schema().find(column.key());
    if (index < 0) continue;
    const Result<Value> value = columnValue(half.file.schema(), index, column.value());
    if (!value || now[index] != *value || now[index].isNull() != value->isNull()) return changedMeanwhile();
  }
  return {};
}

Done PairStore::State::updateHalf(Half& half, qint64 id, const Columns& columns, const Columns* seen) {
  const Result<RowValues> values = half.file.accept(columns);
  if (!values) return values.fault();
  const Result<Row> now = half.file.read(id);
  if (!now) return now.fault();
  if (now->isEmpty()) return seen ? rowIsGone() : halfIsMissing(id);
  if (const Done same = checkSeen(half, *now, seen); !same) return same;
  const RowValues changes = TableFile::differing(*now, *values);
  if (changes.isEmpty()) return {};
  if (const Done done = half.file.update(id, changes); !done) return done;
  half.written.push_back(id);
  return {};
}

PairStore::PairStore() : m_state(std::make_unique<State>()) {}
PairStore::~PairStore() = default;

Result<std::unique_ptr<PairStore>> PairStore::open(const QString& firstPath, const QString& secondPath,
                                                   const QString& table) {
  // The two files are checked and reported by name as any other; the joined handle comes after.
  for (const QString& path : {firstPath, secondPath})
    if (const Result<std::shared_ptr<Database>> checked = Database::open(path); !checked)
      return checked.fault();
  std::unique_ptr<PairStore> pair(new PairStore);
  State& state = *pair->m_state;
  state.path = firstPath;
  if (sqlite3_open_v2(QFile::encodeName(firstPath).constData(), &state.handle,
                      SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_PRIVATECACHE,
                      nullptr) != SQLITE_OK)
    return state.fault();
  state.statements = std::make_unique<StatementCache>(state.handle, firstPath);
  sqlite3_busy_timeout(state.handle, kBusyMilliseconds);
  if (const Done attached = state.attach(secondPath); !attached) return attached.fault();
  // A big month must not spill half-done pages: that would lock out the record sets before the commit.
  for (const char* pragma : {"PRAGMA synchronous=FULL", "PRAGMA main.synchronous=FULL",
                             "PRAGMA second.synchronous=FULL", "PRAGMA cache_spill=OFF"})
    if (const Done done = execute(state.handle, firstPath, QLatin1String(pragma)); !done) return done.fault();
  Result<Half> first = state.openHalf(firstPath, QStringLiteral("main"), table);
  if (!first) return first.fault();
  Result<Half> second = state.openHalf(secondPath, QStringLiteral("second"), table);
  if (!second) return second.fault();
  state.first.emplace(std::move(*first));
  state.second.emplace(std::move(*second));
  return pair;
}

Result<qint64> PairStore::add(const Columns& first, const Columns& second) {
  State& state = *m_state;
  qint64 id = 0;
  const Done done = state.transact([&]() -> Done {
    const Result<qint64> next = state.nextId();
    if (!next) return next.fault();
    id = *next;
    for (const auto& [half, columns] :
         {std::pair(&*state.first, &first), std::pair(&*state.second, &second)}) {
      Result<RowValues> values = half->file.accept(*columns);
      if (!values) return values.fault();
      values->append({half->file.schema().find(QStringLiteral("ID")), QString::number(id)});
      if (const Result<qint64> added = half->file.insert(*values); !added) return added.fault();
      half->written.push_back(id);
    }
    return {};
  });
  if (!done) return done.fault();
  return id;
}

Done PairStore::update(qint64 id, const Columns& first, const Columns& second, const Columns* seenFirst,
                       const Columns* seenSecond) {
  State& state = *m_state;
  return state.transact([&]() -> Done {
    if (const Done done = state.updateHalf(*state.first, id, first, seenFirst); !done) return done;
    return state.updateHalf(*state.second, id, second, seenSecond);
  });
}

Done PairStore::remove(qint64 id) {
  State& state = *m_state;
  return state.transact([&]() -> Done {
    for (Half* half : state.halves()) {
      const int changed = sqlite3_total_changes(state.handle);
      if (const Done done = half->file.remove(id); !done) return done;
      if (sqlite3_total_changes(state.handle) != changed) half->removed.push_back(id);
    }
    return {};
  });
}

Done PairStore::repairSecond(qint64 id, const Columns& second) {
  State& state = *m_state;
  return state.transact([&]() -> Done {
    const Result<Row> first = state.first->file.read(id);
    if (!first) return first.fault();
    if (first->isEmpty()) return rowIsGone();
    const Result<Row> known = state.second->file.read(id);
    if (!known) return known.fault();
    if (!known->isEmpty()) return {};
    Result<RowValues> values = state.second->file.accept(second);
    if (!values) return values.fault();
    values->append({state.second->file.schema().find(QStringLiteral("ID")), QString::number(id)});
    if (const Result<qint64> added = state.second->file.insert(*values); !added) return added.fault();
    state.second->written.push_back(id);
    return {};
  });
}

Result<std::pair<PairStore::Columns, PairStore::Columns>> PairStore::read(qint64 id) const {
  std::pair<Columns, Columns> both;
  for (const auto& [half, columns] :
       {std::pair(&*m_state->first, &both.first), std::pair(&*m_state->second, &both.second)}) {
    const Result<Row> row = half->file.read(id);
    if (!row) return row.fault();
    columns->reserve(row->size());
    for (int column = 0; column < row->size(); ++column)
      columns->insert(half->file.schema().name(column), (*row)[column]);
  }
  return both;
}

Done PairStore::together(const std::function<Done()>& work) { return m_state->transact(work); }

}  // namespace store
