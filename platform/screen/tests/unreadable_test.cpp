// Rows that cannot be read: said with the file's name, and the row on the screen stays.

#include <gtest/gtest.h>

#include <QtWidgets/QtWidgets>

#include "platform/screen/find_row.h"
#include "platform/screen/grid_model.h"
#include "platform/store/bulk.h"
#include "platform/store/testing/broken_file.h"
#include "sample_screen.h"

namespace screen::testing {
namespace {

using store::broken::DamagedPage;
using store::broken::LockedFile;

const QString kFile = "臨床QV2000N.mdb";
const QString kTable = "臨床QV";
const QString kName = "txtFields(4)";

class UnreadableRows : public ::testing::Test {
 protected:
  void SetUp() override {
    path = harness.folder.filePath(kFile);
    ASSERT_TRUE(store::createFresh(path, kFile));
    QList<QHash<QString, store::Value>> rows;
    for (const QString& name : names)
      rows += store::broken::pageOfRow(*store::tableOfFile(kFile), {{"氏名", name}, {"住所1", "架空"}});
    ASSERT_TRUE(store::addRows(path, kTable, rows));
  }
  void open() {
    ASSERT_TRUE(screen.source().open(path));
    probe.open();
    screen.focusOn("DBGrid1");
    harness.messages.forget();
    screen.log.clear();
  }
  QTableView* view() { return screen.findChild<QTableView*>("DBGrid1"); }
  QString cell(int row) { return view()->model()->index(row, 0).data().toString(); }
  /// The one message since the last call is the data control's, with the file's name and the cause.
  void expectFault(const QString& cause) {
    const QStringList texts = harness.messages.texts();
    harness.messages.forget();
    ASSERT_EQ(texts.size(), 1) << texts.join('\n').toStdString();
    EXPECT_TRUE(texts[0].startsWith(QString::fromUtf16(kDataControlText)));
    EXPECT_TRUE(texts[0].contains(kFile) && texts[0].contains(cause)) << texts[0].toStdString();
    EXPECT_TRUE(harness.spy.said().contains(texts[0])) << "it is spoken too";
  }
  void expectOn(int row) {
    EXPECT_EQ(screen.source().rows().absolutePosition(), row);
    EXPECT_EQ(screen.text(kName), names[row]);
    EXPECT_EQ(view()->currentIndex().row(), row);
    EXPECT_FALSE(screen.source().pending());
  }

  const QStringList names{"見本患者一", "見本患者二", "見本患者三", "見本患者四", "見本患者五"};
  const QString busy = "使用中", damaged = "壊れている";
  Harness harness;
  QString path;
  SampleScreen screen{harness.services};
  ScreenProbe probe{screen, harness.spy};
};

TEST_F(UnreadableRows, EveryMoveToALockedRowIsReportedAndStays) {
  open();
  ASSERT_TRUE(screen.source().moveTo(2));
  using Move = void (DataSource::*)();
  for (const Move move :
       {&DataSource::moveNext, &DataSource::movePrevious, &DataSource::moveFirst, &DataSource::moveLast}) {
    LockedFile other(path);
    (screen.source().*move)();
    expectFault(busy);
    expectOn(2);
    other.release();
    (screen.source().*move)();
    EXPECT_NE(screen.source().rows().absolutePosition(), 2) << "the next try works";
    EXPECT_TRUE(harness.messages.texts().isEmpty());
    ASSERT_TRUE(screen.source().moveTo(2));
  }
}

TEST_F(UnreadableRows, TheArrowKeysDoNotEnterADamagedRowAndTheListSaysWhichItIs) {
  DamagedPage page(path, names[2]);
  open();
  EXPECT_EQ(cell(1), names[1]);
  EXPECT_EQ(cell(2), QString::fromUtf16(kUnreadableText)) << "never blank";
  EXPECT_EQ(cell(3), names[3]);
  probe.press(Qt::Key_Down);
  expectOn(1);
  probe.press(Qt::Key_Down);
  expectFault(damaged);
  expectOn(1);
  screen.source().moveLast();
  expectOn(4);
  page.repair();
  ASSERT_TRUE(screen.source().moveTo(2));
  expectOn(2);
  EXPECT_EQ(cell(2), names[2]);
}

TEST_F(UnreadableRows, ALockedListSaysSoInItsCellsAndFillsAfterTheNextMove) {
  open();
  LockedFile other(path);
  EXPECT_EQ(cell(4), cell(4));
  screen.source().moveLast();
  expectFault(busy);
  other.release();
  screen.source().moveNext();
  expectOn(1);
  for (int row = 0; row < names.size(); ++row) EXPECT_EQ(cell(row), names[row]);
}

TEST_F(UnreadableRows, AFirstRowThatCannotBeReadIsReportedAtTheOpening) {
  DamagedPage page(path, names[0]);
  ASSERT_TRUE(screen.source().open(path)) << "the others can be read";
  expectFault(damaged);
  EXPECT_EQ(screen.text(kName), "");
  EXPECT_FALSE(screen.source().ensureRead());
  expectFault(damaged);
  screen.setText(kName, "別人");
  EXPECT_FALSE(screen.source().write()) << "nothing is stored over a row that nobody has seen";
  expectFault(damaged);
  EXPECT_EQ(screen.text(kName), "別人") << "what was typed stays";
  screen.source().drop();
  harness.messages.forget();
  screen.source().moveNext();
  EXPECT_EQ(screen.text(kName), names[1]);
  EXPECT_TRUE(harness.messages.texts().isEmpty());
}

TEST_F(UnreadableRows, ASearchThatCannotReadIsNoMiss) {
  DamagedPage page(path, names[2]);
  open();
  EXPECT_FALSE(findRow(screen, "氏名 like '*四'"));
  expectFault(damaged);
  expectOn(0);
  page.repair();
  EXPECT_TRUE(findRow(screen, "氏名 like '*四'"));
  expectOn(3);
}

TEST_F(UnreadableRows, AStoreBehindALockIsReportedAndWhatWasTypedStays) {
  open();
  screen.setText(kName, "架空");
  {
    const LockedFile other(path);
    EXPECT_FALSE(screen.source().write());
    expectFault(busy);
    EXPECT_EQ(screen.text(kName), "架空");
  }
  EXPECT_TRUE(screen.source().write());
  EXPECT_EQ(screen.source().rows().value("氏名"), "架空");
}

}  // namespace
}  // namespace screen::testing
