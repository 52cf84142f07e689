#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets/QtWidgets>

#include "sample_screen.h"

namespace screen::testing {
namespace {

const QString kPart = QChar(254);

class TableRows : public ::testing::Test {
 protected:
  void SetUp() override {
    probe.open();
    screen.setRows("Table1", {{"見本一", "5日"}, {"見本二", "6日"}, {"見本三"}});
    screen.focusOn("Table1");
    screen.log.clear();
  }
  QTableView* view() { return screen.findChild<QTableView*>("Table1"); }
  Harness harness;
  SampleScreen screen{harness.services};
  ScreenProbe probe{screen, harness.spy};
};

TEST_F(TableRows, HeaderShowsTheCaptionsAndCellsTheTexts) {
  EXPECT_EQ(view()->model()->headerData(1, Qt::Horizontal).toString(), "期限");
  EXPECT_EQ(view()->model()->rowCount(), 3);
  EXPECT_EQ(view()->model()->index(1, 1).data().toString(), "6日");
  EXPECT_EQ(view()->model()->index(2, 1).data().toString(), "") << "a row may be short";
}

TEST_F(TableRows, FocusSaysTheTableAndItsFirstCell) {
  EXPECT_EQ(harness.spy.lastSaid(), "期限の一覧" + kPart + "氏名" + kPart + "見本一");
}

TEST_F(TableRows, ArrowKeysReachCellsAndSpeakThem) {
  probe.press(Qt::Key_Down);
  EXPECT_EQ(harness.spy.lastSaid(), "氏名" + kPart + "見本二");
  EXPECT_EQ(screen.chosenItem("Table1"), 1);
  EXPECT_EQ(screen.log, QStringList{"row"});
  probe.press(Qt::Key_Right);
  EXPECT_EQ(harness.spy.lastSaid(), "期限" + kPart + "6日");
  EXPECT_EQ(screen.text("Table1"), "6日");
  EXPECT_EQ(screen.log, QStringList{"row"}) << "the same row";
  probe.press(Qt::Key_Return);
  EXPECT_EQ(screen.log.last(), "activate");
}

TEST_F(TableRows, OtherRowsBeginAtTheFirstAndRunNoHandler) {
  probe.press(Qt::Key_Down);
  screen.log.clear();
  screen.setRows("Table1", {{"例示一", "1日"}, {"例示二", "2日"}});
  EXPECT_EQ(screen.chosenItem("Table1"), 0);
  EXPECT_EQ(screen.text("Table1"), "例示一");
  EXPECT_EQ(screen.log, QStringList());
}

TEST_F(TableRows, WithoutRowsItIsStillNamedAndLeftByTab) {
  screen.setRows("Table1", {});
  EXPECT_EQ(screen.chosenItem("Table1"), -1);
  screen.focusOn("txtMemo");
  screen.focusOn("Table1");
  EXPECT_EQ(harness.spy.lastSaid(), "期限の一覧" + kPart);
  probe.press(Qt::Key_Return);
  EXPECT_FALSE(screen.log.contains("activate"));
  probe.press(Qt::Key_Tab);
  EXPECT_NE(screen.focused(), "Table1");
  EXPECT_EQ(probe.faults(), QStringList());
}

}  // namespace
}  // namespace screen::testing
