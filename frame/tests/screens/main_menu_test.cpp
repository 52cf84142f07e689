#include <QAction>
#include <QCheckBox>

#include "frame/core/routes.h"
#include "frame/core/routes_unbuilt.h"
#include "frame/tests/screens/frame_fixture.h"

namespace frame {
namespace {

using namespace Qt::Literals::StringLiterals;

class MainMenuTest : public test::FrameFixture {};

TEST_F(MainMenuTest, ShowsTheLineOfTheEraCapability) {
  run.eraCapability = EraCapability::Unsupported;
  screen::Screen& menu = shown(u"選択3");
  EXPECT_FALSE(menu.isControlShown(u"Label2"_s));
  EXPECT_TRUE(menu.isControlShown(u"Label3"_s));
  EXPECT_EQ(run.eraCapability, EraCapability::Unsupported);
  navigator.unload(u"選択3"_s);
  run.eraCapability = EraCapability::Supported;
  screen::Screen& again = shown(u"選択3");
  EXPECT_TRUE(again.isControlShown(u"Label2"_s));
  EXPECT_FALSE(again.isControlShown(u"Label3"_s));
}

TEST_F(MainMenuTest, PrefectureOfOneCharacterGetsAZeroABlankChangesNothing) {
  screen::Screen& menu = shown(u"選択3");
  EXPECT_EQ(menu.text(u"Text2"_s), u"13"_s);
  menu.setText(u"Text2"_s, u""_s);
  menu.trigger(u"Command20"_s);
  EXPECT_EQ(run.prefectureCode, u"13"_s);
  menu.setText(u"Text2"_s, u"7"_s);
  menu.trigger(u"Command20"_s);
  EXPECT_EQ(run.prefectureCode, u"07"_s);
  EXPECT_EQ(menu.text(u"Text2"_s), u"07"_s);
  menu.setText(u"Text2"_s, u"27"_s);
  menu.trigger(u"Command20"_s);
  EXPECT_EQ(run.prefectureCode, u"27"_s);
}

TEST_F(MainMenuTest, ChangedPrefectureIsSaid) {
  screen::Screen& menu = shown(u"選択3");
  menu.setText(u"Text2"_s, u"7"_s);
  menu.trigger(u"Command20"_s);
  EXPECT_EQ(channel.lastSaid(), u"都道府県番号:"_s + QChar(254) + u"07"_s);
  menu.setText(u"Text2"_s, u""_s);
  menu.trigger(u"Command20"_s);
  EXPECT_EQ(channel.lastSaid(), u"都道府県番号:"_s + QChar(254) + u"07"_s);
}

struct SubmissionCase {
  QString aichi, aichiText, tokyo, tokyoText;
  bool aichiTicked, tokyoTicked;
};
class SubmissionTest : public MainMenuTest, public testing::WithParamInterface<SubmissionCase> {};

TEST_P(SubmissionTest, IsShownOnTheMenu) {
  const SubmissionCase& row = GetParam();
  run.aichiSubmission = row.aichi;
  run.tokyoSubmission = row.tokyo;
  screen::Screen& menu = shown(u"選択3");
  EXPECT_EQ(menu.text(u"Text3"_s), row.aichiText);
  EXPECT_EQ(menu.checked(u"Check1"_s), row.aichiTicked);
  EXPECT_EQ(menu.text(u"Text4"_s), row.tokyoText);
  EXPECT_EQ(menu.checked(u"Check2"_s), row.tokyoTicked);
}

// The menu writes ツ in full size where the tick writes ッ: both spellings are the system's own.
INSTANTIATE_TEST_SUITE_P(Rows, SubmissionTest,
                         testing::Values(SubmissionCase{u"3"_s, u"愛知県鍼灸師会"_s, u"6"_s,
                                                        u"東京都鍼灸師会　会員外"_s, true, true},
                                         SubmissionCase{u"4"_s, u"愛知県鍼灸マツサージ師会"_s, u"5"_s,
                                                        u"東京都鍼灸師会"_s, false, false}));

void toggle(screen::Screen& menu, const QString& name) {
  auto* box = menu.findChild<QCheckBox*>(name);
  ASSERT_NE(box, nullptr);
  box->toggle();
}

TEST_F(MainMenuTest, TickChangesTheAssociationOfTheRun) {
  run.aichiSubmission = u"3"_s;
  run.tokyoSubmission = u"6"_s;
  screen::Screen& menu = shown(u"選択3");
  toggle(menu, u"Check1"_s);
  EXPECT_EQ(run.aichiSubmission, u"4"_s);
  EXPECT_EQ(menu.text(u"Text3"_s), u"愛知県鍼灸マッサージ師会"_s);
  toggle(menu, u"Check2"_s);
  EXPECT_EQ(run.tokyoSubmission, u"5"_s);
  EXPECT_EQ(menu.text(u"Text4"_s), u"東京都鍼灸師会"_s);
  menu.onActivate();
  EXPECT_EQ(menu.text(u"Text3"_s), u"愛知県鍼灸マツサージ師会"_s);
  toggle(menu, u"Check1"_s);
  EXPECT_EQ(run.aichiSubmission, u"3"_s);
  EXPECT_EQ(menu.text(u"Text3"_s), u"愛知県鍼灸師会"_s);
}

struct RouteCase {
  QString button, twin, target;
};
class MenuRouteTest : public MainMenuTest, public testing::WithParamInterface<RouteCase> {};

TEST_P(MenuRouteTest, ButtonAndTwinOpenTheScreen) {
  const RouteCase& row = GetParam();
  screen::Screen& menu = shown(u"選択3");
  for (const QString& command : {row.button, row.twin}) {
    if (command.isEmpty()) continue;
    messages.forget();
    auto* action = menu.findChild<QAction*>(command);
    if (command == row.twin) {
      ASSERT_NE(action, nullptr) << command.toStdString();
      action->trigger();
    } else {
      menu.trigger(command);
    }
    EXPECT_TRUE(navigator.isShown(row.target) || messages.texts() == QStringList{notYet(row.target)})
        << command.toStdString() << " " << lastMessage().toStdString();
    if (row.target != u"選択3") navigator.unload(row.target);
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, MenuRouteTest,
                         testing::Values(RouteCase{u"Command1"_s, u"sen_1"_s, u"選択4"_s},
                                         RouteCase{u"Command5"_s, u"san_2"_s, u"今日の予約"_s},
                                         RouteCase{u"Command2"_s, u"sen_3"_s, u"レセプト一覧表"_s},
                                         RouteCase{u"Command3"_s, u"sen_4"_s, u"領収証選択"_s},
                                         RouteCase{u"Command10"_s, u"sen_9"_s, u"集計"_s},
                                         RouteCase{u"Command7"_s, u"sen_6"_s, u"登録"_s},
                                         RouteCase{u"Command8"_s, u"sen_7"_s, u"LANフォルダ指定"_s},
                                         RouteCase{u"Command11"_s, u"sen_10"_s, u"登録2"_s},
                                         RouteCase{u"Command16"_s, u"sen_16"_s, u"登録3"_s},
                                         RouteCase{u"Command6"_s, u"sen_11"_s, u"用紙印刷"_s},
                                         RouteCase{u"Command9"_s, u"sen_12"_s, u"料金変更"_s},
                                         RouteCase{u""_s, u"Men_HTP"_s, u"topics"_s},
                                         RouteCase{u""_s, u"Men_HM"_s, u"frmAbout"_s}));

TEST_F(MainMenuTest, BookingsComeBackToTheMenuAndShowTheLastRow) {
  standIn(u"今日の予約"_s);
  shown(u"選択3").trigger(u"Command5"_s);
  EXPECT_EQ(run.bookingsCaller, routes::MainMenu::screen);
  const auto bookings = routeTo<routes::TodaysBookings>();
  ASSERT_TRUE(bookings);
  EXPECT_TRUE(bookings->lastRow);
}

TEST_F(MainMenuTest, TakingsShowTheLastVisit) {
  standIn(u"集計"_s);
  shown(u"選択3").trigger(u"Command10"_s);
  const auto takings = routeTo<routes::Takings>();
  ASSERT_TRUE(takings);
  EXPECT_TRUE(takings->lastRow);
}

TEST_F(MainMenuTest, ClaimsOpenTheNewestFirstAndReceiptsOnToday) {
  standIn(u"レセプト一覧表"_s);
  standIn(u"領収証選択"_s);
  screen::Screen& menu = shown(u"選択3");
  menu.trigger(u"Command2"_s);
  const auto claims = routeTo<routes::ClaimList>();
  ASSERT_TRUE(claims);
  EXPECT_EQ(claims->order, u"ID DESC"_s);
  menu.trigger(u"Command3"_s);
  const auto receipts = routeTo<routes::unbuilt::ReceiptChoice>();
  ASSERT_TRUE(receipts);
  EXPECT_EQ(receipts->day, u"令和6年6月15日"_s);
}

// Without the platform's help the menu's own list runs one place on from its third year: 2020 is 令和3年.
TEST_F(MainMenuTest, ReceiptDateWithoutEraSupportUsesTheMenusOwnList) {
  run.eraCapability = EraCapability::Unsupported;
  clock.set(QDate(2020, 3, 4));
  standIn(u"領収証選択"_s);
  shown(u"選択3").trigger(u"Command3"_s);
  const auto receipts = routeTo<routes::unbuilt::ReceiptChoice>();
  ASSERT_TRUE(receipts);
  EXPECT_EQ(receipts->day, u"令和3年3月4日"_s);
}

TEST_F(MainMenuTest, EndWritesTheRunIntoTheSettingsFile) {
  screen::Screen& menu = shown(u"選択3");
  run.settings[slot::kTopics] = u"15"_s;
  run.aichiSubmission = u"3"_s;
  menu.trigger(u"Command4"_s);
  EXPECT_EQ(navigator.quits, 1);
  EXPECT_EQ(storedSettings()[slot::kTopics], u"15"_s);
  EXPECT_EQ(storedSettings()[slot::kAichi], u"3"_s);
}

TEST_F(MainMenuTest, CloseBoxEndsTheProgramLikeTheButton) {
  screen::Screen& menu = shown(u"選択3");
  run.settings[slot::kTopics] = u"15"_s;
  menu.close();
  EXPECT_EQ(navigator.quits, 1);
  EXPECT_EQ(storedSettings()[slot::kTopics], u"15"_s);
}

}  // namespace
}  // namespace frame
