#include "platform/store/table_file.h"

#include <algorithm>
#include <numeric>

namespace store {

Result<Statement*> StatementCache::get(const QString& sql) {
  constexpr int kMaxStatements = 64;
  if (m_statements.size() > kMaxStatements && !m_statements.contains(sql)) m_statements.clear();
  std::shared_ptr<Statement>& kept = m_statements[sql];
  if (!kept) {
    Result<Statement> made = Statement::prepare(m_handle, m_path, sql);
    if (!made) {
      m_statements.remove(sql);
      return made.fault();
    }
    kept = std::make_shared<Statement>(std::move(*made));
  }
  kept->rewind();
  return kept.get();
}

TableFile::TableFile(StatementCache& statements, QString qualifier, std::shared_ptr<const TableSchema> schema)
    : m_statements(&statements),
      m_schema(std::move(schema)),
      m_name(quotedName(qualifier) + QLatin1Char('.') + quotedName(m_schema->table())),
      m_allColumns(m_schema->count()) {
  std::iota(m_allColumns.begin(), m_allColumns.end(), 0);
  m_selectAll = selectText(m_allColumns);
}

QString TableFile::selectText(const QVector<int>& columns) const {
  QStringList names;
  for (const int column : columns) names += quotedName(m_schema->name(column));
  return QStringLiteral("SELECT ") + names.join(QLatin1Char(',')) + QStringLiteral(" FROM ") + m_name +
         QStringLiteral(" WHERE \"ID\"=?1");
}

Result<Row> TableFile::read(qint64 id) const { return read(id, m_allColumns, m_selectAll); }

Result<Row> TableFile::read(qint64 id, const QVector<int>& columns, const QString& selectText) const {
  Result<Statement*> statement = m_statements->get(selectText);
  if (!statement) return statement.fault();
  (*statement)->bind(1, id);
  const Result<bool> found = (*statement)->step();
  if (!found) return found.fault();
  Row row;
  if (found.value()) {
    row.reserve(columns.size());
    for (int place = 0; place < columns.size(); ++place)
      row += (*statement)->value(place, m_schema->type(columns[place]));
  }
  (*statement)->rewind();
  return row;
}

QString TableFile::insertText(const RowValues& values) const {
  QStringList names, places;
  for (const auto& [column, value] : values) {
    names += quotedName(m_schema->name(column));
    places += QLatin1Char('?') + QString::number(places.size() + 1);
  }
  const QString content = values.isEmpty()
                              ? QStringLiteral(" DEFAULT VALUES")
                              : QStringLiteral(" (%1) VALUES (%2)").arg(names.join(u','), places.join(u','));
  return QStringLiteral("INSERT INTO ") + m_name + content;
}

Result<qint64> TableFile::insert(const RowValues& values) const {
  Result<Statement*> statement = m_statements->get(insertText(values));
  if (!statement) return statement.fault();
  int place = 0;
  for (const auto& [column, value] : values) (*statement)->bindValue(++place, value, m_schema->type(column));
  if (const Done done = (*statement)->run(); !done) return done.fault();
  return static_cast<qint64>(sqlite3_last_insert_rowid(m_statements->handle()));
}

RowValues TableFile::differing(const Row& now, const RowValues& values) {
  RowValues changes;
  for (const auto& [column, value] : values)
    if (value != now[column] || value.isNull() != now[column].isNull()) changes.append({column, value});
  return changes;
}

Done TableFile::update(qint64 id, const RowValues& values) const {
  if (values.isEmpty()) return {};
  QStringList pairs;
  for (const auto& [column, value] : values)
    pairs += quotedName(m_schema->name(column)) + QStringLiteral("=?") + QString::number(pairs.size() + 2);
  Result<Statement*> statement =
      m_statements->get(QStringLiteral("UPDATE ") + m_name + QStringLiteral(" SET ") + pairs.join(u',') +
                        QStringLiteral(" WHERE \"ID\"=?1"));
  if (!statement) return statement.fault();
  (*statement)->bind(1, id);
  int place = 1;
  for (const auto& [column, value] : values) (*statement)->bindValue(++place, value, m_schema->type(column));
  return (*statement)->run();
}

Done TableFile::remove(qint64 id) const {
  Result<Statement*> statement =
      m_statements->get(QStringLiteral("DELETE FROM ") + m_name + QStringLiteral(" WHERE \"ID\"=?1"));
  if (!statement) return statement.fault();
  (*statement)->bind(1, id);
  return (*statement)->run();
}

Result<RowValues> TableFile::accept(const QHash<QString, Value>& columns) const {
  RowValues values;
  for (auto entry = columns.cbegin(); entry != columns.cend(); ++entry) {
    const int column = m_schema->find(entry.key());
    if (column < 0) return unknownColumn(entry.key(), m_schema->table());
    if (m_schema->type(column) == ColumnType::Counter) continue;  // the key is never written with the values
    Result<Value> value = columnValue(*m_schema, column, entry.value());
    if (!value) return value.fault();
    values.append({column, *value});
  }
  std::sort(values.begin(), values.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  return values;
}

Fault changedMeanwhile() {
  return {QStringLiteral(
      "このレコードは、表示した後でほかのコンピュータまたは画面で変更されたため、登録できません。"
      "表示し直してから、もう一度入力してください。")};
}

Fault rowIsGone() { return {QStringLiteral("このレコードは、すでに削除されています。")}; }

Fault unknownColumn(const QString& column, const QString& table) {
  return {QStringLiteral("テーブル「%1」に項目「%2」がありません。").arg(table, column)};
}

}  // namespace store
