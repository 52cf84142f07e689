#include "platform/store/statement.h"

#include <QFileInfo>
#include <utility>

namespace store {
namespace {

/// The part of the sentence behind the file's name.
QString reason(sqlite3* handle) {
  if (sqlite3_extended_errcode(handle) == SQLITE_READONLY_DBMOVED)
    return QStringLiteral(
        "は、使用中にほかのファイルに置き換えられたか、移動されています。治療台帳を再起動してください。");
  switch (sqlite3_errcode(handle) & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return QStringLiteral(
          "は、ほかのコンピュータまたは画面で使用中です。しばらくしてからもう一度実行してください。");
    case SQLITE_READONLY:
    case SQLITE_PERM:
      return QStringLiteral("は、読み取り専用のため書き込めません。");
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return QStringLiteral("は、壊れているため使用できません。バックアップから元に戻してください。");
    case SQLITE_FULL:
      return QStringLiteral("は、ディスクの空き容量が足りないため書き込めません。");
    case SQLITE_CANTOPEN:
    case SQLITE_IOERR:
      return QStringLiteral("は、読み書きに失敗しました。フォルダの接続と書き込みの権限を確認してください。");
    case SQLITE_CONSTRAINT:
      return QStringLiteral("には、同じIDのレコードがすでにあるため登録できません。");
    default:
      return QStringLiteral("の処理に失敗しました。") + QString::fromUtf8(sqlite3_errmsg(handle));
  }
}

}  // namespace

Fault engineFault(sqlite3* handle, const QString& path) {
  return {QStringLiteral("「%1」%2").arg(QFileInfo(path).fileName(), reason(handle))};
}

Fault readOnly(const QString& path) {
  return {QStringLiteral("「%1」は、読み取り専用のため書き込めません。").arg(QFileInfo(path).fileName())};
}

QString quotedName(const QString& name) {
  QString doubled = name;
  doubled.replace(u'"', QStringLiteral("\"\""));
  return QLatin1Char('"') + doubled + QLatin1Char('"');
}

Result<Statement> Statement::prepare(sqlite3* handle, const QString& path, const QString& sql) {
  sqlite3_stmt* statement = nullptr;
  const QByteArray text = sql.toUtf8();
  if (sqlite3_prepare_v3(handle, text.constData(), static_cast<int>(text.size()) + 1, 0, &statement,
                         nullptr) != SQLITE_OK)
    return engineFault(handle, path);
  return Statement(handle, path, statement);
}

Statement::~Statement() { sqlite3_finalize(m_statement); }

Statement::Statement(Statement&& other) noexcept
    : m_handle(other.m_handle),
      m_path(std::move(other.m_path)),
      m_statement(std::exchange(other.m_statement, nullptr)) {}

Statement& Statement::operator=(Statement&& other) noexcept {
  std::swap(m_handle, other.m_handle);
  std::swap(m_path, other.m_path);
  std::swap(m_statement, other.m_statement);
  return *this;
}

void Statement::bind(int index, qint64 number) { sqlite3_bind_int64(m_statement, index, number); }

void Statement::bindText(int index, const QString& text) {
  if (text.isNull())
    sqlite3_bind_null(m_statement, index);
  else
    sqlite3_bind_text16(m_statement, index, text.utf16(), static_cast<int>(text.size() * 2),
                        SQLITE_TRANSIENT);
}

void Statement::bindValue(int index, const Value& value, ColumnType type) {
  const bool number = type != ColumnType::Text255 && type != ColumnType::LongText;
  if (number && !value.isNull())
    bind(index, value.toLongLong());
  else
    bindText(index, value);
}

Result<bool> Statement::step() {
  const int answer = sqlite3_step(m_statement);
  if (answer == SQLITE_ROW) return true;
  if (answer == SQLITE_DONE) return false;
  const Fault fault = engineFault(m_handle, m_path);
  sqlite3_reset(m_statement);
  return fault;
}

Done Statement::run() {
  for (;;) {
    const Result<bool> row = step();
    if (!row) return row.fault();
    if (!row.value()) break;
  }
  rewind();
  return {};
}

void Statement::rewind() {
  sqlite3_reset(m_statement);
  sqlite3_clear_bindings(m_statement);
}

QStringView Statement::view(int column) const {
  const void* text = sqlite3_column_text16(m_statement, column);
  if (!text) return {};
  return {static_cast<const char16_t*>(text), sqlite3_column_bytes16(m_statement, column) / 2};
}

QStringView Statement::view(int column, ColumnType type) const {
  if (type == ColumnType::YesNo) return number(column) ? u"-1" : u"0";
  return view(column);
}

QString Statement::text(int column) const {
  const QStringView found = view(column);
  return found.isNull() ? QString() : QString(found.data(), found.size());
}

Value Statement::value(int column, ColumnType type) const {
  if (type == ColumnType::YesNo) return number(column) ? QStringLiteral("-1") : QStringLiteral("0");
  return text(column);
}

Done execute(sqlite3* handle, const QString& path, const QString& sql) {
  Result<Statement> statement = Statement::prepare(handle, path, sql);
  if (!statement) return statement.fault();
  return statement->run();
}

Done Transaction::begin() {
  const Done begun = execute(m_handle, m_path, QStringLiteral("BEGIN IMMEDIATE"));
  m_open = begun.ok();
  return begun;
}

Done Transaction::commit() {
  const Done committed = execute(m_handle, m_path, QStringLiteral("COMMIT"));
  if (committed) m_open = false;
  return committed;
}

Transaction::~Transaction() {
  if (m_open) sqlite3_exec(m_handle, "ROLLBACK", nullptr, nullptr, nullptr);
}

}  // namespace store
