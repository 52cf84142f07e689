// The week view, the date pickers, the calendars and the notices of the appointment book.

#include <QTest>
#include <QtWidgets/QtWidgets>

#include "office/tests/screens/booking_fixture.h"

namespace office::test {
namespace {

class WeekView : public BookingFixture {
 protected:
  void SetUp() override {
    BookingFixture::SetUp();
    clock.set(QDate(2024, 10, 1));  // a Tuesday, the third tab
    book(u"2024/10/1"_s, u"9 時 0 分"_s, u"火曜　太郎"_s);
    book(u"2024/9/30"_s, u"9 時 0 分"_s, u"月曜　花子"_s);
    book(u"2024/10/8"_s, u"9 時 0 分"_s, u"来週　次郎"_s);
    book(u"2024/9/24"_s, u"9 時 0 分"_s, u"先週　三郎"_s);
  }
  screen::Screen& week() { return open(u"予約週間表"_s); }
  static QList<bool> enabled(const screen::Screen& screen) {
    QList<bool> states;
    for (const QString& button : {u"Command2"_s, u"Command3"_s, u"Command4"_s})
      states += screen.findChild<QPushButton*>(button)->isEnabled();
    return states;
  }
  static void choose(screen::Screen& screen, int tab) {
    screen.findChild<QTabBar*>(u"SSTab1"_s)->setCurrentIndex(tab - 1);
  }
};

TEST_F(WeekView, OpensOnToday) {
  screen::Screen& screen = week();
  EXPECT_EQ(screen.focused(), u"SSTab1"_s);
  EXPECT_EQ(screen.items(u"SSTab1"_s), QStringList({u"日曜日"_s, u"月曜日"_s, u"火曜日"_s, u"水曜日"_s,
                                                    u"木曜日"_s, u"金曜日"_s, u"土曜日"_s}));
  EXPECT_EQ(screen.text(u"Text1"_s), u"令和6年10月1日火曜日"_s);
  EXPECT_EQ(screen.text(u"SSTab1"_s), u"火曜日"_s);
  EXPECT_EQ(listed(screen), QStringList(u"火曜　太郎"_s));
  EXPECT_EQ(enabled(screen), QList<bool>({false, true, true}));
  EXPECT_EQ(channel.said(), QStringList({u"予約週間表"_s, spoken({u"曜日:"_s, u"火曜日"_s}),
                                         spoken({u"令和6年10月1日火曜日"_s, u"予約 1 件"_s})}))
      << "no other tab before";
}

TEST_F(WeekView, ATabShowsItsDayAndRollsOverTheMonth) {
  screen::Screen& screen = week();
  choose(screen, 2);
  EXPECT_EQ(screen.text(u"Text1"_s), u"令和6年9月30日月曜日"_s);
  EXPECT_EQ(listed(screen), QStringList(u"月曜　花子"_s));
  EXPECT_EQ(channel.lastSaid(), spoken({u"令和6年9月30日月曜日"_s, u"予約 1 件"_s}));
  EXPECT_EQ(run.dayAsked.month, 9);
  EXPECT_EQ(run.dayAsked.day, 30);
  choose(screen, 3);
  EXPECT_EQ(listed(screen), QStringList(u"火曜　太郎"_s)) << "each tab reads the book whole";
}

TEST_F(WeekView, DayWithoutBookingsIsEmptyAndReported) {
  screen::Screen& screen = week();
  takeMessages();
  choose(screen, 7);
  EXPECT_EQ(takeMessages(), QStringList(kNotFound));
  EXPECT_EQ(screen.text(u"Text1"_s), u"令和6年10月5日土曜日"_s);
  EXPECT_EQ(listed(screen), QStringList());
  EXPECT_EQ(channel.lastSaid(), spoken({u"令和6年10月5日土曜日"_s, u"予約 0 件"_s}));
  screen.trigger(u"Command8"_s);
  EXPECT_EQ(takeMessages(), QStringList(u"代入するデータがありません。"_s));
}

TEST_F(WeekView, ReachesOneWeekToEitherSide) {
  screen::Screen& screen = week();
  screen.trigger(u"Command3"_s);
  EXPECT_EQ(screen.text(u"Text1"_s), u"令和6年10月8日火曜日"_s);
  EXPECT_EQ(listed(screen), QStringList(u"来週　次郎"_s));
  EXPECT_EQ(enabled(screen), QList<bool>({true, false, false}));
  EXPECT_EQ(screen.focused(), u"SSTab1"_s) << "not on a button that went out";
  screen.trigger(u"Command3"_s);
  screen.trigger(u"Command4"_s);
  EXPECT_EQ(screen.text(u"Text1"_s), u"令和6年10月8日火曜日"_s) << "no further";
  choose(screen, 1);
  EXPECT_EQ(screen.text(u"Text1"_s), u"令和6年10月6日日曜日"_s);
  screen.trigger(u"Command2"_s);
  EXPECT_EQ(screen.text(u"Text1"_s), u"令和6年10月1日火曜日"_s);
  EXPECT_EQ(screen.text(u"SSTab1"_s), u"火曜日"_s);
  EXPECT_EQ(enabled(screen), QList<bool>({false, true, true}));
  screen.trigger(u"Command4"_s);
  EXPECT_EQ(screen.text(u"Text1"_s), u"令和6年9月24日火曜日"_s);
  EXPECT_EQ(listed(screen), QStringList(u"先週　三郎"_s));
  EXPECT_EQ(enabled(screen), QList<bool>({true, false, false}));
}

TEST_F(WeekView, RollsOverTheYear) {
  clock.set(QDate(2024, 12, 31));
  screen::Screen& screen = week();
  choose(screen, 5);
  EXPECT_EQ(screen.text(u"Text1"_s), u"令和7年1月2日木曜日"_s);
  screen.trigger(u"Command3"_s);
  EXPECT_EQ(screen.text(u"Text1"_s), u"令和7年1月7日火曜日"_s);
}

TEST_F(WeekView, ReopenedItShowsThisWeek) {
  week().trigger(u"Command3"_s);
  screen::Screen& screen = week();
  EXPECT_EQ(screen.text(u"Text1"_s), u"令和6年10月1日火曜日"_s);
  EXPECT_EQ(enabled(screen), QList<bool>({false, true, true}));
}

TEST_F(WeekView, AnEmptyTableSaysSo) {
  ASSERT_TRUE(QFile::remove(path(kBookings)));
  makeFile(kBookings);
  week();
  EXPECT_EQ(takeMessages(), QStringList(kNoRows));
}

TEST_F(WeekView, UnreadableBookLeavesNoRowsOfAnotherDay) {
  screen::Screen& screen = week();
  ASSERT_EQ(listed(screen).size(), 1);
  const QString away = path(kBookings) + u".away"_s;
  ASSERT_TRUE(QFile::rename(path(kBookings), away));
  choose(screen, 2);
  EXPECT_TRUE(takeMessages().join(u' ').contains(kBookings));
  EXPECT_EQ(listed(screen), QStringList());
  QTest::keyClick(&screen, Qt::Key_F1);
  EXPECT_EQ(channel.lastSaid(), u"予約 0 件"_s);
  screen.trigger(u"Command8"_s);
  EXPECT_EQ(takeMessages(), QStringList(u"代入するデータがありません。"_s));
  ASSERT_TRUE(QFile::rename(away, path(kBookings)));
  choose(screen, 3);
  EXPECT_EQ(listed(screen), QStringList(u"火曜　太郎"_s));
}

TEST_F(WeekView, HandsOverAndGoesBackToTheCaller) {
  run.bookingsCaller = routes::PatientRegister::screen;
  screen::Screen& screen = week();
  screen.trigger(u"Command8"_s);
  ASSERT_TRUE(handedOver());
  EXPECT_EQ(handedOver()->name, u"火曜　太郎"_s);
  navigator.unload(u"治療台帳4"_s);
  screen.trigger(u"Command1"_s);
  EXPECT_TRUE(isShown(u"治療台帳4"));
  EXPECT_FALSE(isShown(u"予約週間表"));
}

TEST_F(WeekView, ArrowKeysWalkTheDays) {
  screen::Screen& screen = week();
  screen.focusOn(u"SSTab1"_s);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
  EXPECT_EQ(screen.text(u"Text1"_s), u"令和6年9月30日月曜日"_s);
  EXPECT_EQ(screen.focused(), u"SSTab1"_s);
}

TEST_F(WeekView, IsNamedSpokenAndReachable) {
  screen::Screen& screen = week();
  screen::testing::ScreenProbe probe(screen, channel);
  probe.open();
  EXPECT_EQ(probe.faults(), QStringList());
}

// ---- Date pickers

class DayPick : public BookingFixture, public testing::WithParamInterface<const char16_t*> {
 protected:
  screen::Screen& picker() { return open(QString::fromUtf16(GetParam())); }
};

TEST_P(DayPick, OffersTodayInALateYear) {
  screen::Screen& screen = picker();
  EXPECT_EQ(screen.windowTitle(), u"予約表示の確認"_s);
  EXPECT_EQ(dayOf(screen), QStringList({u"2024"_s, u"6"_s, u"15"_s}));
  EXPECT_EQ(screen.items(u"Combo1"_s).first(), u"2000"_s);
  EXPECT_EQ(screen.items(u"Combo1"_s).last(), u"2020"_s);
}

TEST_P(DayPick, ShowsTheDayOnTheListAndRemembersIt) {
  book(u"2025/7/8"_s, u"9 時 0 分"_s, u"見本"_s);
  book(u"2025/7/9"_s, u"9 時 0 分"_s, u"例示"_s);
  screen::Screen& screen = picker();
  type(screen, u"2025"_s, u"7"_s, u"8"_s);
  screen.trigger(u"Command1"_s);
  screen::Screen& list = led(u"今日の予約"_s);
  EXPECT_EQ(listed(list), QStringList(u"見本"_s));
  EXPECT_EQ(dayOf(list), QStringList({u"2025"_s, u"7"_s, u"8"_s}));
  EXPECT_EQ(list.text(u"Text1"_s), u"火曜日"_s);
  EXPECT_TRUE(channel.said().contains(spoken({u"令和7年7月8日火曜日"_s, u"予約 1 件"_s})));
  EXPECT_TRUE(channel.said().contains(spoken({u"7月8日"_s, u"9 時 0 分"_s, u"見本"_s})));
  EXPECT_FALSE(navigator.isShown(QString::fromUtf16(GetParam())));
  EXPECT_EQ(dayOf(picker()), QStringList({u"2025"_s, u"7"_s, u"8"_s}));
}

TEST_P(DayPick, TypingFirstReplacesTheYear) {
  screen::Screen& screen = picker();
  screen::testing::ScreenProbe probe(screen, channel);
  probe.open();
  EXPECT_EQ(screen.focused(), u"Combo1"_s);
  QTest::keyClicks(QApplication::focusWidget(), u"2025"_s);
  EXPECT_EQ(screen.text(u"Combo1"_s), u"2025"_s);
}

TEST_P(DayPick, DayWithoutBookingsIsReportedOnTheList) {
  book(u"2025/7/8"_s, u"9 時 0 分"_s, u"見本"_s);
  picker().trigger(u"Command1"_s);
  led(u"今日の予約"_s);
  EXPECT_EQ(takeMessages(), QStringList(kNotFound));
}

TEST_P(DayPick, ListsWithoutADateStayAsTyped) {
  screen::Screen& screen = picker();
  type(screen, u"2025"_s, u"七"_s, u"8"_s);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(takeMessages(), QStringList(kNoDate));
  EXPECT_TRUE(navigator.isShown(QString::fromUtf16(GetParam())));
  EXPECT_EQ(screen.text(u"Combo2"_s), u"七"_s);
  EXPECT_EQ(screen.focused(), u"Combo2"_s) << "what is to be put right";
  type(screen, u"99999"_s, u"7"_s, u"8"_s);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(takeMessages(), QStringList(kNoDate));
  EXPECT_EQ(screen.focused(), u"Combo1"_s);
  EXPECT_FALSE(isShown(u"今日の予約"));
}

TEST_P(DayPick, CancelChangesNothing) {
  screen::Screen& screen = picker();
  type(screen, u"2025"_s, u"7"_s, u"8"_s);
  screen.trigger(u"Command2"_s);
  EXPECT_FALSE(navigator.isShown(QString::fromUtf16(GetParam())));
  EXPECT_EQ(run.dayAsked.year, 0);
}

INSTANTIATE_TEST_SUITE_P(Both, DayPick, testing::Values(u"抽出4", u"抽出5"));

// ---- Calendars

class BookingCalendar : public BookingFixture {};

TEST_F(BookingCalendar, StartsOnTodayAndSaysEachDay) {
  screen::Screen& screen = open(u"予約カレンダー"_s);
  EXPECT_EQ(screen.day(u"Calendar1"_s), QDate(2024, 6, 15));
  EXPECT_EQ(screen.caption(u"Calendar1"_s),
            u"カーソルキーで移動し、エンターを押すと日付曜日を音声で知らせます"_s);
  screen.focusOn(u"Calendar1"_s);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
  EXPECT_EQ(channel.lastSaid(), u"令和6年6月16日日曜日"_s);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown);
  EXPECT_EQ(channel.lastSaid(), u"令和6年7月16日火曜日"_s);
  channel.clear();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(channel.lastSaid(), u"令和6年7月16日火曜日"_s);
}

TEST_F(BookingCalendar, ExtractingShowsTheDayOnTheList) {
  book(u"2024/6/16"_s, u"9 時 0 分"_s, u"見本"_s);
  book(u"2024/6/15"_s, u"9 時 0 分"_s, u"例示"_s);
  screen::Screen& screen = open(u"予約カレンダー"_s);
  screen.setDay(u"Calendar1"_s, QDate(2024, 6, 16));
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(listed(led(u"今日の予約"_s)), QStringList(u"見本"_s));
  EXPECT_FALSE(isShown(u"予約カレンダー"));
}

TEST_F(BookingCalendar, InTheTakingsModeTheDayGoesToTheTakings) {
  run.calendarUse = frame::CalendarUse::Takings;
  for (const QString& name : {u"集計カレンダー"_s, u"予約カレンダー"_s}) {
    screen::Screen& screen = open(name);
    screen.setDay(u"Calendar1"_s, QDate(2024, 6, 5));
    screen.trigger(u"Command1"_s);
    const auto takings = routeTo<routes::Takings>();
    ASSERT_TRUE(takings);
    EXPECT_EQ(takings->day, QDate(2024, 6, 5));
    EXPECT_FALSE(isShown(u"今日の予約"));
    navigator.unload(u"集計"_s);
  }
  EXPECT_EQ(run.dayAsked.year, 0);
}

TEST_F(BookingCalendar, ClosesWithoutAChoice) {
  screen::Screen& screen = open(u"予約カレンダー"_s);
  QTest::keyClick(&screen, Qt::Key_Escape);
  EXPECT_FALSE(isShown(u"予約カレンダー"));
  EXPECT_FALSE(isShown(u"今日の予約"));
}

TEST_F(BookingCalendar, ReopenedItStartsOnToday) {
  open(u"予約カレンダー"_s).setDay(u"Calendar1"_s, QDate(2030, 1, 1));
  EXPECT_EQ(open(u"予約カレンダー"_s).day(u"Calendar1"_s), QDate(2024, 6, 15));
}

// ---- カレンダーのチェック

class CalendarNotice : public BookingFixture {
 protected:
  screen::Screen& notice() { return open(u"カレンダーのチェック"_s); }
};

TEST_F(CalendarNotice, IsHeardWhole) {
  const QStringList lines{
      u"WindowsXp対応としてのバージョンアップでしたが、予約および集計でカレンダー表示をさせるとエラーが出て強制終了してしまうことがわかりました。"_s,
      u"WindowsXpで治療台帳を起動している場合、予約および集計でカレンダー表示をさせないようにしてください。"_s,
      u"今のところ回避出来ない状態です。"_s,
      u"WindowsXp上でプログラムの製作過程でも、カレンダーを使うと強制終了してしまいますので、WindowsXpではカレンダーを使えないのがはっきりいたしました。"_s,
      u"今後、どうするか検討中です。"_s};
  notice();
  EXPECT_EQ(channel.said().value(0), spoken(lines));
}

TEST_F(CalendarNotice, RefusesThePlatformThatFails) {
  notice().trigger(u"Command1"_s);
  settle();
  EXPECT_EQ(takeMessages(),
            QStringList(u"WindowsXpでは、エラーが出て強制終了いたします。カレンダー表示は出来ません。"_s));
  EXPECT_FALSE(isShown(u"予約カレンダー"));
  EXPECT_FALSE(isShown(u"カレンダーのチェック"));
}

TEST_F(CalendarNotice, OpensTheCalendarOnTodayElsewhere) {
  screen::Screen& screen = notice();
  EXPECT_EQ(screen.caption(u"Command2"_s), u"Windows98・98SE・Me・2000"_s);
  screen.trigger(u"Command2"_s);
  settle();
  EXPECT_EQ(led(u"予約カレンダー"_s).day(u"Calendar1"_s), QDate(2024, 6, 15));
  EXPECT_FALSE(isShown(u"カレンダーのチェック"));
}

TEST_F(CalendarNotice, CancelAndEscapeClose) {
  for (const bool escape : {false, true}) {
    screen::Screen& screen = notice();
    if (escape)
      QTest::keyClick(&screen, Qt::Key_Escape);
    else
      screen.trigger(u"Command3"_s);
    settle();
    EXPECT_FALSE(isShown(u"カレンダーのチェック"));
    EXPECT_FALSE(isShown(u"予約カレンダー"));
    EXPECT_EQ(takeMessages(), QStringList());
  }
}

}  // namespace
}  // namespace office::test
