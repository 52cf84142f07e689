#include "claims/core/register.h"

#include "platform/store/connection.h"

namespace claims {

namespace {

/// The claim form has always kept at most this many rows of a register.
constexpr int kMostRows = 1000;

}  // namespace

text::Result<RegisterRows> readRegister(const Register& list, const frame::DataFolders& folders) {
  store::Connection connection;
  if (const auto opened = connection.open(store::connectionString(folders[size_t(list.folder)])); !opened)
    return opened.fault();
  auto cursor = store::Cursor::open(connection, QString::fromUtf16(list.statement));
  if (!cursor) return cursor.fault();
  RegisterRows rows;
  for (; rows.size() < kMostRows && !cursor->eof(); cursor->moveNext()) {
    QStringList values;
    for (const RegisterField& field : list.fields) values << cursor->value(field.column);
    rows << values;
  }
  return rows;
}

int firstBlank(const QStringList& values) {
  for (qsizetype i = 0; i < values.size(); ++i)
    if (values[i].trimmed().isEmpty()) return int(i);
  return -1;
}

QString blankFieldText(const QString& label) {
  return label + QStringLiteral("が未入力です。不明の場合でも、仮の文字か数字を必ず入力して下さい。");
}

}  // namespace claims
