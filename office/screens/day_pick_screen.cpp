#include "office/screens/day_pick_screen.h"

#include "office/core/booking_date.h"
#include "office/screens/booking_rows.h"

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
    {.name = u"抽出4", .caption = u"予約表示の確認", .rows = kRows},
    {.name = u"抽出5", .caption = u"予約表示の確認", .rows = kRows},
};

}  // namespace

std::span<const ScreenRow> dayPickScreens() { return kScreens; }

DayPickScreen::DayPickScreen(const ScreenRow& declaration, Services& services, frame::RunState& run)
    : Screen(declaration, services), m_run(run) {}

void DayPickScreen::opened(const Request&) {
  const frame::DayAsked day = offeredDay(m_run);
  setText(u"Combo1"_s, QString::number(day.year));
  setText(u"Combo2"_s, QString::number(day.month));
  setText(u"Combo3"_s, QString::number(day.day));
}

void DayPickScreen::pick() {
  const auto day = dayTyped(text(u"Combo1"_s), text(u"Combo2"_s), text(u"Combo3"_s));
  if (!day || !rolled(*day)) return messages().tell(kNoDateText.toString());
  m_run.dayAsked = *day;
  navigator().show(u"今日の予約"_s, {{u"指定日"_s, true}});
  close();
}

void DayPickScreen::cancel() { close(); }

}  // namespace office
