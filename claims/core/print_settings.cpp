#include "claims/core/print_settings.h"

namespace claims {
namespace {

bool flagRules(const PrintSetting& row, const ClaimRecord& claim) {
  if (row.flag != frame::profile::kRelationPrinted) return row.flag >= 0;
  return claim.get(QStringLiteral("被保険者との続柄")) == u"本人" ||
         claim.ticked(QStringLiteral("保険の種類2"));
}

}  // namespace

int stored(const ClaimRecord& claim, Setting setting) {
  const PrintSetting& row = rowOf(setting);
  const QString value = claim.get(columnName(row.column));
  for (int button = 0; button < 2; ++button)
    if (value == QStringView(row.stored[button])) return button;
  return -1;
}

int chosen(const ClaimRecord& claim, Setting setting, const frame::ClinicProfile& profile) {
  if (const int button = stored(claim, setting); button >= 0) return button;
  const PrintSetting& row = rowOf(setting);
  if (flagRules(row, claim) && !profile[row.flag].isEmpty()) return profile[row.flag] == u"1" ? 0 : 1;
  return row.whenUnset;
}

}  // namespace claims
