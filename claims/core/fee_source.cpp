#include "claims/core/fee_source.h"

#include <QFileInfo>

#include "platform/store/connection.h"
#include "platform/store/sources.h"
#include "platform/text/number.h"

namespace claims {
namespace {

constexpr qint64 kLookAgainMilliseconds = 1000;

/// The row at the cursor. A fraction is dropped; a column that the file lacks is empty.
FeeEdition editionAt(const store::Cursor& row) {
  FeeEdition edition;
  for (const FeeRow& fee : kFees) {
    const QString value = row.value(feeColumn(fee.fee));
    if (text::isNumeric(value)) edition.set(fee.fee, static_cast<int>(text::intOf(value)));
  }
  edition.id = row.value(fees::id).toLongLong();
  return edition;
}

text::Result<FeeEdition> readEdition(const QString& path) {
  store::Connection connection;
  if (const auto opened = connection.open(store::connectionString(path)); !opened) return opened.fault();
  auto rows = store::Cursor::open(connection, QString::fromUtf16(store::source::kFeesNewestFirst));
  if (!rows) return rows.fault();
  const text::Result<bool> row = rows->next();
  if (!row) return row.fault();
  if (!*row) return text::Fault{path + QStringLiteral(": 料金設定 のデータがありません。")};
  FeeEdition edition = editionAt(*rows);
  if (const text::Done read = rows->check(); !read) return read.fault();
  edition.path = path;
  return edition;
}

}  // namespace

text::Result<FeeEdition> StoredFees::load(const QString& path) {
  const auto known = m_read.find(path);
  if (known != m_read.end() && !known->looked.hasExpired(kLookAgainMilliseconds)) return known->edition;
  const QDateTime changed = QFileInfo(path).lastModified();
  if (known != m_read.end() && known->changed == changed) {
    known->looked.start();
    return known->edition;
  }
  auto edition = readEdition(path);
  if (!edition || !changed.isValid()) return edition;
  Entry& entry = m_read[path];
  entry = {{}, changed, edition.value()};
  entry.looked.start();
  return edition;
}

}  // namespace claims
