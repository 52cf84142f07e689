#pragma once

#include <QHash>
#include <QVector>
#include <memory>
#include <utility>

#include "platform/store/schema.h"

namespace store {

/// Prepared statements of one handle, kept for the next use of the same text.
class StatementCache {
 public:
  StatementCache(sqlite3* handle, QString path) : m_handle(handle), m_path(std::move(path)) {}

  sqlite3* handle() const { return m_handle; }
  const QString& path() const { return m_path; }
  /// The statement of the text, rewound.
  Result<Statement*> get(const QString& sql);
  void clear() { m_statements.clear(); }

 private:
  sqlite3* m_handle;
  QString m_path;
  QHash<QString, std::shared_ptr<Statement>> m_statements;
};

/// All values of a row, in the order of the schema.
using Row = QVector<Value>;
/// Columns to write, by their index in the schema, with values that columnValue() accepted.
using RowValues = QVector<std::pair<int, Value>>;

/// The rows of one table in one file, one at a time by ID. Knows no transaction: callers hold it.
class TableFile {
 public:
  /// `qualifier` is the name of the attached file, "main" for the handle's own.
  TableFile(StatementCache& statements, QString qualifier, std::shared_ptr<const TableSchema> schema);

  const TableSchema& schema() const { return *m_schema; }
  const std::shared_ptr<const TableSchema>& sharedSchema() const { return m_schema; }

  /// Reads a row; an empty one where the ID does not stand.
  Result<Row> read(qint64 id) const;
  /// Reads some columns of a row by their selectText(); an empty row where the ID does not stand.
  Result<Row> read(qint64 id, const QVector<int>& columns, const QString& selectText) const;
  QString selectText(const QVector<int>& columns) const;
  /// Adds a row; its ID is the one among the values or else assigned by the file.
  Result<qint64> insert(const RowValues& values) const;
  /// The statement that adds a row with these columns, their values bound from 1 on.
  QString insertText(const RowValues& values) const;
  /// The values that differ from the row as it stands. A write that changes nothing must not be reported as
  /// one: it does not advance the file's counter.
  static RowValues differing(const Row& now, const RowValues& values);
  Done update(qint64 id, const RowValues& values) const;
  Done remove(qint64 id) const;

  /// The accepted values of a map of columns; refuses unknown names.
  Result<RowValues> accept(const QHash<QString, Value>& columns) const;

 private:
  StatementCache* m_statements;
  std::shared_ptr<const TableSchema> m_schema;
  QString m_name;
  QVector<int> m_allColumns;
  QString m_selectAll;
};

/// What a store is refused with when the row is another one than was read.
Fault changedMeanwhile();
/// The fault of a row that is no longer there.
Fault rowIsGone();
/// The fault of a column that the table lacks.
Fault unknownColumn(const QString& column, const QString& table);

}  // namespace store
