#include <QAction>
#include <QComboBox>
#include <QKeyEvent>

#include "records/tests/screens/records_fixture.h"

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

class PatientScreenTest : public test::RecordsFixture {
 protected:
  screen::Screen& patients() { return shown(u"治療台帳4"); }
  static QString name(screen::Screen& screen) { return screen.text(u"txtFields(4)"_s); }
};

// ---- New patients and storing ----

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

TEST_F(PatientScreenTest, NewPatientIsAskedForAndToldToBeStored) {
  screen::Screen& screen = patients();
  answer({true});
  screen.trigger(u"Men_FA"_s);
  EXPECT_EQ(
      messages.texts(),
      (QStringList{
          u"　　　新しい患者を追加しますか？"_s,
          u"記入後には、登録ボタンを押してからカルテへ移動してください。登録ボタンをおさないとカルテは開きません。"_s}));
  EXPECT_EQ(run.lastAnswer, 1);
  EXPECT_EQ(screen.text(u"Text2"_s), u"20240615001"_s);
}

TEST_F(PatientScreenTest, RefusedNewPatientChangesNothing) {
  addNamed({u"見本 一郎"_s});
  screen::Screen& screen = patients();
  answer({false});
  screen.trigger(u"Men_FA"_s);
  EXPECT_EQ(run.lastAnswer, 0);
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

TEST_F(PatientScreenTest, RefusedStoreKeepsTheTypedTextUnwritten) {
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

// ---- Deleting and moving ----

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

TEST_F(PatientScreenTest, RefusedDeleteKeepsThePatient) {
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

// ---- An empty register ----

TEST_F(PatientScreenTest, NothingToStoreIsOfferedAsAFirstPatientWhoTakesWhatWasTyped) {
  screen::Screen& screen = patients();
  screen.setText(u"txtFields(4)"_s, u"見本 一郎"_s);
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_TRUE(messages.texts().isEmpty()) << "not asked, not told as stored";
  EXPECT_FALSE(channel.said().contains(u"登録しました"_s));
  ASSERT_TRUE(isShown(u"無データ"));
  navigator.loaded(u"無データ"_s)->trigger(u"Command1"_s);
  EXPECT_EQ(name(screen), u"見本 一郎"_s);
  EXPECT_EQ(screen.text(u"Text2"_s), u"20240615001"_s);
  answer({true});
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"氏名"_s), QStringList{u"見本 一郎"_s});
  EXPECT_EQ(channel.lastSaid(), u"登録しました"_s);
}

TEST_F(PatientScreenTest, TypedFirstPatientLeavesOneEnteredMeanwhileAlone) {
  screen::Screen& screen = patients();
  screen.setText(u"txtFields(4)"_s, u"見本 一郎"_s);
  addPatient({{u"氏名"_s, u"例示 花子"_s}, {u"テキスト5"_s, u"20240615001"_s}});
  answer({true, true});
  screen.trigger(u"Men_FA"_s);
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"氏名"_s), (QStringList{u"例示 花子"_s, u"見本 一郎"_s}));
  EXPECT_EQ(stored(u"テキスト5"_s), (QStringList{u"20240615001"_s, u"20240615002"_s}));
}

TEST_F(PatientScreenTest, AnEmptyRegisterHasNobodyToOpenARoomFor) {
  screen::Screen& screen = patients();
  screen.trigger(u"Command8"_s);  // today's date stands on the screen
  for (const char16_t* room :
       {u"Command2", u"Command4", u"Command5", u"Command6", u"Command7", u"Men_RA", u"Men_YD"}) {
    screen.trigger(QString::fromUtf16(room));
    EXPECT_TRUE(isShown(u"無データ")) << QString::fromUtf16(room).toStdString();
    navigator.unload(u"無データ"_s);
  }
  EXPECT_TRUE(messages.texts().isEmpty()) << messages.texts().join(u'|').toStdString();
  channel.clear();
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(channel.lastSaid(), u"患者数:"_s + QChar(254) + u"0"_s);
}

