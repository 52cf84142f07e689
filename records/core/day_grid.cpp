#include "records/core/day_grid.h"

#include "claims/core/kinds.h"
#include "claims/core/rule_dates.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

std::optional<QDate> gridMonth(const QString& claimMonth, const frame::EraDates& era) {
  if (claimMonth.isEmpty()) return std::nullopt;
  QString month = claimMonth;
  if (month.startsWith(u"令和元年")) month[2] = u'1';
  const std::optional<QDate> day = era.anyDate(month + u"1日"_s);
  return day ? day : era.claimMonthToDate(month);
}

int visibleDays(std::optional<QDate> month) {
  return month ? claims::lastDayOfMonth(month->year(), month->month()) : 31;
}

QString gridCodeMessage(const QString& cell, const QString& treatment) {
  if (cell.isEmpty()) return {};
  const QChar first = cell.front();
  bool valid = false;
  switch (claims::kindOf(treatment)) {
    case claims::Kind::Acupuncture:
      valid = first >= u'a' && first <= u'f';
      break;
    case claims::Kind::Massage:
      valid = first >= u'g' && first <= u'j';
      break;
    case claims::Kind::None:
      break;
  }
  return valid ? QString() : u"治療内容が正しくありません。"_s;
}

}  // namespace records
