#include <sqlite3.h>

#include "platform/voice/voice_channel.h"
#include "records/tests/screens/dictionary_fixture.h"

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

const QString kPointsFile = u"Keiraku2000.mdb"_s;
const QString kTable = u"経穴"_s;
const QString kName = u"txtFields(0)"_s;

class AcupointScreenTest : public test::DictionaryFixture {
 protected:
  screen::Screen& points() {
    screen::Screen& screen = shown(u"frm経穴");
    screen::testing::ScreenProbe(screen, channel).open();
    return screen;
  }
  static frame::CsvTable shipped() {
    return frame::readCsvTable(QStringLiteral(SOURCE_FOLDER "/data/acupoints.csv")).value();
  }
  /// Names of the shipped points that have the text in the column, in their order.
  static QStringList holding(const QString& column, const QString& text) {
    const frame::CsvTable table = shipped();
    const qsizetype at = table.columns.indexOf(column);
    QStringList names;
    for (const QStringList& row : table.rows)
      if (row[at].contains(text)) names << row[0];
    return names;
  }
  void search(screen::Screen& screen, const QString& column, const QString& text) {
    screen.setText(u"Combo1"_s, column);
    screen.setText(u"Text1"_s, text);
    screen.trigger(u"Command2"_s);
  }
};

TEST_F(AcupointScreenTest, EveryCellOfTheShippedTableIsInTheFile) {
  const frame::CsvTable table = shipped();
  const store::RecordSet rows = open(kPointsFile, kTable);
  ASSERT_EQ(table.rows.size(), 361);
  ASSERT_EQ(rows.recordCount(), 361);
  ASSERT_EQ(table.columns.size(), 13);
  for (int row = 0; row < 361; ++row)
    for (qsizetype column = 0; column < 13; ++column) {
      const QString cell = table.rows[row][column];
      const bool flag = table.columns[column].endsWith(u"フラグ");
      ASSERT_EQ(rows.valueAt(row, table.columns[column]), flag && cell == u"1" ? u"-1"_s : cell) << row;
    }
  EXPECT_EQ(rows.valueAt(0, u"経穴名漢字"_s), u"中府"_s);
  EXPECT_EQ(rows.valueAt(360, u"経穴名漢字"_s), u"承漿"_s);
}

TEST_F(AcupointScreenTest, CharactersBeyondTheOldCodePageAreShownWhole) {
  screen::Screen& screen = points();
  for (const QString& name : {u"肩髃"_s, u"譩譆"_s, u"四瀆"_s, u"璇璣"_s, u"膻中"_s, u"顖会"_s}) {
    search(screen, u"経穴名漢字"_s, name);
    EXPECT_EQ(screen.text(kName), name);
    screen.trigger(u"Command1"_s);
    EXPECT_EQ(desktop.copiedText(), name);
  }
  search(screen, u"取穴位置"_s, u"中脘"_s);
  EXPECT_TRUE(screen.text(u"txtFields(2)"_s).contains(u"中脘"_s));
  EXPECT_TRUE(messages.texts().isEmpty());
}

TEST_F(AcupointScreenTest, TwoStepsToTheRightReachTheNamesAsTheOpeningSays) {
  screen::Screen& screen = points();
  EXPECT_TRUE(
      channel.said().join(u' ').contains(u"まず、→を２回押し、その後↓↑でつぼの名前を呼び出します。"_s));
  EXPECT_EQ(screen.focused(), u"DBGrid1"_s) << "the arrow keys work at once";
  press(screen, Qt::Key_Right);
  press(screen, Qt::Key_Right);
  EXPECT_EQ(channel.lastSaid(), u"経穴名漢字"_s + voice::kSpeechSeparator + u"中府"_s);
  press(screen, Qt::Key_Down);
  EXPECT_EQ(channel.lastSaid(), u"経穴名漢字"_s + voice::kSpeechSeparator + u"雲門"_s);
  press(screen, Qt::Key_Up);
  EXPECT_EQ(channel.lastSaid(), u"経穴名漢字"_s + voice::kSpeechSeparator + u"中府"_s);
}

