#include "office/tests/screens/takings_fixture.h"

// Sums, the calendar, the patient of a row, deleting and leaving.

namespace office {
namespace {

using namespace Qt::Literals::StringLiterals;

using TakingsCommandsTest = test::TakingsFixture;

TEST_F(TakingsCommandsTest, TheSumsAreOfTheRowsOnView) {
  addVisits(
      {{{u"治療日時"_s, u"令和6年6月15日"_s},
        {u"保険者負担金"_s, u"1120"_s},
        {u"保険の一部負担金"_s, u"480"_s},
        {u"治療金額"_s, u"1600"_s},
        {u"領収証チェック"_s, u"-1"_s},
        {u"新患"_s, u"-1"_s}},
       {{u"治療日時"_s, u"令和6年6月15日"_s}, {u"治療金額"_s, u"3500"_s}, {u"領収証チェック"_s, u"-1"_s}},
       {{u"治療日時"_s, u"令和6年6月14日"_s}, {u"治療金額"_s, u"9000"_s}, {u"新患"_s, u"-1"_s}}});
  screen::Screen& screen = takings();
  screen.trigger(u"Command1"_s);
  screen.source().moveTo(1);
  screen.trigger(u"Command2"_s);
  screen::Screen* totals = navigator.loaded(u"集計総合金額"_s);
  ASSERT_NE(totals, nullptr);
  const QStringList wanted = {u"2"_s, u"1,120"_s, u"480"_s, u"5,100"_s, u"2"_s, u"1"_s};
  for (int box = 0; box < wanted.size(); ++box)
    EXPECT_EQ(totals->text(u"txtFields(%1)"_s.arg(box)), wanted[box]) << box;
  EXPECT_EQ(screen.source().rows().absolutePosition(), 1) << "the row stays";
}

TEST_F(TakingsCommandsTest, AnEmptyListGivesEmptyTotals) {
  screen::Screen& screen = takings();
  screen.trigger(u"Command2"_s);
  screen::Screen* totals = navigator.loaded(u"集計総合金額"_s);
  ASSERT_NE(totals, nullptr);
  for (int box = 0; box < 6; ++box) EXPECT_EQ(totals->text(u"txtFields(%1)"_s.arg(box)), QString()) << box;
  EXPECT_EQ(takeMessages(), QStringList());
}

TEST_F(TakingsCommandsTest, CalendarServesTheTakings) {
  screen::Screen& screen = takings();
  ASSERT_EQ(run.calendarUse, frame::CalendarUse::Bookings);
  screen.trigger(u"Command4"_s);
  EXPECT_EQ(run.calendarUse, frame::CalendarUse::Takings);
  EXPECT_TRUE(isShown(u"集計カレンダー"));
}

TEST_F(TakingsCommandsTest, TheDayOfTheCalendarIsShown) {
  addDates({u"令和6年6月15日"_s, u"令和6年5月1日"_s});
  screen::Screen& screen = takings();
  screen::testing::ScreenProbe(screen, channel).open();
  screen.opened(routes::Takings{.day = QDate(2024, 5, 1)});
  EXPECT_EQ(screen.text(u"Combo1"_s), u"2024"_s);
  EXPECT_EQ(screen.text(u"Combo2"_s), u"5"_s);
  EXPECT_EQ(screen.text(u"Combo3"_s), u"1"_s);
  screen.onActivate();
  settle();
  EXPECT_EQ(listed(), QStringList(u"見本 2"_s));
  screen.onActivate();
  settle();
  EXPECT_EQ(takeMessages(), QStringList()) << "asked for once";
}

TEST_F(TakingsCommandsTest, DayWithoutVisitsIsReportedOnceTheScreenIsActive) {
  addDates({u"令和6年6月15日"_s});
  screen::Screen& screen = takings();
  screen.opened(routes::Takings{.day = QDate(2024, 5, 1)});
  EXPECT_EQ(takeMessages(), QStringList());
  screen.onActivate();
  settle();
  EXPECT_EQ(takeMessages(), QStringList(kNotFound));
}

TEST_F(TakingsCommandsTest, ThePatientOfTheRowIsFoundByTheSerial) {
  addVisits({{{u"氏名"_s, u"見本 一"_s}, {u"ETC1"_s, u"20240601001"_s}},
             {{u"氏名"_s, u"見本 二"_s}, {u"ETC1"_s, u"20240601002"_s}}});
  screen::Screen& screen = takings(routes::Takings{.lastRow = true});
  screen.trigger(u"Command8"_s);
  const auto patient = routeTo<routes::PatientRegister>();
  ASSERT_TRUE(patient);
  const auto* found = std::get_if<routes::PatientRegister::BySerial>(&patient->who);
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->serial, u"20240601002"_s);
}

TEST_F(TakingsCommandsTest, VisitWithoutALinkOpensNobody) {
  addVisits({{{u"氏名"_s, u"見本 一"_s}}});
  takings().trigger(u"Command8"_s);
  EXPECT_EQ(takeMessages(), QStringList(kNotFound));
  EXPECT_FALSE(isShown(u"治療台帳4"));
}

TEST_F(TakingsCommandsTest, DeletingRemovesTheVisitAfterOk) {
  addDates({u"令和6年6月13日"_s, u"令和6年6月14日"_s, u"令和6年6月15日"_s});
  screen::Screen& screen = takings();
  screen.source().moveTo(1);
  answer({true});
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(takeMessages(), QStringList(u"　現在の表示の患者のカルテを削除しますか？"_s));
  EXPECT_EQ(screen.text(u"Label4"_s), u"2"_s);
  EXPECT_TRUE(channel.heardWhole().contains(sentence({u"削除しました"_s, u"治療総数:"_s, u"2"_s})));
  screen.trigger(u"cmdRefresh"_s);
  EXPECT_EQ(listed(), QStringList({u"見本 1"_s, u"見本 3"_s})) << "gone from the file";
}

TEST_F(TakingsCommandsTest, CancelDeletesNothing) {
  addDates({u"令和6年6月13日"_s});
  screen::Screen& screen = takings();
  answer({false});
  screen.trigger(u"cmdDelete"_s);
  screen.trigger(u"cmdRefresh"_s);
  EXPECT_EQ(listed().size(), 1);
}

TEST_F(TakingsCommandsTest, NothingToDeleteIsReported) {
  screen::Screen& screen = takings();
  answer({true});
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(takeMessages(), QStringList({u"　現在の表示の患者のカルテを削除しますか？"_s,
                                         u"削除するデータがありません。"_s}));
}

TEST_F(TakingsCommandsTest, ThePrintAsksForItsDateOnItsOwnScreen) {
  takings().trigger(u"Command5"_s);
  EXPECT_TRUE(isShown(u"集計年月"));
}

TEST_F(TakingsCommandsTest, ClosingLeadsBackToTheMenu) {
  takings().trigger(u"cmdClose"_s);
  EXPECT_TRUE(isShown(u"選択3"));
  EXPECT_FALSE(isShown(u"集計"));
}

TEST_F(TakingsCommandsTest, TheCloseBoxLeavesLikeTheButton) {
  takings().close();
  EXPECT_TRUE(isShown(u"選択3"));
  EXPECT_FALSE(isShown(u"集計"));
}

}  // namespace
}  // namespace office
