#include "platform/screen/testing/screen_probe.h"
#include "records/tests/screens/patient_list_fixture.h"

// 一覧表: what it shows, and the way to the register.

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

class PatientListTest : public test::PatientListFixture {};

TEST_F(PatientListTest, ShowsAllPatientsAndTheSerialOfTheRow) {
  addPatient({{u"氏名"_s, u"見本 一郎"_s}, {u"テキスト5"_s, u"20240401001"_s}});
  addPatient({{u"氏名"_s, u"見本 二郎"_s}, {u"テキスト5"_s, u"20240401002"_s}});
  EXPECT_EQ(names(), (QStringList{u"見本 一郎"_s, u"見本 二郎"_s}));
  EXPECT_EQ(list().windowTitle(), u"一覧表と印刷"_s);
  EXPECT_EQ(list().text(u"Text1"_s), u"20240401001"_s);
  EXPECT_FALSE(list().isControlShown(u"Text1"_s));
  list().source().moveLast();
  EXPECT_EQ(list().text(u"Text1"_s), u"20240401002"_s);
  EXPECT_EQ(list().text(u"Text2"_s), u"2"_s);
  EXPECT_EQ(list().text(u"Text3"_s), u"ﾚｺｰﾄﾞ: 2"_s);
}

TEST_F(PatientListTest, TheCommandsHaveTheirCaptions) {
  const std::pair<QString, QString> captions[] = {{u"Command2"_s, u"全般抽出"_s},
                                                  {u"Command3"_s, u"特定抽出"_s},
                                                  {u"Command7"_s, u"並び替え"_s},
                                                  {u"Command5"_s, u"ＥＸＣＥＬへ変換"_s},
                                                  {u"Command4"_s, u"表示患者のタック印刷"_s},
                                                  {u"Command8"_s, u"患者名簿へ"_s},
                                                  {u"cmdRefresh"_s, u"全患者表示及び再表示"_s},
                                                  {u"Command1"_s, u"一覧表と印刷の終了"_s}};
  for (const auto& [command, caption] : captions)
    EXPECT_EQ(list().caption(command), caption) << command.toStdString();
}

TEST_F(PatientListTest, OpeningSaysHowManyPatientsThereAre) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s, u"見本 三郎"_s});
  screen::testing::ScreenProbe(list(), channel).open();
  EXPECT_EQ(channel.heardWhole().first(), u"一覧表と印刷"_s + kPart + u"表示の患者数:"_s + kPart + u"3"_s);
  EXPECT_TRUE(channel.heardWhole().last().endsWith(u"氏名"_s + kPart + u"見本 一郎"_s))
      << "the first row is heard";
}

TEST_F(PatientListTest, RecordKeysSayTheRow) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s});
  list().goLast();
  EXPECT_EQ(channel.heardWhole(), QStringList{u"ﾚｺｰﾄﾞ: 2"_s + kPart + u"見本 二郎"_s});
  list().goPrevious();
  EXPECT_EQ(channel.heardWhole(), QStringList{u"ﾚｺｰﾄﾞ: 1"_s + kPart + u"見本 一郎"_s});
}

TEST_F(PatientListTest, EndCloses) {
  list().trigger(u"Command1"_s);
  EXPECT_FALSE(isShown(u"一覧表"));
}

TEST_F(PatientListTest, UnbuiltSpreadsheetIsReportedByName) {
  addNamed({u"見本"_s});
  list().trigger(u"Command5"_s);
  EXPECT_EQ(lastMessage(), notYet(u"CSVEXCEL"_s));
}

TEST_F(PatientListTest, MissingFileIsReportedByName) {
  ASSERT_TRUE(QFile::remove(path(kFile)));
  list();
  EXPECT_TRUE(lastMessage().contains(kFile));
  for (const QString& command : {u"cmdRefresh"_s, u"Command4"_s, u"Command8"_s}) {
    messages.forget();
    list().trigger(command);
    EXPECT_TRUE(lastMessage().contains(kFile)) << command.toStdString();
  }
  EXPECT_FALSE(QFile::exists(path(kFile)));
}

// ---- 患者名簿へ ----

TEST_F(PatientListTest, HandsThePatientToTheRegister) {
  for (const QString& serial : {u"A1"_s, u"A2"_s, u"A3"_s})
    addPatient({{u"氏名"_s, u"見本 太郎"_s}, {u"テキスト5"_s, serial}});
  list().source().moveTo(1);
  list().trigger(u"Command8"_s);
  ASSERT_TRUE(isShown(u"治療台帳4"));
  screen::Screen& patients = *navigator.loaded(u"治療台帳4"_s);
  EXPECT_EQ(patients.text(u"Combo1"_s), u"氏名"_s);
  EXPECT_EQ(patients.text(u"Combo3"_s), u"見本 太郎"_s);
  EXPECT_EQ(patients.text(u"Text2"_s), u"A2"_s) << "the chosen one of three namesakes";
  EXPECT_EQ(patients.focused(), u"Combo3"_s);
  patients.trigger(u"Command1"_s);
  EXPECT_EQ(patients.text(u"Text2"_s), u"A3"_s) << "Enter goes on to the next of that name";
}

TEST_F(PatientListTest, HandsTheNameToTheOpenSearchDialogToo) {
  addNamed({u"見本 一郎"_s, u"例示 二郎"_s});
  screen::Screen& dialog = shown(u"選択4");
  dialog.choose(u"Frame1"_s, u"患者ID"_s);
  dialog.trigger(u"Command4"_s);
  ASSERT_TRUE(isShown(u"一覧表"));
  list().source().moveLast();
  list().trigger(u"Command8"_s);
  EXPECT_EQ(dialog.chosen(u"Frame1"_s), u"氏名"_s);
  EXPECT_EQ(dialog.text(u"Combo1"_s), u"例示 二郎"_s);
}

TEST_F(PatientListTest, PatientWhoIsGoneMeanwhileIsNotFound) {
  addNamed({u"見本 一郎"_s, u"例示 二郎"_s});
  list().source().moveLast();
  store::RecordSet other = table();
  other.moveLast();
  ASSERT_TRUE(other.remove());
  list().trigger(u"Command8"_s);
  screen::Screen& patients = *navigator.loaded(u"治療台帳4"_s);
  patients.onActivate();
  settle();
  EXPECT_EQ(messages.texts(), QStringList{kNotFound});
}

}  // namespace
}  // namespace records