TEST_F(AcupointScreenTest, EveryControlIsNamedSpokenAndReached) {
  screen::Screen& screen = points();
  EXPECT_EQ(screen.windowTitle(), u"経穴"_s);
  screen::testing::ScreenProbe probe(screen, channel);
  EXPECT_EQ(probe.faults(), QStringList());
  EXPECT_EQ(probe.unknownColumns({kPointsFile}), QStringList());
  EXPECT_EQ(screen.items(u"Combo1"_s),
            (QStringList{u"経穴名漢字"_s, u"経穴名かな"_s, u"取穴位置"_s, u"筋肉"_s, u"運動神経"_s,
                         u"知覚神経"_s, u"血管"_s, u"刺入方法"_s, u"主適応"_s, u"部位"_s, u"経絡コード"_s}));
  EXPECT_EQ(screen.caption(kName), u"経穴名漢字:"_s);
  EXPECT_EQ(screen.caption(u"txtFields(9)"_s), u"部位:"_s);
}

TEST_F(AcupointScreenTest, TheTicksShowWhatTheTableForbids) {
  screen::Screen& screen = points();
  const frame::CsvTable table = shipped();
  int forbidden = 0;
  for (const QStringList& row : table.rows) {
    EXPECT_EQ(screen.checked(u"Check1"_s), row[11] == u"1") << row[0].toStdString();
    EXPECT_EQ(screen.checked(u"Check2"_s), row[12] == u"1") << row[0].toStdString();
    forbidden += screen.checked(u"Check1"_s) ? 1 : 0;
    screen.source().moveNext();
  }
  EXPECT_GT(forbidden, 0);
  screen.goFirst();
  screen.focusOn(u"Check1"_s);
  EXPECT_EQ(channel.lastSaid(), u"禁鍼:"_s + voice::kSpeechSeparator + u"チェック無し"_s);
  screen.setChecked(u"Check1"_s, true);
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(open(kPointsFile, kTable).valueAt(0, u"禁鍼フラグ"_s), u"-1"_s);
}

TEST_F(AcupointScreenTest, RepeatedSearchesWalkThroughTheHitsAndWrapRound) {
  const QStringList hits = holding(u"経穴名漢字"_s, u"三"_s);
  ASSERT_GE(hits.size(), 3);
  screen::Screen& screen = points();
  QStringList found;
  for (qsizetype i = 0; i <= hits.size(); ++i) {
    search(screen, u"経穴名漢字"_s, u"三"_s);
    found << screen.text(kName);
    EXPECT_EQ(channel.lastSaid().split(voice::kSpeechSeparator).first(), found.last());
  }
  EXPECT_EQ(found, hits + QStringList{hits.first()});
}

TEST_F(AcupointScreenTest, EachColumnOfTheListIsSearched) {
  const frame::CsvTable table = shipped();
  screen::Screen& screen = points();
  for (const QString& column : screen.items(u"Combo1"_s)) {
    screen.source().moveFirst();
    const QString text = table.rows[200][table.columns.indexOf(column)];
    const QStringList names = holding(column, text);
    search(screen, column, text);
    EXPECT_EQ(screen.text(kName), names.first() == table.rows[0][0] && names.size() > 1 ? names[1] : names[0])
        << column.toStdString();
  }
  EXPECT_TRUE(messages.texts().isEmpty());
}

TEST_F(AcupointScreenTest, WidthAndKanaDoNotMatter) {
  screen::Screen& screen = points();
  for (const QString& text : {u"ｳﾝﾓﾝ"_s, u"ウンモン"_s, u"うんもん"_s}) {
    screen.source().moveFirst();
    search(screen, u"経穴名かな"_s, text);
    EXPECT_EQ(screen.text(kName), u"雲門"_s);
  }
  search(screen, u"経絡コード"_s, u"ｃｖ２４"_s);
  EXPECT_EQ(screen.text(kName), u"承漿"_s);
  EXPECT_TRUE(channel.lastSaid().endsWith(u"経絡コード"_s + voice::kSpeechSeparator + u"CV24"_s));
}

TEST_F(AcupointScreenTest, ABlankSearchDoesNothing) {
  screen::Screen& screen = points();
  screen.source().moveLast();
  search(screen, u"経穴名漢字"_s, QString());
  EXPECT_EQ(screen.text(kName), u"承漿"_s);
  EXPECT_TRUE(messages.texts().isEmpty());
  EXPECT_EQ(channel.lastSaid(), u"検索文字:"_s) << "the text is asked for";
}

