#include "platform/voice/speech_dispatcher_channel.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/voice/kana_reader.h"
#include "platform/voice/silent_library.h"
#include "platform/voice/tests/fake_speech_service.h"
#include "platform/voice/voice_guide.h"

using namespace voice;

namespace {

class SpeechChannelTest : public testing::Test {
 protected:
  void SetUp() override { qputenv("SPEECHD_ADDRESS", "unix_socket:" + socket().toLocal8Bit()); }
  void TearDown() override { qputenv("SPEECHD_ADDRESS", "unix_socket:/nonexistent/speech"); }
  QString socket() const { return m_folder.filePath("speech"); }
  static QString u(const char16_t* text) { return QString::fromUtf16(text); }

 private:
  QTemporaryDir m_folder;
};

}  // namespace

TEST_F(SpeechChannelTest, TextsAreSaidInOrderAndAStopComesFirst) {
  const FakeSpeechService service(socket());
  SpeechDispatcherChannel channel;
  channel.VoiceSay(u(u"治療台帳を起動しました"));
  ASSERT_TRUE(service.waitForSpoken(u(u"治療台帳を起動しました")));
  channel.VoiceStop();
  channel.VoiceSay(u(u"※氏名:\u00FE見本"));
  channel.VoiceSay(u(u"二つ目"));
  ASSERT_TRUE(service.waitForSpoken(u(u"二つ目")));
  EXPECT_EQ(service.events(), (QStringList{u(u"SPEAK 治療台帳を起動しました"), "CANCEL",
                                           u(u"SPEAK コメジルシ氏名:、見本"), u(u"SPEAK 二つ目")}));
}

TEST_F(SpeechChannelTest, TextsOfOnePriorityMustNotCutEachOther) {
  const FakeSpeechService service(socket());
  SpeechDispatcherChannel channel;
  channel.VoiceSay(u(u"見本"));
  ASSERT_TRUE(service.waitForSpoken(u(u"見本")));
  EXPECT_EQ(service.priority(), "MESSAGE");
  EXPECT_EQ(service.language().toLower(), "ja");
}

TEST_F(SpeechChannelTest, FastTabsEndWithTheLastFieldUncut) {
  const FakeSpeechService service(socket());
  SpeechDispatcherChannel channel;
  SilentSoundLibrary sound;
  SilentFocusTalkLibrary focusTalk;
  VoiceGuide guide(channel, sound, focusTalk);
  for (int i = 0; i < 200; ++i) guide.speakField(QStringLiteral("欄%1").arg(i), QStringLiteral("値"));
  ASSERT_TRUE(service.waitForSpoken(u(u"欄199、値")));
  const QStringList events = service.events();
  EXPECT_EQ(events.last(), u(u"SPEAK 欄199、値"));
  // Between two texts that were sent there is always a cut.
  for (qsizetype i = 1; i < events.size(); ++i)
    EXPECT_FALSE(events[i].startsWith("SPEAK") && events[i - 1].startsWith("SPEAK"));
}

TEST_F(SpeechChannelTest, AVoiceThatCannotReadKanjiGetsKana) {
  if (!KanaReader().hasDictionary()) GTEST_SKIP() << "no dictionary of Japanese on this system";
  const FakeSpeechService service(socket(), FakeSpeechService::Manner::Answers, "espeak-ng");
  SpeechDispatcherChannel channel;
  channel.VoiceSay(u(u"治療台帳を起動しました"));
  EXPECT_TRUE(service.waitForSpoken(u(u"チリョウダイチョウヲキドウシマシタ")));
}

TEST_F(SpeechChannelTest, AServiceThatComesLaterSaysTheNewestText) {
  SpeechDispatcherChannel channel;
  channel.VoiceSay(u(u"古い"));
  channel.VoiceStop();
  channel.VoiceSay(u(u"新しい"));
  const FakeSpeechService service(socket());
  ASSERT_TRUE(service.waitForSpoken(u(u"新しい")));
  EXPECT_FALSE(service.events().contains(u(u"SPEAK 古い")));
}

TEST_F(SpeechChannelTest, SpeechComesBackWhenTheServiceDoes) {
  SpeechDispatcherChannel channel;
  for (int round = 0; round < 3; ++round) {
    const QString text = QStringLiteral("%1回目").arg(round);
    const FakeSpeechService service(socket());
    channel.VoiceStop();
    channel.VoiceSay(text);
    EXPECT_TRUE(service.waitForSpoken(text)) << round;
  }
}

TEST_F(SpeechChannelTest, AHangingServiceHoldsNobodyUpAndItsEndBringsSpeechBack) {
  auto hanging = std::make_unique<FakeSpeechService>(socket(), FakeSpeechService::Manner::Hangs);
  SpeechDispatcherChannel channel;
  for (int i = 0; i < 1000; ++i) {
    channel.VoiceStop();
    channel.VoiceSay(QStringLiteral("欄%1").arg(i));
  }
  hanging.reset();
  const FakeSpeechService service(socket());
  EXPECT_TRUE(service.waitForSpoken(u(u"欄999")));
}

TEST_F(SpeechChannelTest, TheEndOfTheProgramDoesNotWaitForAHangingService) {
  const FakeSpeechService hanging(socket(), FakeSpeechService::Manner::Hangs);
  auto channel = std::make_unique<SpeechDispatcherChannel>();
  channel->VoiceSay(u(u"見本"));
  while (hanging.connections() == 0) std::this_thread::yield();
  channel.reset();  // returns
}

TEST_F(SpeechChannelTest, TheEndOfTheProgramSendsWhatIsQueued) {
  const FakeSpeechService service(socket());
  auto channel = std::make_unique<SpeechDispatcherChannel>();
  channel->VoiceSay(u(u"治療台帳を終了します。"));
  channel.reset();
  EXPECT_TRUE(service.waitForSpoken(u(u"治療台帳を終了します。")));
}
