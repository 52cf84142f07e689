#include "records/tests/screens/patient_screen_fixture.h"

// The ways from the patient screen to other screens and back to the menu.

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;
using test::PatientScreenTest;

TEST_F(PatientScreenTest, AClaimOpensItsOwnPatient) {
  for (const auto& [serial, patient] :
       {std::pair(u"A1"_s, u"見本 一郎"_s), std::pair(u"A2"_s, u"見本 二郎"_s)})
    addPatient({{u"テキスト5"_s, serial}, {u"氏名"_s, patient}});
  screen::Screen& screen = patients();
  navigator.show(routes::PatientRegister{routes::PatientRegister::BySerial{u"A2"_s}});
  EXPECT_EQ(name(screen), u"見本 二郎"_s);
  navigator.show(routes::PatientRegister{routes::PatientRegister::BySerial{u"A2"_s}});
  EXPECT_EQ(name(screen), u"見本 二郎"_s);
}

TEST_F(PatientScreenTest, LeavingWritesThePendingEditAndShowsTheMenu) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s});
  screen::Screen& screen = patients();
  screen.trigger(u"Command18"_s);
  screen.setText(u"txtFields(16)"_s, u"自営"_s);
  screen.trigger(u"cmdClose"_s);
  EXPECT_FALSE(isShown(u"治療台帳4"));
  EXPECT_TRUE(isShown(u"選択3"));
  EXPECT_EQ(stored(u"職業"_s).last(), u"自営"_s);
  EXPECT_EQ(name(patients()), u"見本 二郎"_s);
}

TEST_F(PatientScreenTest, CloseBoxTurnsTheDatesIntoEraNotationFirst) {
  addPatient({{u"生年月日"_s, u"1953/3/5"_s}, {u"初診日"_s, u"2024/4/1"_s}});
  patients().close();
  EXPECT_FALSE(isShown(u"治療台帳4"));
  EXPECT_TRUE(isShown(u"選択3"));
  EXPECT_EQ(stored(u"生年月日"_s), QStringList{u"昭和28年3月5日"_s});
  EXPECT_EQ(stored(u"初診日"_s), QStringList{u"令和6年4月1日"_s});
}

TEST_F(PatientScreenTest, ARowThatCannotBeWrittenDoesNotLockTheUserIn) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s});
  screen::Screen& screen = patients();
  screen.setText(u"txtFields(16)"_s, u"自営"_s);
  store::RecordSet other = table();  // another computer deletes the patient on view
  ASSERT_TRUE(other.remove());
  answer({false, true});
  screen.trigger(u"cmdClose"_s);
  EXPECT_TRUE(isShown(u"治療台帳4"));
  EXPECT_EQ(screen.text(u"txtFields(16)"_s), u"自営"_s) << "what was typed stays until it is given up";
  screen.trigger(u"cmdClose"_s);
  EXPECT_FALSE(isShown(u"治療台帳4"));
  EXPECT_TRUE(isShown(u"選択3"));
  EXPECT_EQ(
      messages.texts().count(u"登録出来ませんでした。入力した内容を捨てて、メインメニューへ戻りますか？"_s),
      2);
  EXPECT_EQ(stored(u"氏名"_s), QStringList{u"見本 二郎"_s});
}

TEST_F(PatientScreenTest, NewClaimIsHandedThePatient) {
  addPatient({{u"氏名"_s, u"見本 太郎"_s},
              {u"ふりがな"_s, u"ﾐﾎﾝ ﾀﾛｳ"_s},
              {u"生年月日"_s, u"昭和28年3月5日"_s},
              {u"性別"_s, u"男"_s},
              {u"住所1"_s, u"あ"_s.repeated(30)},
              {u"住所2"_s, u"い"_s.repeated(30)},
              {u"電話1"_s, u"00-0000-0001"_s},
              {u"電話2"_s, u"00-0000-0002"_s},
              {u"患者ID"_s, u"17"_s},
              {u"カルテ番号"_s, u"K-4"_s},
              {u"郵便番号"_s, u"000-0001"_s},
              {u"初診日"_s, u"令和6年4月1日"_s},
              {u"テキスト5"_s, u"20240401001"_s}});
  standIn(u"新規レセプト"_s);
  patients().trigger(u"Command6"_s);
  const auto route = routeTo<routes::NewClaim>();
  ASSERT_TRUE(route);
  const frame::Patient& patient = route->patient;
  EXPECT_EQ(patient.name, u"見本 太郎"_s);
  EXPECT_EQ(patient.kana, u"ﾐﾎﾝ ﾀﾛｳ"_s);
  EXPECT_EQ(patient.birth, u"昭和28年3月5日"_s);
  EXPECT_EQ(patient.sex, u"男"_s);
  EXPECT_EQ(patient.telephone, u"00-0000-0001"_s);
  EXPECT_EQ(patient.serial, u"20240401001"_s);
  EXPECT_EQ(patient.address, u"あ"_s.repeated(30) + u"い"_s.repeated(9));
  EXPECT_EQ(patient.number, u"17"_s);
  EXPECT_EQ(patient.chartNumber, u"K-4"_s);
  EXPECT_EQ(patient.zip, u"000-0001"_s);
  EXPECT_EQ(patient.firstVisit, u"令和6年4月1日"_s);
}

