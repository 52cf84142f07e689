#include "office/screens/week_screen.h"

#include "frame/core/routes.h"
#include "office/core/booking_date.h"
#include "office/screens/booking_rows.h"
#include "platform/screen/declare.h"
#include "platform/screen/find_row.h"
#include "platform/screen/opens.h"
#include "platform/store/tables/bookings.h"
#include "platform/text/utf16.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

namespace {

using namespace screen;

constexpr int kDaysOfWeek = 7;
constexpr char16_t kMenu[] = u"メニュー(&M)";
constexpr const char16_t* kTabs[kDaysOfWeek] = {u"日曜日", u"月曜日", u"火曜日", u"水曜日",
                                                u"木曜日", u"金曜日", u"土曜日"};

constexpr Row kRows[] = {
    TextField{.name = {u"Text1"},
              .caption = u"表示日:",
              .bind = Unbound{u"the day on view"},
              .width = 18,
              .readOnly = true},
    TabRow{.name = {u"SSTab1"}, .caption = u"曜日:", .tabs = kTabs, .onChoose = call<&WeekScreen::showDay>},
    Grid{.name = {u"DBGrid1"}, .caption = u"予約の一覧", .columns = kBookingColumns},
    Bar{},
    Command{.name = {u"Command2"}, .caption = u"今週", .run = run<&WeekScreen::showThisWeek>},
    Command{.name = {u"Command3"}, .caption = u"来週", .run = run<&WeekScreen::showNextWeek>},
    Command{.name = {u"Command4"}, .caption = u"先週", .run = run<&WeekScreen::showLastWeek>},
    Command{.name = {u"Command8"},
            .caption = u"治療台帳へ代入",
            .run = run<&BookingList::handOver>,
            .tip = kHandOverTip},
    Command{.name = {u"Command1"}, .caption = u"閉じる", .run = run<&BookingList::finish>},
    EndBar{},
    Entry{.name = {u"Men_YS"},
          .under = kMenu,
          .caption = u"予約日を指定して検索",
          .run = opens<routes::PickDayOfWeek>},
};

constexpr ScreenRow kDeclaration = declare({.name = routes::WeekOfBookings::screen,
                                            .caption = u"予約週間表",
                                            .rows = kRows,
                                            .sources = bookings::table,
                                            .functionKeys = true});

constexpr ControlRef kDayOnView = ref(kRows, u"Text1");
constexpr ControlRef kWeekdays = ref(kRows, u"SSTab1");
constexpr ControlRef kList = ref(kRows, u"DBGrid1");
constexpr ControlRef kThisWeek = ref(kRows, u"Command2");
constexpr ControlRef kNextWeek = ref(kRows, u"Command3");
constexpr ControlRef kLastWeek = ref(kRows, u"Command4");

}  // namespace

WeekScreen::WeekScreen(screen::Services& services, frame::RunState& run)
    : BookingList(kDeclaration, kList, services, run) {}

void WeekScreen::opened(const screen::Request&) {
  chooseWeek(0);
  whenActive([this] { showDay(); });
}

void WeekScreen::showThisWeek() { showWeek(0); }
void WeekScreen::showNextWeek() { showWeek(kDaysOfWeek); }
void WeekScreen::showLastWeek() { showWeek(-kDaysOfWeek); }

void WeekScreen::showWeek(int days) {
  chooseWeek(days);
  showDay();
}

void WeekScreen::chooseWeek(int days) {
  m_reference = m_run.clock->today().addDays(days);
  setText(kWeekdays, text::utf16(kTabs[tabOf(m_reference) - 1]));
  // The focus moves to the days before the button under it is disabled.
  focusOn(kWeekdays);
  // The view reaches one week to either side.
  setEnabledControl(kThisWeek, days != 0);
  setEnabledControl(kNextWeek, days == 0);
  setEnabledControl(kLastWeek, days == 0);
}

void WeekScreen::showDay() {
  const QDate date = dayOfTab(m_reference, chosenItem(kWeekdays) + 1);
  const QString spelled = dayText(m_run.eraDates(), date);
  setText(kDayOnView, spelled);
  m_run.dayAsked = numbersOf(date);
  auto hits = openWhole() ? bookingsOfDay(m_run.dayAsked) : std::nullopt;
  // Already reported: no other day's rows are left under this date.
  if (!hits) return source().assign({});
  const bool none = hits->recordCount() == 0;
  source().assign(std::move(*hits));
  if (none) screen::tellNotFound(*this);
  sayWithCount({spelled});
}

}  // namespace office
