#include "claims/core/rule_dates.h"

namespace claims {

MonthFlags monthFlags(std::optional<QDate> month) {
  MonthFlags flags;
  if (!month) return flags;
  const auto reached = [&](const rule::Date& rule) { return *month >= rule.date(); };
  flags.month = month;
  flags.isAfter201806 = reached(rule::kTwoBandVisits);
  flags.isAfter201810 = reached(rule::kReports);
  flags.isAfter202012 = reached(rule::kStrictCodes);
  flags.isAfter202206 = reached(rule::kForms2022);
  flags.isAfter202410 = reached(rule::kVisitTreatment);
  flags.isAfter202510 = reached(rule::kForms2025);
  return flags;
}

MonthFlags monthFlags(const QString& claimMonth, const frame::EraDates& era) {
  if (claimMonth.isEmpty()) return {};
  return monthFlags(era.claimMonthToDate(claimMonth));
}

int lastDayOfMonth(int year, int month) {
  if (month == 2) return year % 4 == 0 ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

}  // namespace claims
