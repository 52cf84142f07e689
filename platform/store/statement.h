#pragma once

#include <sqlite3.h>

#include <QString>

#include "platform/store/catalogue.h"
#include "platform/store/record_set.h"

namespace store {

/// What the engine says of its last call on the handle, in plain words and with the file's name.
Fault engineFault(sqlite3* handle, const QString& path);

/// The fault of a write to a file that may only be read.
Fault readOnly(const QString& path);

/// A text between double quotes, for the names of tables and columns in statements.
QString quotedName(const QString& name);

/// One prepared statement on one handle. Values are bound, never joined into the text. A statement is reset
/// by its destructor and by rewind(), so that no read lock outlives a call.
class Statement {
 public:
  static Result<Statement> prepare(sqlite3* handle, const QString& path, const QString& sql);
  ~Statement();
  Statement(Statement&& other) noexcept;
  Statement& operator=(Statement&& other) noexcept;

  void bind(int index, qint64 number);
  /// Binds as text; a null text is NULL.
  void bindText(int index, const QString& text);
  /// Binds a value that columnValue() has accepted for the type.
  void bindValue(int index, const Value& value, ColumnType type);

  /// True: a row stands; false: done.
  Result<bool> step();
  /// Runs to the end.
  Done run();
  void rewind();

  qint64 number(int column) const { return sqlite3_column_int64(m_statement, column); }
  QString text(int column) const;
  /// The text without a copy; valid until the next call of the statement. Null: NULL.
  QStringView view(int column) const;
  /// The same as a value of the type: yes/no is "-1" or "0".
  QStringView view(int column, ColumnType type) const;
  /// As Value: yes/no is "-1" or "0", never null.
  Value value(int column, ColumnType type) const;

 private:
  Statement(sqlite3* handle, QString path, sqlite3_stmt* statement)
      : m_handle(handle), m_path(std::move(path)), m_statement(statement) {}
  sqlite3* m_handle;
  QString m_path;
  sqlite3_stmt* m_statement;
};

/// Prepares and runs a text without values.
Done execute(sqlite3* handle, const QString& path, const QString& sql);

/// One transaction that takes the write lock at its start and is rolled back unless committed.
class Transaction {
 public:
  Transaction(sqlite3* handle, QString path) : m_handle(handle), m_path(std::move(path)) {}
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  Done begin();
  Done commit();

 private:
  sqlite3* m_handle;
  QString m_path;
  bool m_open = false;
};

}  // namespace store
