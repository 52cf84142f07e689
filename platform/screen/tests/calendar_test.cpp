#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets/QtWidgets>

#include "sample_screen.h"

namespace screen::testing {
namespace {

const QString kPart = QChar(254);

/// A screen with a date cursor and a row of tabs.
class DaysScreen : public Screen {
 public:
  explicit DaysScreen(Services& services);
  QString iso(const QDate& day) const { return day.toString(Qt::ISODate); }
  void chose() { tabs += chosenItem("Tabs1"); }
  QList<int> tabs;
};

constexpr const char16_t* kTabs[] = {u"朝", u"昼", u"晩"};
constexpr Row kRows[] = {
    Calendar{.name = {u"Calendar1"}, .caption = u"日にち:", .dayText = dayTextOf<&DaysScreen::iso>},
    TabRow{.name = {u"Tabs1"}, .caption = u"時間帯:", .tabs = kTabs, .onChoose = call<&DaysScreen::chose>},
};
constexpr ScreenRow kDays{.name = u"見本3", .caption = u"日にち", .rows = kRows};

DaysScreen::DaysScreen(Services& services) : Screen(kDays, services) {}

class DateCursor : public ::testing::Test {
 protected:
  void SetUp() override {
    screen.setDay("Calendar1", QDate(2024, 2, 28));
    probe.open();
    screen.focusOn("Calendar1");
    harness.spy.clear();
  }
  Harness harness;
  DaysScreen screen{harness.services};
  ScreenProbe probe{screen, harness.spy};
};

struct KeyCase {
  Qt::Key key;
  QDate from;
  QDate to;
};
class DateCursorKeys : public DateCursor, public ::testing::WithParamInterface<KeyCase> {};

TEST_P(DateCursorKeys, MoveTheDayAndSayIt) {
  screen.setDay("Calendar1", GetParam().from);
  probe.press(GetParam().key);
  EXPECT_EQ(screen.day("Calendar1"), GetParam().to);
  EXPECT_EQ(screen.text("Calendar1"), GetParam().to.toString(Qt::ISODate));
  EXPECT_EQ(harness.spy.heardWhole(), QStringList(GetParam().to.toString(Qt::ISODate)));
  EXPECT_EQ(screen.focused(), "Calendar1");
}
INSTANTIATE_TEST_SUITE_P(Keys, DateCursorKeys,
                         ::testing::Values(KeyCase{Qt::Key_Right, {2024, 2, 28}, {2024, 2, 29}},
                                           KeyCase{Qt::Key_Right, {2024, 12, 31}, {2025, 1, 1}},
                                           KeyCase{Qt::Key_Left, {2024, 3, 1}, {2024, 2, 29}},
                                           KeyCase{Qt::Key_Down, {2024, 2, 28}, {2024, 3, 6}},
                                           KeyCase{Qt::Key_Up, {2024, 1, 3}, {2023, 12, 27}},
                                           KeyCase{Qt::Key_PageDown, {2024, 1, 31}, {2024, 2, 29}},
                                           KeyCase{Qt::Key_PageUp, {2024, 3, 31}, {2024, 2, 29}},
                                           KeyCase{Qt::Key_Home, {2024, 2, 28}, {2024, 2, 1}},
                                           KeyCase{Qt::Key_End, {2024, 2, 1}, {2024, 2, 29}}));

TEST_F(DateCursor, EnterSaysTheDayAndStays) {
  probe.press(Qt::Key_Return);
  EXPECT_EQ(harness.spy.heardWhole(), QStringList("2024-02-28"));
  EXPECT_EQ(screen.focused(), "Calendar1");
}

TEST_F(DateCursor, FocusSaysCaptionAndDay) {
  probe.press(Qt::Key_Tab);
  probe.press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(harness.spy.lastSaid(), "日にち:" + kPart + "2024-02-28");
}

TEST_F(DateCursor, AScreenReaderMeetsANamedFieldThatHoldsTheDay) {
  QAccessibleInterface* focus = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
  ASSERT_NE(focus, nullptr);
  EXPECT_EQ(focus->role(), QAccessible::EditableText);
  EXPECT_TRUE(focus->state().readOnly);
  EXPECT_EQ(focus->text(QAccessible::Name), "日にち");
  EXPECT_EQ(focus->text(QAccessible::Value), "2024-02-28");
}

TEST_F(DateCursor, TypingDoesNotChangeIt) {
  QTest::keyClicks(QApplication::focusWidget(), "12");
  EXPECT_EQ(screen.day("Calendar1"), QDate(2024, 2, 28));
  EXPECT_EQ(screen.text("Calendar1"), "2024-02-28");
}

TEST_F(DateCursor, TheMonthSheetFollowsAndIsClicked) {
  auto* sheet = screen.findChild<QCalendarWidget*>();
  ASSERT_NE(sheet, nullptr);
  probe.press(Qt::Key_Right);
  EXPECT_EQ(sheet->selectedDate(), QDate(2024, 2, 29));
  sheet->setSelectedDate(QDate(2024, 2, 10));  // as a click does
  EXPECT_EQ(screen.day("Calendar1"), QDate(2024, 2, 10));
  EXPECT_EQ(harness.spy.lastSaid(), "2024-02-10");
}

TEST_F(DateCursor, WhatTheProgramSetsIsNotSaid) {
  screen.setDay("Calendar1", QDate(2024, 5, 1));
  EXPECT_TRUE(harness.spy.said().isEmpty());
}

TEST_F(DateCursor, TabFindsTheCursorAndTheTabsOnly) {
  QStringList names;
  for (const Stop& stop : probe.stops()) names += stop.control;
  names.sort();
  EXPECT_EQ(names, QStringList({"Calendar1", "Tabs1"}));
  EXPECT_EQ(probe.faults(), QStringList());
}

TEST_F(DateCursor, ArrowKeysChooseATab) {
  screen.focusOn("Tabs1");
  EXPECT_EQ(harness.spy.lastSaid(), "時間帯:" + kPart + "朝");
  probe.press(Qt::Key_Right);
  EXPECT_EQ(screen.tabs, QList<int>{1});
  EXPECT_EQ(screen.text("Tabs1"), "昼");
  probe.press(Qt::Key_Return);
  EXPECT_EQ(screen.tabs, (QList<int>{1, 1})) << "Enter shows the same tab again";
}

TEST_F(DateCursor, ATabThatTheProgramChoosesRunsNothing) {
  screen.setText("Tabs1", "晩");
  EXPECT_EQ(screen.chosenItem("Tabs1"), 2);
  EXPECT_TRUE(screen.tabs.isEmpty());
}

}  // namespace
}  // namespace screen::testing
