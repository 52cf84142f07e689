#include "claims/core/month_claims.h"

#include "platform/store/criteria_text.h"
#include "platform/store/database.h"
#include "platform/store/tables/claims.h"
#include "platform/text/utf16.h"

namespace claims {

text::Result<bool> holdsMonth(const QString& claimsPath, const QString& month) {
  auto database = store::Database::open(claimsPath);
  if (!database) return database.fault();
  auto claims = store::RecordSet::open(*database, text::utf16(claim::firstHalf.name()));
  if (!claims) return claims.fault();
  if (month.isEmpty() || month.contains(u'\'')) return false;  // no month is written so
  claims->setFilter(store::equalCriterion(claim::month, month));
  const auto alike = claims->openRecordset();
  if (!alike) return alike.fault();
  for (int row = 0; row < alike->recordCount(); ++row) {
    const text::Result<QString> value = alike->readAt(row, claim::month);
    if (!value) return value.fault();
    if (*value == month) return true;
  }
  return false;
}

}  // namespace claims
