#include "records/core/visit_dates.h"

#include "platform/store/tables/visits.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

std::optional<QString> visitDateShadow(const QString& typed, const frame::EraDates& era) {
  if (typed.isEmpty()) return std::nullopt;
  if (const std::optional<QDate> date = era.platformDate(typed))
    return u"%1/%2/%3"_s.arg(date->year()).arg(date->month()).arg(date->day());
  return era.parseEraDate(typed);
}

text::Done passVisitDates(store::RecordSet& view, const frame::EraDates& era) {
  if (view.recordCount() == 0) return {};
  return view.updateAll({visits::date}, visits::dateShadow,
                        [&era](store::RowViews row) -> std::optional<store::Value> {
                          return visitDateShadow(row[0].toString(), era);
                        });
}

QString todayText(const frame::EraDates& era) {
  const frame::TodayParts today = era.todayEraParts();
  return era.capability() == frame::EraCapability::Supported ? today.eraDate : today.reiwaDate;
}

QString presentMonthText(const frame::EraDates& era) {
  const QString today = todayText(era);
  return today.left(today.indexOf(u'月') + 1);
}

}  // namespace records
