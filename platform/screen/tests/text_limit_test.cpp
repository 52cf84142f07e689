#include "platform/screen/text_limit.h"

#include <gtest/gtest.h>

#include <QtWidgets/QtWidgets>

#include "sample_screen.h"

namespace screen::testing {
namespace {

class TextLimit : public ::testing::Test {
 protected:
  void SetUp() override {
    probe.open();
    screen.focusOn("txtFields(4)");  // four characters
  }
  QLineEdit* field() { return screen.findChild<QLineEdit*>("txtFields(4)"); }
  Harness harness;
  SampleScreen screen{harness.services};
  ScreenProbe probe{screen, harness.spy};
};

TEST_F(TextLimit, WhatIsTypedBeyondItIsNotTaken) {
  probe.type("あいうえお");
  EXPECT_EQ(screen.text("txtFields(4)"), "あいうえ");
  probe.type("か");
  EXPECT_EQ(screen.text("txtFields(4)"), "あいうえ");
}

TEST_F(TextLimit, InsertionInTheMiddleKeepsTheRest) {
  probe.type("あいう");
  field()->setCursorPosition(1);
  probe.type("かき");
  EXPECT_EQ(screen.text("txtFields(4)"), "あかいう");
}

TEST_F(TextLimit, CharacterBeyondTheBasicPlaneCountsOnce) {
  EXPECT_EQ(characterCount("𠮷野"), 2);
  probe.type("𠮷𠮷𠮷𠮷𠮷");
  EXPECT_EQ(screen.text("txtFields(4)"), "𠮷𠮷𠮷𠮷");
}

TEST_F(TextLimit, LongerStoredTextIsShownWholeAndMayOnlyShrink) {
  screen.setText("txtFields(4)", "一二三四五六");
  EXPECT_EQ(screen.text("txtFields(4)"), "一二三四五六");
  field()->end(false);
  probe.type("七");
  EXPECT_EQ(screen.text("txtFields(4)"), "一二三四五六");
  probe.press(Qt::Key_Backspace);
  EXPECT_EQ(screen.text("txtFields(4)"), "一二三四五");
}

TEST_F(TextLimit, HoldsForEditableListsToo) {
  screen.focusOn("Combo2");  // 255 characters
  probe.type(QString(300, u'あ'));
  EXPECT_EQ(screen.text("Combo2").size(), 255);
  screen.setText("Combo2", QString(300, u'い'));
  EXPECT_EQ(screen.text("Combo2").size(), 300) << "what is stored is shown whole";
}

TEST_F(TextLimit, AFieldWithoutOneTakesAllAndTheFileRefusesWhatItsColumnCannotHold) {
  const QString path = harness.patientsFile({"見本一"});
  ASSERT_TRUE(screen.source().open(path));
  screen.focusOn("txtDay(60)");
  probe.type(QString(256, u'あ'));
  ASSERT_EQ(screen.text("txtDay(60)").size(), 256) << "nothing is cut unheard";
  EXPECT_FALSE(screen.source().write());
  ASSERT_EQ(harness.messages.texts().size(), 1);
  EXPECT_TRUE(harness.messages.texts()[0].contains("255文字")) << harness.messages.texts()[0].toStdString();
  EXPECT_EQ(screen.text("txtDay(60)").size(), 256) << "what was typed stays";
  probe.press(Qt::Key_Backspace);
  EXPECT_TRUE(screen.source().write());
}

TEST_F(TextLimit, HoldsForMemosToo) {
  screen.focusOn("txtMemo");  // a thousand characters
  probe.type(QString(1200, u'あ'));
  EXPECT_EQ(screen.text("txtMemo").size(), 1000);
}

}  // namespace
}  // namespace screen::testing
