#include "office/screens/day_lists.h"

#include "office/core/booking_date.h"
#include "platform/screen/screen.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kYear = u"Combo1"_s, kMonth = u"Combo2"_s, kDay = u"Combo3"_s;

/// The list to put right: the first without a number, else the year, which is out of the range of dates.
QString wrongList(const screen::Screen& screen) {
  for (const QString& list : {kYear, kMonth, kDay})
    if (!dayTyped(u"1"_s, u"1"_s, screen.text(list))) return list;
  return kYear;
}

}  // namespace

void putDayLists(screen::Screen& screen, const frame::DayAsked& day) {
  screen.setText(kYear, QString::number(day.year));
  screen.setText(kMonth, QString::number(day.month));
  screen.setText(kDay, QString::number(day.day));
}

std::optional<ListedDay> dayOfLists(const screen::Screen& screen) {
  const auto numbers = dayTyped(screen.text(kYear), screen.text(kMonth), screen.text(kDay));
  const auto date = numbers ? rolled(*numbers) : std::nullopt;
  if (!date) return std::nullopt;
  return ListedDay{*numbers, *date};
}

std::optional<ListedDay> askedDay(screen::Screen& screen) {
  auto day = dayOfLists(screen);
  if (!day) {
    screen.messages().tell(u"年、月、日を数字で入力して下さい。"_s);
    screen.focusOn(wrongList(screen));
  }
  return day;
}

}  // namespace office
