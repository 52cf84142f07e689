#include "claims/tests/screens/claim_form_fixture.h"

// What stops a command: the dirty marks, the checks, the windows beside the form; close, delete, moves.

namespace claims {

namespace {

using ClaimFormGuard = ClaimFormTest;

const QString kCheckChanged =
    qs(u"チェックボタンもしくはラジオボタンが変更されました。一度登録ボタンを押して下さい");
const QString kTreatmentChanged = qs(u"「治療」の内容が変更されました。一度登録ボタンを押して下さい");

constexpr const char16_t* kStopped[] = {u"Command15", u"Command16", u"Command17", u"Command18", u"Command1",
                                        u"Command2",  u"Command32", u"Command5",  u"Command3",  u"Command23",
                                        u"Command24", u"Command21", u"cmdClose",  u"Command22", u"Command30"};

TEST_F(ClaimFormGuard, AChangedTickStopsEveryCommandButStoreAndDelete) {
  openNew(acupuncture());
  toggle(qs(u"Check1"));
  for (const char16_t* command : kStopped) {
    press(qs(command));
    EXPECT_EQ(told(), QStringList(kCheckChanged)) << qs(command).toStdString();
  }
  EXPECT_TRUE(m_navigator.shows.isEmpty());
}

TEST_F(ClaimFormGuard, AChangedDayCellStopsEveryCommandButStoreAndDelete) {
  openNew(acupuncture());
  type(qs(u"Text5(3)"), qs(u"b"));
  EXPECT_TRUE(m_form->treatmentChanged());
  for (const char16_t* command : kStopped) {
    press(qs(command));
    EXPECT_EQ(told(), QStringList(kTreatmentChanged)) << qs(command).toStdString();
  }
}

TEST_F(ClaimFormGuard, HelperWindowsOpenWhileTheGridIsEdited) {
  openNew(acupuncture());
  type(qs(u"Text5(3)"), qs(u"b"));
  press(qs(u"Command8"));
  press(qs(u"Command12"));
  EXPECT_EQ(m_navigator.shows, QStringList({qs(u"往療時の住所代入"), qs(u"登録2")}));
  EXPECT_TRUE(told().isEmpty());
}

TEST_F(ClaimFormGuard, TheVisitRowIsPartOfTheTreatment) {
  openNew(acupuncture());
  type(qs(u"Text6(3)"), qs(u"v1"));
  press(qs(u"cmdClose"));
  EXPECT_EQ(told(), QStringList(kTreatmentChanged));
}

TEST_F(ClaimFormGuard, TheTickIsTestedBeforeTheTreatment) {
  openNew(acupuncture());
  type(qs(u"Text5(3)"), qs(u"b"));
  toggle(qs(u"chkFields(0)"));
  press(qs(u"Command17"));
  EXPECT_EQ(told(), QStringList(kCheckChanged));
}

TEST_F(ClaimFormGuard, APrintSettingIsWrittenAtOnceAndStillStopsUntilStored) {
  const qint64 id = add(acupuncture());
  open(id);
  m_form->findChild<QAbstractButton*>(qs(u"Option9(1)"))->click();
  EXPECT_EQ(stored(id).named(qs(u"c8")), qs(u"1"));
  press(qs(u"Command5"));
  EXPECT_EQ(told(), QStringList(kCheckChanged));
  answer({true});
  press(qs(u"cmdUpdate"));
  told();
  EXPECT_FALSE(m_form->checkChanged());
  EXPECT_EQ(stored(id).named(qs(u"c8")), qs(u"1"));
}

TEST_F(ClaimFormGuard, TextFieldsSetNoMark) {
  openNew(acupuncture());
  type(qs(u"txtFields(27)"), qs(u"例示 花子"));
  choose(qs(u"Combo1(2)"), qs(u"2割"));
  EXPECT_FALSE(m_form->checkChanged());
  EXPECT_FALSE(m_form->treatmentChanged());
}

TEST_F(ClaimFormGuard, TextsAreLostWhenTheRecordIsLeftWithoutStore) {
  const qint64 first = add(acupuncture());
  add(massage());
  open(first);
  type(qs(u"txtFields(27)"), qs(u"例示 花子"));
  press(qs(u"Command17"));
  press(qs(u"Command16"));
  EXPECT_EQ(m_form->text(qs(u"txtFields(27)")), qs(u"見本 太郎"));
  EXPECT_EQ(stored(first).named(qs(u"被保険者の氏名")), qs(u"見本 太郎"));
}

TEST_F(ClaimFormGuard, MovesBringBothHalvesToTheSameClaim) {
  const qint64 first = add(acupuncture());
  const qint64 second = add(massage());
  const qint64 third = add(acupuncture());
  open(first);
  const std::pair<const char16_t*, qint64> moves[] = {{u"Command17", second},
                                                      {u"Command17", third},
                                                      {u"Command15", first},
                                                      {u"Command18", third},
                                                      {u"Command16", second}};
  for (const auto& [command, id] : moves) {
    press(qs(command));
    EXPECT_EQ(m_form->text(qs(u"Text9(0)")), QString::number(id));
    EXPECT_EQ(m_form->text(qs(u"Text9(1)")), QString::number(id));
  }
}

TEST_F(ClaimFormGuard, MovingOnFromTheLastClaimLeavesThePairAsItWas) {
  add(acupuncture());
  const qint64 last = add(massage());
  open(last);
  type(qs(u"txtFields(27)"), qs(u"例示 花子"));
  press(qs(u"Command17"));
  EXPECT_EQ(m_form->text(qs(u"Text9(0)")), QString::number(last));
  EXPECT_EQ(m_form->text(qs(u"Text9(1)")), QString::number(last));
  EXPECT_EQ(m_form->text(qs(u"txtFields(27)")), qs(u"例示 花子"));
}

TEST_F(ClaimFormGuard, AMoveSaysWhoseClaimAndMonthItIs) {
  const qint64 first = add(acupuncture());
  ClaimRecord claim = massage();
  claim.setNamed(qs(u"氏名"), qs(u"例示 花子"));
  add(claim);
  open(first);
  m_channel.clear();
  press(qs(u"Command17"));
  EXPECT_EQ(m_channel.lastSaid(), qs(u"氏名:\u00fe例示 花子\u00fe※申請年月:\u00fe令和6年10月"));
}

TEST_F(ClaimFormGuard, AFormWithoutItsFilesReportsItAndCloses) {
  QFile::remove(m_run.folders[frame::folder::kClaims2]);
  open(1);
  EXPECT_EQ(told().size(), 1);
  for (const char16_t* command :
       {u"cmdUpdate", u"Command17", u"Command1", u"Command2", u"Command5", u"cmdDelete"})
    press(qs(command));
  EXPECT_TRUE(told().isEmpty());
  EXPECT_EQ(m_state.display, nullptr);
  press(qs(u"cmdClose"));
  EXPECT_EQ(m_navigator.unloads, QStringList(qs(u"frmレセプトフォーム")));
}

TEST_F(ClaimFormGuard, TheFastCheckStopsAMove) {
  const qint64 first = add(acupuncture());
  add(massage());
  open(first);
  choose(qs(u"Combo1(1)"), QString());
  press(qs(u"Command17"));
  EXPECT_EQ(told(), QStringList(qs(u"施術録の保険の種類が選択されていません。")));
  EXPECT_EQ(m_form->text(qs(u"Text9(0)")), QString::number(first));
}

struct WindowCase {
  const char16_t* screen;
  const char16_t* message;
};
constexpr WindowCase kWindows[] = {
    {u"施術報告書",
     u"施術報告書の印刷の窓が開いています。そちらの窓の「閉じる」を押して、閉じてください。"
     u"（後ろに隠れている可能性があります。）"},
    {u"往療内訳表",
     u"往療内訳表印刷の窓が開いています。そちらの窓の「閉じる」を押して、閉じてください。"
     u"（後ろに隠れている可能性があります。）"},
    {u"frm1年16回以上印刷は",
     u"１年・月１６回以上の理由書印刷の窓が開いています。そちらの窓の「閉じる」を押して、閉じてください。"
     u"（後ろに隠れている可能性があります。）"}};

TEST_F(ClaimFormGuard, AnOpenWindowStopsMovesAndPrints) {
  const qint64 first = add(acupuncture());
  add(massage());
  for (const WindowCase& window : kWindows) {
    m_form.reset();
    m_navigator.open = {qs(window.screen)};
    open(first);
    for (const char16_t* command : {u"Command17", u"Command5", u"Command3"}) {
      press(qs(command));
      EXPECT_EQ(told(), QStringList(qs(window.message))) << qs(command).toStdString();
    }
  }
  EXPECT_TRUE(m_navigator.shows.isEmpty());
}

TEST_F(ClaimFormGuard, ASecondCopyOfAWindowIsRefused) {
  openNew(acupuncture());
  const std::pair<const char16_t*, int> commands[] = {
      {u"Command23", 0}, {u"Command24", 1}, {u"Command21", 2}};
  for (const auto& [command, window] : commands) {
    m_navigator.open = {qs(kWindows[window].screen)};
    press(qs(command));
    const QStringList texts = told();
    ASSERT_EQ(texts.size(), 1);
    EXPECT_TRUE(texts[0].startsWith(qs(kWindows[window].message).section(u'（', 0, 0)))
        << texts[0].toStdString();
    EXPECT_TRUE(texts[0].endsWith(qs(u"（重複禁止）"))) << texts[0].toStdString();
  }
  EXPECT_TRUE(m_navigator.shows.isEmpty());
}

TEST_F(ClaimFormGuard, TheCopyWindowStopsCloseButNotTheWalkToAnotherMonth) {
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"施術科目"), qs(u"鍼灸"));
  const qint64 first = add(claim);
  const qint64 second = add(claim);
  m_navigator.open = {qs(u"施術報告書コピー")};
  open(first);
  press(qs(u"Command17"));
  EXPECT_EQ(m_form->text(qs(u"Text9(0)")), QString::number(second));
  press(qs(u"cmdClose"));
  EXPECT_EQ(told(), QStringList(qs(u"施術報告書のコピーの窓が開いています。そちらの窓の「閉じる」を押して、"
                                   u"閉じてください。（後ろに隠れている可能性があります。）")));
}

