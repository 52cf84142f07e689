#include "records/tests/screens/patient_screen_fixture.h"

// The patient screen: entering, storing, deleting and moving.

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;
using test::PatientScreenTest;

TEST_F(PatientScreenTest, PatientsOfOneDayAreNumberedInOrderOfEntry) {
  screen::Screen& screen = patients();
  for (const QString& patient : {u"見本 一郎"_s, u"見本 二郎"_s}) {
    answer({true, true});
    screen.trigger(u"Men_FA"_s);
    screen.setText(u"txtFields(4)"_s, patient);
    screen.trigger(u"cmdUpdate"_s);
  }
  EXPECT_EQ(stored(u"テキスト5"_s), (QStringList{u"20240615001"_s, u"20240615002"_s}));
  clock.set(QDate(2024, 6, 16));
  answer({true, true});
  screen.trigger(u"Men_FA"_s);
  screen.setText(u"txtFields(4)"_s, u"見本 三郎"_s);
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"テキスト5"_s).last(), u"20240616001"_s);
  EXPECT_EQ(stored(u"氏名"_s), (QStringList{u"見本 一郎"_s, u"見本 二郎"_s, u"見本 三郎"_s}));
}

TEST_F(PatientScreenTest, PatientOfAnotherComputerCountsInTheSerial) {
  screen::Screen& screen = patients();
  addPatient({{u"氏名"_s, u"見本 一郎"_s}, {u"テキスト5"_s, u"20240615001"_s}});
  answer({true, true});
  screen.trigger(u"Men_FA"_s);
  EXPECT_EQ(screen.text(u"Text2"_s), u"20240615002"_s);
}

TEST_F(PatientScreenTest, NewPatientIsAskedForAndTheUserIsRemindedToStore) {
  screen::Screen& screen = patients();
  answer({true});
  screen.trigger(u"Men_FA"_s);
  EXPECT_EQ(
      messages.texts(),
      (QStringList{
          u"　　　新しい患者を追加しますか？"_s,
          u"記入後には、登録ボタンを押してからカルテへ移動してください。登録ボタンをおさないとカルテは開きません。"_s}));
  EXPECT_EQ(screen.text(u"Text2"_s), u"20240615001"_s);
  EXPECT_EQ(screen.focused(), u"txtFields(1)"_s) << "a new patient begins with 患者ID";
}

TEST_F(PatientScreenTest, RefusedNewPatientChangesNothing) {
  addNamed({u"見本 一郎"_s});
  screen::Screen& screen = patients();
  answer({false});
  screen.trigger(u"Men_FA"_s);
  EXPECT_FALSE(screen.source().rows().adding());
  EXPECT_EQ(name(screen), u"見本 一郎"_s);
}

TEST_F(PatientScreenTest, MovingAwayWithoutStoringLosesTheNewPatient) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s});
  screen::Screen& screen = patients();
  answer({true});
  screen.trigger(u"Men_FA"_s);
  screen.setText(u"txtFields(4)"_s, u"見本 三郎"_s);
  screen.trigger(u"Command15"_s);
  EXPECT_EQ(name(screen), u"見本 一郎"_s);
  EXPECT_EQ(stored(u"氏名"_s).size(), 2);
}

TEST_F(PatientScreenTest, StoredPatientStaysOnTheScreen) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s, u"見本 三郎"_s});
  screen::Screen& screen = patients();
  screen.trigger(u"Command17"_s);
  screen.setText(u"txtFields(4)"_s, u"架空 二郎"_s);
  answer({true});
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(lastMessage(), u"       　　    登録しますか？"_s);
  EXPECT_EQ(name(screen), u"架空 二郎"_s);
  EXPECT_EQ(screen.caption(u"Data1"_s), u"ﾚｺｰﾄﾞ: 2"_s);
  EXPECT_EQ(stored(u"氏名"_s), (QStringList{u"見本 一郎"_s, u"架空 二郎"_s, u"見本 三郎"_s}));
}

TEST_F(PatientScreenTest, NewPatientStaysOnTheScreenAfterStoring) {
  addNamed({u"見本 一郎"_s});
  screen::Screen& screen = patients();
  answer({true, true});
  screen.trigger(u"Men_FA"_s);
  screen.setText(u"txtFields(4)"_s, u"見本 二郎"_s);
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(name(screen), u"見本 二郎"_s);
  EXPECT_EQ(screen.caption(u"Data1"_s), u"ﾚｺｰﾄﾞ: 2"_s);
  EXPECT_EQ(screen.caption(u"Label14"_s), u"2"_s);
}

TEST_F(PatientScreenTest, RefusedStoreLeavesTheTypedTextUnwritten) {
  addNamed({u"見本 一郎"_s});
  screen::Screen& screen = patients();
  screen.setText(u"txtFields(4)"_s, u"架空 一郎"_s);
  answer({false});
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(name(screen), u"架空 一郎"_s);
  EXPECT_EQ(stored(u"氏名"_s), QStringList{u"見本 一郎"_s});
}

