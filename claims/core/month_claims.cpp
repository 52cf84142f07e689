#include "claims/core/month_claims.h"

#include "platform/store/criteria_text.h"
#include "platform/store/database.h"

namespace claims {

text::Result<bool> holdsMonth(const QString& claimsPath, const QString& month) {
  const QString column = QStringLiteral("申請年月");
  auto database = store::Database::open(claimsPath);
  if (!database) return database.fault();
  auto claims = store::RecordSet::open(*database, QStringLiteral("保険申請"));
  if (!claims) return claims.fault();
  if (month.isEmpty() || month.contains(u'\'')) return false;  // no month is written so
  claims->setFilter(store::equalCriterion(column, month));
  const auto alike = claims->openRecordset();
  if (!alike) return alike.fault();
  for (int row = 0; row < alike->recordCount(); ++row) {
    const text::Result<QString> value = alike->readAt(row, column);
    if (!value) return value.fault();
    if (*value == month) return true;
  }
  return false;
}

}  // namespace claims
