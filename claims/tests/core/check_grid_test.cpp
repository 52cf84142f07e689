#include "claims/core/check_grid.h"

#include <gtest/gtest.h>

#include "claims/core/checks.h"
#include "claims/tests/core/claim_builder.h"

namespace claims {
namespace {

using testing::era;
using testing::Set;

constexpr char16_t kNoNumber[] =
    u"マッサージもしくは変形徒手の部位数が入力されていません。記号の後ろに部位数を記入してください。"
    u"一度「記入の仕方」をご覧ください。";
constexpr char16_t kAlone[] = u"徒手矯正の単独では請求出来ません。記入の仕方をご覧ください。";
constexpr char16_t kHeat[] =
    u"徒手矯正と温罨法及び温罨法と電気光線器具との併施はできません。記号「g」を使用してください。但し、"
    u"「同意書」のマッサージの部位の駆幹にチェックをすれば、印刷も登録も出来るようになります。";
constexpr char16_t kNoAreas[] = u"マッサージ部位数が入力されていません。記入の仕方をご覧ください。";
constexpr char16_t kNoLimbs[] = u"徒手矯正（肢）数が入力されていません。記入の仕方をご覧ください。";
constexpr char16_t kThreeAreas[] =
    u"マッサージの局数が２つ以上の異なる数字が入っています。マッサージの局数は２種類のみにしてください。";
constexpr char16_t kTwoLimbs[] =
    u"変形徒手矯正術の局数が１つ以上の異なる数字が入っています。変形徒手矯正術の局数は１種類のみにしてくださ"
    u"い。";

CheckResult checkOf(const char16_t* month, const char16_t* grid, std::initializer_list<Set> columns = {}) {
  ClaimRecord claim = testing::makeClaim(month, u"あマ", u"1割", grid, columns);
  claim.setNamed(QStringLiteral("保険者名称"), QStringLiteral("見本組合"));
  claim.setNamed(QStringLiteral("保険の種類3"), QStringLiteral("組合健保"));
  claim.setNamed(QStringLiteral("初療年月日"), QStringLiteral("令和2年1月5日"));
  return checkClaimFull(claim, era());
}

void expectMessages(const CheckResult& result, bool stop, std::initializer_list<const char16_t*> messages) {
  EXPECT_EQ(result.stop, stop);
  ASSERT_EQ(result.messages.size(), static_cast<qsizetype>(messages.size()));
  qsizetype at = 0;
  for (const char16_t* message : messages) EXPECT_EQ(result.messages[at++], message);
}

void expectStop(const CheckResult& result, const char16_t* message) {
  expectMessages(result, true, {message});
}
void expectPass(const CheckResult& result) { expectMessages(result, false, {}); }

TEST(GridBefore202012, LettersNeedTheClaimsNumber) {
  for (const char16_t* grid : {u"3=g", u"3=i", u"3=j", u"3=gh"}) {
    expectStop(checkOf(u"令和2年11月", grid), kNoAreas);
    expectPass(checkOf(u"令和2年11月", grid, {{u"マッサージ部位数", u"3"}}));
  }
  expectStop(checkOf(u"令和2年11月", u"3=h"), kNoLimbs);
  expectPass(checkOf(u"令和2年11月", u"3=h", {{u"徒手矯正数", u"2"}}));
}

TEST(GridBefore202012, OtherFormsPass) {
  for (const char16_t* grid : {u"3=ih", u"3=hg", u"3=h2", u"3=g2h3", u"3=i1h2", u"3=z", u"1=g1 2=g2 3=g3"})
    expectPass(checkOf(u"令和2年11月", grid));
}

TEST(GridBefore202012, TheEarlierDaySpeaks) {
  expectStop(checkOf(u"令和2年11月", u"3=h 4=g"), kNoLimbs);
  expectStop(checkOf(u"令和2年11月", u"3=g 4=h"), kNoAreas);
}

TEST(GridFrom202012, FormsWithoutNumbersStop) {
  for (const char16_t* grid : {u"3=g", u"3=i", u"3=j", u"3=gh", u"3=ih", u"3=jh", u"3=hg", u"3=hi", u"3=hj"})
    expectStop(checkOf(u"令和2年12月", grid, {{u"マッサージ部位数", u"3"}, {u"徒手矯正数", u"3"}}),
               kNoNumber);
}

TEST(GridFrom202012, ManipulationAloneStops) {
  for (const char16_t* grid : {u"3=h", u"3=h1", u"3=h2", u"3=h3", u"3=h4"})
    expectStop(checkOf(u"令和2年12月", grid), kAlone);
  expectPass(checkOf(u"令和2年12月", u"3=h5"));  // kept: only 1 to 4 are tested
  expectPass(checkOf(u"令和2年12月", u"3=g1h2"));
}

TEST(GridFrom202012, HeatBesideManipulationWarnsOncePerDay) {
  for (const char16_t* grid : {u"3=i1h2", u"3=j1h2", u"3=h2i1", u"3=h2j1"}) {
    expectMessages(checkOf(u"令和2年12月", grid), false, {kHeat});
    expectPass(checkOf(u"令和2年12月", grid, {{u"躯幹", u"-1"}}));
    expectPass(checkOf(u"令和2年11月", grid));
  }
  expectMessages(checkOf(u"令和2年12月", u"3=i1h2 5=h2i1 9=j2h2"), false, {kHeat, kHeat, kHeat});
  expectPass(checkOf(u"令和2年12月", u"3=g1h2"));
}

TEST(GridFrom202012, WarningsComeBeforeTheFailureOfALaterDay) {
  expectMessages(checkOf(u"令和2年12月", u"3=i1h2 5=g"), true, {kHeat, kNoNumber});
  expectStop(checkOf(u"令和2年12月", u"3=g 5=i1h2"), kNoNumber);
}

TEST(GridFrom202410, TwoNumbersOfAreasPassThreeStop) {
  expectPass(checkOf(u"令和6年10月", u"1=g2 2=g3"));
  expectPass(checkOf(u"令和6年10月", u"1=g2 2=i3 3=j2"));
  expectStop(checkOf(u"令和6年10月", u"1=g2 2=g3 3=g4"), kThreeAreas);
  expectStop(checkOf(u"令和6年10月", u"1=g2 2=i3 3=j5"), kThreeAreas);
  expectPass(checkOf(u"令和6年9月", u"1=g2 2=g3 3=g4"));
}

TEST(GridFrom202410, OneNumberOfLimbsPassesTwoStop) {
  expectPass(checkOf(u"令和6年10月", u"1=g2h1 2=g2h1"));
  expectStop(checkOf(u"令和6年10月", u"1=g2h1 2=g2h2"), kTwoLimbs);
  expectStop(checkOf(u"令和6年10月", u"1=g2h1/v1 2=g2h2"), kTwoLimbs);
  expectPass(checkOf(u"令和6年9月", u"1=g2h1 2=g2h2"));
}

TEST(GridFrom202410, EachVisitFormHasItsOwnTwoNumbers) {
  const struct {
    const char16_t *grid, *form;
  } rows[] = {{u"1=g1/v1 2=g2/v1 3=g3/v1", u"v1"},
              {u"1=g1/v2 2=i2/v2 3=j3/v2", u"v2"},
              {u"1=g1/v3 2=g2/v5 3=g3/v9", u"v3"},
              {u"1=g1/v10 2=g2/v15 3=g3/v20", u"v4"}};
  for (const auto& row : rows) {
    const QString message = QStringLiteral(
                                "同じ訪問施術（%1）でマッサージの局数が３つ以上の異なる数字が入っています。"
                                "同じ訪問施術（%1）では、マッサージの局数は２種類のみにしてください。")
                                .arg(QString::fromUtf16(row.form));
    const CheckResult result = checkOf(u"令和6年10月", row.grid);
    EXPECT_TRUE(result.stop);
    ASSERT_EQ(result.messages.size(), 1);
    EXPECT_EQ(result.messages[0], message);
  }
  expectPass(checkOf(u"令和6年10月", u"1=g1/v1 2=g2/v1 3=g3/v2 4=g4/v3 5=g5 6=g1"));
  // the plain counters are looked at alone
  expectPass(checkOf(u"令和6年10月", u"1=g1 2=g2 3=g3/v1 4=g4/v1"));
  // a sudden visit is a plain day
  expectStop(checkOf(u"令和6年10月", u"1=g1 2=g2/t 3=g3"), kThreeAreas);
}

TEST(GridFrom202410, PlainAreasSpeakBeforeLimbsBeforeVisits) {
  expectStop(checkOf(u"令和6年10月", u"1=g1h1 2=g2h2 3=g3 4=g1/v1 5=g2/v1 6=g3/v1"), kThreeAreas);
  expectStop(checkOf(u"令和6年10月", u"1=g1h1 2=g1h2 4=g1/v1 5=g2/v1 6=g3/v1"), kTwoLimbs);
}

// ---- The visit ledger's validation ----

QString ledgerMessage(const char16_t* month, const char16_t* grid, std::initializer_list<Set> columns = {}) {
  const ClaimRecord claim = testing::makeClaim(month, u"あマ", u"1割", grid, columns);
  return ledgerGridMessage(claim, monthFlags(QString::fromUtf16(month), era()));
}

TEST(LedgerGrid, TellsTheFirstFailureInItsOrder) {
  EXPECT_EQ(ledgerMessage(u"令和6年10月", u""), u"施術内容が記入されていません。");
  EXPECT_EQ(ledgerMessage(u"令和6年10月", u"1=a 2=g"), u"施術内容に鍼灸とマ術が混じっています。");
  for (const char16_t* grid : {u"3=hj", u"3=hi", u"3=hg", u"3=jh", u"3=ih", u"3=gh", u"3=j", u"3=i", u"3=g"})
    EXPECT_EQ(ledgerMessage(u"令和6年10月", grid), kNoNumber);
  for (const char16_t* grid : {u"3=h", u"3=h1", u"3=h2", u"3=h3", u"3=h4"})
    EXPECT_EQ(ledgerMessage(u"令和6年10月", grid), kAlone);
  EXPECT_TRUE(ledgerMessage(u"令和6年10月", u"1=g1 2=g2h3/v1").isNull());
}

TEST(LedgerGrid, LettersWithoutANumberFollowTheRuleOfTheMonth) {
  EXPECT_EQ(ledgerMessage(u"令和2年12月", u"3=g"), kNoNumber);
  EXPECT_EQ(ledgerMessage(u"令和2年11月", u"3=g"), kNoAreas);
  EXPECT_TRUE(ledgerMessage(u"令和2年11月", u"3=g", {{u"マッサージ部位数", u"3"}}).isNull());
}

TEST(LedgerGrid, ThreeNumbersOfAreasUnderOneFormOfVisitAreRefused) {
  const std::pair<const char16_t*, int> grids[] = {{u"1=g1/v1 2=g2/v1 3=g3/v1", 1},
                                                   {u"1=g1/v2 2=i2/v2 3=j3/v2", 2},
                                                   {u"1=g1/v3 2=g2/v9 3=g3/v5", 3},
                                                   {u"1=g1/v10 2=g2/v20 3=g3/v15", 4}};
  for (const auto& [grid, form] : grids)
    EXPECT_EQ(ledgerMessage(u"令和6年10月", grid),
              QStringLiteral("同じ訪問施術（v%1）でマッサージの局数が３つ以上の異なる数字が入っています。"
                             "同じ訪問施術（v%1）では、マッサージの局数は２種類のみにしてください。")
                  .arg(form));
  EXPECT_TRUE(ledgerMessage(u"令和6年10月", u"1=g1/v1 2=g2/v1 3=g3/v2").isNull());
  EXPECT_TRUE(ledgerMessage(u"令和6年9月", u"1=g1/v1 2=g2/v1 3=g3/v1").isNull()) << "before the regime";
  EXPECT_TRUE(ledgerMessage(u"令和6年10月", u"1=g1 2=g2 3=g3").isNull()) << "left to the form's own check";
}

TEST(LedgerGrid, HeatBesideManipulationIsLeftToTheForm) {
  EXPECT_TRUE(ledgerMessage(u"令和6年10月", u"3=i1h2").isNull());
}

}  // namespace
}  // namespace claims
