#include "claims/core/rule_dates.h"

namespace claims {
namespace {

struct FlagRow {
  bool MonthFlags::*flag;
  rule::Date from;
};
constexpr FlagRow kFlags[] = {
    {&MonthFlags::isAfter201806, rule::kTwoBandVisits},  {&MonthFlags::isAfter201810, rule::kReports},
    {&MonthFlags::isAfter202012, rule::kStrictCodes},    {&MonthFlags::isAfter202206, rule::kForms2022},
    {&MonthFlags::isAfter202410, rule::kVisitTreatment}, {&MonthFlags::isAfter202510, rule::kForms2025}};

}  // namespace

MonthFlags monthFlags(std::optional<QDate> month) {
  MonthFlags flags;
  if (!month) return flags;
  flags.month = month;
  for (const FlagRow& row : kFlags) flags.*row.flag = row.from.holdsIn(*month);
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
