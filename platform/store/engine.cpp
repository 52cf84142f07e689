#include "platform/store/engine.h"

#include <QFileInfo>

namespace store {

Result<std::shared_ptr<const TableSchema>> Engine::schema(const QString& table) {
  Result<Statement*> version = m_statements.get(QStringLiteral("PRAGMA schema_version"));
  if (!version) return version.fault();
  if (const Result<bool> row = (*version)->step(); !row) return row.fault();
  const qint64 now = (*version)->number(0);
  (*version)->rewind();
  if (now != m_schemaVersion) {  // another program may have added columns
    forget();
    m_schemaVersion = now;
  }
  if (const auto kept = m_schemas.constFind(table); kept != m_schemas.constEnd()) return *kept;
  Result<TableSchema> read = readSchema(handle(), path(), QStringLiteral("main"), table);
  if (!read) return read.fault();
  auto made = std::make_shared<const TableSchema>(std::move(*read));
  m_schemas.insert(table, made);
  return made;
}

Result<QStringList> Engine::tables() {
  Result<Statement*> names = m_statements.get(
      QStringLiteral("SELECT name FROM sqlite_master WHERE type='table' AND name NOT LIKE 'sqlite%'"));
  if (!names) return names.fault();
  QStringList tables;
  for (;;) {
    const Result<bool> row = (*names)->step();
    if (!row) return row.fault();
    if (!*row) break;
    tables += (*names)->text(0);
  }
  (*names)->rewind();
  return tables;
}

void Engine::forget() {
  m_schemas.clear();
  m_copies.clear();
  m_statements.clear();
  m_schemaVersion = -1;
  noteManyWrites();
}

Done Engine::addColumn(const QString& table, const QString& column, ColumnType type) {
  const Result<std::shared_ptr<const TableSchema>> known = schema(table);
  if (!known) return known.fault();
  if ((*known)->find(column) >= 0)
    return Fault{QStringLiteral("項目「%1」は、テーブル「%2」にすでにあります。").arg(column, table)};
  return execute(handle(), path(),
                 QStringLiteral("ALTER TABLE ") + quotedName((*known)->table()) +
                     QStringLiteral(" ADD COLUMN ") + columnText(column, type));
}

void Engine::noteManyWrites() {
  m_copies.clear();
  m_lastWrites.clear();
  m_lastWriteToAll = ++m_writes;
}

quint64 Engine::lastWriteTo(const QString& table, qint64 id) const {
  return m_lastWrites.value({table, id}, m_lastWriteToAll);
}

quint32 Engine::changeCounter() const {
  sqlite3_file* file = nullptr;
  if (sqlite3_file_control(handle(), "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK || !file ||
      !file->pMethods)
    return 0;
  constexpr int kCounterOffset = 24;  // in the file's header, most significant byte first
  unsigned char bytes[4] = {};
  if (file->pMethods->xRead(file, bytes, sizeof bytes, kCounterOffset) != SQLITE_OK) return 0;
  return quint32(bytes[0]) << 24 | quint32(bytes[1]) << 16 | quint32(bytes[2]) << 8 | quint32(bytes[3]);
}

bool Engine::isBusy() const {
  const int code = sqlite3_errcode(handle()) & 0xFF;
  return code == SQLITE_BUSY || code == SQLITE_LOCKED;
}

bool Engine::mayOnlyRead() const {
  return sqlite3_db_readonly(handle(), "main") == 1 ||
         !QFileInfo(QFileInfo(path()).absolutePath()).isWritable();
}

bool Engine::copiesAreTrue() { return !m_copies.empty() && m_copiesCounter == changeCounter(); }

Result<TableCopy*> Engine::copy(const QString& table, const QVector<int>& columns) {
  const Result<std::shared_ptr<const TableSchema>> known = schema(table);
  if (!known) return known.fault();
  for (int attempt = 0;; ++attempt) {
    if (!copiesAreTrue()) {
      m_copies.clear();
      m_copiesCounter = changeCounter();
    }
    const auto [place, made] = m_copies.try_emplace((*known)->table().toStdU16String(),
                                                    TableFile(m_statements, QStringLiteral("main"), *known));
    if (const Done loaded = place->second.load(m_statements, columns); !loaded) return loaded.fault();
    constexpr int kAttempts = 3;
    if (copiesAreTrue() || attempt == kAttempts) return &place->second;
  }
}

Done Engine::write(const std::function<Done()>& work) {
  Transaction transaction(handle(), path());
  if (const Done begun = transaction.begin(); !begun) return begun;
  if (const Done done = work(); !done) return done;
  return transaction.commit();
}

quint32 Engine::counterAtBegin() {
  if (!copiesAreTrue()) m_copies.clear();
  return m_copiesCounter = changeCounter();
}

Done Engine::read(const std::function<Done()>& work) {
  if (!sqlite3_get_autocommit(handle())) return work();
  if (const Done begun = execute(handle(), path(), QStringLiteral("BEGIN")); !begun) return begun;
  const Done done = work();
  const Done ended = execute(handle(), path(), QStringLiteral("COMMIT"));
  return done ? ended : done;
}

void Engine::noteOwnWrite(quint32 before) {
  ++m_writes;
  if (m_copiesCounter == before)
    m_copiesCounter = before + 1;
  else if (m_copiesCounter != before + 1)
    m_copies.clear();
}

void Engine::rowWritten(const QString& table, qint64 id, quint32 before) {
  noteOwnWrite(before);
  m_lastWrites.insert({table, id}, m_writes);
  const auto place = m_copies.find(table.toStdU16String());
  // The write itself is done: a copy that cannot take it over is read again by whoever needs it next.
  if (place != m_copies.end() && !place->second.rowWritten(id)) m_copies.clear();
}

void Engine::rowsWritten(const QString& table, const std::vector<qint64>& ids, quint32 before) {
  constexpr size_t kCheaperToReadAgain = 1000;
  if (ids.size() > kCheaperToReadAgain) return noteManyWrites();
  for (const qint64 id : ids) rowWritten(table, id, before);
}

void Engine::rowRemoved(const QString& table, qint64 id, quint32 before) {
  noteOwnWrite(before);
  m_lastWrites.insert({table, id}, m_writes);
  const auto place = m_copies.find(table.toStdU16String());
  if (place != m_copies.end()) place->second.rowRemoved(id);
}

}  // namespace store