TEST_F(PatientScreenTest, MovesStayInsideTheTableAndTellTheirPlace) {
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

TEST_F(PatientScreenTest, AClaimOpensItsOwnPatient) {
  for (const auto& [serial, patient] :
       {std::pair(u"A1"_s, u"見本 一郎"_s), std::pair(u"A2"_s, u"見本 二郎"_s)})
    addPatient({{u"テキスト5"_s, serial}, {u"氏名"_s, patient}});
  screen::Screen& screen = patients();
  navigator.show(u"治療台帳4"_s, {{u"テキスト5"_s, u"A2"_s}});
  EXPECT_EQ(name(screen), u"見本 二郎"_s);
  navigator.show(u"治療台帳4"_s, {{u"テキスト5"_s, u"A2"_s}});
  EXPECT_EQ(name(screen), u"見本 二郎"_s);
}

TEST_F(PatientScreenTest, MovingWritesThePendingEdit) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s});
  screen::Screen& screen = patients();
  screen.setText(u"txtFields(16)"_s, u"会社員"_s);
  screen.trigger(u"Command17"_s);
  EXPECT_EQ(stored(u"職業"_s).first(), u"会社員"_s);
}

// ---- Search inside the table ----

TEST_F(PatientScreenTest, SearchGoesFromHitToHitAndRoundTheEnd) {
  addNamed({u"サトウ 一"_s, u"例示 二"_s, u"佐藤さとう"_s});
  screen::Screen& screen = patients();
  screen.setText(u"Combo1"_s, u"氏名"_s);
  screen.setText(u"Combo3"_s, u"ｻﾄｳ"_s);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(name(screen), u"佐藤さとう"_s);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(name(screen), u"サトウ 一"_s);
  EXPECT_TRUE(messages.texts().isEmpty());
}

TEST_F(PatientScreenTest, NoHitIsToldAndThePlaceRestored) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s});
  screen::Screen& screen = patients();
  screen.trigger(u"Command18"_s);
  screen.setText(u"Combo3"_s, u"ない名前"_s);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(lastMessage(), u"該当がありません。"_s);
  EXPECT_EQ(messages.titles().last(), u"Not found"_s);
  EXPECT_EQ(name(screen), u"見本 二郎"_s);
}

TEST_F(PatientScreenTest, BlankWordSearchesNothingAndIsAskedFor) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s});
  screen::Screen& screen = patients();
  screen.setText(u"Combo3"_s, u""_s);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(screen.focused(), u"Combo3"_s);
  EXPECT_EQ(channel.lastSaid(), u"検索文字:"_s);
  EXPECT_EQ(name(screen), u"見本 一郎"_s);
  EXPECT_TRUE(messages.texts().isEmpty());
}

TEST_F(PatientScreenTest, QuoteInTheWordGivesTheEnginesOwnText) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s});
  screen::Screen& screen = patients();
  screen.trigger(u"Command18"_s);
  screen.setText(u"Combo3"_s, u"O'x"_s);
  screen.trigger(u"Command1"_s);
  const QString label = QString::fromUtf16(screen::kDataControlText);
  EXPECT_TRUE(lastMessage().startsWith(label));
  EXPECT_GT(lastMessage().size(), label.size());
  EXPECT_EQ(name(screen), u"見本 二郎"_s);
}

TEST_F(PatientScreenTest, SearchBySexAndOtherColumns) {
  addPatient({{u"氏名"_s, u"見本 一郎"_s}, {u"性別"_s, u"男"_s}, {u"ふりがな"_s, u"ﾐﾎﾝ ｲﾁﾛｳ"_s}});
  addPatient({{u"氏名"_s, u"架空 花子"_s}, {u"性別"_s, u"女"_s}, {u"ふりがな"_s, u"ｶｸｳ ﾊﾅｺ"_s}});
  screen::Screen& screen = patients();
  screen.setText(u"Combo1"_s, u"フリガナ"_s);
  screen.setText(u"Combo3"_s, u"ハナコ"_s);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(name(screen), u"架空 花子"_s);
}

// ---- Dates and age ----

struct AgeCase {
  QString birth, age;
};
class PatientAgeTest : public PatientScreenTest, public testing::WithParamInterface<AgeCase> {};

TEST_P(PatientAgeTest, IsComputedAtStore) {
  addPatient({{u"氏名"_s, u"見本"_s}, {u"年齢"_s, u"7"_s}});
  screen::Screen& screen = patients();
  screen.setText(u"txtF6"_s, GetParam().birth);
  answer({true});
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(screen.text(u"txtFields(7)"_s), GetParam().age) << GetParam().birth.toStdString();
}

