#include "platform/text/sjis.h"
#include "records/core/search_history.h"
#include "records/tests/screens/records_fixture.h"

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

class SearchScreenTest : public test::RecordsFixture {
 protected:
  void search(const QString& column, const QString& word) {
    screen::Screen& dialog = shown(u"選択4");
    dialog.choose(u"Frame1"_s, column);
    dialog.setText(u"Combo1"_s, word);
    dialog.trigger(u"Command3"_s);
  }
  QString onView() {
    screen::Screen* patients = navigator.loaded(u"治療台帳4"_s);
    return patients ? patients->text(u"txtFields(4)"_s) : QString();
  }
};

TEST_F(SearchScreenTest, EmptyTableShowsTheNoticeWithThePatientScreen) {
  search(u"氏名"_s, u"見本"_s);
  EXPECT_TRUE(isShown(u"無データ"));
  EXPECT_TRUE(isShown(u"治療台帳4"));
  EXPECT_TRUE(SearchHistory(folder.path()).words().isEmpty());
}

TEST_F(SearchScreenTest, AcceptedNoticeStartsTheFirstPatientAndWritesTheSettings) {
  run.settings[frame::slot::kTopics] = u"15"_s;
  shown(u"選択4").trigger(u"Command1"_s);
  ASSERT_TRUE(isShown(u"無データ"));
  navigator.loaded(u"無データ"_s)->trigger(u"Command1"_s);
  EXPECT_FALSE(isShown(u"無データ"));
  screen::Screen& patients = *navigator.loaded(u"治療台帳4"_s);
  EXPECT_EQ(patients.text(u"Text2"_s), u"20240615001"_s);
  EXPECT_EQ(storedSettings()[frame::slot::kTopics], u"15"_s);
  patients.setText(u"txtFields(4)"_s, u"見本 一郎"_s);
  answer({true});
  patients.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"テキスト5"_s), QStringList{u"20240615001"_s});
}

TEST_F(SearchScreenTest, RefusedNoticeOnlyCloses) {
  search(u"氏名"_s, u""_s);
  navigator.loaded(u"無データ"_s)->trigger(u"Command2"_s);
  EXPECT_FALSE(isShown(u"無データ"));
  EXPECT_FALSE(navigator.loaded(u"治療台帳4"_s)->source().rows().adding());
}

TEST_F(SearchScreenTest, NewPatientStartsDirectlyIfThereArePatients) {
  addPatient({{u"氏名"_s, u"見本"_s}, {u"テキスト5"_s, u"20240615004"_s}});
  shown(u"選択4").trigger(u"Command1"_s);
  EXPECT_TRUE(messages.texts().isEmpty());
  EXPECT_TRUE(navigator.loaded(u"治療台帳4"_s)->source().rows().adding());
  EXPECT_EQ(navigator.loaded(u"治療台帳4"_s)->text(u"Text2"_s), u"20240615005"_s);
  EXPECT_FALSE(isShown(u"選択4"));
}

TEST_F(SearchScreenTest, RepeatedSearchWalksThroughTheHitsAndWraps) {
  addNamed({u"見本 一"_s, u"例示 二"_s, u"見本 三"_s});
  QStringList seen;
  for (int i = 0; i < 3; ++i) {
    search(u"氏名"_s, u"見本"_s);
    seen << onView();
  }
  EXPECT_EQ(seen, (QStringList{u"見本 三"_s, u"見本 一"_s, u"見本 三"_s}));
  EXPECT_FALSE(isShown(u"選択4"));
  EXPECT_EQ(navigator.loaded(u"治療台帳4"_s)->caption(u"Data1"_s), u"ﾚｺｰﾄﾞ: 3"_s);
}

TEST_F(SearchScreenTest, PlaceOutlivesTheWayOverTheMenu) {
  addNamed({u"見本 一"_s, u"見本 二"_s, u"見本 三"_s});
  search(u"氏名"_s, u"見本"_s);
  EXPECT_EQ(onView(), u"見本 二"_s);
  navigator.loaded(u"治療台帳4"_s)->trigger(u"cmdClose"_s);
  search(u"氏名"_s, u"見本"_s);
  EXPECT_EQ(onView(), u"見本 三"_s);
}

TEST_F(SearchScreenTest, NumbersAreLookedUpWholeOthersByAPart) {
  addPatient({{u"氏名"_s, u"甲"_s}, {u"患者ID"_s, u"123"_s}, {u"カルテ番号"_s, u"K7"_s}});
  addPatient({{u"氏名"_s, u"乙"_s}, {u"患者ID"_s, u"12"_s}, {u"カルテ番号"_s, u"K77"_s}});
  search(u"患者ID"_s, u"12"_s);
  EXPECT_EQ(onView(), u"乙"_s);
  search(u"カルテ番号"_s, u"K7"_s);
  EXPECT_EQ(onView(), u"甲"_s);
  messages.forget();
  search(u"患者ID"_s, u"1"_s);
  EXPECT_EQ(lastMessage(), u"該当がありません。"_s);
}

TEST_F(SearchScreenTest, FuriganaAndBirthDateAreFoundByAPart) {
  addPatient({{u"氏名"_s, u"甲"_s}, {u"ふりがな"_s, u"ﾐﾎﾝ"_s}, {u"生年月日"_s, u"昭和28年3月5日"_s}});
  addPatient({{u"氏名"_s, u"乙"_s}, {u"ふりがな"_s, u"ﾚｲｼﾞ"_s}, {u"生年月日"_s, u"平成2年7月1日"_s}});
  search(u"ふりがな"_s, u"れいじ"_s);
  EXPECT_EQ(onView(), u"乙"_s);
  search(u"生年月日"_s, u"昭和"_s);
  EXPECT_EQ(onView(), u"甲"_s);
}

