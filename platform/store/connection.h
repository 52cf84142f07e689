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

/// A forward row set of a SELECT of the subset on a connection. It begins before the first row:
/// `for (auto row = cursor.next();; row = cursor.next())` ends at false (no further row) or at a fault.
class Cursor {
 public:
  Cursor();
  ~Cursor();
  Cursor(Cursor&&) noexcept;
  Cursor& operator=(Cursor&&) noexcept;

  static Result<Cursor> open(Connection& connection, const QString& source);
  /// Goes to the next row that still exists; false where there is none. A fault where that row, or a value
  /// of the row before, could not be read; the call after it tries again from the same place.
  Result<bool> next();
  /// A value of the row at hand. Null where it cannot be read, which next() and check() then report.
  Value value(const QString& column) const;
  /// Whether all values of the row at hand were read; for a reader that needs no further row.
  Done check() const;
  QStringList columns() const;
  void close();

 private:
  struct State;
  std::unique_ptr<State> m_state;
};

/// Convenience for the one-shot readings: the connection string for a path.
QString connectionString(const QString& path);

}  // namespace store
