#pragma once

#include <QDate>
#include <optional>

#include "frame/core/run_state.h"

namespace screen {
class Screen;
}

namespace office {

// The lists of year, month and day, Combo1 to Combo3, as the appointment book and the takings have them.

/// A day as the lists hold it, and the date that the date function makes of it.
struct ListedDay {
  frame::DayAsked numbers;
  QDate date;
};

void putDayLists(screen::Screen& screen, const frame::DayAsked& day);
/// nullopt where the lists hold no date.
std::optional<ListedDay> dayOfLists(const screen::Screen& screen);
/// The same for a command that needs one: where there is none that is told, and the list that holds no
/// number, or else the year, has the focus.
std::optional<ListedDay> askedDay(screen::Screen& screen);

}  // namespace office
