#include "claims/tests/screens/claim_form_fixture.h"

// Fields with a rule of their own.

namespace claims {

namespace {

using ClaimFormFields = ClaimFormTest;

struct CellCase {
  bool massageClaim;
  const char16_t* code;
  bool refused;
};

TEST_F(ClaimFormFields, ACodeOfTheOtherKindGivesTheFocusBack) {
  const CellCase cells[] = {{false, u"g", true},  {false, u"j", true}, {false, u"a", false},
                            {false, u"z", false}, {false, u"", false}, {true, u"a", true},
                            {true, u"f", true},   {true, u"g", false}, {true, u"g2", false},
                            {false, u"g2", false}};
  for (const CellCase& cell : cells) {
    m_form.reset();
    openNew(cell.massageClaim ? massage() : acupuncture());
    goTo(qs(u"Text5(3)"));
    type(qs(u"Text5(3)"), qs(cell.code));
    told();
    m_form->focusOn(qs(u"Text5(4)"));
    const std::string name = qs(cell.code).toStdString();
    EXPECT_EQ(told(), cell.refused ? QStringList(qs(u"治療内容が正しくありません。")) : QStringList())
        << name;
    EXPECT_EQ(m_form->focused(), cell.refused ? qs(u"Text5(3)") : qs(u"Text5(4)")) << name;
  }
}

struct VisitCase {
  const char16_t* month;
  const char16_t* entry;
  const char16_t* message;
};

TEST_F(ClaimFormFields, AVisitIsCheckedByTheMonth) {
  constexpr const char16_t* kNew =
      u"往療距離が正しくありません。「記入の仕方」をクリックし、ご確認ください。";
  constexpr const char16_t* kOld = u"往療距離が正しくありません。";
  const VisitCase visits[] = {
      {u"令和6年10月", u"v1", nullptr}, {u"令和6年10月", u"v20", nullptr}, {u"令和6年10月", u"t", nullptr},
      {u"令和6年10月", u"v21", kNew},   {u"令和6年10月", u"4", kNew},      {u"令和6年9月", u"1", nullptr},
      {u"令和6年9月", u"20", nullptr},  {u"令和6年9月", u"21", kOld},      {u"令和6年9月", u"v1", kOld}};
  for (const VisitCase& visit : visits) {
    m_form.reset();
    ClaimRecord claim = acupuncture();
    claim.setNamed(qs(u"申請年月"), qs(visit.month));
    openNew(claim);
    goTo(qs(u"Text6(1)"));
    type(qs(u"Text6(1)"), qs(visit.entry));
    told();
    m_form->focusOn(qs(u"Text6(2)"));
    EXPECT_EQ(told(), visit.message ? QStringList(qs(visit.message)) : QStringList())
        << qs(visit.month).toStdString() << " " << qs(visit.entry).toStdString();
  }
}

TEST_F(ClaimFormFields, ALeading39IsReportedForLateElderlyInsuranceOnly) {
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"保険の種類3"), qs(u"後期高齢"));
  claim.setNamed(qs(u"保険者番号"), qs(u"39123456"));
  openNew(claim);
  m_form->insurerNumberLeft();
  EXPECT_EQ(told(), QStringList(qs(u"後期高齢の場合､保険者番号の頭にある39は削除してください")));
  EXPECT_EQ(m_form->text(qs(u"Combo1(4)")), qs(u"39123456"));
  choose(qs(u"Combo1(1)"), qs(u"国民健保"));
  m_form->insurerNumberLeft();
  EXPECT_TRUE(told().isEmpty());
}

TEST_F(ClaimFormFields, BothConsentReceiversClearedIsReported) {
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"同意_施術者"), qs(u"-1"));
  openNew(claim);
  toggle(qs(u"chkFields(20)"));
  EXPECT_EQ(told(), QStringList(qs(u"「同意を受けた者」のチェックが両方共外れています。")));
  toggle(qs(u"chkFields(21)"));
  EXPECT_TRUE(told().isEmpty());
}

TEST_F(ClaimFormFields, TickingTheReportSaysWhatElseIsNeeded) {
  openNew(acupuncture());
  toggle(qs(u"Check11"));
  EXPECT_EQ(told(), QStringList(qs(
                        u"「施術報告書交付発行」にチェックを入れた場合、必ず、下の「施術報告交付発行年月日」"
                        u"および、初回以外は「前回の施術報告交付発行年月」に日付を記入してください。")));
  toggle(qs(u"Check11"));
  EXPECT_TRUE(told().isEmpty());
}

