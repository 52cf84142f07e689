#include <QAction>

#include "frame/core/backup_list.h"
#include "frame/tests/screens/frame_fixture.h"
#include "platform/store/catalogue.h"

namespace frame {
namespace {

using namespace Qt::Literals::StringLiterals;

/// The main menu over a program folder with all its files.
class MainMenuBackupTest : public test::FrameFixture {
 protected:
  void SetUp() override {
    FrameFixture::SetUp();
    for (const char16_t* name :
         {u"CL2moji2000.mdb", u"CLmoji2000.mdb", u"Keiraku2000.mdb", u"カルテ2データ2000.mdb",
          u"同意医師2000.mdb", u"保険者2000.mdb", u"保険申請2000_1.mdb", u"保険申請2000_2.mdb",
          u"予約2000.mdb", u"料金設定2000.mdb", u"臨床QV2000N.mdb"})
      makeFile(QString::fromUtf16(name));
    ASSERT_TRUE(QDir().mkpath(path(u"GDATA/0001"_s)));
    QFile picture(path(u"GDATA/0001/1.bmp"_s));
    ASSERT_TRUE(picture.open(QIODevice::WriteOnly) && picture.write("chart") == 5);
  }
  QStringList namesIn(const QString& folder) const { return QDir(folder).entryList(QDir::Files); }
  void endAtRun(int counter) {
    run.runCounter = counter;
    shown(u"選択3").trigger(u"Command4"_s);
  }
  QTemporaryDir target;
};

struct EndCase {
  int counter;
  bool copies;
};
class EndTest : public MainMenuBackupTest, public testing::WithParamInterface<EndCase> {};

TEST_P(EndTest, EveryTenthEndMakesAGeneration) {
  endAtRun(GetParam().counter);
  EXPECT_EQ(navigator.quits, 1);
  EXPECT_EQ(QFileInfo::exists(path(u"backup"_s)), GetParam().copies);
  EXPECT_EQ(messages.texts(), QStringList()) << "it reports nothing";
  if (GetParam().copies) {
    EXPECT_EQ(namesIn(path(u"backup"_s)).size(), 12 + 1);
    EXPECT_TRUE(QFileInfo::exists(path(u"backup/1_qv.DAT"_s)));
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, EndTest,
                         testing::Values(EndCase{9, false}, EndCase{10, true}, EndCase{11, false},
                                         EndCase{20, true}));

TEST_F(MainMenuBackupTest, ABlankCounterIsARunThatEndsWithCopies) {
  SettingsSlots settings = freshSettings();
  settings[slot::kRunCounter] = u""_s;
  loadRun(settings, folder.path(), run);
  shown(u"選択3").trigger(u"Command4"_s);
  EXPECT_TRUE(QFileInfo::exists(path(u"backup/1_臨床QV2000N.mdb"_s)));
}

// The settings that are copied are those that the end has just written.
TEST_F(MainMenuBackupTest, TheMenuEntryEndsAlikeAndTheNewSettingsAreCopied) {
  run.runCounter = 30;
  run.settings[slot::kTopics] = u"15"_s;
  shown(u"選択3").findChild<QAction*>(u"sen_E"_s)->trigger();
  const auto copied = readSettingsFile(path(u"backup/1_qv.DAT"_s));
  ASSERT_TRUE(copied.ok());
  EXPECT_EQ((*copied)[slot::kTopics], u"15"_s);
  EXPECT_EQ((*copied)[slot::kRunCounter], u"30"_s);
}

TEST_F(MainMenuBackupTest, ACancelledPickerEndsThere) {
  shown(u"選択3").trigger(u"Command13"_s);
  EXPECT_EQ(messages.texts(), QStringList());
  EXPECT_FALSE(channel.lastSaid().contains(u"バックアップしています"_s));
}

TEST_F(MainMenuBackupTest, ButtonAndMenuEntryCopyToTheFolder) {
  screen::Screen& menu = shown(u"選択3");
  for (const bool entry : {false, true}) {
    messages.forget();
    desktop.answerFromQueue({target.path()});
    channel.clear();
    if (entry)
      menu.findChild<QAction*>(u"sen_14"_s)->trigger();
    else
      menu.trigger(u"Command13"_s);
    EXPECT_EQ(messages.texts(), QStringList{u"データのバックアップが終わりました。"_s});
    EXPECT_TRUE(channel.said().contains(u"データをバックアップしています。お待ち下さい。"_s));
    EXPECT_EQ(namesIn(target.path()).size(), 12 + 1);
    EXPECT_TRUE(QFileInfo::exists(target.filePath(u"GDATA/0001/1.bmp"_s)));
  }
}

TEST_F(MainMenuBackupTest, MissingFileIsReportedAndSuccessIsNotAnnounced) {
  ASSERT_TRUE(QFile::remove(path(u"予約2000.mdb"_s)));
  desktop.answerFromQueue({target.path()});
  shown(u"選択3").trigger(u"Command13"_s);
  ASSERT_EQ(messages.texts().size(), 1);
  EXPECT_EQ(
      lastMessage(),
      u"データのバックアップは、全部は出来ませんでした。\nコピーできなかったもの:\n"
      u"「予約2000.mdb」が見つかりません。（%1）\nコピーしたもの:\n"
      u"CL2moji2000.mdb、CLmoji2000.mdb、Keiraku2000.mdb、カルテ2データ2000.mdb、同意医師2000.mdb、"
      u"保険者2000.mdb、保険申請2000_1.mdb、保険申請2000_2.mdb、料金設定2000.mdb、臨床QV2000N.mdb、qv.dat、"
      u"人体図のファイル 1個"_s.arg(path(u"予約2000.mdb"_s)));
}

TEST_F(MainMenuBackupTest, TheProgramFolderIsRefused) {
  desktop.answerFromQueue({folder.path()});
  shown(u"選択3").trigger(u"Command13"_s);
  ASSERT_EQ(messages.texts().size(), 1);
  EXPECT_TRUE(lastMessage().contains(u"元のデータのあるフォルダです。"_s));
  EXPECT_FALSE(QFileInfo::exists(BackupList::pathIn(folder.path())));
}

}  // namespace
}  // namespace frame
