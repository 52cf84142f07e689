#include <QFile>

#include "claims/tests/screens/claim_form_fixture.h"

// 登録: the flow, the amounts, the pair.

namespace claims {

namespace {

using ClaimFormStore = ClaimFormTest;

const QString kQuestion = qs(u"       　　    更新しますか？");

TEST_F(ClaimFormStore, TheAmountsOfAnAcupunctureClaimGoToBothHalves) {
  const qint64 id = add(acupuncture());
  open(id);
  answer({true});
  press(qs(u"cmdUpdate"));
  EXPECT_EQ(told(), QStringList(kQuestion));
  const ClaimRecord claim = stored(id);
  // 2 days of one art at 1,500 and 1 day of two arts at 1,600; 3割 of 4,600 is 1,380.
  EXPECT_EQ(claim.named(qs(u"合計")), qs(u"4600"));
  EXPECT_EQ(claim.named(qs(u"一部負担金2")), qs(u"1380"));
  EXPECT_EQ(claim.named(qs(u"請求額")), qs(u"3220"));
  EXPECT_EQ(claim.named(qs(u"h2")), qs(u"4600"));
  EXPECT_EQ(claim.named(qs(u"h3")), qs(u"1380"));
  EXPECT_EQ(claim.named(qs(u"h4")), qs(u"3220"));
  EXPECT_TRUE(claim.named(qs(u"h1")).startsWith(qs(u"鍼データ集結ver9.0")));
  EXPECT_TRUE(claim.named(qs(u"m1")).isNull());
  EXPECT_EQ(claim.named(qs(u"施術科目")), qs(u"鍼灸"));
  EXPECT_EQ(claim.named(qs(u"保険順位")), qs(u"4"));
  EXPECT_EQ(claim.named(qs(u"治療日数")), qs(u"3"));
  EXPECT_EQ(claim.named(qs(u"被保険者のフリガナ")), qs(u" "));
  EXPECT_EQ(m_form->text(qs(u"txtFields(3)")), qs(u"鍼灸"));
}

TEST_F(ClaimFormStore, AMassageClaimWritesTheOtherPairAndItsBoxes) {
  ClaimRecord typed = massage();
  typed.setNamed(qs(u"躯幹"), qs(u"-1"));
  const qint64 id = add(typed);
  open(id);
  type(qs(u"Text5(20)"), qs(u"g2"));
  answer({true});
  press(qs(u"cmdUpdate"));
  told();
  const ClaimRecord claim = stored(id);
  EXPECT_EQ(claim.named(qs(u"合計")), qs(u"2700"));  // 3 days x 2 areas x 450
  EXPECT_EQ(claim.named(qs(u"m3")), qs(u"270"));
  EXPECT_EQ(claim.named(qs(u"m4")), qs(u"2430"));
  EXPECT_TRUE(claim.named(qs(u"h2")).isNull());
  EXPECT_EQ(claim.named(qs(u"d3")), qs(u"3"));
  EXPECT_EQ(claim.named(qs(u"施術科目")), qs(u"マ術"));
  EXPECT_FALSE(m_form->treatmentChanged());
}

TEST_F(ClaimFormStore, CorrectedBoxesAreStoredAsShown) {
  ClaimRecord typed = massage();
  typed.setNamed(qs(u"躯幹"), qs(u"-1"));
  const qint64 id = add(typed);
  open(id);
  press(qs(u"CommandBoxes"));
  EXPECT_EQ(m_form->text(qs(u"Text31(0)")), qs(u"2"));
  type(qs(u"Text31(0)"), qs(u"1"));
  answer({true});
  press(qs(u"cmdUpdate"));
  EXPECT_EQ(stored(id).named(qs(u"d3")), qs(u"1"));
}

TEST_F(ClaimFormStore, TheResultIsHeard) {
  openNew(acupuncture());
  m_channel.clear();
  answer({true});
  press(qs(u"cmdUpdate"));
  EXPECT_EQ(m_channel.lastSaid(),
            qs(u"登録しました\u00fe合計 4,600円\u00fe一部負担金 1,380円\u00fe請求額 3,220円"));
}

TEST_F(ClaimFormStore, NoToTheQuestionChangesNothing) {
  const qint64 id = add(acupuncture());
  open(id);
  type(qs(u"txtFields(27)"), qs(u"例示 花子"));
  toggle(qs(u"Check1"));
  answer({false});
  press(qs(u"cmdUpdate"));
  EXPECT_EQ(told(), QStringList(kQuestion));
  EXPECT_EQ(stored(id).named(qs(u"被保険者の氏名")), qs(u"見本 太郎"));
  EXPECT_TRUE(stored(id).named(qs(u"施術科目")).isNull());
  EXPECT_TRUE(m_form->checkChanged());
}

TEST_F(ClaimFormStore, TheFullCheckComesBeforeTheQuestion) {
  openNew(acupuncture());
  for (const int day : {1, 8, 15}) type(QStringLiteral("Text5(%1)").arg(day), QString());
  press(qs(u"cmdUpdate"));
  EXPECT_EQ(told(), QStringList(qs(u"施術内容が記入されていません。")));
}

TEST_F(ClaimFormStore, EveryEditOfBothHalvesIsWritten) {
  const qint64 id = add(acupuncture());
  open(id);
  type(qs(u"txtFields(27)"), qs(u"例示 花子"));
  type(qs(u"txtFields(120)"), qs(u"架空駅"));
  toggle(qs(u"chkFields(0)"));
  toggle(qs(u"Check10"));
  toggle(qs(u"Check9(0)"));
  toggle(qs(u"Check9(5)"));
  answer({true});
  press(qs(u"cmdUpdate"));
  const ClaimRecord claim = stored(id);
  EXPECT_EQ(claim.named(qs(u"被保険者の氏名")), qs(u"例示 花子"));
  EXPECT_EQ(claim.named(qs(u"c1")), qs(u"架空駅"));
  EXPECT_TRUE(claim.ticked(claim::diseaseTick[1]));
  EXPECT_TRUE(claim.ticked(claim::showVisitTable));
  EXPECT_EQ(claim.named(qs(u"負担割合")), qs(u"本人,高齢7,"));
  EXPECT_FALSE(m_form->checkChanged());
}

TEST_F(ClaimFormStore, AStoreWithoutEditsKeepsWhatWasRead) {
  const qint64 id = add(acupuncture());
  open(id);
  answer({true});
  press(qs(u"cmdUpdate"));
  const ClaimRecord claim = stored(id);
  for (const char16_t* column : {u"保険証番号", u"同意の年月日", u"摘要1", u"c18"})
    EXPECT_TRUE(claim.named(qs(column)).isNull()) << qs(column).toStdString();
}

struct KindCase {
  const char16_t* kind;
  const char16_t* printed;
  const char16_t* stored;
  const char16_t* order;
};

TEST_F(ClaimFormStore, TheKindIsRewrittenByTheTreatmentRecordsKind) {
  const KindCase kinds[] = {{u"老人", u"後期高齢", u"後期高齢", u"7"},
                            {u"老人", u"国民健保", u"老人", u"7"},
                            {u"退職国保", u"国民健保", u"国保", u"4"},
                            {u"退職国保", u"退職者", u"退職国保", u"5"},
                            {u"共済", u"共済組合", u"共済", u"1"}};
  for (const KindCase& row : kinds) {
    ClaimRecord claim = acupuncture();
    claim.setNamed(qs(u"保険の種類"), qs(row.kind));
    claim.setNamed(qs(u"保険の種類3"), qs(row.printed));
    const qint64 id = add(claim);
    open(id);
    answer({true});
    press(qs(u"cmdUpdate"));
    EXPECT_EQ(stored(id).named(qs(u"保険の種類")), qs(row.stored));
    EXPECT_EQ(stored(id).named(qs(u"保険順位")), qs(row.order));
  }
}

TEST_F(ClaimFormStore, OverlongTextsAreCutMarkedAndReported) {
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"保険の種類"), qs(u"共済"));
  claim.setNamed(qs(u"被保険者との続柄"), qs(u"あいうえお"));  // 4 print
  claim.setNamed(qs(u"傷病名8"), QString(10, QChar(u'病')));   // 10 print
  const qint64 id = add(claim);
  open(id);
  answer({true});
  press(qs(u"cmdUpdate"));
  EXPECT_EQ(told(),
            QStringList({qs(u"印刷出来る文字数を超えている項目があったので文字を可能な数まで削りました。\n"
                            u"削った項目名は赤字になっています。"),
                         kQuestion}));
  EXPECT_EQ(stored(id).named(qs(u"被保険者との続柄")), qs(u"あいうえ"));
  EXPECT_TRUE(m_form->isCaptionRed(qs(u"txtFields(29)")));
  add(acupuncture());
  open(id + 1);
  EXPECT_FALSE(m_form->isCaptionRed(qs(u"txtFields(29)")));
  EXPECT_EQ(stored(id).named(qs(u"傷病名8")).size(), 10);
}

