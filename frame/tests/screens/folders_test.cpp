#include "frame/core/routes.h"
#include "frame/tests/screens/frame_fixture.h"

namespace frame {
namespace {

using namespace Qt::Literals::StringLiterals;

class FoldersTest : public test::FrameFixture {};

TEST_F(FoldersTest, ShowsTheTwelvePaths) {
  screen::Screen& folders = shown(u"LANフォルダ指定");
  EXPECT_EQ(folders.text(u"Text1(0)"_s), folder.path() + u"/臨床QV2000N.mdb"_s);
  EXPECT_EQ(folders.text(u"Text1(6)"_s), folder.path() + u"/カルテ2データ2000.mdb"_s);
  EXPECT_EQ(folders.text(u"Text1(7)"_s), folder.path() + u"/同意医師2000.mdb"_s);
  EXPECT_EQ(folders.text(u"Text1(10)"_s), folder.path() + u"/保険申請2000_2.mdb"_s);
  EXPECT_EQ(folders.text(u"Text1(11)"_s), folder.path() + u"/GDATA"_s);
  EXPECT_TRUE(channel.said().join(u' ').contains(u"各データのある場所を変更できます。"_s));
}

TEST_F(FoldersTest, EachFieldHasItsPlaceInTheSettingsFile) {
  const int places[] = {3, 4, 5, 6, 7, 8, 9, 53, 54, 55, 73, 14};
  screen::Screen& folders = shown(u"LANフォルダ指定");
  for (int field = 0; field < 12; ++field)
    folders.setText(u"Text1(%1)"_s.arg(field), u"/elsewhere/%1"_s.arg(field));
  folders.trigger(u"Command1"_s);
  navigator.loaded(u"LANフォルダ指定の実行"_s)->trigger(u"Command1"_s);
  for (int field = 0; field < 12; ++field)
    EXPECT_EQ(storedSettings()[places[field]], u"/elsewhere/%1"_s.arg(field)) << field;
}

TEST_F(FoldersTest, BlankFieldIsReportedAndTheScreenStays) {
  screen::Screen& folders = shown(u"LANフォルダ指定");
  folders.setText(u"Text1(5)"_s, u""_s);
  folders.trigger(u"Command1"_s);
  EXPECT_EQ(lastMessage(),
            u"フォルダの指定が空白です。変更出来ません。キャンセルを押せば変更せずに閉じます。"_s);
  EXPECT_TRUE(isShown(u"LANフォルダ指定"));
  EXPECT_FALSE(isShown(u"LANフォルダ指定の実行"));
}

TEST_F(FoldersTest, CancelledQuestionLeavesFileAndFoldersUntouched) {
  const QByteArray before = settingsBytes();
  screen::Screen& folders = shown(u"LANフォルダ指定");
  folders.setText(u"Text1(0)"_s, u"/elsewhere/臨床QV2000N.mdb"_s);
  folders.trigger(u"Command1"_s);
  ASSERT_TRUE(isShown(u"LANフォルダ指定の実行"));
  EXPECT_FALSE(isShown(u"LANフォルダ指定"));
  navigator.loaded(u"LANフォルダ指定の実行"_s)->trigger(u"Command2"_s);
  EXPECT_TRUE(isShown(u"LANフォルダ指定"));
  EXPECT_EQ(run.folders[folder::kPatients], folder.path() + u"/臨床QV2000N.mdb"_s);
  EXPECT_EQ(settingsBytes(), before);
}

// Kept: this screen writes 申請欄の氏名印刷 blank, whatever it was.
TEST_F(FoldersTest, AcceptedQuestionWritesThePathsAndClearsSlot27) {
  run.profile[slot::kPrintApplicantName] = u"1"_s;
  screen::Screen& folders = shown(u"LANフォルダ指定");
  folders.setText(u"Text1(0)"_s, u"/elsewhere/臨床QV2000N.mdb"_s);
  folders.trigger(u"Command1"_s);
  navigator.loaded(u"LANフォルダ指定の実行"_s)->trigger(u"Command1"_s);
  EXPECT_TRUE(isShown(u"終了1"));
  EXPECT_EQ(storedSettings()[3], u"/elsewhere/臨床QV2000N.mdb"_s);
  EXPECT_EQ(storedSettings()[slot::kPrintApplicantName], u""_s);
  EXPECT_EQ(navigator.quits, 0);
  navigator.loaded(u"終了1"_s)->trigger(u"Command1"_s);
  EXPECT_EQ(navigator.quits, 1);
}

TEST_F(FoldersTest, BrowseTakesTheChosenFileOrFolder) {
  screen::Screen& folders = shown(u"LANフォルダ指定");
  desktop.answerFromQueue({u"/share/予約2000.mdb"_s, u"/share/GDATA"_s});
  folders.trigger(u"Command3(1)"_s);
  EXPECT_EQ(folders.text(u"Text1(1)"_s), u"/share/予約2000.mdb"_s);
  folders.trigger(u"Command3(11)"_s);
  EXPECT_EQ(folders.text(u"Text1(11)"_s), u"/share/GDATA"_s);
  folders.trigger(u"Command3(2)"_s);  // given up
  EXPECT_EQ(folders.text(u"Text1(2)"_s), folder.path() + u"/保険申請2000_1.mdb"_s);
}

TEST_F(FoldersTest, CancelCloses) {
  shown(u"LANフォルダ指定").trigger(u"Command2"_s);
  EXPECT_FALSE(isShown(u"LANフォルダ指定"));
}

TEST_F(FoldersTest, QuestionIsSpokenThenTheLineBelow) {
  channel.clear();
  shown(u"LANフォルダ指定の実行");
  const QString said = channel.said().join(u' ');
  EXPECT_GE(said.indexOf(u"LANおよびフォルダ指定の変更をします。よろしいですか？"_s), 0);
  EXPECT_GT(said.indexOf(u"治療台帳を再起動して下さい。ここで一旦、治療台帳を終了します。"_s),
            said.indexOf(u"LANおよびフォルダ指定の変更をします。よろしいですか？"_s));
}

TEST_F(FoldersTest, ClosingQuestionGoesBackToTheScreenThatAskedOrJustCloses) {
  standIn(u"集計"_s);
  for (const QString& button : {u"Command1"_s, u"Command2"_s}) {
    navigator.show(routes::AskClose{.opener = routes::Takings::screen});
    navigator.loaded(u"閉じる1"_s)->trigger(button);
    EXPECT_FALSE(isShown(u"閉じる1"));
    EXPECT_EQ(isShown(u"集計"), button == u"Command1");
    navigator.unload(u"集計"_s);
  }
}

}  // namespace
}  // namespace frame