TEST_F(AcupointScreenTest, ANewPointWithoutANameIsStoredWhenItsRowIsLeft) {
  screen::Screen& screen = points();
  screen.trigger(u"cmdAdd"_s);
  screen.setText(u"txtFields(2)"_s, u"架空の位置"_s);
  screen.goFirst();
  const store::RecordSet rows = open(kPointsFile, kTable);
  ASSERT_EQ(rows.recordCount(), 362);
  EXPECT_EQ(rows.valueAt(361, u"取穴位置"_s), u"架空の位置"_s);
  EXPECT_EQ(screen.text(kName), u"中府"_s);
}

TEST_F(AcupointScreenTest, ANewPointThatStayedBlankIsDropped) {
  screen::Screen& screen = points();
  screen.trigger(u"cmdAdd"_s);
  screen.goFirst();
  EXPECT_EQ(open(kPointsFile, kTable).recordCount(), 361);
}

TEST_F(AcupointScreenTest, NoHitIsReportedAndTheRowStays) {
  screen::Screen& screen = points();
  screen.source().moveNext();
  search(screen, u"経穴名漢字"_s, u"見本"_s);
  EXPECT_EQ(messages.texts(), QStringList(u"該当がありません。"_s));
  EXPECT_EQ(messages.titles(), QStringList(u"Not found"_s));
  EXPECT_EQ(screen.text(kName), u"雲門"_s);
  messages.forget();
  search(screen, u"経穴名漢字"_s, u"中'府"_s);
  ASSERT_EQ(messages.texts().size(), 1);
  EXPECT_TRUE(lastMessage().startsWith(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :"_s));
  EXPECT_EQ(screen.text(kName), u"雲門"_s);
}

TEST_F(AcupointScreenTest, AnOlderFileWithoutMeridianCodesStillWorks) {
  sqlite3* file = nullptr;
  ASSERT_EQ(sqlite3_open(path(kPointsFile).toUtf8().constData(), &file), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(file, "ALTER TABLE 経穴 DROP COLUMN 経絡コード", nullptr, nullptr, nullptr),
            SQLITE_OK);
  sqlite3_close(file);
  screen::Screen& screen = points();
  EXPECT_TRUE(messages.texts().isEmpty());
  search(screen, u"経絡コード"_s, u"CV24"_s);
  // The column is added when the file is opened: it is there, and empty.
  EXPECT_EQ(messages.texts(), QStringList(u"該当がありません。"_s));
  EXPECT_EQ(screen.text(kName), u"中府"_s);
  search(screen, u"経穴名漢字"_s, u"雲門"_s);
  EXPECT_EQ(screen.text(kName), u"雲門"_s);
  screen.setText(u"txtFields(8)"_s, u"咳"_s);
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(open(kPointsFile, kTable).valueAt(1, u"主適応"_s), u"咳"_s);
  EXPECT_EQ(messages.texts().size(), 1);
}

TEST_F(AcupointScreenTest, PointsAreAddedStoredAndDeleted) {
  screen::Screen& screen = points();
  screen.trigger(u"cmdAdd"_s);
  EXPECT_EQ(screen.focused(), kName);
  EXPECT_EQ(screen.text(kName), QString());
  screen::testing::ScreenProbe(screen, channel).type(u"見本の架空の経穴一二三"_s);
  EXPECT_EQ(screen.text(kName), u"見本の架空の経穴一二"_s) << "ten characters";
  screen.setText(u"txtFields(9)"_s, u"前胸部"_s);
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(open(kPointsFile, kTable).recordCount(), 362);
  EXPECT_EQ(screen.text(kName), u"見本の架空の経穴一二"_s) << "the stored row stays on view";
  answer({true});
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(messages.texts().last(), u"表示のデ－タの削除をしてもいいですか？"_s);
  EXPECT_EQ(messages.titles().last(), u"削除"_s);
  EXPECT_EQ(open(kPointsFile, kTable).recordCount(), 361);
  EXPECT_EQ(screen.text(kName), u"承漿"_s);
}

TEST_F(AcupointScreenTest, MovingLeavesTheClipboardAlone) {
  desktop.copyText(u"前の文字"_s);
  screen::Screen& screen = points();
  press(screen, Qt::Key_Down);
  EXPECT_EQ(desktop.copiedText(), u"前の文字"_s);
}

}  // namespace
}  // namespace records
