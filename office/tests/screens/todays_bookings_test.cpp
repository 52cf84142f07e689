// 今日の予約: a chosen day, searches, deleting, and the ways to the other screens.

#include <QTest>
#include <QtWidgets/QtWidgets>

#include "office/tests/screens/booking_fixture.h"

namespace office::test {
namespace {

class TodaysBookings : public BookingFixture {
 protected:
  void SetUp() override {
    BookingFixture::SetUp();
    book(u"2024/6/15"_s, u"9 時 0 分"_s, u"見本　太郎"_s);
    book(u"2024/6/15"_s, u"10 時 0 分"_s, u"例示　花子"_s);
    book(u"2024/6/18"_s, u"9 時 0 分"_s, u"架空　次郎"_s);
    book(u"2023/6/15"_s, u"9 時 0 分"_s, u"見本　花子"_s);
  }
  screen::Screen& list(const screen::Request& request = {}) { return open(u"今日の予約"_s, request); }
  void showDay(screen::Screen& screen, const QString& year, const QString& month, const QString& day) {
    type(screen, year, month, day);
    screen.trigger(u"Command1"_s);
  }
};

TEST_F(TodaysBookings, OpensWholeOnTodayInItsLists) {
  screen::Screen& screen = list();
  EXPECT_EQ(listed(screen).size(), 4);
  EXPECT_EQ(dayOf(screen), QStringList({u"2024"_s, u"6"_s, u"15"_s}));
  EXPECT_EQ(screen.source().rows().absolutePosition(), 0);
  EXPECT_EQ(screen.caption(u"Data1"_s), u"ﾚｺｰﾄﾞ: 1"_s);
  EXPECT_EQ(screen.items(u"Combo1"_s).first(), u"2015"_s);
  EXPECT_EQ(screen.items(u"Combo1"_s).last(), u"2035"_s);
  EXPECT_EQ(screen.items(u"Combo4"_s),
            QStringList({u"予約患者"_s, u"予約時間"_s, u"予約月"_s, u"予約日"_s, u"予約年"_s, u"予約曜日"_s,
                         u"患者NO"_s, u"予約日時"_s, u"予約NO"_s, u"メモ1"_s}));
}

TEST_F(TodaysBookings, SaysHowManyBookingsAreOnView) {
  screen::Screen& screen = list();
  EXPECT_EQ(channel.said().value(0), spoken({u"今日の予約"_s, u"予約 4 件"_s}));
  showDay(screen, u"2024"_s, u"6"_s, u"15"_s);
  channel.clear();
  list();
  EXPECT_TRUE(channel.said().contains(spoken({u"今日の予約"_s, u"抽出中"_s, u"予約 2 件"_s})))
      << "coming back to a narrowed list: " << channel.said().join(u'\n').toStdString();
}

TEST_F(TodaysBookings, AListThatCouldNotBeWidenedStillCountsAsNarrowed) {
  showDay(list(), u"2024"_s, u"6"_s, u"15"_s);
  const QString away = path(kBookings) + u".away"_s;
  ASSERT_TRUE(QFile::rename(path(kBookings), away));
  list().trigger(u"cmdRefresh"_s);
  ASSERT_TRUE(QFile::rename(away, path(kBookings)));
  channel.clear();
  EXPECT_EQ(listed(list()).size(), 2);
  EXPECT_TRUE(channel.said().contains(spoken({u"今日の予約"_s, u"抽出中"_s, u"予約 2 件"_s})))
      << channel.said().join(u'\n').toStdString();
}

TEST_F(TodaysBookings, AnEmptyBookIsHeardAsSuch) {
  ASSERT_TRUE(QFile::remove(path(kBookings)));
  makeFile(kBookings);
  screen::Screen& screen = list();
  EXPECT_EQ(channel.said().value(0), spoken({u"今日の予約"_s, u"予約 0 件"_s}));
  for (const Qt::Key key : {Qt::Key_F1, Qt::Key_F2, Qt::Key_F3, Qt::Key_F4}) {
    channel.clear();
    QTest::keyClick(&screen, key);
    EXPECT_EQ(channel.lastSaid(), u"予約 0 件"_s);
  }
}

TEST_F(TodaysBookings, EnterInTheListsShowsTheDay) {
  for (const QString& part : {u"Combo1"_s, u"Combo2"_s, u"Combo3"_s}) {
    screen::Screen& screen = list();
    screen.trigger(u"cmdRefresh"_s);
    type(screen, u"2024"_s, u"6"_s, u"18"_s);
    screen.focusOn(part);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(listed(screen), QStringList(u"架空　次郎"_s)) << part.toStdString();
    EXPECT_EQ(screen.focused(), u"DBGrid1"_s);
  }
}

TEST_F(TodaysBookings, AKeyBeginsANewBooking) {
  screen::Screen& screen = list();
  QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &screen, Qt::Key_N,
                  Qt::ControlModifier);
  EXPECT_TRUE(isShown(u"予約2"));
}

TEST_F(TodaysBookings, TheListsFollowTheClockUntilADayIsAskedFor) {
  list();
  clock.set(QDate(2024, 6, 16));
  EXPECT_EQ(dayOf(list()).last(), u"16"_s);
  showDay(list(), u"2024"_s, u"6"_s, u"18"_s);
  clock.set(QDate(2024, 6, 17));
  EXPECT_EQ(dayOf(list()).last(), u"18"_s);
}

TEST_F(TodaysBookings, TheMainMenuLeadsToTheLastRow) {
  EXPECT_EQ(list(routes::TodaysBookings{.lastRow = true}).source().rows().absolutePosition(), 3);
}

TEST_F(TodaysBookings, AnEmptyTableHasNoLastRow) {
  store::RecordSet rows = table();
  while (rows.recordCount() > 0) {
    rows.moveFirst();
    ASSERT_TRUE(rows.remove());
  }
  list(routes::TodaysBookings{.lastRow = true});
  EXPECT_EQ(takeMessages(), QStringList());
}

TEST_F(TodaysBookings, ADayIsShownInTheOrderOfItsTimesAsTexts) {
  screen::Screen& screen = list();
  screen.focusOn(u"Command1"_s);
  channel.clear();
  showDay(screen, u"2024"_s, u"6"_s, u"15"_s);
  EXPECT_EQ(listed(screen, u"予約時間"_s), QStringList({u"10 時 0 分"_s, u"9 時 0 分"_s}));
  EXPECT_EQ(screen.text(u"Text1"_s), u"土曜日"_s);
  EXPECT_EQ(screen.focused(), u"DBGrid1"_s);
  EXPECT_EQ(channel.heardWhole(), QStringList({spoken({u"令和6年6月15日土曜日"_s, u"予約 2 件"_s}),
                                               spoken({u"予約の一覧"_s, u"予約時間"_s, u"10 時 0 分"_s})}));
  EXPECT_EQ(run.dayAsked.year, 2024);
  EXPECT_EQ(run.dayAsked.month, 6);
  EXPECT_EQ(run.dayAsked.day, 15);
}

TEST_F(TodaysBookings, ARowIsHeardByTimeAndName) {
  screen::Screen& screen = list();
  showDay(screen, u"2024"_s, u"6"_s, u"15"_s);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
  EXPECT_EQ(channel.lastSaid(), spoken({u"予約患者"_s, u"例示　花子"_s}));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_EQ(channel.lastSaid(), spoken({u"予約患者"_s, u"見本　太郎"_s}));
  QTest::keyClick(&screen, Qt::Key_F1);
  EXPECT_EQ(channel.lastSaid(), spoken({u"6月15日"_s, u"10 時 0 分"_s, u"例示　花子"_s}));
}

TEST_F(TodaysBookings, ADayWithoutBookingsLeavesTheListAsItWas) {
  screen::Screen& screen = list();
  screen.source().moveTo(2);
  showDay(screen, u"2024"_s, u"7"_s, u"15"_s);
  EXPECT_EQ(messages.titles(), QStringList(u"Not found"_s));
  EXPECT_EQ(takeMessages(), QStringList(kNotFound));
  EXPECT_EQ(listed(screen).size(), 4);
  EXPECT_EQ(screen.source().rows().absolutePosition(), 2);
  EXPECT_EQ(screen.text(u"Text1"_s), u"月曜日"_s);
  EXPECT_EQ(channel.lastSaid(),
            spoken({u"令和6年7月15日月曜日の予約はありません。"_s, u"表示中"_s, u"予約 4 件"_s}));
}

TEST_F(TodaysBookings, ADayIsSoughtAmongTheRowsOnViewUntilAllAreShown) {
  screen::Screen& screen = list();
  showDay(screen, u"2024"_s, u"6"_s, u"15"_s);
  showDay(screen, u"2024"_s, u"6"_s, u"18"_s);
  EXPECT_EQ(takeMessages(), QStringList(kNotFound));
  EXPECT_EQ(channel.lastSaid(),
            spoken({u"令和6年6月18日火曜日の予約はありません。"_s,
                    u"表示中の予約の中から探しました。全表示に戻すと、すべての予約から探せます。"_s,
                    u"表示中"_s, u"予約 2 件"_s}));
  screen.trigger(u"cmdRefresh"_s);
  EXPECT_EQ(listed(screen).size(), 4);
  EXPECT_EQ(screen.source().rows().absolutePosition(), 0);
  showDay(screen, u"2024"_s, u"6"_s, u"18"_s);
  EXPECT_EQ(listed(screen), QStringList(u"架空　次郎"_s));
}

TEST_F(TodaysBookings, AnImpossibleDayIsFoundAsBooked) {
  book(u"2024/2/31"_s, u"9 時 0 分"_s, u"巡り　三郎"_s);
  screen::Screen& screen = list();
  showDay(screen, u"2024"_s, u"3"_s, u"2"_s);
  EXPECT_EQ(takeMessages(), QStringList(kNotFound));
  showDay(screen, u"2024"_s, u"2"_s, u"31"_s);
  EXPECT_EQ(listed(screen), QStringList(u"巡り　三郎"_s));
  EXPECT_EQ(screen.text(u"Text1"_s), u"土曜日"_s);  // of 2 March
}

TEST_F(TodaysBookings, ListsWithoutADateAreReported) {
  screen::Screen& screen = list();
  for (const QString& command : {u"Command1"_s, u"Command2"_s}) {
    type(screen, u"2024"_s, u"六"_s, u"15"_s);
    screen.trigger(command);
    EXPECT_EQ(takeMessages(), QStringList(kNoDate));
  }
  EXPECT_EQ(listed(screen).size(), 4);
  EXPECT_EQ(run.dayAsked.year, 0) << "nothing was asked for";
}

TEST_F(TodaysBookings, WeekdayOfTheChosenDay) {
  screen::Screen& screen = list();
  type(screen, u"2024"_s, u"6"_s, u"18"_s);
  screen.trigger(u"Command2"_s);
  EXPECT_EQ(screen.text(u"Text1"_s), u"火曜日"_s);
  EXPECT_EQ(channel.lastSaid(), u"令和6年6月18日火曜日"_s);
  EXPECT_EQ(listed(screen).size(), 4);
}

TEST_F(TodaysBookings, AnEmptyListSaysSo) {
  screen::Screen& screen = list();
  showDay(screen, u"2024"_s, u"6"_s, u"18"_s);
  answer({true});
  screen.trigger(u"cmdDelete"_s);
  takeMessages();
  showDay(screen, u"2024"_s, u"6"_s, u"15"_s);
  EXPECT_EQ(takeMessages(), QStringList(kNoRows));
  screen.setText(u"txtFields(0)"_s, u"見本"_s);
  screen.trigger(u"Command3"_s);
  EXPECT_EQ(takeMessages(), QStringList(kNoRows));
  screen.trigger(u"Command8"_s);
  EXPECT_EQ(takeMessages(), QStringList(u"代入するデータがありません。"_s));
  screen.trigger(u"Men_YE"_s);
  EXPECT_EQ(takeMessages(),
            QStringList(u"編集データがありません。「全患者表示及び再表示」をクリックして下さい。"_s));
  answer({true});
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(takeMessages(),
            QStringList({u"　現在の該当患者を削除しますか？"_s, u"削除するデータがありません。"_s}));
}

// ---- 抽出

TEST_F(TodaysBookings, ExtractingNarrowsByAPartOfTheText) {
  screen::Screen& screen = list();
  screen.trigger(u"Command3"_s);
  EXPECT_EQ(listed(screen).size(), 4) << "a blank text changes nothing";
  EXPECT_EQ(screen.focused(), u"txtFields(0)"_s);
  EXPECT_EQ(channel.lastSaid(), u"抽出する文字:"_s) << "and is not silent";
  screen.setText(u"txtFields(0)"_s, u"見本"_s);
  screen.trigger(u"Command3"_s);
  EXPECT_EQ(listed(screen), QStringList({u"見本　太郎"_s, u"見本　花子"_s}));
  EXPECT_EQ(screen.focused(), u"DBGrid1"_s);
  EXPECT_TRUE(channel.heardWhole().contains(spoken({u"抽出しました"_s, u"予約 2 件"_s})))
      << channel.heardWhole().join(u'\n').toStdString();
  screen.setText(u"Combo4"_s, u"予約年"_s);
  screen.setText(u"txtFields(0)"_s, u"2023"_s);
  screen.trigger(u"Command3"_s);
  EXPECT_EQ(listed(screen), QStringList(u"見本　花子"_s));
  screen.setText(u"txtFields(0)"_s, u"1999"_s);
  screen.trigger(u"Command3"_s);
  EXPECT_EQ(takeMessages(), QStringList(kNotFound));
  EXPECT_EQ(listed(screen).size(), 1);
}

TEST_F(TodaysBookings, TheColumnThatIsNoneFailsInTheEngine) {
  screen::Screen& screen = list();
  screen.setText(u"Combo4"_s, u"予約日時"_s);
  screen.setText(u"txtFields(0)"_s, u"2024"_s);
  screen.trigger(u"Command3"_s);
  const QStringList texts = takeMessages();
  ASSERT_EQ(texts.size(), 1);
  EXPECT_TRUE(texts[0].startsWith(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :"_s)) << texts[0].toStdString();
  EXPECT_EQ(listed(screen).size(), 4);
}

// ---- 削除

TEST_F(TodaysBookings, DeletingAsksAndMovesToTheLastRow) {
  screen::Screen& screen = list();
  answer({false});
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(takeMessages(), QStringList(u"　現在の該当患者を削除しますか？"_s));
  EXPECT_EQ(stored(u"ID"_s).size(), 4);
  answer({true});
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(stored(u"予約患者"_s), QStringList({u"例示　花子"_s, u"架空　次郎"_s, u"見本　花子"_s}));
  EXPECT_EQ(screen.source().rows().absolutePosition(), 2);
  EXPECT_EQ(channel.lastSaid(), spoken({u"削除しました"_s, u"予約 3 件"_s}));
}

// ---- Other screens

TEST_F(TodaysBookings, TheBookedPersonIsHandedToTheChart) {
  addBooking({{u"予約患者"_s, u"巡り　三郎"_s}, {u"患者NO"_s, u"42"_s}});
  screen::Screen& screen = list(routes::TodaysBookings{.lastRow = true});
  screen.trigger(u"Command8"_s);
  ASSERT_TRUE(handedOver());
  EXPECT_EQ(handedOver()->name, u"巡り　三郎"_s);
  EXPECT_EQ(handedOver()->number, u"42"_s);
  EXPECT_TRUE(isShown(u"今日の予約"));
}

TEST_F(TodaysBookings, ABookingIsEditedAndTheListReadsItAgain) {
  screen::Screen& screen = list();
  showDay(screen, u"2024"_s, u"6"_s, u"15"_s);
  screen.focusOn(u"DBGrid1"_s);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  screen::Screen& form = led(u"予約2"_s);
  EXPECT_EQ(form.text(u"txtFields(2)"_s), u"例示　花子"_s);
  form.setText(u"txtFields(2)"_s, u"例示　月子"_s);
  form.trigger(u"cmdUpdate"_s);
  form.trigger(u"cmdClose"_s);
  led(u"今日の予約"_s);
  EXPECT_EQ(listed(screen), QStringList({u"例示　月子"_s, u"見本　太郎"_s})) << "still that day";
}

TEST_F(TodaysBookings, ANewBookingComesBackToTheList) {
  run.bookingsCaller = routes::MainMenu::screen;
  screen::Screen& screen = list();
  screen.trigger(u"Men_YY"_s);
  screen::Screen& form = led(u"予約2"_s);
  form.setText(u"txtFields(2)"_s, u"巡り　三郎"_s);
  form.trigger(u"cmdUpdate"_s);
  form.trigger(u"cmdClose"_s);
  led(u"今日の予約"_s);
  EXPECT_EQ(listed(screen).last(), u"巡り　三郎"_s);
  EXPECT_FALSE(isShown(u"選択3"));
  screen.trigger(u"cmdClose"_s);
  EXPECT_TRUE(isShown(u"選択3"));
}

TEST_F(TodaysBookings, ClosingGoesToTheCaller) {
  for (const screen::ScreenName& caller : {routes::MainMenu::screen, routes::PatientRegister::screen}) {
    run.bookingsCaller = caller;
    list().close();  // the close box does as the button does
    settle();
    EXPECT_TRUE(navigator.isShown(caller)) << caller.text().toStdString();
    EXPECT_FALSE(isShown(u"今日の予約"));
    navigator.unload(caller);
  }
}

TEST_F(TodaysBookings, WithoutAPatientListThereIsNoWayToTheMenu) {
  run.bookingsCaller = routes::MainMenu::screen;
  run.folders[frame::folder::kPatients].clear();
  list().trigger(u"cmdClose"_s);
  EXPECT_FALSE(isShown(u"選択3"));
  EXPECT_FALSE(isShown(u"今日の予約"));
}

TEST_F(TodaysBookings, TheListsHaveAllColumnsOfABooking) {
  for (const QString& name : {u"今日の予約"_s, u"予約週間表"_s}) {
    QStringList headers = headersOf(open(name), u"DBGrid1"_s);
    for (const QString& column : {u"予約時間"_s, u"予約患者"_s, u"予約年"_s, u"予約月"_s, u"予約日"_s,
                                  u"予約曜日"_s, u"患者NO"_s, u"予約NO"_s, u"メモ1"_s, u"登録日時"_s})
      EXPECT_EQ(headers.removeAll(column), 1) << column.toStdString();
    EXPECT_EQ(headers, QStringList());
  }
}

TEST_F(TodaysBookings, SearchOffersItsColumns) {
  EXPECT_EQ(list().items(u"Combo4"_s),
            (QStringList{u"予約患者"_s, u"予約時間"_s, u"予約月"_s, u"予約日"_s, u"予約年"_s, u"予約曜日"_s,
                         u"患者NO"_s, u"予約日時"_s, u"予約NO"_s, u"メモ1"_s}));
}

TEST_F(TodaysBookings, MenuHasItsNineEntries) {
  screen::Screen& screen = list();
  ASSERT_EQ(screen.menuBar()->actions().size(), 1);
  QStringList captions;
  for (const QAction* entry : screen.menuBar()->actions()[0]->menu()->actions()) captions += entry->text();
  captions.sort();
  QStringList wanted{u"予約日を指定して検索"_s,       u"カレンダー表示"_s, u"週間表"_s,
                     u"表示患者を治療台帳へ代入"_s,   u"全表示に戻す"_s,   u"削除"_s,
                     u"今日の予約の終了（閉じる）"_s, u"新規予約"_s,       u"表示患者の予約編集"_s};
  wanted.sort();
  EXPECT_EQ(captions, wanted);
}

TEST_F(TodaysBookings, ButtonsAndEntriesOpenTheirScreens) {
  const std::pair<QString, QString> ways[] = {{u"Men_YS"_s, u"抽出4"_s},
                                              {u"Command4"_s, u"予約カレンダー"_s},
                                              {u"Men_YC"_s, u"カレンダーのチェック"_s},
                                              {u"Command5"_s, u"予約週間表"_s},
                                              {u"Men_YI"_s, u"予約週間表"_s}};
  screen::Screen& screen = list();
  run.calendarUse = frame::CalendarUse::Takings;
  for (const auto& [command, target] : ways) {
    screen.trigger(command);
    EXPECT_TRUE(navigator.isShown(target)) << command.toStdString();
    navigator.unload(target);
  }
  EXPECT_EQ(run.calendarUse, frame::CalendarUse::Bookings) << "the calendar serves the book again";
}

TEST_F(TodaysBookings, TheCalendarIsHiddenWhereItEndsTheProgram) {
  const auto entryShown = [](const screen::Screen& screen) {
    return screen.findChild<QAction*>(u"Men_YC"_s)->isVisible();
  };
  screen::Screen& screen = list();
  EXPECT_TRUE(screen.isControlShown(u"Command4"_s));
  EXPECT_TRUE(entryShown(screen));
  run.platformValue = u"Xp"_s;
  list();
  EXPECT_FALSE(screen.isControlShown(u"Command4"_s));
  EXPECT_FALSE(entryShown(screen));
}

TEST_F(TodaysBookings, IsNamedSpokenAndReachable) {
  screen::Screen& screen = list();
  screen::testing::ScreenProbe probe(screen, channel);
  probe.open();
  EXPECT_EQ(probe.faults(), QStringList());
}

TEST_F(TodaysBookings, MissingBookIsReportedByName) {
  ASSERT_TRUE(QFile::remove(path(kBookings)));
  screen::Screen& screen = list();
  ASSERT_EQ(messages.texts().size(), 1);
  EXPECT_TRUE(takeMessages()[0].contains(kBookings));
  for (const QString& command : {u"Command1"_s, u"Command8"_s, u"cmdRefresh"_s, u"Men_YE"_s})
    screen.trigger(command);
  EXPECT_FALSE(QFile::exists(path(kBookings)));
}

}  // namespace
}  // namespace office::test
