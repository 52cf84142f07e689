#include "claims/tests/screens/claim_form_fixture.h"

// What the form shows of a claim, by kind and by month.

namespace claims {

namespace {

using ClaimFormShow = ClaimFormTest;

TEST_F(ClaimFormShow, BothHalvesShowTheClaimOfTheId) {
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"c1"), qs(u"架空駅"));
  add(acupuncture());
  const qint64 id = add(claim);
  open(id);
  EXPECT_EQ(m_form->text(qs(u"Text9(0)")), QString::number(id));
  EXPECT_EQ(m_form->text(qs(u"Text9(1)")), QString::number(id));
  EXPECT_EQ(m_form->text(qs(u"txtFields(120)")), qs(u"架空駅"));
  EXPECT_EQ(m_form->text(qs(u"txtFields(0)")), qs(u"見本 太郎"));
  EXPECT_EQ(m_state.display != nullptr, true);
  EXPECT_TRUE(told().isEmpty());
}

TEST_F(ClaimFormShow, AMissingSecondHalfIsMadeAtOpening) {
  const qint64 id = add(acupuncture());
  {
    auto database = store::Database::open(m_run.folders[frame::folder::kClaims2]);
    auto rows = store::RecordSet::open(database.value(), qs(u"保険申請"));
    ASSERT_TRUE(rows->findFirst(QStringLiteral("ID = %1").arg(id)).ok());
    ASSERT_TRUE(rows->remove().ok());
  }
  open(id);
  EXPECT_EQ(m_form->text(qs(u"Text9(1)")), QString::number(id));
  EXPECT_EQ(stored(id).named(qs(u"memo dummy1")), qs(u" "));
  EXPECT_EQ(stored(id).named(qs(u"txt dummy1")), QString::number(id));
}

TEST_F(ClaimFormShow, TheTicksComeFromTheJoinedText) {
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"負担割合"), qs(u"三歳未満,高齢8,"));
  openNew(claim);
  QStringList ticked;
  for (int i = 0; i < 6; ++i)
    if (m_form->checked(QStringLiteral("Check9(%1)").arg(i)))
      ticked << m_form->caption(QStringLiteral("Check9(%1)").arg(i));
  EXPECT_EQ(ticked, QStringList({qs(u"三歳未満"), qs(u"高齢8")}));
  EXPECT_FALSE(m_form->checkChanged());
}

TEST_F(ClaimFormShow, ABlankAddresseeIsSetByTheKindOfInsurance) {
  const std::pair<const char16_t*, const char16_t*> rows[] = {
      {u"全国健康保険協会", u"全国健康保険協会支部長"},
      {u"共済", u"共済組合長"},
      {u"組合", u"健康保険組合長"},
      {u"国保", u"市町村長"},
      {u"退職国保", u"市町村長"},
      {u"特別国保", u"国民健康保険組合長"},
      {u"後期高齢", u"後期高齢者医療広域連合長"}};
  for (const auto& [kind, addressee] : rows) {
    ClaimRecord claim = acupuncture();
    claim.setNamed(qs(u"保険の種類"), qs(kind));
    openNew(claim);
    EXPECT_EQ(m_form->text(qs(u"Combo1(6)")), qs(addressee)) << qs(kind).toStdString();
  }
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"c6"), qs(u"村長"));
  openNew(claim);
  EXPECT_EQ(m_form->text(qs(u"Combo1(6)")), qs(u"村長"));
}

TEST_F(ClaimFormShow, AcupunctureHasItsOwnButtonsAndFields) {
  openNew(acupuncture());
  for (const char16_t* shown : {u"Command5", u"chkFields(6)", u"chkFields(7)"})
    EXPECT_TRUE(m_form->isControlShown(qs(shown))) << qs(shown).toStdString();
  for (const char16_t* hidden : {u"Command6", u"txtFields(100)", u"txtFields(101)"})
    EXPECT_FALSE(m_form->isControlShown(qs(hidden))) << qs(hidden).toStdString();
}

TEST_F(ClaimFormShow, MassageIsTheReverse) {
  openNew(massage());
  for (const char16_t* shown : {u"Command6", u"txtFields(100)", u"txtFields(101)"})
    EXPECT_TRUE(m_form->isControlShown(qs(shown))) << qs(shown).toStdString();
  for (const char16_t* hidden : {u"Command5", u"chkFields(6)", u"chkFields(7)"})
    EXPECT_FALSE(m_form->isControlShown(qs(hidden))) << qs(hidden).toStdString();
}

struct MonthCase {
  const char16_t* month;
  const char16_t* row;
  bool noTable;  ///< the note that the table is no longer handed in
  bool open;     ///< fields of the report
};

TEST_F(ClaimFormShow, TheMonthDecidesTheSecondRowAndTheReportFields) {
  const MonthCase months[] = {{u"平成30年9月", u"往療距離", false, false},
                              {u"平成30年10月", u"往療距離", false, true},
                              {u"令和6年9月", u"往療距離", false, true},
                              {u"令和6年10月", u"往療人数", true, true}};
  for (const MonthCase& month : months) {
    ClaimRecord claim = acupuncture();
    claim.setNamed(qs(u"申請年月"), qs(month.month));
    openNew(claim);
    const std::string name = qs(month.month).toStdString();
    EXPECT_EQ(m_form->caption(qs(u"Label9")), qs(month.row)) << name;
    EXPECT_EQ(m_form->caption(qs(u"Text6(31)")), qs(u"31日 ") + qs(month.row)) << name;
    EXPECT_EQ(m_form->isControlShown(qs(u"LabelNoTable")), month.noTable) << name;
    EXPECT_EQ(m_form->isControlShown(qs(u"LabelClosed")), !month.open) << name;
    EXPECT_EQ(m_form->findChild<QCheckBox*>(qs(u"Check11"))->isEnabled(), month.open) << name;
    EXPECT_EQ(m_form->findChild<QLineEdit*>(qs(u"txtFields(107)"))->isEnabled(), month.open) << name;
  }
}

