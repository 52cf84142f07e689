#include "claims/core/print_settings.h"

namespace claims {
namespace {

bool flagRules(const PrintSetting& row, const ClaimRecord& record) {
  if (row.flag != frame::slot::kRelationPrinted) return row.flag >= 0;
  return record.get(claim::relation) == u"本人" || record.ticked(claim::notHead);
}

}  // namespace

int stored(const ClaimRecord& record, Setting setting) {
  const PrintSetting& row = rowOf(setting);
  const QString value = record.get(row.column);
  for (int button = 0; button < 2; ++button)
    if (value == QStringView(row.stored[button])) return button;
  return -1;
}

int chosen(const ClaimRecord& record, Setting setting, const frame::ClinicProfile& profile) {
  if (const int button = stored(record, setting); button >= 0) return button;
  const PrintSetting& row = rowOf(setting);
  if (flagRules(row, record) && !profile[row.flag].isEmpty()) return profile[row.flag] == u"1" ? 0 : 1;
  return row.whenUnset;
}

}  // namespace claims