TEST_F(ClaimFormGuard, AClaimThatWasNeverStoredCannotBeClosed) {
  openNew(acupuncture());
  press(qs(u"cmdClose"));
  EXPECT_EQ(told(), QStringList(qs(u"一度登録ボタンを押してから終了して下さい")));
  EXPECT_TRUE(m_navigator.unloads.isEmpty());
  answer({true});
  press(qs(u"cmdUpdate"));
  told();
  press(qs(u"cmdClose"));
  EXPECT_TRUE(told().isEmpty());
  EXPECT_EQ(m_navigator.unloads, QStringList(qs(u"frmレセプトフォーム")));
  EXPECT_EQ(m_state.display, nullptr);
}

TEST_F(ClaimFormGuard, AClaimWhoseDaysFitNoKindIsClosedOnceItIsStored) {
  ClaimRecord claim = acupuncture();
  for (const int day : {1, 8, 15}) claim.set(claim::dayCode[day], qs(u"z"));
  const qint64 id = add(claim);
  open(id);
  answer({true});
  press(qs(u"cmdUpdate"));
  told();
  EXPECT_EQ(stored(id).named(qs(u"施術科目")), qs(u""));
  press(qs(u"cmdClose"));
  EXPECT_TRUE(told().isEmpty());
  EXPECT_EQ(m_navigator.unloads, QStringList(qs(u"frmレセプトフォーム")));
}

