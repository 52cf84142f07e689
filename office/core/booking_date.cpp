#include "office/core/booking_date.h"

#include "office/core/booking_time.h"
#include "platform/text/width.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kDaysOfWeek = 7;
constexpr QStringView kWeekdays = u"月火水木金土日";  // Qt counts Monday as 1

std::optional<int> number(const QString& typed) {
  bool numeric = false;
  const int value = text::asciiDigits(typed).trimmed().toInt(&numeric);
  return numeric ? std::optional(value) : std::nullopt;
}

}  // namespace

std::optional<frame::DayAsked> dayTyped(const QString& year, const QString& month, const QString& day) {
  const auto y = number(year), m = number(month), d = number(day);
  if (!y || !m || !d) return std::nullopt;
  return frame::DayAsked{*y, *m, *d};
}

frame::DayAsked numbersOf(QDate date) { return {date.year(), date.month(), date.day()}; }

frame::DayAsked offeredDay(const frame::RunState& run) {
  return run.dayAsked.year != 0 ? run.dayAsked : numbersOf(run.clock->today());
}

std::optional<QDate> rolled(const frame::DayAsked& day) {
  constexpr int kFirstYear = 100, kLastYear = 9999;
  const auto inRange = [](int year) { return year >= kFirstYear && year <= kLastYear; };
  if (!inRange(day.year)) return std::nullopt;
  // addMonths(month - 1) would overflow for INT_MIN.
  const QDate date = QDate(day.year, 1, 1).addMonths(day.month).addMonths(-1).addDays(qint64(day.day) - 1);
  return date.isValid() && inRange(date.year()) ? std::optional(date) : std::nullopt;
}

QString weekday(QDate date) { return kWeekdays[date.dayOfWeek() - 1] + u"曜日"_s; }

QString dayText(const frame::EraDates& dates, QDate date) { return dates.formatEra(date) + weekday(date); }

QString stampText(const frame::EraDates& dates, const QDateTime& moment) {
  return dates.formatEra(moment.date()) + moment.time().toString(u" h:m"_s);
}

std::optional<QString> stampRewritten(const frame::EraDates& dates, const QString& typed) {
  const QString plain = text::toHalfWidth(typed).trimmed();
  const qsizetype dayEnd = plain.indexOf(u'日') + 1;
  const qsizetype cut = dayEnd > 0 ? dayEnd : plain.indexOf(u' ');
  const QString timeOfDay = cut > 0 ? plain.mid(cut).trimmed() : QString();
  const std::optional<QDate> date = dates.platformDate(cut > 0 ? plain.left(cut) : plain);
  const std::optional<QTime> time = timeOfDay.isEmpty() ? QTime(0, 0) : typedTime(timeOfDay);
  if (!date || !time) return std::nullopt;
  return stampText(dates, QDateTime(*date, *time));
}

QString shadowDate(QDate date) { return date.toString(u"yyyy/M/d"_s); }

int tabOf(QDate date) { return date.dayOfWeek() % kDaysOfWeek + 1; }

QDate dayOfTab(QDate reference, int tab) { return reference.addDays(tab - tabOf(reference)); }

}  // namespace office
