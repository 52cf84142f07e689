#include "platform/store/growth.h"
#include "records/core/search_history.h"
#include "records/tests/screens/records_fixture.h"

// The ways into 治療台帳4: at first with its question, from the appointment book, back from a chart.

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

const QString kPart = QChar(254);
const QString kQuestion =
    u"電子カルテのデータに新しいデータを追加します。データによっては時間がかかります。"_s;
const QString kGrown = u"正常に電子カルテのデータに新しいデータが追加されました。"_s;

class PatientOpeningTest : public test::RecordsFixture {
 protected:
  using Register = routes::PatientRegister;
  /// Shows the screen as another screen does, and waits until it has the keyboard.
  screen::Screen& enter(const Register& route = {}) {
    screen::Screen* screen = navigator.show(route);
    EXPECT_NE(screen, nullptr);
    screen->onActivate();
    settle();
    return *screen;
  }
  void makeOlderFile() {
    ASSERT_TRUE(QFile::remove(path(kFile)));
    ASSERT_TRUE(store::createFresh(path(kFile), kFile, store::FreshColumns::FirstSchema));
  }
  bool isOlder() const { return store::needsGrowth(path(kFile), store::GrowthRun::Patient).value(); }
};

// ---- Columns of an older file ----

TEST_F(PatientOpeningTest, OlderFileIsAskedForOnceItHasTheKeyboardAndGrows) {
  makeOlderFile();
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s});
  run.patientOnView = 2;
  answer({true});
  ASSERT_TRUE(isOlder());
  screen::Screen& screen = *navigator.show(u"治療台帳4"_s);
  EXPECT_TRUE(messages.texts().isEmpty()) << "not before the screen is there";
  screen.onActivate();
  settle();
  EXPECT_EQ(messages.texts(), (QStringList{kQuestion, kGrown}));
  EXPECT_EQ(messages.titles(), (QStringList{u"データ追加"_s, u"データ追加"_s}));
  EXPECT_FALSE(isOlder());
  EXPECT_EQ(screen.text(u"txtFields(4)"_s), u"見本 二郎"_s) << "the patient stays on view";
  EXPECT_EQ(channel.heardWhole().filter(u"※の項目は必ず入力して下さい。"_s).size(), 1)
      << "the opening is heard after the question: " << channel.said().join(u'|').toStdString();
  EXPECT_EQ(stored(u"氏名"_s), (QStringList{u"見本 一郎"_s, u"見本 二郎"_s}));
}

TEST_F(PatientOpeningTest, GrownOnceIsNotAskedAgain) {
  makeOlderFile();
  answer({true});
  enter();
  navigator.unload(u"治療台帳4"_s);
  messages.forget();
  enter();
  EXPECT_TRUE(messages.texts().isEmpty());
}

TEST_F(PatientOpeningTest, RefusedGrowthLeavesTheScreenWorkingAndIsAskedAtTheNextLoad) {
  makeOlderFile();
  addNamed({u"見本 一郎"_s});
  answer({false});
  screen::Screen& screen = enter();
  EXPECT_EQ(messages.texts(), QStringList{kQuestion});
  EXPECT_TRUE(isOlder());
  screen.onActivate();
  settle();
  EXPECT_EQ(messages.texts().size(), 1) << "once a load";
  screen.setText(u"txtFields(16)"_s, u"会社員"_s);
  answer({true});
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"職業"_s), QStringList{u"会社員"_s});
  navigator.unload(u"治療台帳4"_s);
  messages.forget();
  answer({false});
  enter();
  EXPECT_EQ(messages.texts(), QStringList{kQuestion});
}

TEST_F(PatientOpeningTest, ARowBeingEnteredOutlivesTheGrowth) {
  makeOlderFile();
  addNamed({u"見本 一郎"_s});
  answer({true, true});
  screen::Screen& screen = enter({Register::NewPatient{}});
  EXPECT_EQ(messages.texts().last(), kGrown);
  ASSERT_TRUE(screen.source().rows().adding());
  screen.setText(u"txtFields(4)"_s, u"見本 二郎"_s);
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"氏名"_s), (QStringList{u"見本 一郎"_s, u"見本 二郎"_s}));
  EXPECT_EQ(stored(u"テキスト5"_s).last(), u"20240615001"_s);
}