TEST_F(PatientScreenTest, EveryFieldTravelsToItsColumn) {
  const QList<std::pair<QString, QString>> fields{{u"txtFields(1)"_s, u"患者ID"_s},
                                                  {u"txtFields(2)"_s, u"カルテ番号"_s},
                                                  {u"txtFields(3)"_s, u"ふりがな"_s},
                                                  {u"txtFields(4)"_s, u"氏名"_s},
                                                  {u"txtFields(5)"_s, u"性別"_s},
                                                  {u"txtF6"_s, u"生年月日"_s},
                                                  {u"txtFields(8)"_s, u"郵便番号"_s},
                                                  {u"txtFields(9)"_s, u"住所1"_s},
                                                  {u"txtFields(10)"_s, u"住所2"_s},
                                                  {u"txtFields(11)"_s, u"住所3"_s},
                                                  {u"txtFields(12)"_s, u"電話1"_s},
                                                  {u"txtFields(13)"_s, u"電話2"_s},
                                                  {u"txtFields(14)"_s, u"携帯"_s},
                                                  {u"txtFields(15)"_s, u"FAX"_s},
                                                  {u"txtFields(16)"_s, u"職業"_s},
                                                  {u"txtFields(17)"_s, u"会社名"_s},
                                                  {u"txtFields(18)"_s, u"紹介してくれた人"_s},
                                                  {u"txtFields(19)"_s, u"紹介した人"_s},
                                                  {u"txtFields(20)"_s, u"キーワード1"_s},
                                                  {u"txtFields(21)"_s, u"キーワード2"_s},
                                                  {u"txtFields(22)"_s, u"区分"_s},
                                                  {u"txtFields(23)"_s, u"日付1"_s},
                                                  {u"txtF24"_s, u"初診日"_s},
                                                  {u"txtFields(25)"_s, u"既往症"_s},
                                                  {u"txtFields(26)"_s, u"症状"_s},
                                                  {u"txtFields(27)"_s, u"治療"_s},
                                                  {u"txtFields(28)"_s, u"メモ1"_s},
                                                  {u"txtFields(29)"_s, u"テキスト1"_s},
                                                  {u"txtFields(30)"_s, u"テキスト2"_s},
                                                  {u"txtFields(31)"_s, u"テキスト3"_s},
                                                  {u"txtFields(32)"_s, u"担当者"_s},
                                                  {u"txtFields(33)"_s, u"割付"_s}};
  screen::Screen& screen = patients();
  answer({true, true});
  screen.trigger(u"Men_FA"_s);
  for (const auto& [control, column] : fields) screen.setText(control, u"値 "_s + column);
  screen.trigger(u"cmdUpdate"_s);
  ASSERT_EQ(stored(u"ID"_s).size(), 1);
  for (const auto& [control, column] : fields)
    EXPECT_EQ(stored(column), QStringList{u"値 "_s + column}) << column.toStdString();
}

TEST_F(PatientScreenTest, DeletedFirstPatientGivesWayToTheNewFirst) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s});
  screen::Screen& screen = patients();
  answer({true});
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(lastMessage(), u"　現在の表示の患者を削除しますか？"_s);
  EXPECT_EQ(name(screen), u"見本 二郎"_s);
  EXPECT_EQ(screen.caption(u"Data1"_s), u"ﾚｺｰﾄﾞ: 1"_s);
  EXPECT_EQ(stored(u"氏名"_s), QStringList{u"見本 二郎"_s});
}

TEST_F(PatientScreenTest, DeletedLaterPatientGivesWayToTheOneBefore) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s, u"見本 三郎"_s});
  screen::Screen& screen = patients();
  screen.trigger(u"Command17"_s);
  answer({true});
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(name(screen), u"見本 一郎"_s);
  EXPECT_EQ(stored(u"氏名"_s), (QStringList{u"見本 一郎"_s, u"見本 三郎"_s}));
}

TEST_F(PatientScreenTest, RefusedDeleteDeletesNothing) {
  addNamed({u"見本 一郎"_s});
  screen::Screen& screen = patients();
  answer({false});
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(stored(u"氏名"_s).size(), 1);
}

TEST_F(PatientScreenTest, DeletingAnUnstoredPatientLeavesTheOthersAlone) {
  addNamed({u"見本 一郎"_s});
  screen::Screen& screen = patients();
  answer({true, true});
  screen.trigger(u"Men_FA"_s);
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(stored(u"氏名"_s), QStringList{u"見本 一郎"_s});
  EXPECT_EQ(name(screen), u"見本 一郎"_s);
}

TEST_F(PatientScreenTest, DeletingTheOnlyPatientLeavesABlankScreen) {
  addNamed({u"見本 一郎"_s});
  screen::Screen& screen = patients();
  answer({true});
  screen.trigger(u"cmdDelete"_s);
  EXPECT_TRUE(stored(u"氏名"_s).isEmpty());
  EXPECT_EQ(name(screen), u""_s);
  EXPECT_EQ(screen.caption(u"Label14"_s), u"0"_s);
  messages.forget();
  screen.trigger(u"cmdDelete"_s);
  EXPECT_TRUE(messages.texts().isEmpty());
}

TEST_F(PatientScreenTest, MovesStayInsideTheTableAndShowTheirPlace) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s, u"見本 三郎"_s});
  screen::Screen& screen = patients();
  EXPECT_EQ(screen.caption(u"Label14"_s), u"3"_s);
  const QList<std::pair<QString, QString>> steps{
      {u"Command16"_s, u"ﾚｺｰﾄﾞ: 1"_s}, {u"Command18"_s, u"ﾚｺｰﾄﾞ: 3"_s}, {u"Command17"_s, u"ﾚｺｰﾄﾞ: 3"_s},
      {u"Command16"_s, u"ﾚｺｰﾄﾞ: 2"_s}, {u"Command15"_s, u"ﾚｺｰﾄﾞ: 1"_s}, {u"Command17"_s, u"ﾚｺｰﾄﾞ: 2"_s}};
  for (const auto& [command, place] : steps) {
    screen.trigger(command);
    EXPECT_EQ(screen.caption(u"Data1"_s), place) << command.toStdString();
  }
}

TEST_F(PatientScreenTest, MovingWritesThePendingEdit) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s});
  screen::Screen& screen = patients();
  screen.setText(u"txtFields(16)"_s, u"会社員"_s);
  screen.trigger(u"Command17"_s);
  EXPECT_EQ(stored(u"職業"_s).first(), u"会社員"_s);
}

}  // namespace
}  // namespace records
