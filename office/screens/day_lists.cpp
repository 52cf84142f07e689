#include "office/screens/day_lists.h"

#include "office/core/booking_date.h"
#include "platform/screen/screen.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The list to be corrected: the first without a number, otherwise the year, which is out of range.
screen::ControlRef wrongList(const screen::Screen& screen, const DayLists& lists) {
  for (const screen::ControlRef& list : {lists.year, lists.month, lists.day})
    if (!dayTyped(u"1"_s, u"1"_s, screen.text(list))) return list;
  return lists.year;
}

}  // namespace

void putDayLists(screen::Screen& screen, const DayLists& lists, const frame::DayAsked& day) {
  screen.setText(lists.year, QString::number(day.year));
  screen.setText(lists.month, QString::number(day.month));
  screen.setText(lists.day, QString::number(day.day));
}

std::optional<ListedDay> dayOfLists(const screen::Screen& screen, const DayLists& lists) {
  const auto numbers = dayTyped(screen.text(lists.year), screen.text(lists.month), screen.text(lists.day));
  const auto date = numbers ? rolled(*numbers) : std::nullopt;
  if (!date) return std::nullopt;
  return ListedDay{*numbers, *date};
}

std::optional<ListedDay> askedDay(screen::Screen& screen, const DayLists& lists) {
  auto day = dayOfLists(screen, lists);
  if (!day) {
    screen.messages().tell(u"年、月、日を数字で入力して下さい。"_s);
    screen.focusOn(wrongList(screen, lists));
  }
  return day;
}

}  // namespace office