TEST_F(ClaimFormStore, ACutFieldIsRedUntilTheNextTrimming) {
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"保険の種類"), qs(u"組合"));
  claim.setNamed(qs(u"被保険者との続柄"), qs(u"あいうえお"));
  openNew(claim);
  answer({false});
  press(qs(u"cmdUpdate"));
  EXPECT_TRUE(m_form->isCaptionRed(qs(u"txtFields(29)")));
  EXPECT_FALSE(m_form->isCaptionRed(qs(u"txtFields(27)")));
  answer({false});
  press(qs(u"cmdUpdate"));
  EXPECT_FALSE(m_form->isCaptionRed(qs(u"txtFields(29)")));
}

TEST_F(ClaimFormStore, TheNationalKindsAreNotCutAtStore) {
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"被保険者との続柄"), qs(u"あいうえお"));
  const qint64 id = add(claim);
  open(id);
  answer({true});
  press(qs(u"cmdUpdate"));
  EXPECT_EQ(told(), QStringList(kQuestion));
  EXPECT_EQ(stored(id).named(qs(u"被保険者との続柄")), qs(u"あいうえお"));
}

TEST_F(ClaimFormStore, ATextLongerThanItsColumnIsRefusedWhole) {
  const qint64 id = add(acupuncture());
  open(id);
  type(qs(u"txtFields(120)"), qs(u"架空駅"));
  m_form->setText(qs(u"txtFields(27)"), QString(256, QChar(u'長')));
  answer({true});
  press(qs(u"cmdUpdate"));
  const QStringList texts = told();
  ASSERT_EQ(texts.size(), 2);
  EXPECT_TRUE(texts[1].startsWith(qs(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :"))) << texts[1].toStdString();
  EXPECT_EQ(stored(id).named(qs(u"被保険者の氏名")), qs(u"見本 太郎"));
  EXPECT_TRUE(stored(id).named(qs(u"c1")).isNull());
  EXPECT_EQ(m_form->text(qs(u"txtFields(27)")).size(), 256);
}

TEST_F(ClaimFormStore, ALongTextColumnTakesMore) {
  const qint64 id = add(acupuncture());
  open(id);
  type(qs(u"txtFields(180)"), QString(3000, QChar(u'長')));
  answer({true});
  press(qs(u"cmdUpdate"));
  EXPECT_EQ(stored(id).named(qs(u"memo dummy1")).size(), 3000);
}

TEST_F(ClaimFormStore, AClaimThatChangedMeanwhileIsRefused) {
  const qint64 id = add(acupuncture());
  open(id);
  const ClaimRecord seen = stored(id);
  ClaimRecord other = seen;
  other.setNamed(qs(u"摘要1"), qs(u"別の計算機"));
  ASSERT_TRUE(file().store(id, seen, other).ok());
  type(qs(u"txtFields(27)"), qs(u"例示 花子"));
  answer({true});
  press(qs(u"cmdUpdate"));
  EXPECT_EQ(told().size(), 2);
  EXPECT_EQ(stored(id).named(qs(u"被保険者の氏名")), qs(u"見本 太郎"));
  EXPECT_EQ(stored(id).named(qs(u"摘要1")), qs(u"別の計算機"));
}

TEST_F(ClaimFormStore, AMissingFeeFileIsReportedAndTheClaimHasNoAmounts) {
  const qint64 id = add(acupuncture());
  open(id);
  answer({true});
  press(qs(u"cmdUpdate"));
  EXPECT_EQ(stored(id).named(qs(u"合計")), qs(u"4600"));
  told();
  QFile::remove(m_run.folders[frame::folder::kFees]);
  m_form.reset();  // the form keeps the edition that it has read
  open(id);
  type(qs(u"txtFields(27)"), qs(u"例示 花子"));
  answer({true});
  press(qs(u"cmdUpdate"));
  const QStringList texts = told();
  ASSERT_EQ(texts.size(), 2);
  EXPECT_TRUE(texts[1].startsWith(qs(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :")));
  EXPECT_EQ(stored(id).named(qs(u"被保険者の氏名")), qs(u"例示 花子"));
  EXPECT_TRUE(stored(id).named(qs(u"合計")).isNull());
}

TEST_F(ClaimFormStore, TheMonthDecidesTheRulesOfTheMoney) {
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"申請年月"), qs(u"令和6年9月"));
  claim.setNamed(qs(u"往療距離1"), qs(u"4"));
  claim.setNamed(qs(u"往療距離8"), qs(u"5"));
  const qint64 id = add(claim);
  open(id);
  answer({true});
  press(qs(u"cmdUpdate"));
  const ClaimRecord done = stored(id);
  // 2 x 1,500 + 1,600 + one near visit 2,300 + one far visit 2,550
  EXPECT_EQ(done.named(qs(u"合計")), qs(u"9450"));
  EXPECT_EQ(done.named(qs(u"往療金額1")), qs(u"2300"));
  EXPECT_EQ(done.named(qs(u"往療金額2")), qs(u"2550"));
  EXPECT_TRUE(done.named(qs(u"h1")).isNull());
}

TEST_F(ClaimFormStore, TheLedgerGetsTheFocusBack) {
  open(add(acupuncture()), routes::VisitLedger::screen);
  m_navigator.screens.insert(qs(u"治療台帳3"), m_form.get());
  answer({true});
  press(qs(u"cmdUpdate"));
  EXPECT_EQ(m_navigator.shows, QStringList(qs(u"治療台帳3")));
}

TEST_F(ClaimFormStore, ALedgerThatHasClosedIsNotOpenedAnew) {
  open(add(acupuncture()), routes::VisitLedger::screen);
  answer({true});
  press(qs(u"cmdUpdate"));
  EXPECT_TRUE(m_navigator.shows.isEmpty());
}

TEST_F(ClaimFormStore, TheMenuEntryDoesWhatTheButtonDoes) {
  openNew(acupuncture());
  answer({false});
  press(qs(u"Men_Bup"));
  EXPECT_EQ(told(), QStringList(kQuestion));
}

}  // namespace
}  // namespace claims
