#include "records/core/day_grid.h"

#include "claims/core/kinds.h"
#include "claims/core/rule_dates.h"

namespace records {

std::optional<QDate> gridMonth(const QString& claimMonth, const frame::EraDates& era) {
  if (claimMonth.isEmpty()) return std::nullopt;
  QString month = claimMonth;
  if (month.startsWith(u"令和元年")) month[2] = u'1';
  const std::optional<QDate> day = era.anyDate(month + QStringLiteral("1日"));
  return day ? day : era.claimMonthToDate(month);
}

int visibleDays(std::optional<QDate> month) {
  return month ? claims::lastDayOfMonth(month->year(), month->month()) : 31;
}

QString gridCodeMessage(const QString& cell, const QString& treatment) {
  if (cell.isEmpty()) return {};
  const QChar first = cell.front();
  bool stands = false;
  switch (claims::kindOf(treatment)) {
    case claims::Kind::Acupuncture:
      stands = first >= u'a' && first <= u'f';
      break;
    case claims::Kind::Massage:
      stands = first >= u'g' && first <= u'j';
      break;
    case claims::Kind::None:
      break;
  }
  return stands ? QString() : QStringLiteral("治療内容が正しくありません。");
}

}  // namespace records