TEST_F(PatientScreenTest, ClaimsOfThePatientGoByTheSerialElseByTheName) {
  addPatient({{u"氏名"_s, u"見本 太郎"_s}, {u"テキスト5"_s, u"20240401001"_s}});
  addPatient({{u"氏名"_s, u"見本 次郎"_s}});
  standIn(u"レセプト一覧表"_s);
  screen::Screen& screen = patients();
  screen.trigger(u"Men_FR"_s);
  EXPECT_EQ(routeTo<routes::ClaimList>().value().criteria, u"番号1 ='20240401001' "_s);
  screen.trigger(u"Command17"_s);
  screen.trigger(u"Command7"_s);
  EXPECT_EQ(routeTo<routes::ClaimList>().value().criteria, u"氏名='見本 次郎' "_s);
}

TEST_F(PatientScreenTest, ChartOneNeedsASerial) {
  addNamed({u"見本"_s});
  patients().trigger(u"Command2"_s);
  EXPECT_TRUE(messages.texts().isEmpty());
}

struct CommandCase {
  QString command, screen;
};
class PatientCommandTest : public PatientScreenTest, public testing::WithParamInterface<CommandCase> {};

TEST_P(PatientCommandTest, CommandOpensItsScreen) {
  addPatient({{u"テキスト5"_s, u"20240401001"_s}});
  standIn(GetParam().screen);
  patients().trigger(GetParam().command);
  EXPECT_TRUE(navigator.isShown(GetParam().screen)) << GetParam().command.toStdString();
  EXPECT_TRUE(messages.texts().isEmpty());
}

TEST_F(PatientScreenTest, UnbuiltScreenIsReportedByName) {
  addPatient({{u"テキスト5"_s, u"20240401001"_s}});
  patients().trigger(u"Command5"_s);
  EXPECT_EQ(messages.texts(), QStringList{notYet(u"GEDIT"_s)});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PatientCommandTest,
    testing::Values(CommandCase{u"Command2"_s, u"治療台帳2"_s}, CommandCase{u"Men_FK1"_s, u"治療台帳2"_s},
                    CommandCase{u"Command4"_s, u"治療台帳3"_s}, CommandCase{u"Men_FK2"_s, u"治療台帳3"_s},
                    CommandCase{u"Command5"_s, u"GEDIT"_s}, CommandCase{u"cmdAdd"_s, u"frm経穴"_s},
                    CommandCase{u"Men_FJ3"_s, u"frm経穴"_s}, CommandCase{u"Men_FJ1"_s, u"frmCLmoji"_s},
                    CommandCase{u"Men_FJ2"_s, u"frmCl2moji"_s}, CommandCase{u"Men_FO"_s, u"一覧表"_s},
                    CommandCase{u"Men_RA"_s, u"領収証選択"_s}, CommandCase{u"Men_YD"_s, u"予約2"_s},
                    CommandCase{u"Men_YY"_s, u"予約2"_s}, CommandCase{u"Men_YK"_s, u"今日の予約"_s},
                    CommandCase{u"Men_YI"_s, u"予約週間表"_s}, CommandCase{u"Men_AT"_s, u"登録"_s},
                    CommandCase{u"Men_ALF"_s, u"LANフォルダ指定"_s}, CommandCase{u"Men_ACHK"_s, u"txtbox"_s},
                    CommandCase{u"Men_Am"_s, u"データ送"_s}, CommandCase{u"Men_Amml"_s, u"データ送2"_s}));

}  // namespace
}  // namespace records
