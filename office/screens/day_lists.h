#pragma once

#include <QDate>
#include <optional>

#include "frame/core/run_state.h"
#include "platform/screen/declare.h"

namespace screen {
class Screen;
}

namespace office {

/// The lists of year, month and day of a screen of the appointment book or the takings.
struct DayLists {
  screen::ControlRef year, month, day;
};
consteval DayLists dayLists(screen::Rows rows) {
  return {screen::ref(rows, u"Combo1"), screen::ref(rows, u"Combo2"), screen::ref(rows, u"Combo3")};
}

/// The months and days that such lists offer.
inline constexpr const char16_t* kMonths[] = {u"1", u"2", u"3", u"4",  u"5",  u"6",
                                              u"7", u"8", u"9", u"10", u"11", u"12"};
inline constexpr const char16_t* kDays[] = {u"1",  u"2",  u"3",  u"4",  u"5",  u"6",  u"7",  u"8",
                                            u"9",  u"10", u"11", u"12", u"13", u"14", u"15", u"16",
                                            u"17", u"18", u"19", u"20", u"21", u"22", u"23", u"24",
                                            u"25", u"26", u"27", u"28", u"29", u"30", u"31"};

/// A day as typed into the lists, and the date that the date function makes of it.
struct ListedDay {
  frame::DayAsked numbers;
  QDate date;
};

void putDayLists(screen::Screen& screen, const DayLists& lists, const frame::DayAsked& day);
/// nullopt where the lists make no date.
std::optional<ListedDay> dayOfLists(const screen::Screen& screen, const DayLists& lists);
/// The same for a command that needs a date: reports a missing one, and focuses the first list without a
/// number, otherwise the year.
std::optional<ListedDay> askedDay(screen::Screen& screen, const DayLists& lists);

}  // namespace office
