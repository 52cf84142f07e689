#include <gtest/gtest.h>

#include <QtWidgets/QtWidgets>

#include "sample_screen.h"

namespace screen::testing {
namespace {

/// The separator between the parts of a spoken text.
const QString kPart = QChar(254);

struct SpeechCase {
  const char* control;
  const char* firstPart;
  const char* secondPart;  ///< nullptr: one part only
};

class FocusSpeech : public ::testing::TestWithParam<SpeechCase> {
 protected:
  void SetUp() override {
    screen.setText("txtFields(4)", "鍼灸");
    screen.setText("Combo1", "住所1");
    screen.setText("Combo2", "区");
    screen.setChecked("Check1", true);
    screen.choose("Frame1", "2");
    probe.open();
    probe.press(Qt::Key_Shift);
    harness.spy.clear();
  }
  Harness harness;
  SampleScreen screen{harness.services};
  ScreenProbe probe{screen, harness.spy};
};

TEST_P(FocusSpeech, FollowsTheKindOfControl) {
  screen.focusOn(GetParam().control);
  QString expected = QString::fromUtf8(GetParam().firstPart);
  if (GetParam().secondPart) expected += kPart + QString::fromUtf8(GetParam().secondPart);
  EXPECT_EQ(harness.spy.said(), QStringList{expected});
  EXPECT_EQ(harness.spy.operations().value(0), "VoiceStop") << "a new focus cuts off what is being said";
}

INSTANTIATE_TEST_SUITE_P(
    All, FocusSpeech,
    ::testing::Values(SpeechCase{"txtFields(4)", "※氏名:", "鍼灸"}, SpeechCase{"txtFields(5)", "住所:", ""},
                      SpeechCase{"cmdClose", "画面を閉じます", nullptr},
                      SpeechCase{"Combo1", "項目:", "住所1"},
                      SpeechCase{"Combo2", "検索の文字選択と文字入力", nullptr},
                      SpeechCase{"Check1", "印刷する", "チェック有り"},
                      SpeechCase{"Check2", "要", "チェック無し"}, SpeechCase{"Frame1", "女性", nullptr},
                      SpeechCase{"Option1(0)", "男性", nullptr},
                      SpeechCase{"txtDay(61)", "2日 治療内容:", ""}, SpeechCase{"txtMemo", "メモ:", ""}));

class Speech : public ::testing::Test {
 protected:
  void SetUp() override {
    probe.open();
    probe.press(Qt::Key_Shift);
    harness.spy.clear();
  }
  Harness harness;
  SampleScreen screen{harness.services};
  ScreenProbe probe{screen, harness.spy};
};

TEST_F(Speech, ButtonWithAMarkedKeySaysItsCaptionWithoutIt) {
  screen.focusOn("txtFields(5)");
  harness.spy.clear();
  screen.focusOn("cmdUpdate");
  EXPECT_EQ(harness.spy.lastSaid(), "登録");
}

TEST_F(Speech, TabbingFastLeavesOnlyTheLastFieldWhole) {
  screen.focusOn("txtFields(4)");
  for (int i = 0; i < 2; ++i) probe.press(Qt::Key_Tab);
  EXPECT_EQ(harness.spy.heardWhole(), QStringList{"住所:" + kPart});
}

TEST_F(Speech, CaptionThatChangedIsSaidAsItStands) {
  screen.setCaption("txtFields(5)", "旧住所:");
  screen.focusOn("txtFields(5)");
  EXPECT_EQ(harness.spy.lastSaid(), "旧住所:" + kPart);
}

TEST_F(Speech, TickSaysItsNewStateOnTheNextFocusOnly) {
  screen.focusOn("Check1");
  harness.spy.clear();
  probe.press(Qt::Key_Space);
  EXPECT_TRUE(screen.checked("Check1"));
  EXPECT_TRUE(harness.spy.calls().isEmpty());
  screen.focusOn("Check2");
  screen.focusOn("Check1");
  EXPECT_EQ(harness.spy.lastSaid(), "印刷する" + kPart + "チェック有り");
}

TEST_F(Speech, ArrowKeysMoveAndSpeakOptions) {
  screen.choose("Frame1", "1");
  screen.focusOn("Frame1");
  probe.press(Qt::Key_Down);
  EXPECT_EQ(harness.spy.lastSaid(), "女性");
  EXPECT_EQ(screen.chosen("Frame1"), "2");
  EXPECT_EQ(screen.log, QStringList{"choose"});
}

TEST_F(Speech, ListSaysWhatTheArrowKeysChoose) {
  screen.focusOn("Combo1");
  probe.press(Qt::Key_Down);
  EXPECT_EQ(screen.text("Combo1"), "氏名");
  EXPECT_EQ(harness.spy.lastSaid(), "氏名");
  EXPECT_EQ(screen.log, QStringList{"pick"});
}

TEST_F(Speech, PagesAreSaidAndChangedByArrowsAndControlPage) {
  screen.focusOn("TabStrip1");
  EXPECT_EQ(harness.spy.lastSaid(), "基本");
  probe.press(Qt::Key_Right);
  EXPECT_EQ(harness.spy.lastSaid(), "治療");
  screen.focusOn("txtMemo");
  harness.spy.clear();
  probe.press(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(harness.spy.said(), QStringList{"基本"});
  EXPECT_EQ(screen.focused(), "TabStrip1");
  probe.press(Qt::Key_Tab);
  EXPECT_EQ(screen.focused(), "txtFields(4)");
}

TEST_F(Speech, FocusOnAControlOfAnotherPageBringsThePage) {
  screen.focusOn("txtDay(60)");
  EXPECT_EQ(screen.focused(), "txtDay(60)");
  EXPECT_EQ(screen.text("TabStrip1"), "治療");
}

TEST_F(Speech, MenuEntriesAreSaidAsTheyAreWalked) {
  auto* menu = screen.findChild<QMenu*>("ファイル(&F)");
  ASSERT_NE(menu, nullptr);
  menu->setActiveAction(menu->actions().at(1));
  EXPECT_EQ(harness.spy.lastSaid(), "終わる");
}

TEST_F(Speech, MenuEntryIsSaidOnceWhereTheBarOpenedItsMenu) {
  auto* menu = screen.findChild<QMenu*>("ファイル(&F)");
  ASSERT_NE(menu, nullptr);
  screen.menuBar()->setActiveAction(menu->menuAction());
  harness.spy.clear();
  menu->setActiveAction(menu->actions().at(1));
  EXPECT_EQ(harness.spy.said(), QStringList("終わる"));
  menu->close();
}

/// The menu bar takes the focus from a field and gives it back, as the toolkit does around a menu.
class AfterTheMenu : public Speech {
 protected:
  void SetUp() override {
    Speech::SetUp();
    screen.focusOn("txtFields(4)");
    QWidget* field = QApplication::focusWidget();
    screen.menuBar()->setFocus(Qt::MenuBarFocusReason);
    harness.spy.clear();
    field->setFocus(Qt::MenuBarFocusReason);
  }
};

TEST_F(AfterTheMenu, FieldIsHeardWhereNothingWasChosen) {
  QCoreApplication::processEvents();
  EXPECT_EQ(harness.spy.said(), QStringList("※氏名:" + kPart));
}

TEST_F(AfterTheMenu, FieldIsSilentWhereAnEntryRuns) {
  screen.trigger("Men_X");
  QCoreApplication::processEvents();
  EXPECT_EQ(harness.spy.said(), QStringList());
}

}  // namespace
}  // namespace screen::testing
