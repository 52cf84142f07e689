#include "office/core/takings.h"

#include "office/core/booking_date.h"

namespace office {

QStringList takingsYears(QDate today) {
  constexpr int kFirstYear = 2000, kLastYear = 2038;
  QStringList years;
  for (int year = kFirstYear; year <= std::max(kLastYear, today.year()); ++year)
    years += QString::number(year);
  return years;
}

QString takingsDay(const frame::EraDates& dates, QDate day) { return dates.wareki(shadowDate(day)); }

}  // namespace office
