#pragma once

#include <QHash>
#include <QStringList>
#include <QVector>
#include <optional>

#include "platform/store/statement.h"

namespace store {

/// The columns of a table as they stand in the file, which may be of an older version than the catalogue.
/// Names are found whatever the case of their ASCII letters; full and half width stay different.
class TableSchema {
 public:
  TableSchema() = default;
  explicit TableSchema(QString table) : m_table(std::move(table)) {}

  void add(const QString& name, ColumnType type);

  const QString& table() const { return m_table; }
  int count() const { return static_cast<int>(m_names.size()); }
  const QString& name(int column) const { return m_names[column]; }
  const QStringList& names() const { return m_names; }
  ColumnType type(int column) const { return m_types[column]; }
  /// Index of the column, -1 where the table has none of the name.
  int find(const QString& name) const;

 private:
  QString m_table;
  QStringList m_names;
  QVector<ColumnType> m_types;
  QHash<QString, int> m_byName;
};

/// Names of columns are compared by this.
QString columnKey(const QString& name);

/// The column's name and type as CREATE TABLE and ALTER TABLE take them.
QString columnText(const QString& name, ColumnType type);
/// The type of a word of ALTER TABLE: TEXT(255), TEXT, INTEGER or YESNO, whatever its case and blanks.
std::optional<ColumnType> typeOfWord(const QString& word);

/// Reads the columns of a table; `qualifier` is the name of the attached file ("main"). A table that the file
/// lacks is a fault with the table's and the file's name.
Result<TableSchema> readSchema(sqlite3* handle, const QString& path, const QString& qualifier,
                               const QString& table);

/// The value as the column keeps it: yes/no as -1 or 0, digits of a number trimmed. Refuses longer texts than
/// the column holds and what is no number, with the column's name.
Result<Value> columnValue(const TableSchema& schema, int column, const Value& value);

}  // namespace store