TEST_F(ClaimFormFields, ItemsOnlyOpensItsNoteUnlessSilenced) {
  openNew(acupuncture());
  toggle(qs(u"Check13"));
  EXPECT_EQ(m_navigator.shows, QStringList(qs(u"項目のみ印刷の注意事項")));
  toggle(qs(u"Check13"));
  EXPECT_EQ(m_navigator.shows.size(), 1);
  m_run.itemsOnlyNoteSilenced = true;
  toggle(qs(u"Check13"));
  EXPECT_EQ(m_navigator.shows.size(), 1);
  EXPECT_TRUE(m_form->checks().itemsOnly);
  EXPECT_FALSE(m_form->checkChanged());
}

TEST_F(ClaimFormFields, DatesTurnToTheOtherCalendarAndBack) {
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"被保険者の生年月日"), qs(u"昭和30年4月5日"));
  claim.setNamed(qs(u"療養を受ける者の生年月日"), qs(u"平成2年1月8日"));
  claim.setNamed(qs(u"実際の同意の年月日"), qs(u"読めない日付"));
  openNew(claim);
  press(qs(u"Command4"));
  EXPECT_EQ(m_form->text(qs(u"txtFields(28)")), qs(u"1955/4/5"));
  EXPECT_EQ(m_form->text(qs(u"txtFields(38)")), qs(u"1990/1/8"));
  EXPECT_EQ(m_form->text(qs(u"txtFields(65)")), qs(u"2024/9/2"));
  EXPECT_EQ(m_form->text(qs(u"txtFields(71)")), qs(u"読めない日付"));
  press(qs(u"Command27"));
  EXPECT_EQ(m_form->text(qs(u"txtFields(28)")), qs(u"昭和30年4月5日"));
  EXPECT_EQ(m_form->text(qs(u"txtFields(65)")), qs(u"令和6年9月2日"));
  EXPECT_FALSE(m_form->checkChanged());
}

TEST_F(ClaimFormFields, TheRepresentativeIsBlankedOnYesOnly) {
  openNew(acupuncture());
  answer({false});
  press(qs(u"Command13"));
  EXPECT_EQ(told(), QStringList(qs(u"　　代表者のデータをクリアしますか？")));
  EXPECT_EQ(m_form->text(qs(u"txtFields(220)")), qs(u"例示 代表"));
  answer({true});
  press(qs(u"Command13"));
  EXPECT_EQ(m_form->text(qs(u"txtFields(220)")), QString());
  EXPECT_EQ(m_form->text(qs(u"txtFields(202)")), qs(u"見本治療院"));
}

TEST_F(ClaimFormFields, BoxesFollowTheGridOfAMassageClaimOnly) {
  ClaimRecord claim = massage();
  claim.setNamed(qs(u"右上肢"), qs(u"-1"));
  claim.setNamed(qs(u"徒手左下肢"), qs(u"-1"));
  openNew(claim);
  type(qs(u"Text5(9)"), qs(u"g2h1"));
  EXPECT_EQ(m_form->text(qs(u"Text31(1)")), qs(u"3"));
  EXPECT_EQ(m_form->text(qs(u"Text31(0)")), QString());
  EXPECT_EQ(m_form->text(qs(u"Text41(3)")), qs(u"1"));
}

TEST_F(ClaimFormFields, DifferingNumbersOfAreasAreWarnedOfOnce) {
  openNew(massage());
  EXPECT_FALSE(m_form->isControlShown(qs(u"LabelAreas")));
  m_channel.clear();
  type(qs(u"Text5(9)"), qs(u"g3"));
  EXPECT_TRUE(m_form->isControlShown(qs(u"LabelAreas")));
  EXPECT_TRUE(m_channel.lastSaid().startsWith(qs(u"※マッサージの局所数が異なる日がある場合")));
  m_channel.clear();
  type(qs(u"Text5(10)"), qs(u"g3"));
  EXPECT_TRUE(m_channel.said().isEmpty());
  type(qs(u"Text5(9)"), qs(u"i2"));
  type(qs(u"Text5(10)"), qs(u""));
  EXPECT_FALSE(m_form->isControlShown(qs(u"LabelAreas")));
}

TEST_F(ClaimFormFields, HelperWindowsPutTextsIntoColumns) {
  openNew(acupuncture());
  m_state.display->put(claim::remark[4], qs(u"例示 架空市"));
  m_state.display->put(claim::startPoint[2], qs(u"架空駅"));
  EXPECT_EQ(m_form->text(qs(u"txtFields(81)")), qs(u"例示 架空市"));
  EXPECT_EQ(m_state.display->record().named(qs(u"c2")), qs(u"架空駅"));
  EXPECT_FALSE(m_form->checkChanged());
}

}  // namespace
}  // namespace claims
