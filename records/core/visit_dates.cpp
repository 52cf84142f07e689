#include "records/core/visit_dates.h"

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

const QString kDate = u"治療日時"_s;
const QString kShadow = u"治療日チェック"_s;

}  // namespace

std::optional<QString> visitDateShadow(const QString& typed, const frame::EraDates& era) {
  if (typed.isEmpty()) return std::nullopt;
  if (const std::optional<QDate> date = era.platformDate(typed))
    return u"%1/%2/%3"_s.arg(date->year()).arg(date->month()).arg(date->day());
  return era.parseEraDate(typed);
}

text::Done passVisitDates(store::RecordSet& view, const frame::EraDates& era) {
  if (view.recordCount() == 0) return {};
  return view.updateAll({kDate}, kShadow, [&era](store::RowViews row) -> std::optional<store::Value> {
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