// Today is 15 June 2024; a blank or unreadable birth date leaves the age as it was.
INSTANTIATE_TEST_SUITE_P(Rows, PatientAgeTest,
                         testing::Values(AgeCase{u"1950/6/15"_s, u"74"_s}, AgeCase{u"1950/7/20"_s, u"73"_s},
                                         AgeCase{u"昭和28年3月5日"_s, u"71"_s}, AgeCase{u""_s, u"7"_s},
                                         AgeCase{u"いつか"_s, u"7"_s}));

TEST_F(PatientScreenTest, EnterInTheSearchWordSearches) {
  addNamed({u"見本 一郎"_s, u"架空 二郎"_s});
  screen::Screen& screen = patients();
  screen.setText(u"Combo3"_s, u"架空"_s);
  screen.focusOn(u"Combo3"_s);
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QCoreApplication::sendEvent(screen.focusWidget(), &enter);
  EXPECT_EQ(name(screen), u"架空 二郎"_s);
}

TEST_F(PatientScreenTest, EnterInTheBirthDateComputesTheAge) {
  addNamed({u"見本"_s});
  screen::Screen& screen = patients();
  screen.setText(u"txtF6"_s, u"2000/1/1"_s);
  screen.focusOn(u"txtF6"_s);
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QCoreApplication::sendEvent(screen.focusWidget(), &enter);
  EXPECT_EQ(screen.text(u"txtFields(7)"_s), u"24"_s);
  EXPECT_EQ(channel.lastSaid(), u"年齢:"_s + QChar(254) + u"24"_s);
}

TEST_F(PatientScreenTest, BothDatesChangeNotationTogether) {
  addPatient({{u"生年月日"_s, u"昭和28年3月5日"_s}, {u"初診日"_s, u"令和6年4月1日"_s}});
  screen::Screen& screen = patients();
  screen.trigger(u"Command3"_s);
  EXPECT_EQ(screen.text(u"txtF6"_s), u"1953/3/5"_s);
  EXPECT_EQ(screen.text(u"txtF24"_s), u"2024/4/1"_s);
  EXPECT_EQ(screen.text(u"txtFields(7)"_s), u"71"_s);
  screen.trigger(u"Command3"_s);
  EXPECT_EQ(screen.text(u"txtF6"_s), u"1953/3/5"_s);
  screen.trigger(u"Command9"_s);
  EXPECT_EQ(screen.text(u"txtF6"_s), u"昭和28年3月5日"_s);
  EXPECT_EQ(screen.text(u"txtF24"_s), u"令和6年4月1日"_s);
}

TEST_F(PatientScreenTest, TodayFillsABlankFirstVisitOnly) {
  addPatient({{u"氏名"_s, u"見本"_s}});
  screen::Screen& screen = patients();
  screen.trigger(u"Command8"_s);
  EXPECT_EQ(screen.text(u"txtF24"_s), u"令和6年6月15日"_s);
  clock.set(QDate(2024, 6, 20));
  screen.trigger(u"Command8"_s);
  EXPECT_EQ(screen.text(u"txtF24"_s), u"令和6年6月15日"_s);
  screen.trigger(u"Men_VF8"_s);
  EXPECT_EQ(desktop.copiedText(), u"令和6年6月20日"_s);
}

TEST_F(PatientScreenTest, ChosenSexGoesIntoTheField) {
  addNamed({u"見本"_s});
  screen::Screen& screen = patients();
  EXPECT_EQ(screen.items(u"Combo2"_s), (QStringList{u"男"_s, u"女"_s}));
  auto* combo = screen.findChild<QComboBox*>(u"Combo2"_s);
  ASSERT_NE(combo, nullptr);
  combo->setCurrentIndex(1);
  EXPECT_EQ(screen.text(u"txtFields(5)"_s), u"女"_s);
}

// ---- Leaving and other rooms ----

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
  EXPECT_EQ(run.lastAnswer, 1);
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
              {u"テキスト5"_s, u"20240401001"_s}});
  standIn(u"新規レセプト"_s);
  patients().trigger(u"Command6"_s);
  const screen::Request request = requestOf(u"新規レセプト"_s);
  EXPECT_EQ(request.value(u"氏名"_s).toString(), u"見本 太郎"_s);
  EXPECT_EQ(request.value(u"ふりがな"_s).toString(), u"ﾐﾎﾝ ﾀﾛｳ"_s);
  EXPECT_EQ(request.value(u"生年月日"_s).toString(), u"昭和28年3月5日"_s);
  EXPECT_EQ(request.value(u"性別"_s).toString(), u"男"_s);
  EXPECT_EQ(request.value(u"電話1"_s).toString(), u"00-0000-0001"_s);
  EXPECT_EQ(request.value(u"テキスト5"_s).toString(), u"20240401001"_s);
  EXPECT_EQ(request.value(u"住所1"_s).toString(), u"あ"_s.repeated(30) + u"い"_s.repeated(9));
}

