#pragma once

#include <QHash>
#include <QString>
#include <QVector>
#include <memory>

#include "platform/store/database.h"

namespace store {

/// The second way to a file: statements of the closed query subset, read forward.
/// Connection string: "provider=Microsoft.jet.OLEDB.4.0;" followed by "data source=" and the path;
/// wildcard in statements is '%'.
class Connection {
 public:
  Done open(const QString& connectionString);
  void close();
  /// UPDATE and ALTER TABLE forms of the subset. Refuses everything else with the engine's text.
  Done execute(const QString& statement);
  /// Whether the table has the column (the columns restriction of the schema question).
  Result<bool> hasColumn(const QString& table, const QString& column);

  std::shared_ptr<Database> database() const { return m_database; }

 private:
  std::shared_ptr<Database> m_database;
};

/// A forward row set of a SELECT of the subset on a connection.
class Cursor {
 public:
  Cursor();
  ~Cursor();
  Cursor(Cursor&&) noexcept;
  Cursor& operator=(Cursor&&) noexcept;

  static Result<Cursor> open(Connection& connection, const QString& source);
  bool eof() const;
  void moveNext();
  Value value(const QString& column) const;
  QStringList columns() const;
  void close();

 private:
  struct State;
  std::unique_ptr<State> m_state;
};

/// Convenience for the one-shot readings: the connection string for a path.
QString connectionString(const QString& path);

}  // namespace store
