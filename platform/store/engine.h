#pragma once

#include <functional>
#include <memory>
#include <unordered_map>

#include "platform/store/table_copy.h"

namespace store {

/// What a Database keeps beside its handle: schemas, prepared statements and memory copies of columns, all
/// of the file as it stands now. Record sets on one path share it.
class Engine {
 public:
  Engine(sqlite3* handle, QString path) : m_statements(handle, std::move(path)) {}

  sqlite3* handle() const { return m_statements.handle(); }
  const QString& path() const { return m_statements.path(); }
  StatementCache& statements() { return m_statements; }

  Result<std::shared_ptr<const TableSchema>> schema(const QString& table);
  /// The names of the tables of data.
  Result<QStringList> tables();

  /// The memory copy of a table, with these columns loaded and true to the file as it is now.
  Result<TableCopy*> copy(const QString& table, const QVector<int>& columns);

  /// Runs the work in one transaction that holds the write lock; a fault rolls it back.
  Done write(const std::function<Done()>& work);
  /// Runs the work while the file stays as it is: in one reading transaction, or in the one that is open.
  Done read(const std::function<Done()>& work);
  /// The file's counter at the beginning of a transaction that holds the write lock, to be passed on with the
  /// rows that it wrote. Copies of another moment are dropped: a counter that other hands set back (a copy
  /// put in the place of the file's bytes) may come to theirs again.
  quint32 counterAtBegin();
  /// Rows that this handle has changed since it was opened.
  int rowsChanged() const { return sqlite3_total_changes(handle()); }
  /// Tells of a row that this program wrote or removed inside a transaction that began at the counter
  /// `before`, whoever's handle it was. Only of a transaction that changed something.
  void rowWritten(const QString& table, qint64 id, quint32 before);
  void rowsWritten(const QString& table, const std::vector<qint64>& ids, quint32 before);
  void rowRemoved(const QString& table, qint64 id, quint32 before);
  /// Adds columns to a table inside the caller's write(); one that stands already is a fault. The caller
  /// calls forget() afterwards, whatever came of the transaction.
  Done addColumn(const QString& table, const QString& column, ColumnType type);
  /// Forgets schemas and copies, after a change of the columns.
  void forget();

  /// The file's own count of its transactions, 0 where it cannot be read.
  quint32 changeCounter() const;
  /// Whether the last call on the handle failed because another program holds the file.
  bool isBusy() const;
  /// Whether the file, or the folder that its journal goes to, may not be written.
  bool mayOnlyRead() const;
  /// Counts this program's own writes; a list that read under another number reads again.
  quint64 writes() const { return m_writes; }
  /// The number of this program's last write to a row. A row that was read before it is read again; one that
  /// somebody else changed stays as it was read, so that the store of it is refused.
  quint64 lastWriteTo(const QString& table, qint64 id) const;

 private:
  bool copiesAreTrue();
  void noteOwnWrite(quint32 before);
  void noteManyWrites();

  StatementCache m_statements;
  QHash<QString, std::shared_ptr<const TableSchema>> m_schemas;
  qint64 m_schemaVersion = -1;
  std::unordered_map<std::u16string, TableCopy> m_copies;
  quint32 m_copiesCounter = 0;  ///< the file's counter that the copies stand for
  quint64 m_writes = 0;
  quint64 m_lastWriteToAll = 0;
  QHash<std::pair<QString, qint64>, quint64> m_lastWrites;
};

}  // namespace store
