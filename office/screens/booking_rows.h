#pragma once

#include <array>

#include "office/screens/day_lists.h"
#include "platform/screen/declare.h"
#include "platform/store/tables/bookings.h"

namespace office {

// Rows that the screens of the appointment book share.

/// A list of years, as texts.
template <int First, int Last>
struct Years {
  static constexpr int kDigits = 4;
  char16_t text[Last - First + 1][kDigits + 1] = {};
  std::array<const char16_t*, Last - First + 1> items = {};
  constexpr Years() {
    for (int year = First; year <= Last; ++year) {
      char16_t* digits = text[year - First];
      for (int place = kDigits - 1, rest = year; place >= 0; --place, rest /= 10)
        digits[place] = static_cast<char16_t>(u'0' + rest % 10);
      items[static_cast<std::size_t>(year - First)] = digits;
    }
  }
  Years(const Years&) = delete;
};

/// Kept: the book lists the years 2000 to 2020, its list of bookings 2015 to 2035. Any other year is typed.
inline constexpr Years<2000, 2020> kBookYears;
inline constexpr Years<2015, 2035> kListYears;

/// A list for a part of a date; every text may be typed as well.
consteval screen::Combo dateList(const char16_t* name, const char16_t* caption, screen::Binding bind,
                                 std::span<const char16_t* const> items, screen::Handler onEnter = nullptr) {
  return screen::Combo{.name = {name},
                       .caption = caption,
                       .bind = bind,
                       .items = items,
                       .editable = true,
                       .width = 5,
                       .onEnter = onEnter};
}

/// A booking as the lists show it: what is wanted first when listening comes first.
inline constexpr auto kBookingColumns = screen::gridOf(
    bookings::time, bookings::patientName, bookings::year, bookings::month, bookings::day, bookings::weekday,
    bookings::patientNumber, bookings::number, bookings::memo, bookings::stamp);

inline constexpr char16_t kHandOverTip[] = u"選択した会員を会員名簿の検索欄に代入します。";

}  // namespace office
