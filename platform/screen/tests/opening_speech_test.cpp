#include <gtest/gtest.h>

#include <QApplication>

#include "sample_screen.h"

namespace screen::testing {
namespace {

const QString kPart = QChar(254);
const QString kOpening = "見本の画面です" + kPart + "※は必ず入力してください";

class OpeningSpeech : public ::testing::Test {
 protected:
  Harness harness;
  SampleScreen screen{harness.services};
  ScreenProbe probe{screen, harness.spy};
};

TEST_F(OpeningSpeech, HeadingAndNotesAreHeardWholeBeforeTheFirstFocus) {
  probe.open();
  EXPECT_EQ(harness.spy.heardWhole(), QStringList({kOpening, "登録"}));
}

TEST_F(OpeningSpeech, NextKeyCutsIt) {
  probe.open();
  probe.press(Qt::Key_Tab);
  EXPECT_EQ(harness.spy.heardWhole(), QStringList({"画面を閉じます"}));
}

TEST_F(OpeningSpeech, IsSaidOncePerLoad) {
  probe.open();
  screen.hide();
  harness.spy.clear();
  probe.open();
  EXPECT_FALSE(harness.spy.said().contains(kOpening));
}

class SpeakingScreen : public SampleScreen {
 public:
  using SampleScreen::SampleScreen;
  void onLoad() override { voice().speakText("読み込みました"); }
};

TEST(OpeningSpeechThroughTheNavigator, KeepsWhatIsSaidWhileLoading) {
  Harness harness;
  harness.registry.add<SpeakingScreen>("見本1");
  harness.voice.speakText("前の画面");
  Screen* screen = harness.navigator.show("見本1");
  ASSERT_NE(screen, nullptr);
  ScreenProbe(*screen, harness.spy).open();
  EXPECT_EQ(harness.spy.heardWhole(), QStringList({"読み込みました", kOpening, "登録"}));
}

TEST(OpeningSpeechThroughTheNavigator, WindowBehindIsSilentUntilAKeyIsPressed) {
  Harness harness;
  harness.registry.add<SampleScreen>("見本1");
  harness.registry.add<SampleScreen>("見本2");
  Screen* behind = harness.navigator.show("見本1");
  Screen* front = harness.navigator.show("見本2");
  harness.spy.clear();
  QApplication::setActiveWindow(behind);
  EXPECT_TRUE(behind->isActiveWindow());
  EXPECT_EQ(harness.spy.said(), QStringList());
  QApplication::setActiveWindow(front);
  EXPECT_EQ(harness.spy.said(), QStringList("登録"));
  QApplication::setActiveWindow(behind);  // some window managers move it to and fro
  EXPECT_EQ(harness.spy.said(), QStringList("登録"));
  QApplication::setActiveWindow(front);
  ScreenProbe(*front, harness.spy).press(Qt::Key_Shift);
  harness.spy.clear();
  QApplication::setActiveWindow(behind);
  EXPECT_EQ(harness.spy.said(), QStringList("登録"));
}

}  // namespace
}  // namespace screen::testing
