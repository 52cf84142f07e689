#include <QCheckBox>

#include "frame/tests/profile_table.h"
#include "frame/tests/screens/frame_fixture.h"

namespace frame {
namespace {

using namespace Qt::Literals::StringLiterals;

class ProfileTest : public test::FrameFixture {};

bool isTick(const test::ProfileRow& row) { return row.control.startsWith(u"Check"); }

TEST_F(ProfileTest, EveryFieldOfTheProfileHasItsControlAndCaption) {
  screen::Screen& profile = shown(u"登録");
  for (const test::ProfileRow& row : test::kProfileTable)
    EXPECT_EQ(profile.caption(row.control), row.caption) << row.slot;
}

TEST_F(ProfileTest, EveryFieldShowsItsPlaceInTheSettingsFile) {
  SettingsSlots settings = freshSettings();
  for (const test::ProfileRow& row : test::kProfileTable) settings[row.slot] = u"値%1"_s.arg(row.slot);
  for (const test::ProfileRow& ticked : test::kProfileTable) {
    if (!isTick(ticked)) continue;
    for (const test::ProfileRow& row : test::kProfileTable)
      if (isTick(row)) settings[row.slot] = row.slot == ticked.slot ? u"1"_s : u"0"_s;
    loadRun(settings, folder.path(), run);
    screen::Screen& profile = shown(u"登録");
    for (const test::ProfileRow& row : test::kProfileTable) {
      if (isTick(row))
        EXPECT_EQ(profile.checked(row.control), row.slot == ticked.slot) << row.slot;
      else
        EXPECT_EQ(profile.text(row.control), u"値%1"_s.arg(row.slot));
    }
    navigator.unload(u"登録"_s);
  }
}

TEST_F(ProfileTest, EveryFieldIsStoredInItsPlaceOfTheSettingsFile) {
  for (const test::ProfileRow& ticked : test::kProfileTable) {
    if (!isTick(ticked)) continue;
    screen::Screen& profile = shown(u"登録");
    for (const test::ProfileRow& row : test::kProfileTable) {
      if (isTick(row))
        profile.setChecked(row.control, row.slot == ticked.slot);
      else
        profile.setText(row.control, u"例%1"_s.arg(row.slot));
    }
    profile.trigger(u"Command1"_s);
    navigator.loaded(u"登録の実行"_s)->trigger(u"Command1"_s);
    const SettingsSlots stored = storedSettings();
    for (const test::ProfileRow& row : test::kProfileTable) {
      const QString expected = !isTick(row)              ? u"例%1"_s.arg(row.slot)
                               : row.slot == ticked.slot ? u"1"_s
                                                         : u"0"_s;
      EXPECT_EQ(stored[row.slot], expected) << row.slot;
    }
    settle();
  }
}

TEST_F(ProfileTest, FieldsShowTheRunsValues) {
  run.profile[slot::kPractitioner] = u"見本 施術者"_s;
  run.profile[slot::kHealthOffice] = u""_s;
  run.profile[34] = u"銀行送金"_s;
  run.profile[slot::kRelationPrinted] = u"1"_s;
  run.profile[slot::kMassageToo] = u"on"_s;
  screen::Screen& screen = shown(u"登録");
  EXPECT_EQ(screen.text(u"Text1"_s), u"見本 施術者"_s);
  EXPECT_EQ(screen.text(u"Combo1(4)"_s), u"銀行送金"_s);
  EXPECT_EQ(screen.text(u"Combo1(7)"_s), u""_s);
  EXPECT_TRUE(screen.checked(u"Check2"_s));
  EXPECT_FALSE(screen.checked(u"Check3"_s));
  EXPECT_TRUE(screen.checked(u"Check1(1)"_s));
  EXPECT_FALSE(screen.checked(u"Check1(0)"_s));
}

TEST_F(ProfileTest, CombosHoldTheirChoices) {
  screen::Screen& screen = shown(u"登録");
  EXPECT_EQ(screen.items(u"Combo1(4)"_s),
            (QStringList{u"振込"_s, u"銀行送金"_s, u"郵便局送金"_s, u"当地払"_s}));
  const QStringList deposits{u"普通"_s, u"当座"_s, u"通知"_s, u"別段"_s};
  EXPECT_EQ(screen.items(u"Combo1(5)"_s), deposits);
  EXPECT_EQ(screen.items(u"Combo1(6)"_s), deposits);
  EXPECT_EQ(screen.items(u"Combo1(0)"_s), (QStringList{u"銀行"_s, u"金庫"_s, u"農協"_s}));
  EXPECT_EQ(screen.items(u"Combo1(1)"_s), (QStringList{u"本店"_s, u"支店"_s, u"出張所"_s}));
  EXPECT_EQ(screen.items(u"Combo1(7)"_s), (QStringList{u"施術所所在地"_s, u"出張専門施術者住所地"_s}));
}

struct PrefectureCase {
  QString code, edition;
  bool aichi, tokyo;
};
// A code outside the national order leaves the label as it was drawn.
class ProfilePrefectureTest : public ProfileTest, public testing::WithParamInterface<PrefectureCase> {};

TEST_P(ProfilePrefectureTest, DecidesOnLabelAndFrames) {
  run.prefectureCode = GetParam().code;
  screen::Screen& screen = shown(u"登録");
  EXPECT_EQ(screen.caption(u"Label34"_s), GetParam().edition);
  EXPECT_EQ(screen.isControlShown(u"Frame1"_s), GetParam().aichi);
  EXPECT_EQ(screen.isControlShown(u"Frame2"_s), GetParam().tokyo);
}

INSTANTIATE_TEST_SUITE_P(Rows, ProfilePrefectureTest,
                         testing::Values(PrefectureCase{u"01"_s, u"北海道版"_s, false, false},
                                         PrefectureCase{u"13"_s, u"東京都版"_s, false, true},
                                         PrefectureCase{u"23"_s, u"愛知県版"_s, true, false},
                                         PrefectureCase{u"47"_s, u"沖縄県版"_s, false, false},
                                         PrefectureCase{u"48"_s, u"都道府県版"_s, false, false}));

TEST_F(ProfileTest, CancelledQuestionComesBackToTheTypedValuesAndLeavesTheFile) {
  const QByteArray before = settingsBytes();
  screen::Screen& screen = shown(u"登録");
  screen.setText(u"Text1"_s, u"見本 花子"_s);
  screen.setChecked(u"Check4"_s, true);
  screen.trigger(u"Command1"_s);
  ASSERT_TRUE(isShown(u"登録の実行"));
  EXPECT_FALSE(isShown(u"登録"));
  navigator.loaded(u"登録の実行"_s)->trigger(u"Command2"_s);
  ASSERT_TRUE(isShown(u"登録"));
  EXPECT_EQ(navigator.loaded(u"登録"_s)->text(u"Text1"_s), u"見本 花子"_s);
  EXPECT_EQ(run.profile[slot::kPractitioner], u"見本 花子"_s);
  EXPECT_EQ(settingsBytes(), before);
}

TEST_F(ProfileTest, AcceptedQuestionWritesEverySlotAndEndsTheProgram) {
  run.prefectureCode = u"23"_s;
  screen::Screen& screen = shown(u"登録");
  screen.setText(u"Text1"_s, u"見本 花子"_s);
  screen.setText(u"Text38"_s, u"契9900001-0-0"_s);
  screen.setText(u"Combo1(7)"_s, u"施術所所在地"_s);
  screen.setChecked(u"Check2"_s, true);
  screen.setChecked(u"Check1(1)"_s, true);
  screen.choose(u"Frame1"_s, u"3"_s);
  screen.choose(u"Frame2"_s, u"5"_s);
  screen.trigger(u"Command1"_s);
  navigator.loaded(u"登録の実行"_s)->trigger(u"Command1"_s);
  EXPECT_TRUE(isShown(u"終了1"));
  const SettingsSlots stored = storedSettings();
  EXPECT_EQ(stored[29], u"見本 花子"_s);
  EXPECT_EQ(stored[87], u"契9900001-0-0"_s);
  EXPECT_EQ(stored[84], u"施術所所在地"_s);
  EXPECT_EQ(stored[76], u"1"_s);
  EXPECT_EQ(stored[77], u"0"_s);
  EXPECT_EQ(stored[63], u"on"_s);
  EXPECT_EQ(stored[17], u"3"_s);
  EXPECT_EQ(stored[89], u"5"_s);
  EXPECT_FALSE(stored[13].isEmpty());
}

TEST_F(ProfileTest, OneKindOfPracticeClearsTheOther) {
  screen::Screen& screen = shown(u"登録");
  EXPECT_TRUE(screen.checked(u"Check1(0)"_s));
  screen.findChild<QCheckBox*>(u"Check1(1)"_s)->toggle();
  EXPECT_TRUE(screen.checked(u"Check1(1)"_s));
  EXPECT_FALSE(screen.checked(u"Check1(0)"_s));
}

TEST_F(ProfileTest, LicenceScreenWritesAndClosesWithoutRestart) {
  shown(u"登録").trigger(u"Command3"_s);
  ASSERT_TRUE(isShown(u"登録4"));
  screen::Screen& licence = *navigator.loaded(u"登録4"_s);
  licence.setText(u"Text1"_s, u"第００１号"_s);
  licence.setText(u"Text3"_s, u"第００３号"_s);
  licence.setChecked(u"Check1"_s, true);
  licence.trigger(u"Command1"_s);
  EXPECT_FALSE(isShown(u"登録4"));
  EXPECT_EQ(navigator.quits, 0);
  EXPECT_EQ(storedSettings()[18], u"第００１号"_s);
  EXPECT_EQ(storedSettings()[19], u""_s);
  EXPECT_EQ(storedSettings()[20], u"第００３号"_s);
  EXPECT_EQ(storedSettings()[16], u"2"_s);
  screen::Screen& again = shown(u"登録4");
  EXPECT_TRUE(again.checked(u"Check1"_s));
  again.setChecked(u"Check1"_s, false);
  again.trigger(u"Command1"_s);
  EXPECT_EQ(storedSettings()[16], u"0"_s);
}

TEST_F(ProfileTest, CaptionsAreWrittenAndTheProgramEndsAtOnce) {
  run.settings[slot::kCaptionText1] = u"紹介状:"_s;
  screen::Screen& captions = shown(u"txtbox");
  EXPECT_EQ(captions.text(u"Text1"_s), u"紹介状:"_s);
  EXPECT_EQ(captions.text(u"Text4"_s), u"症状:"_s);
  captions.setText(u"Text2"_s, u"趣味:"_s);
  answer({true});
  captions.trigger(u"Command1"_s);
  EXPECT_EQ(lastMessage(), u"治療台帳を再起動して下さい。ここで一旦、治療台帳を終了します。"_s);
  EXPECT_EQ(storedSettings()[slot::kCaptionText1], u"紹介状:"_s);
  EXPECT_EQ(storedSettings()[slot::kCaptionText2], u"趣味:"_s);
  EXPECT_EQ(navigator.quits, 1);
}

TEST_F(ProfileTest, EachCaptionHasItsPlaceInTheSettingsFile) {
  for (int place = 22; place <= 26; ++place) run.settings[place] = u"題%1:"_s.arg(place);
  screen::Screen& captions = shown(u"txtbox");
  for (int field = 1; field <= 5; ++field)
    EXPECT_EQ(captions.text(u"Text%1"_s.arg(field)), u"題%1:"_s.arg(21 + field));
}

TEST_F(ProfileTest, RefusedCaptionsLeaveTheFile) {
  const QByteArray before = settingsBytes();
  screen::Screen& captions = shown(u"txtbox");
  captions.setText(u"Text5"_s, u"施術:"_s);
  answer({false});
  captions.trigger(u"Command1"_s);
  EXPECT_EQ(settingsBytes(), before);
  EXPECT_EQ(navigator.quits, 0);
  EXPECT_TRUE(isShown(u"txtbox"));
}

}  // namespace
}  // namespace frame
