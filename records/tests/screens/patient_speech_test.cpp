#include "records/tests/screens/patient_screen_fixture.h"

// What is heard and shown of the patient screen itself.

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;
using test::PatientScreenTest;

TEST_F(PatientScreenTest, FieldsShowThePracticesOwnCaptions) {
  run.settings[frame::slot::kCaptionText1] = u"紹介状:"_s;
  run.settings[frame::slot::kCaptionTreatment] = u"施術:"_s;
  screen::Screen& screen = patients();
  EXPECT_EQ(screen.caption(u"txtFields(29)"_s), u"紹介状:"_s);
  EXPECT_EQ(screen.caption(u"txtFields(30)"_s), u"テキスト2:"_s);
  EXPECT_EQ(screen.caption(u"txtFields(27)"_s), u"施術:"_s);
}

TEST_F(PatientScreenTest, OpeningSpeaksTheNotes) {
  patients();
  const QString said = channel.said().join(u' ');
  EXPECT_TRUE(said.contains(u"※の項目は必ず入力して下さい。"_s));
  EXPECT_TRUE(said.contains(u"フリガナは半角カナで入力して下さい。"_s));
  EXPECT_TRUE(said.contains(u"生年月日の記入例：2019/5/25"_s));
}

TEST_F(PatientScreenTest, TodayButtonSpeaksItsOwnSentence) {
  addNamed({u"見本"_s});
  screen::Screen& screen = patients();
  settle();
  channel.clear();
  screen.focusOn(u"Command8"_s);
  EXPECT_TRUE(channel.said().join(u' ').contains(
      u"今日の日付のボタンです。エンターを押すと初療日に今日の日付を代入します｡"_s));
}

TEST_F(PatientScreenTest, EveryMoveSaysWhoIsOnView) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s, u"架空 三郎"_s});
  screen::Screen& screen = patients();
  const QString part = QChar(254);
  const std::pair<QString, QString> moves[] = {
      {u"Command17"_s, u"ﾚｺｰﾄﾞ: 2"_s + part + u"見本 二郎"_s},
      {u"Command18"_s, u"ﾚｺｰﾄﾞ: 3"_s + part + u"架空 三郎"_s},
      {u"Men_VF2"_s, u"ﾚｺｰﾄﾞ: 2"_s + part + u"見本 二郎"_s},
      {u"Command15"_s, u"ﾚｺｰﾄﾞ: 1"_s + part + u"見本 一郎"_s},
      {u"Command16"_s, u"ﾚｺｰﾄﾞ: 1"_s + part + u"見本 一郎"_s},
  };
  for (const auto& [command, said] : moves) {
    screen.trigger(command);
    EXPECT_EQ(channel.heardWhole(), QStringList{said}) << command.toStdString();
  }
}

TEST_F(PatientScreenTest, SearchHitSaysWhoIsOnView) {
  addNamed({u"見本 一郎"_s, u"架空 二郎"_s});
  screen::Screen& screen = patients();
  screen.setText(u"Combo3"_s, u"架空"_s);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(channel.lastSaid(), u"ﾚｺｰﾄﾞ: 2"_s + QChar(254) + u"架空 二郎"_s);
}

TEST_F(PatientScreenTest, StoringIsSaidWhenItIsDone) {
  addNamed({u"見本 一郎"_s});
  screen::Screen& screen = patients();
  answer({false, true});
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_NE(channel.lastSaid(), u"登録しました"_s);
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(channel.lastSaid(), u"登録しました"_s);
}

TEST_F(PatientScreenTest, DeletingSaysWhoIsLeft) {
  addNamed({u"見本 一郎"_s, u"架空 二郎"_s});
  screen::Screen& screen = patients();
  const QString part = QChar(254);
  answer({true, true});
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(channel.lastSaid(), u"削除しました"_s + part + u"ﾚｺｰﾄﾞ: 1"_s + part + u"架空 二郎"_s);
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(channel.lastSaid(), u"削除しました"_s + part + u"患者数:"_s + part + u"0"_s);
}

TEST_F(PatientScreenTest, DateButtonsSayTheirResult) {
  addPatient({{u"氏名"_s, u"見本"_s}, {u"生年月日"_s, u"平成1年2月3日"_s}});
  screen::Screen& screen = patients();
  const QString part = QChar(254);
  screen.trigger(u"Command3"_s);
  EXPECT_EQ(channel.lastSaid(), u"日付を西暦にしました"_s + part + u"1989/2/3"_s);
  screen.trigger(u"Command9"_s);
  EXPECT_EQ(channel.lastSaid(), u"日付を和暦にしました"_s + part + u"平成1年2月3日"_s);
  screen.trigger(u"Command8"_s);
  EXPECT_EQ(channel.lastSaid(), u"初診日:"_s + part + u"令和6年6月15日"_s);
}

}  // namespace
}  // namespace records
