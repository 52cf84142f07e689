// 予約2: leaving a booking, deleting it, and what must not be lost on the way.

#include <QTest>
#include <QtWidgets/QtWidgets>

#include "office/tests/screens/booking_fixture.h"

namespace office::test {
namespace {

const QString kDrop = u"登録していない内容があります。捨ててもよろしいですか？"_s;
const QString kDelete = u"　現在の該当患者を削除しますか？"_s;
const QString kUnfinished =
    u"予約患者名が入っていないか、更新ボタンが押されていません。必ず予約を登録したい場合は、更新ボタンを押してから、閉じるのボタンを押してください。このままＯＫボタンを押すとデータは保存、更新されません。"_s;

class BookingLeave : public BookingFixture {
 protected:
  screen::Screen& fresh(const screen::Request& request = {}) { return open(u"予約2"_s, request); }
  screen::Screen& finishedBooking(const screen::Request& request = {}) {
    screen::Screen& form = fresh(request);
    form.setText(u"txtFields(2)"_s, u"見本"_s);
    form.trigger(u"cmdUpdate"_s);
    takeMessages();
    return form;
  }
};

struct WayBack {
  std::optional<screen::ScreenName> caller;
  std::optional<screen::ScreenName> opener;
  QString leadsTo;
};
class WaysBack : public BookingLeave, public testing::WithParamInterface<WayBack> {};

TEST_P(WaysBack, ClosingGoesToTheCaller) {
  run.bookingsCaller = GetParam().caller;
  finishedBooking(routes::Booking{.opener = GetParam().opener}).trigger(u"cmdClose"_s);
  settle();
  for (const QString& name : {u"選択3"_s, u"治療台帳4"_s, u"今日の予約"_s})
    EXPECT_EQ(navigator.isShown(name), name == GetParam().leadsTo) << name.toStdString();
  EXPECT_EQ(navigator.loaded(u"予約2"_s), nullptr);
  EXPECT_EQ(takeMessages(), QStringList());
}
constexpr screen::ScreenName kMenu = routes::MainMenu::screen, kChart = routes::PatientRegister::screen,
                             kList = routes::TodaysBookings::screen;
INSTANTIATE_TEST_SUITE_P(Callers, WaysBack,
                         testing::Values(WayBack{kMenu, {}, kMenu}, WayBack{kChart, {}, kChart},
                                         WayBack{kMenu, kList, kList}, WayBack{kChart, kList, kList},
                                         WayBack{{}, {}, {}}));

TEST_F(BookingLeave, ClosingWritesTheWeekdayOnceMore) {
  book(u"2024/6/15"_s, u"9 時 0 分"_s, u"見本"_s);
  screen::Screen& form = fresh(storedBooking(1));
  type(form, u"2024"_s, u"6"_s, u"18"_s);
  form.trigger(u"cmdClose"_s);
  EXPECT_EQ(stored(u"予約曜日"_s), QStringList(u"火曜日"_s));
  EXPECT_EQ(stored(u"予約日"_s), QStringList(u"18"_s));
  EXPECT_EQ(stored(u"登録日時"_s), QStringList(u"令和6年6月1日 9:0"_s)) << "only 登録 stamps";
}

TEST_F(BookingLeave, AnUnfinishedBookingIsAskedFor) {
  for (const bool named : {false, true}) {
    screen::Screen& form = fresh();
    if (named) form.setText(u"txtFields(2)"_s, u"見本"_s);  // 登録 not pressed
    form.trigger(u"cmdClose"_s);
    EXPECT_TRUE(isShown(u"更新の確認"));
    EXPECT_TRUE(isShown(u"予約2"));
    EXPECT_EQ(led(u"更新の確認"_s).openingTexts(), QStringList(kUnfinished));
    led(u"更新の確認"_s).trigger(u"Command1"_s);
    settle();
    EXPECT_FALSE(isShown(u"予約2"));
    EXPECT_FALSE(isShown(u"更新の確認"));
    EXPECT_EQ(stored(u"ID"_s).size(), 0);
  }
}

TEST_F(BookingLeave, WayBackSurvivesTheQuestion) {
  run.bookingsCaller = routes::PatientRegister::screen;
  fresh().trigger(u"cmdClose"_s);
  led(u"更新の確認"_s).trigger(u"Command1"_s);
  EXPECT_TRUE(isShown(u"治療台帳4"));
}

TEST_F(BookingLeave, BackToTheFormKeepsWhatWasTyped) {
  screen::Screen& form = fresh();
  form.setText(u"txtFields(2)"_s, u"見本"_s);
  form.trigger(u"cmdClose"_s);
  QTest::keyClick(&led(u"更新の確認"_s), Qt::Key_Escape);
  settle();
  EXPECT_FALSE(isShown(u"更新の確認"));
  ASSERT_TRUE(isShown(u"予約2"));
  EXPECT_EQ(form.text(u"txtFields(2)"_s), u"見本"_s);
  EXPECT_EQ(takeMessages(), QStringList());
  form.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"予約患者"_s), QStringList(u"見本"_s));
}

