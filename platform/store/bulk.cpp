#include "platform/store/bulk.h"

#include "platform/store/database.h"
#include "platform/store/engine.h"

namespace store {
namespace {

Result<RowValues> valuesOf(const TableSchema& schema, const QHash<QString, Value>& row) {
  RowValues values;
  for (int column = 0; column < schema.count(); ++column) {
    const auto given = row.constFind(schema.name(column));
    if (given == row.constEnd()) continue;
    Result<Value> value = columnValue(schema, column, *given);
    if (!value) return value.fault();
    values.append({column, *value});
  }
  return values;
}

/// The highest ID of the table, 0 where it is empty.
Result<qint64> lastId(Engine& engine, const TableSchema& schema) {
  Result<Statement*> last =
      engine.statements().get(QStringLiteral("SELECT max(\"ID\") FROM ") + quotedName(schema.table()));
  if (!last) return last.fault();
  if (const Result<bool> row = (*last)->step(); !row) return row.fault();
  const qint64 id = (*last)->number(0);
  (*last)->rewind();
  return id;
}

}  // namespace

Done addRows(const QString& path, const QString& table, const QList<QHash<QString, Value>>& rows) {
  return addRows(path, table, static_cast<int>(rows.size()), [&](int number) { return rows[number]; });
}

Done addRows(const QString& path, const QString& table, int count,
             const std::function<QHash<QString, Value>(int number)>& rowOf) {
  Result<std::shared_ptr<Database>> database = Database::open(path);
  if (!database) return database.fault();
  Engine& engine = (*database)->engine();
  const Result<std::shared_ptr<const TableSchema>> schema = engine.schema(table);
  if (!schema) return schema.fault();
  const TableFile file(engine.statements(), QStringLiteral("main"), *schema);
  const Done done = engine.write([&]() -> Done {
    for (int number = 0; number < count; ++number) {
      const Result<RowValues> values = valuesOf(**schema, rowOf(number));
      if (!values) return values.fault();
      if (const Result<qint64> added = file.insert(*values); !added) return added.fault();
    }
    return {};
  });
  engine.forget();
  return done;
}

Done addRows(const QString& path, const QString& table, const QStringList& columns, int count,
             const std::function<void(int, QStringList&)>& fill) {
  const Result<std::shared_ptr<Database>> database = Database::open(path);
  if (!database) return database.fault();
  Engine& engine = (*database)->engine();
  const Result<std::shared_ptr<const TableSchema>> schema = engine.schema(table);
  if (!schema) return schema.fault();
  const TableFile file(engine.statements(), QStringLiteral("main"), *schema);
  RowValues values;
  for (const QString& name : columns) {
    values.append({(*schema)->find(name), Value()});
    if (values.back().first < 0) return unknownColumn(name, table);
  }
  Result<Statement> insert = Statement::prepare(engine.handle(), engine.path(), file.insertText(values));
  if (!insert) return insert.fault();
  QStringList row(columns.size());
  const Done done = engine.write([&]() -> Done {
    for (int number = 0; number < count; ++number) {
      fill(number, row);
      for (int place = 0; place < columns.size(); ++place) {
        const int column = values[place].first;
        const Result<Value> value = columnValue(**schema, column, row[place]);
        if (!value) return value.fault();
        insert->bindValue(place + 1, *value, (*schema)->type(column));
      }
      if (const Done added = insert->run(); !added) return added;
    }
    return {};
  });
  engine.forget();
  return done;
}

Result<int> addNewerRows(const QString& path, const QString& table,
                         const QList<QHash<QString, Value>>& rows) {
  const Result<std::shared_ptr<Database>> database = Database::open(path);
  if (!database) return database.fault();
  Engine& engine = (*database)->engine();
  const Result<std::shared_ptr<const TableSchema>> schema = engine.schema(table);
  if (!schema) return schema.fault();
  const TableFile file(engine.statements(), QStringLiteral("main"), *schema);
  const auto newer = [&]() -> Result<QList<QHash<QString, Value>>> {
    const Result<qint64> last = lastId(engine, **schema);
    if (!last) return last.fault();
    QList<QHash<QString, Value>> found;
    for (const QHash<QString, Value>& row : rows)
      if (row.value(QStringLiteral("ID")).toLongLong() > *last) found += row;
    return found;
  };
  const auto before = newer();
  if (!before) return before.fault();
  if (before->isEmpty()) return 0;
  int added = 0;
  const Done done = engine.write([&]() -> Done {
    const auto missing = newer();  // asked again under the lock
    if (!missing) return missing.fault();
    for (const QHash<QString, Value>& row : *missing) {
      for (auto column = row.cbegin(); column != row.cend(); ++column)
        if ((*schema)->find(column.key()) < 0) return unknownColumn(column.key(), table);
      const Result<RowValues> values = valuesOf(**schema, row);
      if (!values) return values.fault();
      if (const Result<qint64> inserted = file.insert(*values); !inserted) return inserted.fault();
      ++added;
    }
    return {};
  });
  engine.forget();
  if (!done) return done.fault();
  return added;
}

}  // namespace store