TEST_F(ClaimFormShow, TheFreeVisitTickNamesTheRuleOfTheMonth) {
  openNew(acupuncture());
  EXPECT_EQ(m_form->caption(qs(u"Check8")),
            qs(u"訪問で同一患者の場合で、訪問料金を加算しない場合は、チェックを入れてください。"
               u"（往診人数欄は、空白にしてください。）申請書の日付を◎にします。"));
  type(qs(u"txtFields(1)"), qs(u"令和6年9月"));
  m_form->monthLeft();
  EXPECT_EQ(m_form->caption(qs(u"Check8")),
            qs(u"往診で同一住所の場合で、往診料金を加算しない場合は、チェックを入れてください。"
               u"（往診距離は、空白にしてください。）申請書の日付を◎にします。"));
  EXPECT_FALSE(m_form->flags().isAfter202410);
  EXPECT_TRUE(m_form->flags().isAfter202012);
}

TEST_F(ClaimFormShow, TheRowsOfTheVisitTableFollowTheirTick) {
  openNew(acupuncture());
  EXPECT_FALSE(m_form->isControlShown(qs(u"FrameStarts")));
  toggle(qs(u"Check10"));
  EXPECT_TRUE(m_form->isControlShown(qs(u"FrameStarts")));
  EXPECT_TRUE(m_form->isControlShown(qs(u"FrameSameHouse")));
}

TEST_F(ClaimFormShow, OpeningTheSameClaimAgainIsRefused) {
  const qint64 id = add(acupuncture());
  open(id);
  open(id);
  EXPECT_EQ(told(), QStringList(qs(u"既にレセプトフォームは開かれています")));
}

TEST_F(ClaimFormShow, AnotherRowOfTheListMovesTheForm) {
  const qint64 first = add(acupuncture());
  const qint64 second = add(massage());
  open(first);
  open(second);
  EXPECT_EQ(m_form->text(qs(u"Text9(0)")), QString::number(second));
  EXPECT_TRUE(told().isEmpty());
}

TEST_F(ClaimFormShow, ListsAreFilledFromTheRegistersOrSayThatTheyAreEmpty) {
  openNew(acupuncture());
  EXPECT_EQ(m_form->items(qs(u"Combo1(24)")), QStringList(qs(u"同意医師のデータがありません")));
  EXPECT_EQ(m_form->items(qs(u"Combo1(3)")), QStringList(qs(u"名称のデータがありません")));
  EXPECT_EQ(m_form->items(qs(u"Combo1(4)")), QStringList(qs(u"番号のデータがありません")));
  EXPECT_EQ(m_form->items(qs(u"Combo1(2)")), QStringList({qs(u"1割"), qs(u"2割"), qs(u"3割")}));
  EXPECT_TRUE(m_form->items(qs(u"Combo1(26)")).isEmpty());
}

TEST_F(ClaimFormShow, TheRegionalListsBelongToOneRegion) {
  m_run.prefectureCode = qs(u"26");
  openNew(acupuncture());
  EXPECT_EQ(m_form->items(qs(u"Combo1(26)")).value(0), qs(u"後期高齢者医療保険 京都府下"));
  EXPECT_EQ(m_form->items(qs(u"Combo1(27)")).value(0), qs(u"福祉医療 ひとり親"));
}

TEST_F(ClaimFormShow, PrintSettingsWithoutAValueShowTheirDefault) {
  openNew(acupuncture());
  EXPECT_EQ(m_form->chosen(qs(u"FrameSet(10)")), qs(u"0"));  // 申請欄の氏名の印字
  EXPECT_EQ(m_form->chosen(qs(u"FrameSet(16)")), qs(u"1"));  // 支払機関欄の口座: 施術者
  for (int group = 1; group <= 19; ++group)
    EXPECT_FALSE(m_form->chosen(QStringLiteral("FrameSet(%1)").arg(group)).isEmpty()) << group;
  EXPECT_FALSE(m_form->checkChanged());
}

TEST_F(ClaimFormShow, ThePracticesOwnFlagsGoBeforeTheDefaults) {
  m_run.profile[frame::slot::kRelationPrinted] = qs(u"0");
  m_run.profile[frame::slot::kPrintApplicantName] = qs(u"1");
  ClaimRecord claim = acupuncture();
  openNew(claim);
  EXPECT_EQ(m_form->chosen(qs(u"FrameSet(9)")), qs(u"1"));   // 続柄を印刷しない
  EXPECT_EQ(m_form->chosen(qs(u"FrameSet(10)")), qs(u"0"));  // 申請欄の氏名を印刷する
  claim.setNamed(qs(u"txtdummy26"), qs(u"0"));               // what the claim keeps rules
  openNew(claim);
  EXPECT_EQ(m_form->chosen(qs(u"FrameSet(9)")), qs(u"0"));
}

TEST_F(ClaimFormShow, TheInsuredsFlagLeavesARelativesRelationPrinted) {
  m_run.profile[frame::slot::kRelationPrinted] = qs(u"0");
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"被保険者との続柄"), qs(u"妻"));
  openNew(claim);
  EXPECT_EQ(m_form->chosen(qs(u"FrameSet(9)")), qs(u"0"));  // 続柄を印刷する
}

}  // namespace
}  // namespace claims
