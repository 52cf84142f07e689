#include "platform/voice/voice_guide.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "platform/voice/recording_channel.h"
#include "platform/voice/silent_library.h"

using namespace voice;

namespace {

const QString kText = QStringLiteral("※氏名:\u00FE見本　花子");

class VoiceGuideTest : public testing::Test {
 protected:
  RecordingChannel spy;
  VoiceGuide guide{spy, spy, spy};
};

/// A channel that is broken in every call.
struct Broken final : VoiceControl, SoundLibrary, FocusTalkLibrary {
  void VoiceStop() override { throw std::runtime_error("missing"); }
  void VoiceSay(const QString&) override { throw std::runtime_error("missing"); }
  void VoiceGo() override { throw std::runtime_error("missing"); }
  void SoundMessage(const QString&, int) override { throw 1; }
  void FT_OutputVoiceText(const QString&, int) override { throw 2; }
  void FT_StopSound() override { throw 3; }
};

}  // namespace

TEST_F(VoiceGuideTest, AFieldStopsAndThenSpeaksOnTheThreeChannelsInTheirOrder) {
  guide.speakField(QStringLiteral("※氏名:"), QStringLiteral("見本　花子"));
  const QList<RecordedCall> expected = {{"VoiceStop", {}, 0},
                                        {"VoiceSay", kText, 0},
                                        {"SoundMessage", kText, 2},
                                        {"FT_OutputVoiceText", kText, 2}};
  EXPECT_EQ(spy.calls(), expected);
}

TEST_F(VoiceGuideTest, ABlankFieldSpeaksItsCaptionAndTheSeparatorOnly) {
  guide.speakField(QStringLiteral("住所:"), QString());
  EXPECT_EQ(spy.said(), QStringList{QStringLiteral("住所:\u00FE")});
}

TEST_F(VoiceGuideTest, ListsAndChecksStopTheLastLibraryBeforeItSpeaks) {
  guide.speakFocus(QStringLiteral("本人の続柄印刷チェック有り"), true);
  EXPECT_EQ(spy.operations(),
            (QStringList{"VoiceStop", "VoiceSay", "SoundMessage", "FT_StopSound", "FT_OutputVoiceText"}));
  spy.clear();
  guide.speakFocus(QStringLiteral("登録"));
  EXPECT_EQ(spy.operations(), (QStringList{"VoiceStop", "VoiceSay", "SoundMessage", "FT_OutputVoiceText"}));
}

TEST_F(VoiceGuideTest, AScreenTextUsesTheVoiceControlOnlyAndDoesNotStop) {
  guide.speakText(QStringLiteral("検索データが０件です。"));
  EXPECT_EQ(spy.operations(), (QStringList{"VoiceSay", "VoiceGo"}));
}

TEST_F(VoiceGuideTest, AHeadingStopsAndJoinsItsPartsWithTheSeparator) {
  guide.speakHeading({QStringLiteral("初期設定"), QString(), QStringLiteral("登録ありがとうございます。")});
  const QList<RecordedCall> expected = {
      {"VoiceStop", {}, 0},
      {"VoiceSay", QStringLiteral("初期設定\u00FE登録ありがとうございます。"), 0},
      {"VoiceGo", {}, 0}};
  EXPECT_EQ(spy.calls(), expected);
}

TEST_F(VoiceGuideTest, TheFirstFocusOfANewWindowQueuesBehindItsOpening) {
  guide.speakHeading({QStringLiteral("検索")});
  guide.holdForOpening();
  guide.speakField(QStringLiteral("氏名:"), QStringLiteral("見本"));
  EXPECT_EQ(spy.heardWhole(), (QStringList{QStringLiteral("検索"), QStringLiteral("氏名:\u00FE見本")}));
  guide.release();
  guide.speakFocus(QStringLiteral("登録"));
  EXPECT_EQ(spy.heardWhole(), QStringList{QStringLiteral("登録")});
}

TEST_F(VoiceGuideTest, TabbingFastLeavesOnlyTheLastField) {
  for (int i = 0; i < 20; ++i) guide.speakField(QStringLiteral("欄%1:").arg(i), QString());
  EXPECT_EQ(spy.heardWhole(), QStringList{QStringLiteral("欄19:\u00FE")});
}

TEST(VoiceGuide, ABrokenChannelLeavesTheOthersSpeaking) {
  Broken broken;
  RecordingChannel spy;
  VoiceGuide first(broken, spy, spy), second(spy, broken, spy), third(spy, spy, broken);
  for (VoiceGuide* guide : {&first, &second, &third}) {
    guide->speakFocus(QStringLiteral("登録"), true);
    guide->speakText(QStringLiteral("登録しました"));
  }
  EXPECT_EQ(spy.operations().count(QStringLiteral("VoiceSay")), 4);
  EXPECT_EQ(spy.operations().count(QStringLiteral("SoundMessage")), 2);
  EXPECT_EQ(spy.operations().count(QStringLiteral("FT_OutputVoiceText")), 2);
}

TEST(VoiceGuide, LibrariesThatAreNotInstalledSayNothing) {
  RecordingChannel spy;
  SilentSoundLibrary sound;
  SilentFocusTalkLibrary focusTalk;
  VoiceGuide(spy, sound, focusTalk).speakFocus(QStringLiteral("登録"), true);
  EXPECT_EQ(spy.operations(), (QStringList{"VoiceStop", "VoiceSay"}));
}