TEST_F(PatientOpeningTest, WholeFileAsksNothing) {
  enter();
  EXPECT_TRUE(messages.texts().isEmpty());
}

// ---- From the appointment book ----

TEST_F(PatientOpeningTest, BookedPatientIsFound) {
  addNamed({u"見本 一郎"_s, u"例示 二郎"_s, u"例示 二郎"_s});
  screen::Screen& screen = enter({Register::Booked{u"例示 二郎"_s, {}}});
  EXPECT_EQ(screen.text(u"Combo1"_s), u"氏名"_s);
  EXPECT_EQ(screen.text(u"Combo3"_s), u"例示 二郎"_s);
  EXPECT_EQ(screen.caption(u"Data1"_s), u"ﾚｺｰﾄﾞ: 2"_s) << "the first of the name";
  EXPECT_TRUE(messages.texts().isEmpty());
  EXPECT_TRUE(channel.said().contains(u"ﾚｺｰﾄﾞ: 2"_s + kPart + u"例示 二郎"_s));
}

TEST_F(PatientOpeningTest, BookedPatientIsFoundFromTheTopEachTime) {
  addNamed({u"例示 一"_s, u"見本 二"_s, u"例示 一"_s});
  screen::Screen& screen = enter();
  screen.goLast();
  enter({Register::Booked{u"例示 一"_s, {}}});
  EXPECT_EQ(screen.caption(u"Data1"_s), u"ﾚｺｰﾄﾞ: 1"_s);
}

TEST_F(PatientOpeningTest, BookedPersonWhoIsNoPatientYetIsAdded) {
  addPatient({{u"氏名"_s, u"見本 一郎"_s}, {u"テキスト5"_s, u"20240615004"_s}});
  screen::Screen& screen = *navigator.show(Register{Register::Booked{u"例示 花子"_s, {}}});
  EXPECT_TRUE(messages.texts().isEmpty()) << "told when the screen has the keyboard";
  screen.onActivate();
  settle();
  EXPECT_EQ(messages.texts(), QStringList{u"該当がありません。データを新規に追加します。"_s});
  EXPECT_TRUE(channel.heardWhole().contains(u"新規追加"_s + kPart + u"例示 花子"_s));
  EXPECT_TRUE(screen.source().rows().adding());
  EXPECT_EQ(screen.text(u"txtFields(4)"_s), u"例示 花子"_s);
  EXPECT_EQ(screen.text(u"Text2"_s), u"20240615005"_s);
  answer({true});
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"氏名"_s), (QStringList{u"見本 一郎"_s, u"例示 花子"_s}));
}

TEST_F(PatientOpeningTest, BookedPersonOnAnEmptyRegisterIsTheFirst) {
  screen::Screen& screen = enter({Register::Booked{u"例示 花子"_s, {}}});
  EXPECT_EQ(screen.text(u"Text2"_s), u"20240615001"_s);
  EXPECT_EQ(screen.text(u"txtFields(4)"_s), u"例示 花子"_s);
}

TEST_F(PatientOpeningTest, ANameWithAQuoteAddsNobody) {
  addNamed({u"見本 一郎"_s});
  screen::Screen& screen = enter({Register::Booked{u"O'x"_s, {}}});
  EXPECT_TRUE(lastMessage().startsWith(QString::fromUtf16(screen::kDataControlText)));
  EXPECT_FALSE(screen.source().rows().adding());
}

// ---- From a claim, and from the search ----

TEST_F(PatientOpeningTest, UnknownSerialOfAClaimIsReportedOnceTheScreenHasTheKeyboard) {
  addPatient({{u"氏名"_s, u"見本 一郎"_s}, {u"テキスト5"_s, u"A1"_s}});
  screen::Screen& screen = *navigator.show(Register{Register::BySerial{u"A9"_s}});
  EXPECT_TRUE(messages.texts().isEmpty());
  screen.onActivate();
  settle();
  EXPECT_EQ(messages.texts(), QStringList{u"該当がありません。"_s});
  EXPECT_EQ(messages.titles(), QStringList{u"Not found"_s});
  EXPECT_EQ(screen.text(u"txtFields(4)"_s), u"見本 一郎"_s);
}