TEST_F(BookingLeave, TheCloseBoxIsTheButton) {
  screen::Screen& form = fresh();
  form.close();
  EXPECT_TRUE(isShown(u"更新の確認"));
  EXPECT_TRUE(isShown(u"予約2"));
}

TEST_F(BookingLeave, AnEmptyBookClosesWithoutAQuestion) {
  screen::Screen& form = fresh();
  answer({true});
  form.trigger(u"cmdDelete"_s);
  form.trigger(u"cmdClose"_s);
  settle();
  EXPECT_FALSE(isShown(u"更新の確認"));
  EXPECT_FALSE(isShown(u"予約2"));
}

TEST_F(BookingLeave, ARefusedWriteKeepsTheFormOrIsDropped) {
  for (const bool drops : {false, true}) {
    book(u"2024/6/15"_s, u"9 時 0 分"_s, u"見本"_s);
    const qint64 id = stored(u"ID"_s).last().toLongLong();
    screen::Screen& form = fresh(storedBooking(id));
    form.setText(u"txtFields(8)"_s, u"書きかけ"_s);
    elsewhere("UPDATE \"予約\" SET \"メモ1\"='電話あり'");
    answer({drops});
    form.trigger(u"cmdClose"_s);
    settle();
    EXPECT_EQ(takeMessages().value(1), u"登録出来ませんでした。入力した内容を捨てて、閉じますか？"_s);
    EXPECT_EQ(isShown(u"予約2"), !drops);
    EXPECT_EQ(stored(u"メモ1"_s).last(), u"電話あり"_s);
    if (drops) continue;
    EXPECT_EQ(form.text(u"txtFields(8)"_s), u"書きかけ"_s);
    form.trigger(u"cmdClose"_s);
    settle();
    EXPECT_EQ(stored(u"メモ1"_s).last(), u"書きかけ"_s) << "after the warning the user's word counts";
    EXPECT_FALSE(isShown(u"予約2"));
  }
}

TEST_F(BookingLeave, AStoredRowWithoutADateIsLeftAsItIs) {
  addBooking({{u"予約患者"_s, u"見本"_s}, {u"登録日時"_s, u"令和6年6月1日 9:0"_s}});
  fresh(storedBooking(1)).trigger(u"cmdClose"_s);
  settle();
  EXPECT_FALSE(isShown(u"予約2"));
  EXPECT_EQ(takeMessages(), QStringList());
  screen::Screen& form = fresh(storedBooking(1));
  form.setText(u"txtFields(8)"_s, u"書きかけ"_s);
  form.trigger(u"cmdClose"_s);
  EXPECT_TRUE(isShown(u"予約2"));
  EXPECT_EQ(takeMessages(), QStringList(kNoDate));
}

// ---- 中止

TEST_F(BookingLeave, DeletingAsksFirst) {
  book(u"2024/6/15"_s, u"9 時 0 分"_s, u"見本"_s);
  screen::Screen& form = fresh(storedBooking(1));
  answer({false, true});
  form.trigger(u"cmdDelete"_s);
  EXPECT_EQ(takeMessages(), QStringList(kDelete));
  EXPECT_EQ(stored(u"ID"_s).size(), 1);
  form.trigger(u"cmdDelete"_s);
  EXPECT_EQ(stored(u"ID"_s).size(), 0);
  EXPECT_EQ(channel.lastSaid(), u"削除しました"_s);
  takeMessages();
  form.trigger(u"cmdDelete"_s);
  EXPECT_EQ(takeMessages(), QStringList(u"削除するデータがありません。"_s));
}