TEST_F(SearchScreenTest, AfterNoHitRowAndDialogStay) {
  addNamed({u"見本 一"_s, u"見本 二"_s});
  navigator.load(u"治療台帳4"_s)->source().moveLast();
  search(u"氏名"_s, u"ない"_s);
  EXPECT_EQ(lastMessage(), u"該当がありません。"_s);
  EXPECT_EQ(messages.titles().last(), u"Not found"_s);
  EXPECT_TRUE(isShown(u"選択4"));
  EXPECT_EQ(onView(), u"見本 二"_s);
}

TEST_F(SearchScreenTest, BlankWordOpensTheRowOnViewWithoutHistory) {
  addNamed({u"見本 一"_s, u"見本 二"_s});
  navigator.load(u"治療台帳4"_s)->source().moveLast();
  search(u"氏名"_s, u""_s);
  EXPECT_TRUE(isShown(u"治療台帳4"));
  EXPECT_EQ(onView(), u"見本 二"_s);
  EXPECT_TRUE(SearchHistory(folder.path()).words().isEmpty());
}

TEST_F(SearchScreenTest, QuoteGivesTheDatabasesText) {
  addNamed({u"見本 一"_s});
  search(u"氏名"_s, u"a' or '1"_s);
  EXPECT_TRUE(lastMessage().startsWith(QString::fromUtf16(screen::kDataControlText)));
  EXPECT_EQ(onView(), u"見本 一"_s);
}

TEST_F(SearchScreenTest, WordsComeBackInTheCombo) {
  addNamed({u"見本 一"_s});
  search(u"氏名"_s, u"見本"_s);
  search(u"氏名"_s, u"一"_s);
  search(u"氏名"_s, u"見本"_s);
  EXPECT_EQ(shown(u"選択4").items(u"Combo1"_s), (QStringList{u"一"_s, u"見本"_s}));
}

TEST_F(SearchScreenTest, OpeningSpeaksTheNote) {
  shown(u"選択4");
  EXPECT_TRUE(channel.said().join(u' ').contains(
      u"カーソルで項目を選択後、タブ移動し文字入力し、検索ボタンをおしてください。"_s));
}

TEST_F(SearchScreenTest, FocusOpensOnTheChosenColumn) {
  screen::Screen& dialog = shown(u"選択4");
  ASSERT_NE(dialog.focusWidget(), nullptr);
  EXPECT_EQ(dialog.focusWidget()->objectName(), u"Option4"_s);
  EXPECT_EQ(dialog.chosen(u"Frame1"_s), u"氏名"_s);
}

TEST_F(SearchScreenTest, ListAndCancel) {
  screen::Screen& dialog = shown(u"選択4");
  dialog.trigger(u"Command4"_s);
  EXPECT_TRUE(isShown(u"一覧表"));
  EXPECT_TRUE(isShown(u"選択4"));
  dialog.trigger(u"Command2"_s);
  EXPECT_FALSE(isShown(u"選択4"));
}

TEST_F(SearchScreenTest, ANameHandedOverOnlyWaitsForEnter) {
  addNamed({u"見本 一"_s, u"例示 二"_s});
  screen::Screen& dialog = shown(u"選択4");
  dialog.choose(u"Frame1"_s, u"患者ID"_s);
  navigator.show(routes::PatientSearch{u"例示 二"_s});
  EXPECT_EQ(dialog.chosen(u"Frame1"_s), u"氏名"_s);
  EXPECT_EQ(dialog.text(u"Combo1"_s), u"例示 二"_s);
  EXPECT_EQ(dialog.focused(), u"Combo1"_s);
  dialog.trigger(u"Command3"_s);
  EXPECT_EQ(onView(), u"例示 二"_s);
}

TEST_F(SearchScreenTest, WhoWasFoundIsSaid) {
  addNamed({u"見本 一"_s, u"例示 二"_s});
  search(u"氏名"_s, u"例示"_s);
  EXPECT_TRUE(channel.heardWhole().contains(u"ﾚｺｰﾄﾞ: 2"_s + QChar(254) + u"例示 二"_s));
}

TEST_F(SearchScreenTest, ElevenLinesAtMostAndAKnownWordKeepsItsPlace) {
  addNamed({u"見本 一"_s});
  QStringList lines;
  for (int i = 1; i <= 11; ++i) lines << u"語%1"_s.arg(i);
  QFile file(path(u"word.txt"_s));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text::toSjisKeepingAll(lines.join(u"\r\n"_s)));
  file.close();
  EXPECT_EQ(shown(u"選択4").items(u"Combo1"_s), lines);
  search(u"氏名"_s, u"語5"_s);
  EXPECT_EQ(SearchHistory(folder.path()).words(), lines);
  search(u"氏名"_s, u"見本"_s);
  EXPECT_EQ(SearchHistory(folder.path()).words(), QStringList{u"見本"_s} + lines.mid(0, 9));
}

TEST_F(SearchScreenTest, MissingTableIsReportedAndTheDialogStays) {
  ASSERT_TRUE(QFile::remove(path(kFile)));
  search(u"氏名"_s, u"見本"_s);
  EXPECT_TRUE(lastMessage().contains(kFile));
  EXPECT_TRUE(isShown(u"選択4"));
}

}  // namespace
}  // namespace records