TEST_F(PatientOpeningTest, OpeningSaysThePatientThenTheFourNotes) {
  addNamed({u"見本 一郎"_s});
  enter({Register::Announced{}});
  const QStringList said = channel.heardWhole();
  ASSERT_GE(said.size(), 2);
  EXPECT_EQ(said[0], u"ﾚｺｰﾄﾞ: 1"_s + kPart + u"見本 一郎"_s);
  EXPECT_EQ(said[1], u"治療台帳"_s + kPart + u"※の項目は必ず入力して下さい。"_s + kPart +
                         u"フリガナは半角カナで入力して下さい。"_s + kPart +
                         u"生年月日の記入例：2019/5/25（西暦）"_s + kPart + u"住所は全角20文字まで"_s);
}

// ---- Charts and back ----

TEST_F(PatientOpeningTest, ChartsAreHandedThePatient) {
  addPatient({{u"氏名"_s, u"見本 太郎"_s}, {u"生年月日"_s, u"昭和28年3月5日"_s}, {u"テキスト5"_s, u"A1"_s}});
  standIn(u"治療台帳2"_s);
  standIn(u"治療台帳3"_s);
  screen::Screen& screen = enter();
  screen.trigger(u"Command2"_s);
  const auto texts = routeTo<routes::PatientTexts>();
  ASSERT_TRUE(texts);
  EXPECT_EQ(texts->serial, u"A1"_s);
  EXPECT_EQ(texts->name, u"見本 太郎"_s);
  screen.trigger(u"Men_FK2"_s);
  const auto ledger = routeTo<routes::VisitLedger>();
  const auto* of = ledger ? std::get_if<routes::VisitLedger::Of>(&ledger->what) : nullptr;
  ASSERT_NE(of, nullptr);
  EXPECT_EQ(of->serial, u"A1"_s);
  EXPECT_EQ(of->name, u"見本 太郎"_s);
  EXPECT_EQ(of->birth, u"昭和28年3月5日"_s);
  EXPECT_EQ(of->opener, routes::PatientRegister::screen);
}

TEST_F(PatientOpeningTest, ChartsOfARowThatWasNotStoredStayClosed) {
  addNamed({u"見本 一郎"_s});
  standIn(u"治療台帳2"_s);
  standIn(u"治療台帳3"_s);
  screen::Screen& screen = enter({Register::NewPatient{}});
  for (const QString& command : {u"Command2"_s, u"Command4"_s, u"Command5"_s}) {
    messages.forget();
    screen.trigger(command);
    EXPECT_TRUE(lastMessage().endsWith(u"登録ボタンをおさないとカルテは開きません。"_s))
        << command.toStdString();
    EXPECT_TRUE(screen.source().rows().adding());
  }
  EXPECT_FALSE(isShown(u"治療台帳2"));
  EXPECT_FALSE(isShown(u"治療台帳3"));
}

TEST_F(PatientOpeningTest, PendingTextIsStoredBeforeTheChartOpens) {
  addPatient({{u"氏名"_s, u"見本 太郎"_s}, {u"テキスト5"_s, u"A1"_s}});
  standIn(u"治療台帳2"_s);
  screen::Screen& screen = enter();
  screen.setText(u"txtFields(16)"_s, u"自営"_s);
  screen.trigger(u"Command2"_s);
  EXPECT_EQ(stored(u"職業"_s), QStringList{u"自営"_s});
}

TEST_F(PatientOpeningTest, WhatAChartChangedIsSeenOnComingBack) {
  addPatient({{u"氏名"_s, u"見本 太郎"_s}, {u"テキスト5"_s, u"A1"_s}});
  standIn(u"治療台帳2"_s);
  screen::Screen& screen = enter();
  screen.trigger(u"Command2"_s);
  store::RecordSet other = table();
  ASSERT_TRUE(other.edit());
  ASSERT_TRUE(other.setValue(u"既往症"_s, u"腰痛"_s));
  ASSERT_TRUE(other.update());
  enter();
  EXPECT_EQ(screen.text(u"txtFields(25)"_s), u"腰痛"_s);
  screen.setText(u"txtFields(16)"_s, u"自営"_s);
  enter();
  EXPECT_EQ(screen.text(u"txtFields(16)"_s), u"自営"_s) << "what is typed stays";
}

