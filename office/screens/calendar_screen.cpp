#include "office/screens/calendar_screen.h"

#include "frame/core/routes.h"
#include "office/core/booking_date.h"
#include "platform/screen/declare.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

namespace {

using namespace screen;

constexpr Row kRows[] = {
    Calendar{.name = {u"Calendar1"},
             .caption = u"カーソルキーで移動し、エンターを押すと日付曜日を音声で知らせます",
             .dayText = dayTextOf<&CalendarScreen::dayText>},
    Bar{},
    Command{.name = {u"Command1"}, .caption = u"抽出", .run = run<&CalendarScreen::extract>},
    Command{.name = {u"Command2"}, .caption = u"閉じる", .run = run<&CalendarScreen::finish>, .key = u"Esc"},
    EndBar{},
};

constexpr ScreenRow kScreens[] = {
    declare({.name = routes::BookingCalendar::screen, .caption = u"予約カレンダー", .rows = kRows}),
    declare({.name = routes::TakingsCalendar::screen, .caption = u"集計カレンダー", .rows = kRows}),
};

constexpr ControlRef kCalendar = ref(kRows, u"Calendar1");

}  // namespace

std::span<const ScreenRow> calendarScreens() { return kScreens; }

CalendarScreen::CalendarScreen(const ScreenRow& declaration, Services& services, frame::RunState& run)
    : Screen(declaration, services), m_run(run) {}

void CalendarScreen::opened(const Request&) { setDay(kCalendar, m_run.clock->today()); }

QString CalendarScreen::dayText(const QDate& day) const { return office::dayText(m_run.eraDates(), day); }

void CalendarScreen::extract() {
  const QDate chosen = day(kCalendar);
  if (m_run.calendarUse == frame::CalendarUse::Bookings) {
    m_run.dayAsked = numbersOf(chosen);
    navigator().show(routes::TodaysBookings{.showsDay = true});
  } else {
    navigator().show(routes::Takings{.day = chosen});
  }
  finish();
}

void CalendarScreen::finish() { close(); }

}  // namespace office