TEST_F(PatientScreenTest, ClaimsOfThePatientGoByTheSerialElseByTheName) {
  addPatient({{u"氏名"_s, u"見本 太郎"_s}, {u"テキスト5"_s, u"20240401001"_s}});
  addPatient({{u"氏名"_s, u"見本 次郎"_s}});
  standIn(u"レセプト一覧表"_s);
  screen::Screen& screen = patients();
  screen.trigger(u"Men_FR"_s);
  EXPECT_EQ(requestOf(u"レセプト一覧表"_s).value(u"criteria"_s).toString(), u"番号1 ='20240401001' "_s);
  screen.trigger(u"Command17"_s);
  screen.trigger(u"Command7"_s);
  EXPECT_EQ(requestOf(u"レセプト一覧表"_s).value(u"criteria"_s).toString(), u"氏名='見本 次郎' "_s);
}

TEST_F(PatientScreenTest, ChartOneNeedsASerial) {
  addNamed({u"見本"_s});
  patients().trigger(u"Command2"_s);
  EXPECT_TRUE(messages.texts().isEmpty());
}

struct RoomCase {
  QString command, room;
};
class PatientRoomTest : public PatientScreenTest, public testing::WithParamInterface<RoomCase> {};

TEST_P(PatientRoomTest, CommandOpensItsRoom) {
  addPatient({{u"テキスト5"_s, u"20240401001"_s}});
  standIn(GetParam().room);
  patients().trigger(GetParam().command);
  EXPECT_TRUE(navigator.isShown(GetParam().room)) << GetParam().command.toStdString();
  EXPECT_TRUE(messages.texts().isEmpty());
}

TEST_F(PatientScreenTest, RoomThatIsNotThereYetIsToldByName) {
  addPatient({{u"テキスト5"_s, u"20240401001"_s}});
  patients().trigger(u"Command5"_s);
  EXPECT_EQ(messages.texts(), QStringList{notYet(u"GEDIT"_s)});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PatientRoomTest,
    testing::Values(RoomCase{u"Command2"_s, u"治療台帳2"_s}, RoomCase{u"Men_FK1"_s, u"治療台帳2"_s},
                    RoomCase{u"Command4"_s, u"治療台帳3"_s}, RoomCase{u"Men_FK2"_s, u"治療台帳3"_s},
                    RoomCase{u"Command5"_s, u"GEDIT"_s}, RoomCase{u"cmdAdd"_s, u"frm経穴"_s},
                    RoomCase{u"Men_FJ3"_s, u"frm経穴"_s}, RoomCase{u"Men_FJ1"_s, u"frmCLmoji"_s},
                    RoomCase{u"Men_FJ2"_s, u"frmCl2moji"_s}, RoomCase{u"Men_FO"_s, u"一覧表"_s},
                    RoomCase{u"Men_RA"_s, u"領収証選択"_s}, RoomCase{u"Men_YD"_s, u"予約2"_s},
                    RoomCase{u"Men_YY"_s, u"予約2"_s}, RoomCase{u"Men_YK"_s, u"今日の予約"_s},
                    RoomCase{u"Men_YI"_s, u"予約週間表"_s}, RoomCase{u"Men_AT"_s, u"登録"_s},
                    RoomCase{u"Men_ALF"_s, u"LANフォルダ指定"_s}, RoomCase{u"Men_ACHK"_s, u"txtbox"_s},
                    RoomCase{u"Men_Am"_s, u"データ送"_s}, RoomCase{u"Men_Amml"_s, u"データ送2"_s}));

// ---- Opening ----

TEST_F(PatientScreenTest, PracticesOwnCaptionsStandOnTheFields) {
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

TEST_F(PatientScreenTest, MissingFileIsToldByNameAndNothingIsMade) {
  ASSERT_TRUE(QFile::remove(path(kFile)));
  patients();
  EXPECT_TRUE(lastMessage().startsWith(QString::fromUtf16(screen::kDataControlText)));
  EXPECT_TRUE(lastMessage().contains(kFile));
  EXPECT_FALSE(QFile::exists(path(kFile)));
}

}  // namespace
}  // namespace records
