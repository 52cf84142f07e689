#include "platform/store/connection.h"

#include <optional>
#include <utility>

#include "platform/store/current_row.h"
#include "platform/store/engine.h"
#include "platform/store/scanner.h"
#include "platform/store/selection.h"

namespace store {
namespace {

constexpr QStringView kProvider = u"provider=Microsoft.jet.OLEDB.4.0;";
constexpr QStringView kDataSource = u"data source=";

Fault closed() { return {QStringLiteral("接続が閉じているため、実行できません。")}; }

/// "UPDATE <table> SET <column> = <value>, ... WHERE ID = <n>"; without WHERE every row is written.
Done runUpdate(Engine& engine, Scanner& scanner) {
  const QString table = scanner.takeName();
  if (!scanner.takeWord(u"set")) return scanner.fault();
  QHash<QString, Value> columns;
  do {
    const QString column = scanner.takeName();
    if (column.isEmpty() || !scanner.takeMark(u"=")) return scanner.fault();
    Result<QString> value = scanner.takeValue();
    if (!value) return value.fault();
    columns.insert(column, *value);
  } while (scanner.takeMark(u","));
  const bool some = scanner.takeWord(u"where");
  if (some == scanner.atEnd()) return scanner.fault();
  const Result<Criteria> criteria = parseCriteria(scanner.takeRest(), Wildcard::Statement);
  if (!criteria) return criteria.fault();

  const Result<std::shared_ptr<const TableSchema>> schema = engine.schema(table);
  if (!schema) return schema.fault();
  const TableFile file(engine.statements(), QStringLiteral("main"), *schema);
  const Result<RowValues> values = file.accept(columns);
  if (!values) return values.fault();
  const Result<RowList> selected = selectRows(engine, table, {&*criteria, 1});
  if (!selected) return selected.fault();
  std::vector<qint64> written;
  quint32 before = 0;
  const Done done = engine.write([&]() -> Done {
    before = engine.counterAtBegin();
    for (const qint64 id : selected->ids()) {
      const Result<Row> now = file.read(id);
      if (!now) return now.fault();
      const RowValues changes = now->isEmpty() ? RowValues() : TableFile::differing(*now, *values);
      if (changes.isEmpty()) continue;
      if (const Done done = file.update(id, changes); !done) return done;
      written.push_back(id);
    }
    return {};
  });
  if (!done) return done;
  engine.rowsWritten((*schema)->table(), written, before);
  return {};
}

/// "ALTER TABLE <table> ADD COLUMN <name> <type>", the growth of a file of an older version.
Done runAlter(Engine& engine, Scanner& scanner) {
  const auto word = [&](QStringView expected) { return scanner.takeWord(expected); };
  const QString table = word(u"table") ? scanner.takeName() : QString();
  if (table.isEmpty() || !word(u"add") || !word(u"column")) return scanner.fault();
  const QString column = scanner.takeName();
  const std::optional<ColumnType> type = typeOfWord(scanner.takeRest());
  if (column.isEmpty() || !type) return scanner.fault();
  const Done done = engine.write([&] { return engine.addColumn(table, column, *type); });
  engine.forget();
  return done;
}

}  // namespace

Done Connection::open(const QString& text) {
  close();
  QString rest = text;
  if (rest.startsWith(kProvider, Qt::CaseInsensitive)) rest.remove(0, kProvider.size());
  rest = rest.trimmed();
  if (!rest.startsWith(kDataSource, Qt::CaseInsensitive))
    return Fault{QStringLiteral("接続の指定「%1」に誤りがあります。").arg(text)};
  rest.remove(0, kDataSource.size());
  if (rest.endsWith(u';')) rest.chop(1);
  Result<std::shared_ptr<Database>> opened = Database::open(rest.trimmed());
  if (!opened) return opened.fault();
  m_database = *opened;
  return {};
}

void Connection::close() { m_database.reset(); }

Done Connection::execute(const QString& statement) {
  if (!m_database) return closed();
  Scanner scanner(statement);
  if (scanner.takeWord(u"update")) return runUpdate(m_database->engine(), scanner);
  if (scanner.takeWord(u"alter")) return runAlter(m_database->engine(), scanner);
  return scanner.fault();
}

Result<bool> Connection::hasColumn(const QString& table, const QString& column) {
  if (!m_database) return closed();
  const Result<std::shared_ptr<const TableSchema>> schema = m_database->engine().schema(table);
  if (!schema) return schema.fault();
  return (*schema)->find(column) >= 0;
}

struct Cursor::State {
  std::shared_ptr<Database> database;
  std::optional<TableFile> file;
  QVector<int> columns;
  RowList ids;
  int at = -1;
  mutable CurrentRow row;
  mutable std::optional<Fault> fault;  ///< of a value of the row at hand
};

Cursor::Cursor() = default;
Cursor::~Cursor() = default;
Cursor::Cursor(Cursor&&) noexcept = default;
Cursor& Cursor::operator=(Cursor&&) noexcept = default;

Result<Cursor> Cursor::open(Connection& connection, const QString& source) {
  if (!connection.database()) return closed();
  Engine& engine = connection.database()->engine();
  Scanner scanner(source);
  if (!scanner.takeWord(u"select")) return scanner.fault();
  QStringList names;
  do {
    if (scanner.takeMark(u"*")) continue;
    names += scanner.takeName();
    if (names.back().isEmpty()) return scanner.fault();
  } while (scanner.takeMark(u","));
  if (!scanner.takeWord(u"from")) return scanner.fault();
  const QString table = scanner.takeName();
  if (scanner.takeWord(u"where") && scanner.atEnd()) return scanner.fault();
  const Result<Criteria> criteria = parseCriteria(scanner.takeRest(), Wildcard::Statement);
  if (!criteria) return criteria.fault();

  const Result<std::shared_ptr<const TableSchema>> schema = engine.schema(table);
  if (!schema) return schema.fault();
  auto state = std::make_unique<State>();
  state->database = connection.database();
  state->file.emplace(engine.statements(), QStringLiteral("main"), *schema);
  for (const QString& name : names.isEmpty() ? (*schema)->names() : names) {
    const int column = (*schema)->find(name);
    if (column < 0) return unknownColumn(name, table);
    state->columns += column;
  }
  Result<RowList> rows = selectRows(engine, table, {&*criteria, 1});
  if (!rows) return rows.fault();
  state->ids = std::move(*rows);
  Cursor cursor;
  cursor.m_state = std::move(state);
  return cursor;
}

Result<bool> Cursor::next() {
  if (!m_state) return false;
  State& state = *m_state;
  if (state.fault) return *std::exchange(state.fault, std::nullopt);
  for (; state.at + 1 < state.ids.size(); ++state.at) {  // past the rows that were deleted since
    const Result<bool> exists = state.row.exists(*state.file, state.ids.at(state.at + 1));
    if (!exists) return exists.fault();
    if (!*exists) continue;
    ++state.at;
    return true;
  }
  state.at = state.ids.size();
  return false;
}

Value Cursor::value(const QString& column) const {
  if (!m_state || m_state->at < 0 || m_state->at >= m_state->ids.size()) return {};
  const int index = m_state->file->schema().find(column);
  if (!m_state->columns.contains(index)) return {};
  Result<Value> read = m_state->row.value(*m_state->file, m_state->ids.at(m_state->at), index);
  if (read) return std::move(*read);
  m_state->fault = read.fault();
  return {};
}

Done Cursor::check() const {
  if (m_state && m_state->fault) return *m_state->fault;
  return {};
}

QStringList Cursor::columns() const {
  QStringList names;
  if (m_state)
    for (const int column : m_state->columns) names += m_state->file->schema().name(column);
  return names;
}

void Cursor::close() { m_state.reset(); }

QString connectionString(const QString& path) { return kProvider.toString() + kDataSource.toString() + path; }

}  // namespace store
