#include "claims/tests/screens/claim_form_fixture.h"

// Calculation, carry-forward, print buttons, help and the other windows.

namespace claims {

namespace {

using ClaimFormPrint = ClaimFormTest;

struct PreviewCase {
  const char16_t* month;
  bool massageClaim;
  const char16_t* screen;
};

TEST_F(ClaimFormPrint, TheMonthAndTheKindChooseThePreview) {
  const PreviewCase cases[] = {
      {u"平成30年5月", false, u"施術料金1"},     {u"平成30年5月", true, u"施術料金2"},
      {u"平成30年6月", false, u"施術料金2018H"}, {u"令和6年9月", true, u"施術料金2108A"},
      {u"令和6年10月", false, u"施術料金2024H"}, {u"令和6年10月", true, u"施術料金2024A"}};
  for (const PreviewCase& row : cases) {
    m_form.reset();
    m_navigator.shows.clear();
    ClaimRecord claim = row.massageClaim ? massage() : acupuncture();
    claim.setNamed(qs(u"申請年月"), qs(row.month));
    claim.setNamed(qs(u"初療年月日"), qs(u"平成30年1月5日"));
    openNew(claim);
    press(qs(u"Command2"));
    EXPECT_EQ(told(), QStringList());
    EXPECT_EQ(m_navigator.shows, QStringList(qs(row.screen)));
  }
}

TEST_F(ClaimFormPrint, TheOpenPreviewIsClosedFirst) {
  openNew(acupuncture());
  m_navigator.screens.insert(qs(u"施術料金2018H"), m_form.get());
  press(qs(u"Command32"));
  EXPECT_EQ(m_navigator.unloads, QStringList(qs(u"施術料金2018H")));
  EXPECT_EQ(m_navigator.shows, QStringList(qs(u"施術料金2024H")));
}

TEST_F(ClaimFormPrint, ThePrintButtonsOpenTheChosenScreen) {
  openNew(acupuncture());
  press(qs(u"Command5"));
  EXPECT_EQ(m_navigator.shows, QStringList(qs(u"レセプト印刷2024")));
  EXPECT_EQ(m_state.printKind, PrintKind::Acupuncture);
  press(qs(u"Command6"));
  EXPECT_EQ(m_state.printKind, PrintKind::Massage);
}

TEST_F(ClaimFormPrint, ThePrintOfANationalClaimTrimsItsTexts) {
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"傷病名8"), QString(11, QChar(u'病')));
  openNew(claim);
  press(qs(u"Command5"));
  EXPECT_EQ(told().size(), 1);
  EXPECT_EQ(m_form->text(qs(u"txtFields(62)")).size(), 10);
  EXPECT_TRUE(m_form->isCaptionRed(qs(u"txtFields(62)")));
  EXPECT_EQ(m_navigator.shows, QStringList(qs(u"レセプト印刷2024")));
}

TEST_F(ClaimFormPrint, TheChoiceSeesTheClaimAndTheTicks) {
  m_printing.screen = qs(u"東京助成レセプト印刷2024");
  openNew(acupuncture());
  toggle(qs(u"Check7"));
  press(qs(u"Command5"));
  EXPECT_EQ(m_printing.claim.get(claim::month), qs(u"令和6年10月"));
  EXPECT_EQ(m_printing.ticks, FormTicks{.publicAid = true});
  EXPECT_EQ(m_navigator.shows, QStringList(qs(u"東京助成レセプト印刷2024")));
}

TEST_F(ClaimFormPrint, TheTreatmentRecordGoesByTheMonth) {
  openNew(acupuncture());
  press(qs(u"Command3"));
  type(qs(u"txtFields(1)"), qs(u"令和6年9月"));
  press(qs(u"Command3"));
  EXPECT_EQ(m_navigator.shows, QStringList({qs(u"施術録単体印刷2024"), qs(u"施術録単体印刷")}));
}

