#include <gtest/gtest.h>

#include <QApplication>

#include "sample_screen.h"

namespace screen::testing {
namespace {

const QString kPart = QChar(254);
const QString kOpening = "見本の画面です" + kPart + "※は必ず入力してください";

class OpeningSpeech : public ::testing::Test {
 protected:
  Desk desk;
  SampleScreen screen{desk.services};
  ScreenProbe probe{screen, desk.spy};
};

TEST_F(OpeningSpeech, HeadingAndNotesAreHeardWholeBeforeTheFirstFocus) {
  probe.open();
  EXPECT_EQ(desk.spy.heardWhole(), QStringList({kOpening, "登録"}));
}

TEST_F(OpeningSpeech, NextKeyCutsIt) {
  probe.open();
  probe.press(Qt::Key_Tab);
  EXPECT_EQ(desk.spy.heardWhole(), QStringList({"画面を閉じます"}));
}

TEST_F(OpeningSpeech, IsSaidOncePerLoad) {
  probe.open();
  screen.hide();
  desk.spy.clear();
  probe.open();
  EXPECT_FALSE(desk.spy.said().contains(kOpening));
}

class SpeakingScreen : public SampleScreen {
 public:
  using SampleScreen::SampleScreen;
  void onLoad() override { voice().speakText("読み込みました"); }
};

TEST(OpeningSpeechThroughTheNavigator, KeepsWhatIsSaidWhileLoading) {
  Desk desk;
  desk.registry.add<SpeakingScreen>("見本1");
  desk.voice.speakText("前の画面");
  Screen* screen = desk.navigator.show("見本1");
  ASSERT_NE(screen, nullptr);
  ScreenProbe(*screen, desk.spy).open();
  EXPECT_EQ(desk.spy.heardWhole(), QStringList({"読み込みました", kOpening, "登録"}));
}

TEST(OpeningSpeechThroughTheNavigator, WindowBehindIsSilentUntilAKeyIsPressed) {
  Desk desk;
  desk.registry.add<SampleScreen>("見本1");
  desk.registry.add<SampleScreen>("見本2");
  Screen* behind = desk.navigator.show("見本1");
  Screen* front = desk.navigator.show("見本2");
  desk.spy.clear();
  QApplication::setActiveWindow(behind);
  EXPECT_TRUE(behind->isActiveWindow());
  EXPECT_EQ(desk.spy.said(), QStringList());
  QApplication::setActiveWindow(front);
  EXPECT_EQ(desk.spy.said(), QStringList("登録"));
  QApplication::setActiveWindow(behind);  // some desks hand it to and fro
  EXPECT_EQ(desk.spy.said(), QStringList("登録"));
  QApplication::setActiveWindow(front);
  ScreenProbe(*front, desk.spy).press(Qt::Key_Shift);
  desk.spy.clear();
  QApplication::setActiveWindow(behind);
  EXPECT_EQ(desk.spy.said(), QStringList("登録"));
}

}  // namespace
}  // namespace screen::testing
