#include "claims/core/register.h"

#include "platform/store/connection.h"
#include "platform/text/utf16.h"

namespace claims {

using namespace Qt::StringLiterals;

namespace {

/// The lists of the claim form take at most this many rows of a register.
constexpr int kMaxRows = 1000;

}  // namespace

int Register::fieldOf(const store::Column& column) const {
  for (size_t i = 0; i < fields.size(); ++i)
    if (fields[i].column == column || fields[i].claimColumn == column) return int(i);
  return -1;
}

text::Result<RegisterRows> readRegister(const Register& list, const frame::DataFolders& folders) {
  store::Connection connection;
  if (const auto opened = connection.open(store::connectionString(folders[size_t(list.folder)])); !opened)
    return opened.fault();
  auto cursor = store::Cursor::open(connection, text::utf16(list.statement));
  if (!cursor) return cursor.fault();
  RegisterRows rows;
  while (rows.size() < kMaxRows) {
    const text::Result<bool> row = cursor->next();
    if (!row) return row.fault();
    if (!*row) return rows;
    QStringList values;
    for (const RegisterField& field : list.fields) values << cursor->value(field.column);
    rows << values;
  }
  if (const text::Done last = cursor->check(); !last) return last.fault();
  return rows;
}

int firstBlank(const QStringList& values) {
  for (qsizetype i = 0; i < values.size(); ++i)
    if (values[i].trimmed().isEmpty()) return int(i);
  return -1;
}

QString blankFieldText(const QString& label) {
  return label + u"が未入力です。不明の場合でも、仮の文字か数字を必ず入力して下さい。"_s;
}

}  // namespace claims