TEST_F(ClaimFormGuard, AClaimThatWasNeverStoredCanBeDeleted) {
  const qint64 first = add(acupuncture());
  const qint64 second = add(massage());
  open(second);
  answer({true});
  press(qs(u"cmdDelete"));
  EXPECT_EQ(told(), QStringList(qs(u"　現在の表示の患者を削除しますか？")));
  EXPECT_TRUE(stored(second).blank(claim::name));
  EXPECT_EQ(m_form->text(qs(u"Text9(0)")), QString::number(first));
  EXPECT_EQ(m_form->text(qs(u"Text9(1)")), QString::number(first));
}

TEST_F(ClaimFormGuard, DeleteRefusedKeepsTheClaim) {
  const qint64 id = add(acupuncture());
  open(id);
  answer({false});
  press(qs(u"cmdDelete"));
  EXPECT_EQ(stored(id).named(qs(u"氏名")), qs(u"見本 太郎"));
}

TEST_F(ClaimFormGuard, DeletingTheOnlyClaimClosesTheForm) {
  openNew(acupuncture());
  answer({true});
  press(qs(u"cmdDelete"));
  EXPECT_EQ(m_navigator.unloads, QStringList(qs(u"frmレセプトフォーム")));
  EXPECT_EQ(m_state.display, nullptr);
}

TEST_F(ClaimFormGuard, TheWindowsOwnCloseBoxIsRefused) {
  openNew(acupuncture());
  m_form->show();
  m_form->close();
  EXPECT_TRUE(m_form->isVisible());
  EXPECT_EQ(told(), QStringList(qs(u"「閉じる」ボタンより終了して下さい")));
}

TEST_F(ClaimFormGuard, CloseGivesTheFocusBackToTheOpener) {
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"施術科目"), qs(u"鍼灸"));
  open(add(claim), routes::VisitLedger::screen);
  m_navigator.screens.insert(qs(u"治療台帳3"), m_form.get());
  press(qs(u"cmdClose"));
  EXPECT_EQ(m_navigator.shows, QStringList(qs(u"治療台帳3")));
}

}  // namespace
}  // namespace claims
