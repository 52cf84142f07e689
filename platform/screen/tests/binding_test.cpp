#include <gtest/gtest.h>

#include <QFile>

#include "platform/store/database.h"
#include "sample_screen.h"

namespace screen::testing {
namespace {

class Binding : public ::testing::Test {
 protected:
  void SetUp() override {
    path = harness.patientsFile({"見本一", "見本二", "見本三"});
    ASSERT_TRUE(screen.source().open(path));
  }
  /// The row as another reader of the file sees it.
  store::Value stored(int position, const QString& column) {
    auto database = store::Database::open(path);
    auto rows = store::RecordSet::open(database.value(), "臨床QV");
    return rows->valueAt(position, column);
  }
  Harness harness;
  QString path;
  SampleScreen screen{harness.services};
};

TEST_F(Binding, OpenShowsTheFirstRow) {
  EXPECT_EQ(screen.text("txtFields(4)"), "見本一");
  EXPECT_EQ(screen.source().positionText(), "ﾚｺｰﾄﾞ: 1");
  EXPECT_FALSE(screen.source().pending());
  EXPECT_TRUE(screen.log.isEmpty()) << "loading is not editing";
}

TEST_F(Binding, EveryKindOfControlGoesToItsColumnAndBack) {
  screen.setText("txtFields(4)", "架空");
  screen.setText("Combo1", "住所1");
  screen.setText("Combo2", "自由な区分");
  screen.setChecked("Check1", true);
  screen.setChecked("Check2", true);
  screen.choose("Frame1", "2");
  screen.setText("txtDay(62)", "あ");
  screen.setText("txtMemo", "一行\n二行");
  EXPECT_TRUE(screen.source().pending());
  ASSERT_TRUE(screen.source().write());
  EXPECT_FALSE(screen.source().pending());
  EXPECT_EQ(stored(0, "氏名"), "架空");
  EXPECT_EQ(stored(0, "キーワード1"), "住所1");
  EXPECT_EQ(stored(0, "区分"), "自由な区分");
  EXPECT_EQ(stored(0, "yn1"), "-1");
  EXPECT_EQ(stored(0, "t1"), "有");
  EXPECT_EQ(stored(0, "性別"), "2");
  EXPECT_EQ(stored(0, "t13"), "あ");
  EXPECT_EQ(stored(0, "tmemo1"), "一行\n二行");

  screen.source().moveNext();
  EXPECT_EQ(screen.text("txtFields(4)"), "見本二");
  EXPECT_FALSE(screen.checked("Check1"));
  EXPECT_EQ(screen.chosen("Frame1"), "");
  EXPECT_EQ(screen.text("Combo1"), "");
  screen.source().movePrevious();
  EXPECT_EQ(screen.text("Combo1"), "住所1");
  EXPECT_EQ(screen.text("Combo2"), "自由な区分");
  EXPECT_TRUE(screen.checked("Check1"));
  EXPECT_TRUE(screen.checked("Check2"));
  EXPECT_EQ(screen.chosen("Frame1"), "2");
  EXPECT_EQ(screen.text("txtDay(62)"), "あ");
  EXPECT_EQ(screen.text("txtMemo"), "一行\n二行");
}

TEST_F(Binding, BlankFieldThatWasNullStaysNull) {
  ASSERT_TRUE(stored(0, "住所1").isNull());
  screen.setText("txtFields(5)", "x");
  screen.setText("txtFields(5)", "");
  EXPECT_FALSE(screen.source().pending());
  screen.setText("txtFields(4)", "架空");
  ASSERT_TRUE(screen.source().write());
  EXPECT_TRUE(stored(0, "住所1").isNull());
}

TEST_F(Binding, ClearedFieldIsStoredBlank) {
  screen.setText("txtFields(4)", "");
  ASSERT_TRUE(screen.source().write());
  EXPECT_TRUE(stored(0, "氏名").isEmpty());
}

TEST_F(Binding, StoredTextThatTheListLacksIsShownAndKept) {
  screen.setText("Combo1", "古い項目");
  ASSERT_TRUE(screen.source().write());
  screen.source().moveNext();
  screen.source().moveFirst();
  EXPECT_EQ(screen.text("Combo1"), "古い項目");
  EXPECT_EQ(screen.items("Combo1"), QStringList({"氏名", "住所1", "電話1"}));
  EXPECT_FALSE(screen.source().pending());
}

TEST_F(Binding, CarriageReturnsOfAMemoSurvive) {
  screen.setText("txtMemo", "一行\r\n二行");
  EXPECT_EQ(screen.text("txtMemo"), "一行\r\n二行");
  ASSERT_TRUE(screen.source().write());
  EXPECT_EQ(stored(0, "tmemo1"), "一行\r\n二行");
}

TEST_F(Binding, MoveWritesFirstAndStopsAtTheEnds) {
  screen.setText("txtFields(4)", "架空");
  screen.source().moveLast();
  EXPECT_EQ(stored(0, "氏名"), "架空");
  screen.source().moveNext();
  EXPECT_EQ(screen.source().positionText(), "ﾚｺｰﾄﾞ: 3");
  screen.source().moveFirst();
  screen.source().movePrevious();
  EXPECT_EQ(screen.source().positionText(), "ﾚｺｰﾄﾞ: 1");
}

TEST_F(Binding, MoveDropsWhereTheScreenSaysSo) {
  screen.source().writesOnMove = false;
  screen.setText("txtFields(4)", "架空");
  screen.source().moveNext();
  EXPECT_EQ(stored(0, "氏名"), "見本一");
  EXPECT_EQ(screen.text("txtFields(4)"), "見本二");
}

TEST_F(Binding, AScreenMaySettleTheRowBeforeItMoves) {
  bool mayLeave = false;
  screen.source().onLeaveRow = [&] {
    if (mayLeave) screen.source().drop();
    return mayLeave;
  };
  screen.setText("txtFields(4)", "架空");
  screen.source().moveNext();
  EXPECT_FALSE(screen.source().moveTo(2));
  EXPECT_FALSE(screen.source().addNew());
  EXPECT_EQ(screen.source().positionText(), "ﾚｺｰﾄﾞ: 1");
  EXPECT_EQ(screen.text("txtFields(4)"), "架空");
  mayLeave = true;
  screen.source().moveNext();
  EXPECT_EQ(screen.text("txtFields(4)"), "見本二");
  EXPECT_EQ(stored(0, "氏名"), "見本一") << "the screen dropped it";
}

TEST_F(Binding, FunctionKeysMove) {
  ScreenProbe probe(screen, harness.spy);
  probe.open();
  const std::pair<Qt::Key, const char*> moves[] = {
      {Qt::Key_F4, "見本三"}, {Qt::Key_F2, "見本二"}, {Qt::Key_F1, "見本一"}, {Qt::Key_F3, "見本二"}};
  for (const auto& [key, name] : moves) {
    probe.press(key);
    EXPECT_EQ(screen.text("txtFields(4)"), name);
  }
}

TEST_F(Binding, RefusedWriteIsToldAndKeepsWhatWasTyped) {
  const QString tooLong(300, u'あ');
  screen.setText("txtFields(5)", tooLong);
  EXPECT_FALSE(screen.source().write());
  ASSERT_EQ(harness.messages.texts().size(), 1);
  EXPECT_TRUE(harness.messages.texts()[0].startsWith("ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :"));
  EXPECT_EQ(screen.text("txtFields(5)"), tooLong);
  EXPECT_TRUE(screen.source().pending());
  screen.source().moveNext();
  EXPECT_EQ(screen.source().positionText(), "ﾚｺｰﾄﾞ: 1") << "the screen stays on the row";
  screen.setText("txtFields(5)", "短い住所");
  EXPECT_TRUE(screen.source().write());
  EXPECT_EQ(stored(0, "住所1"), "短い住所");
}

TEST_F(Binding, WritesOnlyTheColumnsThatChanged) {
  auto database = store::Database::open(path);
  auto other = store::RecordSet::open(database.value(), "臨床QV");
  ASSERT_TRUE(other->edit());
  ASSERT_TRUE(other->setValue("住所1", "他の画面"));
  ASSERT_TRUE(other->update());
  screen.setText("txtFields(4)", "架空");
  EXPECT_TRUE(screen.source().write());
  EXPECT_EQ(stored(0, "氏名"), "架空");
  EXPECT_EQ(stored(0, "住所1"), "他の画面") << "shown before the other screen wrote it, and not written back";
  EXPECT_EQ(screen.text("txtFields(5)"), "他の画面");
}

TEST_F(Binding, NewRowIsBlankAndBecomesCurrentWhenWritten) {
  ASSERT_TRUE(screen.source().addNew());
  EXPECT_EQ(screen.text("txtFields(4)"), "");
  EXPECT_TRUE(screen.source().pending());
  screen.setText("txtFields(4)", "見本四");
  ASSERT_TRUE(screen.source().write());
  EXPECT_EQ(screen.text("txtFields(4)"), "見本四");
  EXPECT_EQ(screen.source().positionText(), "ﾚｺｰﾄﾞ: 4");
  EXPECT_EQ(stored(3, "氏名"), "見本四");
}

TEST_F(Binding, NewRowMayTakeWhatTheControlsShow) {
  screen.setText("txtFields(4)", "見本四");
  screen.setChecked("Check1", true);
  ASSERT_TRUE(screen.source().addNewAsShown());
  EXPECT_EQ(screen.text("txtFields(4)"), "見本四");
  ASSERT_TRUE(screen.source().write());
  EXPECT_EQ(stored(0, "氏名"), "見本一") << "the row on view stays as it was stored";
  EXPECT_EQ(stored(3, "氏名"), "見本四");
  EXPECT_EQ(stored(3, "yn1"), "-1");
}

TEST_F(Binding, DroppedNewRowLeavesTheOldOne) {
  ASSERT_TRUE(screen.source().addNew());
  screen.setText("txtFields(4)", "見本四");
  screen.source().drop();
  EXPECT_EQ(screen.text("txtFields(4)"), "見本一");
  EXPECT_FALSE(screen.source().pending());
  EXPECT_EQ(screen.source().rows().recordCount(), 3);
}

TEST_F(Binding, RemovingShowsTheNeighbour) {
  ASSERT_TRUE(screen.source().remove());
  EXPECT_EQ(screen.text("txtFields(4)"), "見本二");
  screen.source().moveLast();
  ASSERT_TRUE(screen.source().remove());
  EXPECT_EQ(screen.text("txtFields(4)"), "見本二");
  ASSERT_TRUE(screen.source().remove());
  EXPECT_EQ(screen.text("txtFields(4)"), "");
  EXPECT_EQ(screen.source().positionText(), "ﾚｺｰﾄﾞ: 0");
}

TEST_F(Binding, FilteredCopyTakesThePlaceOfTheSet) {
  screen.source().rows().setFilter("氏名 like '*三*' ");
  auto copy = screen.source().rows().openRecordset();
  ASSERT_TRUE(copy);
  screen.source().assign(std::move(copy.value()));
  EXPECT_EQ(screen.text("txtFields(4)"), "見本三");
  EXPECT_EQ(screen.source().rows().recordCount(), 1);
}

TEST(BindingFault, MissingFileIsToldByNameAndTheScreenStillWorks) {
  Harness harness;
  SampleScreen screen(harness.services);
  EXPECT_FALSE(screen.source().open(harness.folder.filePath("無い.mdb")));
  ASSERT_EQ(harness.messages.texts().size(), 1);
  EXPECT_TRUE(harness.messages.texts()[0].contains("無い.mdb"));
  screen.source().moveNext();
  EXPECT_FALSE(screen.source().addNew());
  EXPECT_TRUE(screen.source().write());
  EXPECT_EQ(screen.source().positionText(), "ﾚｺｰﾄﾞ: 0");
}

}  // namespace
}  // namespace screen::testing