TEST_F(ClaimFormPrint, HelpGoesByTheMonth) {
  openNew(acupuncture());
  for (const char16_t* month : {u"令和2年11月", u"令和2年12月", u"令和6年9月", u"令和6年10月"}) {
    type(qs(u"txtFields(1)"), qs(month));
    press(qs(u"Command11"));
  }
  EXPECT_EQ(m_navigator.shows, QStringList({qs(u"記入の仕方"), qs(u"記入の仕方2018"), qs(u"記入の仕方2018"),
                                            qs(u"記入の仕方2024")}));
}

TEST_F(ClaimFormPrint, ReportAndTableAreClosedBefore2018October) {
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"申請年月"), qs(u"平成30年9月"));
  openNew(claim);
  for (const char16_t* command : {u"Command23", u"Command24"}) {
    press(qs(command));
    EXPECT_EQ(told(), QStringList(qs(
                          u"注：平成30年10月以前のレセプトデータでは、「施術報告書印刷」及び「往療内訳表」の"
                          u"入力と印刷はできません。")));
  }
  EXPECT_TRUE(m_navigator.shows.isEmpty());
}

TEST_F(ClaimFormPrint, TheReasonSheetIsThatOfTheKind) {
  openNew(acupuncture());
  press(qs(u"Command21"));
  open(add(massage()));
  press(qs(u"Command21"));
  EXPECT_EQ(m_navigator.shows, QStringList({qs(u"frm1年16回以上印刷は"), qs(u"frm1年16回以上印刷マ")}));
}

TEST_F(ClaimFormPrint, TheOtherCommandsOpenTheirScreens) {
  openNew(acupuncture());
  const std::pair<const char16_t*, const char16_t*> screens[] = {{u"Command23", u"施術報告書"},
                                                                 {u"Command24", u"往療内訳表"},
                                                                 {u"Command30", u"頻回の理由と計画書"},
                                                                 {u"Command34", u"新摘要欄"},
                                                                 {u"Command22", u"領収証選択"},
                                                                 {u"Command33", u"メモデータ変換"},
                                                                 {u"Command8", u"往療時の住所代入"},
                                                                 {u"Command19", u"往療時の日付代入"},
                                                                 {u"Command25", u"往療起点への住所代入"},
                                                                 {u"Command26", u"往療起点の登録の表示"},
                                                                 {u"Command14", u"登録3"},
                                                                 {u"Command12", u"登録2"},
                                                                 {u"Command20", u"往療行程の記入の仕方"}};
  for (const auto& [command, screen] : screens) {
    m_navigator.shows.clear();
    press(qs(command));
    EXPECT_EQ(m_navigator.shows, QStringList(qs(screen))) << qs(command).toStdString();
  }
  EXPECT_TRUE(told().isEmpty());
}

TEST_F(ClaimFormPrint, ThePictureChartOffersToMakeAMissingPicture) {
  openNew(acupuncture());
  answer({true});
  press(qs(u"Command7"));
  EXPECT_EQ(told(), QStringList(qs(u"　　　 　新規で作成しますか？")));
  EXPECT_EQ(m_navigator.shows, QStringList({qs(u"治療台帳4"), qs(u"GEDIT")}));
  EXPECT_EQ(
      std::get<routes::PatientRegister::BySerial>(m_navigator.requests[0].as<routes::PatientRegister>()->who)
          .serial,
      qs(u"P0001"));
}

