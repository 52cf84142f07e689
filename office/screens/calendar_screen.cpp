#include "office/screens/calendar_screen.h"

#include "office/core/booking_date.h"

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
    {.name = u"予約カレンダー", .caption = u"予約カレンダー", .rows = kRows},
    {.name = u"集計カレンダー", .caption = u"集計カレンダー", .rows = kRows},
};

}  // namespace

std::span<const ScreenRow> calendarScreens() { return kScreens; }

CalendarScreen::CalendarScreen(const ScreenRow& declaration, Services& services, frame::RunState& run)
    : Screen(declaration, services), m_run(run) {}

void CalendarScreen::opened(const Request&) { setDay(u"Calendar1"_s, m_run.clock->today()); }

QString CalendarScreen::dayText(const QDate& day) const { return office::dayText(m_run.eraDates(), day); }

void CalendarScreen::extract() {
  const QDate chosen = day(u"Calendar1"_s);
  if (m_run.calendarMode == frame::calendar::kBookings) {
    m_run.dayAsked = numbersOf(chosen);
    navigator().show(u"今日の予約"_s, {{u"指定日"_s, true}});
  } else {
    navigator().show(u"集計"_s, {{u"日付"_s, chosen.toString(Qt::ISODate)}});
  }
  finish();
}

void CalendarScreen::finish() { close(); }

}  // namespace office
