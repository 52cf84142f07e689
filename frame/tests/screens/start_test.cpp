#include "frame/screens/start.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "frame/tests/screens/frame_fixture.h"

namespace frame {
namespace {

using namespace Qt::Literals::StringLiterals;

class StartTest : public test::FrameFixture {
 protected:
  Started start(bool fontInstalled = true) {
    return startProgram(run, services, {.fontInstalled = [fontInstalled] { return fontInstalled; }});
  }
  void writeSlot(int number, const QString& text) {
    SettingsSlots settings = freshSettings();
    settings[number] = text;
    ASSERT_TRUE(writeSettingsFile(settingsPath(folder.path()), settings));
  }
};

TEST_F(StartTest, EndsAtTheMenuWithTheNewsOverIt) {
  EXPECT_EQ(start(), Started::Menu);
  EXPECT_TRUE(isShown(u"選択3"));
  EXPECT_TRUE(isShown(u"topics"));
  EXPECT_FALSE(isShown(u"frmSplash"));
  EXPECT_TRUE(messages.texts().isEmpty());
  EXPECT_EQ(navigator.quits, 0);
}

TEST_F(StartTest, MissingSettingsFileIsReportedByNameAndEndsTheProgram) {
  ASSERT_TRUE(QFile::remove(settingsPath(folder.path())));
  EXPECT_EQ(start(), Started::SettingsMissing);
  ASSERT_EQ(messages.texts().size(), 1);
  EXPECT_TRUE(lastMessage().contains(u"qv.dat"_s)) << lastMessage().toStdString();
  EXPECT_EQ(navigator.quits, 1);
  EXPECT_FALSE(isShown(u"選択3"));
  EXPECT_FALSE(isShown(u"frmSplash"));
  EXPECT_FALSE(QFile::exists(settingsPath(folder.path())));
}

TEST_F(StartTest, ShortListLeavesTheRestBlankAndTheFileAsItIs) {
  QFile file(settingsPath(folder.path()));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("\"w\",\"4\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"x\"\r\n");
  file.close();
  const QByteArray before = settingsBytes();
  EXPECT_EQ(start(), Started::Menu);
  EXPECT_EQ(run.runCounter, 5);
  EXPECT_EQ(run.profile[slot::kPractitioner], QString());
  navigator.loaded(u"選択3"_s)->trigger(u"Command4"_s);
  EXPECT_EQ(settingsBytes(), before);
}

TEST_F(StartTest, BlankSpareEntryLeavesNoWindow) {
  writeSlot(12, u""_s);
  EXPECT_EQ(start(), Started::NothingToShow);
  EXPECT_FALSE(isShown(u"選択3"));
  EXPECT_FALSE(isShown(u"topics"));
  EXPECT_FALSE(isShown(u"frmSplash"));
  EXPECT_EQ(navigator.quits, 1);
}

TEST_F(StartTest, MissingFontIsReportedAndTheStartGoesOn) {
  EXPECT_EQ(start(false), Started::Menu);
  EXPECT_EQ(messages.texts(), QStringList{u"サポートＣＤより印刷用ＦＯＮＴをインストールしてください"_s});
  EXPECT_TRUE(isShown(u"選択3"));
}

struct TopicsCase {
  QString counter;
  bool shown;
};
class TopicsCounterTest : public StartTest, public testing::WithParamInterface<TopicsCase> {};

TEST_P(TopicsCounterTest, DecidesOnTheNews) {
  writeSlot(slot::kTopics, GetParam().counter);
  start();
  EXPECT_EQ(isShown(u"topics"), GetParam().shown) << GetParam().counter.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Rows, TopicsCounterTest,
                         testing::Values(TopicsCase{u""_s, true}, TopicsCase{u"0"_s, true},
                                         TopicsCase{u"14"_s, true}, TopicsCase{u"15"_s, false},
                                         TopicsCase{u"16"_s, false}));

struct CounterCase {
  QString stored;
  int counter;
};
class RunCounterTest : public StartTest, public testing::WithParamInterface<CounterCase> {};

TEST_P(RunCounterTest, IsRaisedOnceARunAndStoredAtTheEnd) {
  writeSlot(slot::kRunCounter, GetParam().stored);
  start();
  EXPECT_EQ(run.runCounter, GetParam().counter);
  navigator.loaded(u"選択3"_s)->trigger(u"Command4"_s);
  EXPECT_EQ(storedSettings()[slot::kRunCounter], QString::number(GetParam().counter));
  EXPECT_EQ(navigator.quits, 1);
}

INSTANTIATE_TEST_SUITE_P(Rows, RunCounterTest,
                         testing::Values(CounterCase{u""_s, 0}, CounterCase{u"0"_s, 1},
                                         CounterCase{u"9"_s, 10}, CounterCase{u"41"_s, 42}));

TEST_F(StartTest, KeyOnTheSplashScreenReadsTheSettingsAgainAndShowsTheMenu) {
  shown(u"frmSplash");
  writeSlot(slot::kTopics, u"15"_s);
  QKeyEvent key(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s);
  QCoreApplication::sendEvent(navigator.loaded(u"frmSplash"_s), &key);
  EXPECT_TRUE(isShown(u"選択3"));
  EXPECT_FALSE(isShown(u"topics"));
  EXPECT_FALSE(isShown(u"frmSplash"));
}

TEST_F(StartTest, ClickOnTheSplashScreenDoesTheSame) {
  shown(u"frmSplash");
  QMouseEvent click(QEvent::MouseButtonPress, QPointF(3, 3), QPointF(3, 3), Qt::LeftButton, Qt::LeftButton,
                    Qt::NoModifier);
  QCoreApplication::sendEvent(navigator.loaded(u"frmSplash"_s), &click);
  EXPECT_TRUE(isShown(u"選択3"));
  EXPECT_FALSE(isShown(u"frmSplash"));
}

TEST_F(StartTest, GreetingWithVersionAndEraLineIsSpokenOnTheFirstLoadOnly) {
  writeSlot(slot::kTopics, u"15"_s);
  start();
  const QString said = channel.said().join(u'\n');
  EXPECT_TRUE(said.contains(u"治療台帳を起動しました"_s));
  EXPECT_TRUE(said.contains(u"Ver 9.22"_s));
  EXPECT_TRUE(said.contains(u" このＰＣのWindowsは「令和」に対応しています。"_s));
  channel.clear();
  navigator.unload(u"選択3"_s);
  navigator.show(u"選択3"_s);
  EXPECT_FALSE(channel.said().join(u'\n').contains(u"治療台帳を起動しました"_s));
}

}  // namespace
}  // namespace frame
