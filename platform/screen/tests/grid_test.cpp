#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets/QtWidgets>

#include "platform/screen/grid_model.h"
#include "sample_screen.h"

namespace screen::testing {
namespace {

const QString kPart = QChar(254);

class GridRows : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(screen.source().open(desk.patientsFile({"見本一", "見本二", "見本三"}), "臨床QV"));
    probe.open();
    screen.focusOn("DBGrid1");
    screen.log.clear();
    desk.spy.clear();
  }
  QTableView* view() { return screen.findChild<QTableView*>("DBGrid1"); }
  Desk desk;
  SampleScreen screen{desk.services};
  ScreenProbe probe{screen, desk.spy};
};

TEST_F(GridRows, HeaderShowsTheCaptions) {
  EXPECT_EQ(view()->model()->headerData(0, Qt::Horizontal).toString(), "氏名");
  EXPECT_EQ(view()->model()->headerData(1, Qt::Horizontal).toString(), "住所");
  EXPECT_EQ(view()->model()->rowCount(), 3);
}

TEST_F(GridRows, ArrowKeysReachCellsAndSpeakThem) {
  probe.press(Qt::Key_Down);
  EXPECT_EQ(desk.spy.lastSaid(), "氏名" + kPart + "見本二");
  probe.press(Qt::Key_Right);
  EXPECT_EQ(desk.spy.lastSaid(), "住所" + kPart);
}

TEST_F(GridRows, RowOfTheGridIsTheRowOfTheSource) {
  probe.press(Qt::Key_Down);
  EXPECT_EQ(screen.text("txtFields(4)"), "見本二");
  EXPECT_EQ(screen.log, QStringList{"row"});
  probe.press(Qt::Key_Right);
  EXPECT_EQ(screen.log, QStringList{"row"}) << "the same row";
  screen.source().moveLast();
  EXPECT_EQ(view()->currentIndex().row(), 2);
  EXPECT_EQ(view()->currentIndex().column(), 1);
}

TEST_F(GridRows, EnterActivates) {
  probe.press(Qt::Key_Return);
  EXPECT_EQ(screen.log, QStringList{"activate"});
}

TEST_F(GridRows, TabLeavesInBothDirections) {
  probe.press(Qt::Key_Tab);
  EXPECT_NE(screen.focused(), "DBGrid1");
  screen.focusOn("DBGrid1");
  probe.press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(screen.focused(), "txtMemo");
}

TEST_F(GridRows, RefusedWriteKeepsTheGridOnTheRow) {
  screen.setText("txtFields(5)", QString(300, u'あ'));
  probe.press(Qt::Key_Down);
  EXPECT_EQ(view()->currentIndex().row(), 0);
  EXPECT_EQ(desk.messages.texts().size(), 1);
}

TEST_F(GridRows, FollowsRowsThatComeAndGo) {
  ASSERT_TRUE(screen.source().addNew());
  screen.setText("txtFields(4)", "見本四");
  ASSERT_TRUE(screen.source().write());
  EXPECT_EQ(view()->model()->rowCount(), 4);
  EXPECT_EQ(view()->currentIndex().row(), 3);
  ASSERT_TRUE(screen.source().remove());
  EXPECT_EQ(view()->model()->rowCount(), 3);
}

TEST_F(GridRows, FocusSaysTheGridAndItsCell) {
  screen.focusOn("txtMemo");
  screen.focusOn("DBGrid1");
  EXPECT_EQ(desk.spy.lastSaid(), "患者の一覧" + kPart + "氏名" + kPart + "見本一");
}

TEST_F(GridRows, TypingDoesNotSearchTheTable) {
  probe.type("見本三");
  QTest::keyClick(view(), Qt::Key_A);
  EXPECT_EQ(view()->currentIndex().row(), 0);
}

}  // namespace
}  // namespace screen::testing
