#include "office/screens/office_screens.h"

#include "frame/core/routes.h"
#include "office/screens/booking_screen.h"
#include "office/screens/calendar_screen.h"
#include "office/screens/day_pick_screen.h"
#include "office/screens/prompts.h"
#include "office/screens/takings_dialogs.h"
#include "office/screens/takings_screen.h"
#include "office/screens/todays_bookings_screen.h"
#include "office/screens/totals_screen.h"
#include "office/screens/week_screen.h"
#include "platform/screen/prompt_list.h"
#include "platform/text/utf16.h"

namespace office {

namespace {

/// Screens of one class under several names.
template <class S>
void addTwins(screen::ScreenRegistry& registry, std::span<const screen::ScreenRow> twins,
              frame::RunState& run) {
  for (const screen::ScreenRow& twin : twins)
    registry.add(text::utf16(twin.name.get()), [&twin, &run](screen::Services& services) {
      return std::make_unique<S>(twin, services, run);
    });
}

}  // namespace

void registerScreens(screen::ScreenRegistry& registry, frame::RunState& run) {
  registry.add<routes::Booking, BookingScreen>(run);
  registry.add<routes::TodaysBookings, TodaysBookingsScreen>(run);
  registry.add<routes::WeekOfBookings, WeekScreen>(run);
  addTwins<CalendarScreen>(registry, calendarScreens(), run);
  addTwins<DayPickScreen>(registry, dayPickScreens(), run);
  screen::addPrompts(registry, prompts(), promptActions());
  registry.add<routes::Takings, TakingsScreen>(run);
  addTotalsScreens(registry);
  screen::addExtractDialogs(registry, takingsExtractDialogs());
  screen::addSortDialogs(registry, takingsSortDialogs());
}

}  // namespace office
