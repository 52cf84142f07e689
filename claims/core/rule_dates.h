#pragma once

#include <QDate>
#include <QString>
#include <compare>
#include <optional>

#include "frame/core/era_date.h"

namespace claims {

/// First claim months of the rules. Rules go by the first of the claim month, never by today.
namespace rule {
struct Date {
  int year, month;
  QDate date() const { return QDate(year, month, 1); }
  /// Whether a rule that begins with this month holds for a claim month.
  bool holdsIn(QDate claimMonth) const { return claimMonth >= date(); }
  friend constexpr auto operator<=>(const Date&, const Date&) = default;
};
inline constexpr Date kAlways{1, 1};
inline constexpr Date kTwoBandVisits{2018, 6};  ///< visits up to and beyond 4 km; before it 2 km steps
inline constexpr Date kReports{2018, 10};  ///< 施術報告書 and 往療内訳 open; the report fee counts
inline constexpr Date kStrictCodes{2020, 12};     ///< the code grammar is tightened
inline constexpr Date kForms2022{2022, 6};        ///< print forms of 2022
inline constexpr Date kVisitTreatment{2024, 10};  ///< 訪問施術 fees, row 往療人数
inline constexpr Date kForms2025{2025, 10};       ///< later layout of the monthly print
}  // namespace rule

/// The claim's month as a date and the flags that the form keeps of it: each is set from the month of its
/// name on. A blank or unreadable month has no date and no flag set.
struct MonthFlags {
  std::optional<QDate> month;
  bool isAfter201806 = false;
  bool isAfter201810 = false;
  bool isAfter202012 = false;
  bool isAfter202206 = false;
  bool isAfter202410 = false;
  bool isAfter202510 = false;
};

MonthFlags monthFlags(const QString& claimMonth, const frame::EraDates& era);
MonthFlags monthFlags(std::optional<QDate> month);

/// 31, 30, 29 or 28; leap years by mod 4, as the forms count them.
int lastDayOfMonth(int year, int month);

}  // namespace claims