TEST_F(BookingLeave, ANewBookingOnlyLeavesTheScreen) {
  book(u"2024/6/15"_s, u"9 時 0 分"_s, u"見本"_s);
  screen::Screen& form = fresh();
  answer({true});
  form.trigger(u"cmdDelete"_s);
  EXPECT_EQ(stored(u"予約患者"_s), QStringList(u"見本"_s));
  EXPECT_EQ(form.text(u"txtFields(2)"_s), u"見本"_s);
  EXPECT_EQ(channel.lastSaid(),
            spoken({u"中止しました"_s, u"表示中の予約"_s, u"2024年6月15日"_s, u"9 時 0 分"_s, u"見本"_s}));
}

// ---- Nothing typed is lost unasked

TEST_F(BookingLeave, MovingAwayAsksWhereSomethingWasTyped) {
  book(u"2024/6/15"_s, u"9 時 0 分"_s, u"見本"_s);
  screen::Screen& form = fresh();
  form.setText(u"txtFields(2)"_s, u"例示"_s);
  form.goFirst();
  EXPECT_EQ(takeMessages(), QStringList(kDrop));
  EXPECT_EQ(form.text(u"txtFields(2)"_s), u"例示"_s);
  answer({true});
  form.goFirst();
  EXPECT_EQ(form.text(u"txtFields(2)"_s), u"見本"_s);
  EXPECT_EQ(channel.lastSaid(), spoken({u"ﾚｺｰﾄﾞ: 1"_s, u"6月15日"_s, u"9 時 0 分"_s, u"見本"_s}));
  EXPECT_EQ(stored(u"ID"_s).size(), 1);
}

TEST_F(BookingLeave, RecordKeysWalkTheBook) {
  for (const QString& name : {u"見本"_s, u"例示"_s, u"架空"_s}) book(u"2024/6/15"_s, u"9 時 0 分"_s, name);
  screen::Screen& form = fresh();
  const std::pair<Qt::Key, QString> steps[] = {{Qt::Key_F4, u"架空"_s},
                                               {Qt::Key_F2, u"例示"_s},
                                               {Qt::Key_F1, u"見本"_s},
                                               {Qt::Key_F2, u"見本"_s},
                                               {Qt::Key_F3, u"例示"_s}};
  for (const auto& [key, name] : steps) {
    QTest::keyClick(&form, key);
    EXPECT_EQ(form.text(u"txtFields(2)"_s), name);
  }
  EXPECT_EQ(takeMessages(), QStringList());
}

TEST_F(BookingLeave, RecordKeysSpeakInAnEmptyBook) {
  screen::Screen& form = fresh();
  answer({true});
  form.trigger(u"cmdDelete"_s);
  for (const Qt::Key key : {Qt::Key_F1, Qt::Key_F2, Qt::Key_F3, Qt::Key_F4}) {
    channel.clear();
    QTest::keyClick(&form, key);
    EXPECT_EQ(channel.lastSaid(), u"予約 0 件"_s);
  }
}

TEST_F(BookingLeave, AnotherBookingAsksWhereSomethingWasTyped) {
  screen::Screen& form = fresh();
  form.setText(u"txtFields(2)"_s, u"例示"_s);
  form.trigger(u"cmdAdd"_s);
  EXPECT_EQ(takeMessages(), QStringList(kDrop));
  EXPECT_EQ(form.text(u"txtFields(2)"_s), u"例示"_s);
  fresh(newBookingOf(patient(u"見本"_s)));
  EXPECT_EQ(takeMessages(), QStringList(kDrop));
  EXPECT_EQ(form.text(u"txtFields(2)"_s), u"例示"_s);
  answer({true});
  fresh(newBookingOf(patient(u"見本"_s)));
  EXPECT_EQ(form.text(u"txtFields(2)"_s), u"見本"_s);
}

TEST_F(BookingLeave, AddingAgainIsHeard) {
  screen::Screen& form = finishedBooking();
  form.trigger(u"cmdAdd"_s);
  EXPECT_EQ(form.text(u"txtFields(2)"_s), QString());
  EXPECT_TRUE(
      channel.heardWhole().contains(spoken({u"新規追加"_s, u"2024年6月15日"_s, u"土曜日"_s, u"9 時 5 分"_s})))
      << channel.heardWhole().join(u'\n').toStdString();
}

TEST_F(BookingLeave, ListOpensNextToTheForm) {
  screen::Screen& form = fresh();
  form.setText(u"txtFields(2)"_s, u"見本"_s);
  form.trigger(u"Command5"_s);
  EXPECT_TRUE(isShown(u"今日の予約"));
  EXPECT_TRUE(isShown(u"予約2"));
  EXPECT_EQ(form.text(u"txtFields(2)"_s), u"見本"_s);
}

}  // namespace
}  // namespace office::test
