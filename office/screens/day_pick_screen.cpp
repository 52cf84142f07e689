#include "office/screens/day_pick_screen.h"

#include "frame/core/routes.h"
#include "office/core/booking_date.h"
#include "office/screens/booking_rows.h"
#include "office/screens/day_lists.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

namespace {

using namespace screen;

constexpr Row kRows[] = {
    Group{.name = {u"Frame1"}, .caption = u"予約日の指定", .columns = 3},
    dateList(u"Combo1", u"年:", Unbound{u"the day to look for"}, kBookYears.items),
    dateList(u"Combo2", u"月:", Unbound{u"the day to look for"}, kMonths),
    dateList(u"Combo3", u"日:", Unbound{u"the day to look for"}, kDays),
    EndGroup{},
    Bar{},
    Command{.name = {u"Command1"},
            .caption = u"指定日の予約の表示",
            .run = run<&DayPickScreen::pick>,
            .standard = true},
    Command{
        .name = {u"Command2"}, .caption = u"キャンセル", .run = run<&DayPickScreen::cancel>, .key = u"Esc"},
    EndBar{},
};

constexpr ScreenRow kScreens[] = {
    declare({.name = routes::PickDayOfBookings::screen, .caption = u"予約表示の確認", .rows = kRows}),
    declare({.name = routes::PickDayOfWeek::screen, .caption = u"予約表示の確認", .rows = kRows}),
};

constexpr DayLists kDay = dayLists(kRows);

}  // namespace

std::span<const ScreenRow> dayPickScreens() { return kScreens; }

DayPickScreen::DayPickScreen(const ScreenRow& declaration, Services& services, frame::RunState& run)
    : Screen(declaration, services), m_run(run) {}

void DayPickScreen::opened(const Request&) { putDayLists(*this, kDay, offeredDay(m_run)); }

void DayPickScreen::pick() {
  const auto day = askedDay(*this, kDay);
  if (!day) return;
  m_run.dayAsked = day->numbers;
  navigator().show(routes::TodaysBookings{.showsDay = true});
  close();
}

void DayPickScreen::cancel() { close(); }

}  // namespace office