TEST_F(PatientOpeningTest, PatientWithoutASerialHasNoCharts) {
  addNamed({u"見本"_s});
  standIn(u"治療台帳3"_s);
  screen::Screen& screen = enter();
  for (const QString& command : {u"Command2"_s, u"Command4"_s, u"Command5"_s}) {
    screen.trigger(command);
    EXPECT_EQ(channel.lastSaid(), u"この患者には、カルテの番号（テキスト5）がありません"_s);
  }
  EXPECT_TRUE(messages.texts().isEmpty());
  EXPECT_FALSE(isShown(u"治療台帳3")) << "a blank serial would show the visits of everybody";
}

struct BookingCase {
  QString entry, screen;
  bool patient;
};
class PatientBookingTest : public PatientOpeningTest, public testing::WithParamInterface<BookingCase> {};

TEST_P(PatientBookingTest, AppointmentsKnowTheWayBack) {
  addPatient({{u"氏名"_s, u"見本 太郎"_s}, {u"テキスト5"_s, u"A1"_s}, {u"患者ID"_s, u"7"_s}});
  standIn(GetParam().screen);
  run.bookingsCaller = routes::MainMenu::screen;
  enter().trigger(GetParam().entry);
  ASSERT_TRUE(run.bookingsCaller);
  EXPECT_EQ(run.bookingsCaller->text(), u"治療台帳4"_s);
  EXPECT_FALSE(requestOf(GetParam().screen).isEmpty());
  const auto booking = routeTo<routes::Booking>();
  const auto* fresh = booking ? std::get_if<routes::Booking::NewBooking>(&booking->what) : nullptr;
  const std::optional<frame::Patient> patient = fresh ? fresh->patient : std::nullopt;
  ASSERT_EQ(patient.has_value(), GetParam().patient);
  if (!patient) return;
  EXPECT_EQ(patient->serial, u"A1"_s);
  EXPECT_EQ(patient->number, u"7"_s);
  EXPECT_EQ(patient->name, u"見本 太郎"_s);
}

INSTANTIATE_TEST_SUITE_P(Rows, PatientBookingTest,
                         testing::Values(BookingCase{u"Men_YD"_s, u"予約2"_s, true},
                                         BookingCase{u"Men_YY"_s, u"予約2"_s, false},
                                         BookingCase{u"Men_YK"_s, u"今日の予約"_s, false},
                                         BookingCase{u"Men_YI"_s, u"予約週間表"_s, false}));

// ---- The search row and its words ----

TEST_F(PatientOpeningTest, ANewSearchWordDropsNoneOfTheOlderTen) {
  addNamed({u"見本 一郎"_s});
  QStringList older;
  for (int i = 1; i <= 10; ++i) older.prepend(u"語%1"_s.arg(i));
  const SearchHistory history(folder.path());
  for (const QString& word : QStringList(older.crbegin(), older.crend()))
    ASSERT_TRUE(history.remember(word, SearchHistory::kMaxOlderOfRegister));
  screen::Screen& screen = enter();
  EXPECT_EQ(screen.items(u"Combo3"_s), older);
  for (int twice = 0; twice < 2; ++twice) {
    screen.setText(u"Combo3"_s, u"見本"_s);
    screen.trigger(u"Men_SS"_s);
  }
  EXPECT_EQ(history.words(), QStringList{u"見本"_s} + older);
  EXPECT_EQ(screen.items(u"Combo3"_s), QStringList{u"見本"_s} + older);
  screen.setText(u"Combo3"_s, QString());
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(history.words().size(), 11);
}

TEST_F(PatientOpeningTest, TodayButtonCopiesTheDateToo) {
  addPatient({{u"氏名"_s, u"見本"_s}, {u"初診日"_s, u"令和5年1月1日"_s}});
  screen::Screen& screen = enter();
  screen.trigger(u"Command8"_s);
  EXPECT_EQ(screen.text(u"txtF24"_s), u"令和5年1月1日"_s) << "a filled field is left alone";
  EXPECT_EQ(desktop.copiedText(), u"令和6年6月15日"_s);
}

}  // namespace
}  // namespace records
