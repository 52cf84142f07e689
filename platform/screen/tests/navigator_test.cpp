#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QPointer>

#include "platform/screen/confirm_prompt.h"
#include "sample_screen.h"

namespace screen::testing {
namespace {

/// A route that hands a number over, and one of a prompt.
struct ToSample {
  static constexpr ScreenName screen{u"見本1"};
  QString id;
};
struct ToPrompt {
  static constexpr ScreenName screen{u"見本の実行"};
  QString asked;
};

class CountingScreen : public SampleScreen {
 public:
  CountingScreen(Services& services, QStringList& life) : SampleScreen(services), life(life) {}
  void onLoad() override { life += "load"; }
  void opened(const Request& request) override {
    const auto* route = request.as<ToSample>();
    life += "opened " + (route ? route->id : QString());
  }
  void onClosed() override { life += "closed"; }
  bool onCloseBox() override { return mayClose; }
  QStringList& life;
  bool mayClose = true;
};

class Navigation : public ::testing::Test {
 protected:
  void SetUp() override { harness.registry.add<ToSample, CountingScreen>(life); }
  QStringList life;
  Harness harness;
};

TEST_F(Navigation, ScreenIsOneInstanceReenteredByShowingIt) {
  Screen* first = harness.navigator.show(ToSample{"7"});
  Screen* again = harness.navigator.show(ToSample{"8"});
  EXPECT_EQ(first, again);
  EXPECT_TRUE(harness.navigator.isShown("見本1"));
  EXPECT_EQ(life, QStringList({"load", "opened 7", "opened 8"}));
}

TEST_F(Navigation, LoadDoesNotShow) {
  EXPECT_NE(harness.navigator.load("見本1"), nullptr);
  EXPECT_FALSE(harness.navigator.isShown("見本1"));
  EXPECT_EQ(life, QStringList({"load"}));
}

TEST_F(Navigation, UnloadClosesAndForgets) {
  QPointer<Screen> screen = harness.navigator.show("見本1");
  harness.navigator.unload("見本1");
  EXPECT_EQ(harness.navigator.loaded("見本1"), nullptr);
  EXPECT_EQ(life.last(), "closed");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(screen.isNull());
}

TEST_F(Navigation, CloseBoxUnloadsUnlessTheScreenObjects) {
  auto* screen = static_cast<CountingScreen*>(harness.navigator.show("見本1"));
  screen->mayClose = false;
  screen->close();
  EXPECT_EQ(harness.navigator.loaded("見本1"), screen);
  screen->mayClose = true;
  screen->close();
  EXPECT_EQ(harness.navigator.loaded("見本1"), nullptr);
  EXPECT_EQ(life.count("closed"), 1);
}

TEST_F(Navigation, ScreenThatTheProgramLacksIsToldByName) {
  EXPECT_EQ(harness.navigator.show("領収証"), nullptr);
  EXPECT_EQ(harness.messages.texts(), QStringList{"「領収証」の画面は、まだこの版にはありません。"});
  EXPECT_EQ(harness.spy.lastSaid(), "「領収証」の画面は、まだこの版にはありません。");
}

TEST_F(Navigation, QuitClosesEveryScreen) {
  harness.navigator.show("見本1");
  harness.navigator.quit();
  EXPECT_EQ(harness.navigator.loaded("見本1"), nullptr);
}

constexpr Note kLines[] = {{.name = {u"Label1"}, .caption = u"見本を登録しますか？"},
                           {.name = {u"Label2"}, .caption = u"一旦終了します。"}};
constexpr PromptButton kButtons[] = {{{u"Command1"}, u"はい", u"store"},
                                     {{u"Command2"}, u"いいえ", u"close"}};
constexpr ConfirmRow kPrompt{.name = u"見本の実行", .caption = u"確認", .lines = kLines, .buttons = kButtons};

class Prompt : public ::testing::Test {
 protected:
  void SetUp() override {
    actions.insert("store", [this](ConfirmPrompt& prompt) {
      ++stored;
      asked = prompt.request().as<ToPrompt>()->asked;
      prompt.voice().speakText("登録しました");
    });
    harness.registry.add("見本の実行", [this](Services& services) {
      return std::make_unique<ConfirmPrompt>(kPrompt, actions, services);
    });
    screen = harness.navigator.show(ToPrompt{"登録"});
    ASSERT_NE(screen, nullptr);
    ScreenProbe(*screen, harness.spy).open();
  }
  PromptActions actions;
  int stored = 0;
  QString asked;
  Harness harness;
  Screen* screen = nullptr;
};

TEST_F(Prompt, SpeaksItsQuestionThenTheFollowingLineThenTheFirstButton) {
  EXPECT_EQ(harness.spy.heardWhole(),
            QStringList({"見本を登録しますか？" + QString(QChar(254)) + "一旦終了します。", "はい"}));
  EXPECT_EQ(screen->objectName(), "見本の実行");
  EXPECT_EQ(screen->windowTitle(), "確認");
}

TEST_F(Prompt, YesRunsItsActionAndCloses) {
  ScreenProbe(*screen, harness.spy).press(Qt::Key_Return);
  EXPECT_EQ(stored, 1);
  EXPECT_EQ(asked, "登録");
  EXPECT_EQ(harness.spy.heardWhole(), QStringList{"登録しました"});
  EXPECT_EQ(harness.navigator.loaded("見本の実行"), nullptr);
}

TEST_F(Prompt, NoAndEscapeOnlyClose) {
  ScreenProbe(*screen, harness.spy).press(Qt::Key_Escape);
  EXPECT_EQ(stored, 0);
  EXPECT_EQ(harness.navigator.loaded("見本の実行"), nullptr);
}

TEST_F(Prompt, IsSoundForTheEar) { EXPECT_EQ(ScreenProbe(*screen, harness.spy).faults(), QStringList()); }

}  // namespace
}  // namespace screen::testing
