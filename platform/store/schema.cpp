#include "platform/store/schema.h"

#include <QFileInfo>

namespace store {
namespace {

constexpr int kTextLimit = 255;

const char* wordOf(ColumnType type) {
  switch (type) {
    case ColumnType::Counter:
    case ColumnType::Integer:
      return "INTEGER";
    case ColumnType::LongText:
      return "TEXT";
    case ColumnType::YesNo:
      return "YESNO";
    case ColumnType::Text255:
      break;
  }
  return "TEXT(255)";
}

Fault refused(const QString& column, const QString& why) {
  return {QStringLiteral("項目「%1」%2").arg(column, why)};
}

Result<Value> yesNo(const QString& column, const Value& value) {
  const QString word = value.trimmed().toLower();
  if (word.isEmpty() || word == u"0" || word == u"false" || word == u"no") return QStringLiteral("0");
  if (word == u"-1" || word == u"1" || word == u"true" || word == u"yes") return QStringLiteral("-1");
  return refused(column, QStringLiteral("には、はい（-1）か、いいえ（0）しか登録できません。"));
}

Result<Value> wholeNumber(const QString& column, const Value& value) {
  const QString digits = value.trimmed();
  if (digits.isEmpty()) return Value();
  bool ok = false;
  const int number = digits.toInt(&ok);
  if (!ok) return refused(column, QStringLiteral("には、整数しか登録できません。"));
  return QString::number(number);
}

/// The table's name as the file writes it, whatever the case in which it was asked for; blank where the file
/// has no such table of data.
Result<QString> nameInFile(sqlite3* handle, const QString& path, const QString& qualifier,
                           const QString& table) {
  Result<Statement> found = Statement::prepare(
      handle, path,
      QStringLiteral("SELECT name FROM %1.sqlite_master WHERE type='table' AND name=?1 COLLATE NOCASE "
                     "AND name NOT LIKE 'sqlite%'")
          .arg(quotedName(qualifier)));
  if (!found) return found.fault();
  found->bindText(1, table);
  const Result<bool> row = found->step();
  if (!row) return row.fault();
  return *row ? found->text(0) : QString();
}

}  // namespace

QString columnKey(const QString& name) {
  QString key = name;
  for (QChar& letter : key)
    if (letter >= u'A' && letter <= u'Z') letter = QChar(letter.unicode() + 32);
  return key;
}

void TableSchema::add(const QString& name, ColumnType type) {
  m_byName.insert(name, count());
  m_byName.insert(columnKey(name), count());
  m_names += name;
  m_types += type;
}

int TableSchema::find(const QString& name) const {
  const auto exact = m_byName.constFind(name);
  return exact != m_byName.constEnd() ? *exact : m_byName.value(columnKey(name), -1);
}

QString columnText(const QString& name, ColumnType type) {
  QString text = quotedName(name) + QLatin1Char(' ') + QLatin1String(wordOf(type));
  if (type == ColumnType::Counter) text += QStringLiteral(" PRIMARY KEY AUTOINCREMENT");
  if (type == ColumnType::YesNo) text += QStringLiteral(" NOT NULL DEFAULT 0");
  return text;
}

std::optional<ColumnType> typeOfWord(const QString& word) {
  const QString bare = QString(word).remove(u' ').toUpper();
  for (const ColumnType type :
       {ColumnType::Text255, ColumnType::LongText, ColumnType::Integer, ColumnType::YesNo})
    if (bare == QLatin1String(wordOf(type))) return type;
  return std::nullopt;
}

Result<TableSchema> readSchema(sqlite3* handle, const QString& path, const QString& qualifier,
                               const QString& table) {
  Result<Statement> rows = Statement::prepare(
      handle, path, QStringLiteral("SELECT name, type, pk FROM pragma_table_info(?1, ?2)"));
  if (!rows) return rows.fault();
  const Result<QString> name = nameInFile(handle, path, qualifier, table);
  if (!name) return name.fault();
  rows->bindText(1, *name);
  rows->bindText(2, qualifier);
  TableSchema schema(*name);
  for (;;) {
    const Result<bool> row = rows->step();
    if (!row) return row.fault();
    if (!row.value()) break;
    const bool key = rows->number(2) != 0;
    schema.add(rows->text(0),
               key ? ColumnType::Counter : typeOfWord(rows->text(1)).value_or(ColumnType::Text255));
  }
  if (schema.count() == 0)
    return Fault{
        QStringLiteral("「%1」にテーブル「%2」がありません。").arg(QFileInfo(path).fileName(), table)};
  return schema;
}

Result<Value> columnValue(const TableSchema& schema, int column, const Value& value) {
  const QString& name = schema.name(column);
  switch (schema.type(column)) {
    case ColumnType::YesNo:
      return yesNo(name, value);
    case ColumnType::Integer:
      return wholeNumber(name, value);
    case ColumnType::Text255:
      if (value.size() > kTextLimit)
        return refused(name, QStringLiteral("には%1文字までしか登録できません。今の文字数は%2文字です。")
                                 .arg(QString::number(kTextLimit), QString::number(value.size())));
      return value;
    case ColumnType::Counter: {
      bool ok = false;
      const qint64 id = value.toLongLong(&ok);
      if (!ok || id < 1) return refused(name, QStringLiteral("には、1以上の整数しか登録できません。"));
      return QString::number(id);
    }
    case ColumnType::LongText:
      break;
  }
  return value;
}

}  // namespace store
