#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets/QtWidgets>

#include "sample_screen.h"

namespace screen::testing {
namespace {

TEST(MessageQueue, AnswersInOrderAndRefusesWhatIsNotAnswered) {
  Harness harness;
  harness.messages.answerFromQueue({true, false});
  EXPECT_TRUE(harness.messages.ask("一つ目"));
  EXPECT_FALSE(harness.messages.ask("二つ目", Buttons::YesNo, "題"));
  EXPECT_FALSE(harness.messages.ask("三つ目"));
  harness.messages.tell("四つ目");
  EXPECT_EQ(harness.messages.texts(), QStringList({"一つ目", "二つ目", "三つ目", "四つ目"}));
  EXPECT_EQ(harness.messages.titles(), QStringList({"治療台帳", "題", "治療台帳", "治療台帳"}));
  EXPECT_EQ(harness.spy.said(), harness.messages.texts()) << "every message is spoken";
}

TEST(MessageQueue, EngineTextStandsBehindTheDataControlLabel) {
  Harness harness;
  harness.messages.tellDataFault("見本の誤り");
  EXPECT_EQ(harness.messages.texts(), QStringList{"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :見本の誤り"});
}

struct BoxCase {
  Buttons buttons;
  QStringList captions;
};

class ShownMessage {
 protected:
  /// Asks, and hands the open box to `work`.
  template <class Ask, class Work>
  bool whileAsked(Ask ask, Work work) {
    QTimer::singleShot(0, &screen, [this, work] {
      (void)QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; });
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      QApplication::setActiveWindow(box);
      EXPECT_TRUE(QTest::qWaitFor([box] { return box->isAncestorOf(QApplication::focusWidget()); }));
      work(*box);
      if (box->isVisible()) box->reject();
    });
    return ask();
  }
  Harness harness;
  MessageDoor messages{harness.voice};
  SampleScreen screen{harness.services};
};

class MessageBox : public ShownMessage, public ::testing::TestWithParam<BoxCase> {
 protected:
  template <class Work>
  bool whileShown(Work work) {
    return whileAsked([this] { return messages.ask("登録しますか？", GetParam().buttons, "題"); }, work);
  }
};

TEST_P(MessageBox, NamesItsButtonsAndGivesTheFirstTheFocus) {
  whileShown([](QMessageBox& box) {
    QStringList captions;
    for (const QAbstractButton* button : box.buttons()) captions += button->text();
    EXPECT_EQ(captions, GetParam().captions);
    EXPECT_EQ(box.windowTitle(), "題");
    EXPECT_EQ(box.text(), "登録しますか？");
    EXPECT_EQ(QApplication::focusWidget(), box.buttons().first());
  });
}

TEST_P(MessageBox, QuestionIsHeardToItsEnd) {
  whileShown([this](QMessageBox&) {
    EXPECT_EQ(harness.spy.heardWhole(), QStringList({"登録しますか？", GetParam().captions.first()}));
  });
}

TEST_P(MessageBox, EnterIsTheFirstAnswer) {
  EXPECT_TRUE(whileShown([](QMessageBox&) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); }));
}

TEST_P(MessageBox, EscapeIsTheRefusal) {
  const bool answer = whileShown([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(answer, GetParam().buttons == Buttons::Ok);
}

INSTANTIATE_TEST_SUITE_P(All, MessageBox,
                         ::testing::Values(BoxCase{Buttons::Ok, {"OK"}},
                                           BoxCase{Buttons::OkCancel, {"OK", "キャンセル"}},
                                           BoxCase{Buttons::YesNo, {"はい", "いいえ"}}));

class DropQuestion : public ShownMessage, public ::testing::Test {
 protected:
  bool answered(const QList<Qt::Key>& keys) {
    return whileAsked(
        [this] { return messages.askToDrop("入力した内容を捨てますか？"); },
        [&](QMessageBox&) {
          EXPECT_EQ(harness.spy.heardWhole(), QStringList({"入力した内容を捨てますか？", "いいえ"}));
          for (const Qt::Key key : keys) QTest::keyClick(QApplication::focusWidget(), key);
        });
  }
};

TEST_F(DropQuestion, EnterKeepsWhatWasTyped) { EXPECT_FALSE(answered({Qt::Key_Return})); }
TEST_F(DropQuestion, YesIsOneTabAway) { EXPECT_TRUE(answered({Qt::Key_Tab, Qt::Key_Return})); }

TEST(MessageFocus, ReturnsToTheFieldAndDoesNotCutTheResult) {
  Harness harness;
  MessageDoor messages(harness.voice);
  SampleScreen screen(harness.services);
  ScreenProbe probe(screen, harness.spy);
  probe.open();
  screen.focusOn("txtFields(5)");
  QTimer::singleShot(0, &screen, [] {
    (void)QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; });
    qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject();
  });
  messages.tell("登録しました。");
  harness.voice.speakText("結果");
  QApplication::setActiveWindow(&screen);
  EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() != nullptr; }));
  EXPECT_EQ(screen.focused(), "txtFields(5)");
  EXPECT_TRUE(harness.spy.heardWhole().contains("結果"));
}

}  // namespace
}  // namespace screen::testing