TEST_F(ClaimFormPrint, CarryForwardMakesTheNextMonthsClaim) {
  const qint64 id = add(acupuncture());
  open(id);
  answer({true});
  press(qs(u"Command1"));
  const QStringList texts = told();
  ASSERT_EQ(texts.size(), 1);
  EXPECT_EQ(
      texts[0].split(u'\n'),
      QStringList({qs(u"この患者の新しいレセプトを追加しますか？"),
                   qs(u"追加されるデータは閉じるボタンを押してもレセプト一覧表には最初表示されません。"),
                   qs(u"表示させるにはレセプト一覧表の画面での「更新」ボタンを押して下さい。")}));
  EXPECT_EQ(m_form->text(qs(u"txtFields(1)")), qs(u"令和6年11月"));
  EXPECT_EQ(m_form->text(qs(u"txtFields(11)")), qs(u"4"));
  EXPECT_EQ(m_form->text(qs(u"Text5(1)")), QString());
  EXPECT_EQ(m_form->text(qs(u"TextClinic")), qs(u"施術所（見本治療院）"));
  EXPECT_NE(m_form->text(qs(u"Text9(0)")), QString::number(id));
  EXPECT_EQ(m_form->text(qs(u"Text9(0)")), m_form->text(qs(u"Text9(1)")));
  EXPECT_EQ(stored(id).named(qs(u"申請年月")), qs(u"令和6年10月"));
}

TEST_F(ClaimFormPrint, CarryForwardIsAllowedOncePerOpening) {
  openNew(acupuncture());
  answer({true});
  press(qs(u"Command1"));
  told();
  press(qs(u"Command1"));
  EXPECT_EQ(
      told(),
      QStringList({qs(u"連続した「翌月への継続」は行えません。"),
                   qs(u"「閉じる」でレセプト一覧へ戻り、レセプト一覧の「更新」を押して、改めて選択して、"),
                   qs(u"レセプトデータへ戻って下さい。")}));
}

TEST_F(ClaimFormPrint, CarryForwardNeedsTheNumberOfTheRequest) {
  ClaimRecord claim = acupuncture();
  claim.clear(claim::requestCount);
  openNew(claim);
  press(qs(u"Command1"));
  EXPECT_EQ(told(), QStringList(qs(u"申請回数が空欄です。記入してください。")));
}

TEST_F(ClaimFormPrint, CarryForwardRefusedAddsNothing) {
  const qint64 id = add(acupuncture());
  open(id);
  answer({false});
  press(qs(u"Command1"));
  EXPECT_EQ(m_form->text(qs(u"Text9(0)")), QString::number(id));
  EXPECT_EQ(m_form->source(1).rows().recordCount(), 1);
}

TEST_F(ClaimFormPrint, TheDisplayServesThePrintingScreens) {
  openNew(acupuncture());
  type(qs(u"txtFields(27)"), qs(u"例示 花子"));
  EXPECT_EQ(m_state.display->record().named(qs(u"被保険者の氏名")), qs(u"例示 花子"));
  EXPECT_EQ(m_state.display->record().named(qs(u"治療内容15")), qs(u"e"));
  EXPECT_NE(m_state.display->window(), 0u);
  m_form.reset();
  EXPECT_EQ(m_state.display, nullptr);
}

TEST_F(ClaimFormPrint, HelperScreensAreOpenedOnTheClaimOnDisplay) {
  namespace unbuilt = routes::unbuilt;
  add(acupuncture());
  const qint64 id = add(acupuncture());
  open(id);
  const auto expectClaim = [&]<class R>(const char16_t* command, const R&) {
    press(qs(command));
    EXPECT_EQ(m_navigator.lastRoute<R>().claim, id) << qs(command).toStdString();
  };
  expectClaim(u"Command23", unbuilt::TreatmentReport());
  expectClaim(u"Command24", unbuilt::VisitBreakdown());
  expectClaim(u"Command21", unbuilt::ReasonSheetAcupuncture());
  expectClaim(u"Command30", unbuilt::FrequentPlan());
  expectClaim(u"Command34", unbuilt::NewRemarks());
  expectClaim(u"Command22", unbuilt::ReceiptChoice());
  expectClaim(u"Command33", unbuilt::MemoConversion());
  expectClaim(u"Command8", unbuilt::VisitAddresses());
  expectClaim(u"Command19", unbuilt::VisitDates());
  expectClaim(u"Command25", unbuilt::StartPointAddresses());
  expectClaim(u"Command26", unbuilt::StartPoints());
  expectClaim(u"Command20", unbuilt::RouteHelp());
}

}  // namespace
}  // namespace claims
