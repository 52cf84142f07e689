#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets/QtWidgets>

#include "platform/screen/grid_model.h"
#include "platform/screen/grid_view.h"
#include "platform/store/bulk.h"
#include "platform/store/database.h"
#include "platform/store/tables/patients.h"
#include "platform/store/tables/visits.h"
#include "sample_screen.h"

namespace screen::testing {
namespace {

const QString kPart = QChar(254);

class GridRows : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(screen.source().open(harness.patientsFile({"見本一", "見本二", "見本三"})));
    probe.open();
    screen.focusOn("DBGrid1");
    screen.log.clear();
    harness.spy.clear();
  }
  QTableView* view() { return screen.findChild<QTableView*>("DBGrid1"); }
  Harness harness;
  SampleScreen screen{harness.services};
  ScreenProbe probe{screen, harness.spy};
};

TEST_F(GridRows, HeaderShowsTheCaptions) {
  EXPECT_EQ(view()->model()->headerData(0, Qt::Horizontal).toString(), "氏名");
  EXPECT_EQ(view()->model()->headerData(1, Qt::Horizontal).toString(), "住所");
  EXPECT_EQ(view()->model()->rowCount(), 3);
}

TEST_F(GridRows, ArrowKeysReachCellsAndSpeakThem) {
  probe.press(Qt::Key_Down);
  EXPECT_EQ(harness.spy.lastSaid(), "氏名" + kPart + "見本二");
  probe.press(Qt::Key_Right);
  EXPECT_EQ(harness.spy.lastSaid(), "住所" + kPart);
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
  EXPECT_EQ(harness.messages.texts().size(), 1);
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
  EXPECT_EQ(harness.spy.lastSaid(), "患者の一覧" + kPart + "氏名" + kPart + "見本一");
}

TEST_F(GridRows, TheCurrentCellIsSeen) {
  const auto cell = [&](int column) {
    return view()->viewport()->grab(view()->visualRect(view()->model()->index(0, column))).toImage();
  };
  const auto frame = [&](int column) { return cell(column).pixelColor(2, cell(column).height() / 2); };
  const QPalette standard;
  EXPECT_EQ(frame(0), standard.color(QPalette::HighlightedText)) << "the cell that has the keyboard";
  EXPECT_EQ(frame(1), standard.color(QPalette::Highlight)) << "the rest of its row";
  probe.press(Qt::Key_Right);
  EXPECT_EQ(frame(0), standard.color(QPalette::Highlight));
  EXPECT_EQ(frame(1), standard.color(QPalette::HighlightedText));
  screen.focusOn("txtMemo");
  EXPECT_NE(frame(0), standard.color(QPalette::Highlight)) << "the keyboard is elsewhere";
  EXPECT_EQ(frame(0), frame(1));
}

TEST_F(GridRows, TypingDoesNotSearchTheTable) {
  probe.type("見本三");
  QTest::keyClick(view(), Qt::Key_A);
  EXPECT_EQ(view()->currentIndex().row(), 0);
}

/// Notes which rows a grid looks at.
class WatchedModel : public GridModel {
 public:
  using GridModel::GridModel;
  QVariant data(const QModelIndex& index, int role) const override {
    if (role == Qt::DisplayRole) read.insert(index.row());
    return GridModel::data(index, role);
  }
  mutable QSet<int> read;
};

TEST(GridReading, IsLimitedToTheRowsThatAreSeen) {
  constexpr int kRows = 400;
  constexpr GridColumn kColumns[] = {{patients::name, u"氏名"}};
  Harness harness;
  QStringList names;
  for (int i = 0; i < kRows; ++i) names += QStringLiteral("見本%1").arg(i);
  const QString path = harness.patientsFile(names);
  auto database = store::Database::open(path);
  auto rows = store::RecordSet::open(database.value(), "臨床QV");
  ASSERT_TRUE(rows);
  WatchedModel model(*rows, kColumns, nullptr);
  model.follow();
  GridView view(nullptr);
  view.setModel(&model);
  view.resize(400, 300);
  view.fitColumns();
  view.show();
  (void)QTest::qWaitForWindowExposed(&view);
  view.setCurrentIndex(model.index(kRows - 1, 0));
  view.grab();
  EXPECT_EQ(model.rowCount(), kRows);
  EXPECT_TRUE(model.read.contains(kRows - 1));
  EXPECT_LT(model.read.size(), kRows / 4) << "the first and the last screenful, not the table";
}

TEST(GridMarks, AreShownInTheWordsOfTheirSearch) {
  constexpr GridColumn kColumns[] = {{visits::isNew, u"新患"}, {visits::summary, u"治療概略"}};
  Harness harness;
  const QString path = harness.folder.filePath("カルテ2データ2000.mdb");
  ASSERT_TRUE(store::createFresh(path, "カルテ2データ2000.mdb"));
  const QList<QHash<QString, store::Value>> visits = {
      {{"新患", "-1"}}, {{"新患", "0"}, {"治療概略", "-1"}}, {}};
  ASSERT_TRUE(store::addRows(path, "カルテ", visits));
  auto rows = store::RecordSet::open(store::Database::open(path).value(), "カルテ");
  ASSERT_TRUE(rows);
  GridModel model(*rows, kColumns, nullptr);
  model.follow();
  EXPECT_EQ(model.cell(0, 0), "Yes");
  EXPECT_EQ(model.cell(1, 0), "No");
  EXPECT_EQ(model.cell(2, 0), "No") << "a mark never set";
  EXPECT_EQ(model.cell(1, 1), "-1") << "a text stays as it is";
}

}  // namespace
}  // namespace screen::testing
