#include "claims/core/claim_store.h"

#include <gtest/gtest.h>

#include "claims/core/insurance.h"
#include "claims/tests/core/claim_builder.h"

namespace claims {
namespace {

using testing::makeClaim;
using testing::Set;

StoredClaim storedOf(const ClaimRecord& claim, const std::optional<AreaBoxes>& boxes = std::nullopt) {
  testing::CsvFees fees;
  const FeeFiles files(QStringLiteral("/p"), QStringLiteral("/p/料金設定2000.mdb"));
  return storeClaim(claim, {testing::era(), files, fees}, boxes);
}

void expectColumns(const ClaimRecord& claim, std::initializer_list<Set> columns) {
  for (const Set& set : columns) {
    const QString value = claim.named(QString::fromUtf16(set.column));
    if (set.value) {
      EXPECT_EQ(value, set.value) << QString::fromUtf16(set.column).toStdString();
    } else {
      EXPECT_TRUE(value.isNull()) << QString::fromUtf16(set.column).toStdString();
    }
  }
}

TEST(StoreClaim, ColumnsOfAnOldNeedleClaim) {
  const auto stored = storedOf(makeClaim(u"令和5年1月", u"鍼灸", u"3割", u"1=b/4 2=a/4 3=d/4 4=f/4",
                                         {{u"初回有無", u"-1"}, {u"h1", u"old"}, {u"m2", u"9"}}));
  expectColumns(stored.claim, {{u"はり合計金額", u"3100"},
                               {u"はり合計回数", u"2"},
                               {u"灸合計金額", u"1550"},
                               {u"灸合計回数", u"1"},
                               {u"はり灸合計金額", u"1610"},
                               {u"はり灸合計回数", u"1"},
                               {u"はり電療合計金額", u"102"},
                               {u"はり電療合計回数", u"3"},
                               {u"灸電療合計金額", nullptr},
                               {u"マッサージ局所合計金額", nullptr},
                               {u"治療日数", u"4"},
                               {u"初回費用", u"1780"},
                               {u"初回", u"b"},
                               {u"往療距離", u"4"},
                               {u"往療回数", u"4"},
                               {u"往療金額1", u"9200"},
                               {u"往療金額2", nullptr},
                               {u"施術科目", u"鍼"},
                               // 3100 + 1550 + 1610 + 102 + 1780 + 9200; 3割: 5202.6
                               {u"合計", u"17342"},
                               {u"一部負担金2", u"5203"},
                               {u"請求額", u"12139"},
                               {u"h2", u"17342"},
                               {u"h3", u"5203"},
                               {u"h4", u"12139"},
                               {u"h1", nullptr},
                               {u"m1", nullptr},
                               {u"m2", nullptr}});
}

TEST(StoreClaim, ColumnsOfAnOldMassageClaim) {
  const auto stored =
      storedOf(makeClaim(u"令和2年1月", u"あマ", u"1割", u"1-2=g2h1/2 3=i2/8 4=j3",
                         {{u"実際の距離", u"1.5"}, {u"躯幹", u"-1"}, {u"徒手左下肢", u"-1"}}));
  expectColumns(stored.claim, {{u"マッサージ局所合計金額", u"3060"},
                               {u"マッサージ局所合計回数", u"4"},  // 9 areas of 340
                               {u"徒手矯正術合計金額", u"1580"},
                               {u"徒手矯正術合計回数", u"2"},  // 2 limbs of 790
                               {u"温罨法合計金額", u"110"},
                               {u"温罨法合計回数", u"1"},
                               {u"電気光線器具併用合計金額", u"150"},
                               {u"電気光線器具併用合計回数", u"1"},
                               {u"往療距離", u"1.5"},
                               {u"往療回数", u"3"},
                               {u"往療金額1", u"4600"},
                               {u"往療金額2", u"2700"},
                               // 3060 + 1580 + 110 + 150 + 4600 + 2700
                               {u"合計", u"12200"},
                               {u"一部負担金2", u"1220"},
                               {u"m4", u"10980"},
                               {u"h4", nullptr},
                               {u"初回", nullptr},
                               {u"施術科目", u"マ術"},
                               {u"d3", u"4"},
                               {u"d4", nullptr},
                               {u"d11", u"2"}});
}

TEST(StoreClaim, TwoNumbersOfAreasAndDistancesShowNone) {
  const auto stored = storedOf(makeClaim(u"令和2年1月", u"あマ", u"1割", u"1=g2/2 2=g3/6"));
  expectColumns(stored.claim, {{u"往療距離", nullptr}, {u"往療回数", u"2"}});
}

TEST(StoreClaim, ClaimsFrom202410KeepTheirRecordInOneLine) {
  const auto stored = storedOf(makeClaim(u"令和6年10月", u"鍼", u"1割", u"1=a", {{u"m1", u"old"}}));
  EXPECT_TRUE(stored.claim.named(QStringLiteral("h1")).startsWith(u"鍼データ集結ver9.0,0,1,0,1610,1,1610,"));
  expectColumns(stored.claim, {{u"h2", u"1610"},
                               {u"h3", u"161"},
                               {u"h4", u"1449"},
                               {u"m1", nullptr},
                               {u"はり合計金額", nullptr},
                               {u"治療日数", u"1"},
                               {u"施術科目", u"鍼"}});
}

TEST(StoreClaim, WithoutAShareTheClaimIsTheTotal) {
  const auto stored = storedOf(makeClaim(u"令和6年10月", u"鍼", u"", u"1=a"));
  expectColumns(stored.claim, {{u"合計", u"1610"}, {u"一部負担金2", nullptr}, {u"請求額", u"1610"}});
}

TEST(StoreClaim, ABlankMonthLeavesTheAmounts) {
  const auto stored = storedOf(makeClaim(u"", u"鍼", u"3割", u"1=a", {{u"合計", u"77"}, {u"h1", u"old"}}));
  expectColumns(stored.claim, {{u"合計", u"77"}, {u"h1", u"old"}});
  EXPECT_FALSE(stored.claim.has(claim::subject));
}

TEST(StoreClaim, ATotalOfNothingLeavesNull) {
  const auto stored = storedOf(makeClaim(u"令和6年10月", u"鍼灸", u"3割", u"", {{u"合計", u"77"}}));
  expectColumns(stored.claim, {{u"合計", nullptr}, {u"一部負担金2", nullptr}, {u"請求額", nullptr}});
  EXPECT_FALSE(stored.claim.named(QStringLiteral("施術科目")).isNull());  // stored, though blank
}

TEST(StoreClaim, AMissingFeeFileClearsAndIsTold) {
  const FeeFiles files(QStringLiteral("/p"), QStringLiteral("/p/none.mdb"));
  testing::CsvFees fees;
  const auto stored = storeClaim(makeClaim(u"令和6年10月", u"鍼灸", u"3割", u"1=a", {{u"合計", u"77"}}),
                                 {testing::era(), files, fees});
  ASSERT_TRUE(stored.calculation);
  expectColumns(stored.claim, {{u"合計", nullptr}, {u"h2", nullptr}});
  EXPECT_FALSE(stored.claim.named(QStringLiteral("施術科目")).isNull());  // it was stored, and may be closed
}

TEST(StoreClaim, AMissingFeeFileLeavesTheSubjectOfTheLastStore) {
  const FeeFiles files(QStringLiteral("/p"), QStringLiteral("/p/none.mdb"));
  testing::CsvFees fees;
  const auto stored = storeClaim(makeClaim(u"令和6年10月", u"鍼灸", u"3割", u"1=a", {{u"施術科目", u"鍼"}}),
                                 {testing::era(), files, fees});
  expectColumns(stored.claim, {{u"施術科目", u"鍼"}});
}

TEST(StoreClaim, KeysAndKinds) {
  const struct {
    const char16_t *kind, *printed, *relation, *storedKind, *order, *code;
  } rows[] = {{u"共済", u"共済組合", u"本人", u"共済", u"1", u"11"},
              {u"組合", u"組合健保", u"妻", u"組合", u"2", u"22"},
              {u"社保", u"船員保険", u"本人", u"社保", u"3", u"111"},
              {u"全国健康保険協会", u"", u"長男", u"全国健康保険協会", u"3", u"222"},
              {u"国保", u"国民健保", u"本人", u"国保", u"4", u"1"},
              {u"退職国保", u"退職者", u"家族", u"退職国保", u"5", u"2"},
              {u"退職国保", u"国民健保", u"本人", u"国保", u"4", u"1"},
              {u"特別国保", u"国民健保", u"", u"特別国保", u"6", u"2"},
              {u"老人", u"後期高齢", u"本人", u"後期高齢", u"7", u"1"},
              {u"老人", u"国民健保", u"本人", u"老人", u"7", nullptr},
              {u"後期高齢", u"後期高齢", u"家族", u"後期高齢", u"7", u"1"},
              {u"", u"", u"本人", u"", nullptr, nullptr}};
  for (const auto& row : rows) {
    const auto stored = storedOf(makeClaim(u"令和6年10月", u"鍼", u"1割", u"1=a",
                                           {{u"保険の種類", row.kind},
                                            {u"保険の種類3", row.printed},
                                            {u"被保険者との続柄", row.relation},
                                            {u"保険証番号", u"55"}}));
    expectColumns(stored.claim, {{u"保険の種類", row.storedKind},
                                 {u"保険順位", row.order},
                                 {u"numdummy16", row.code},
                                 {u"保険証番号1", u"55"}});
  }
}

TEST(StoreClaim, TheListsKanaIsNeverNull) {
  expectColumns(storedOf(ClaimRecord()).claim, {{u"被保険者のフリガナ", u" "}});
  ClaimRecord claim;
  claim.setNamed(QStringLiteral("被保険者のフリガナ"), QStringLiteral("ﾐﾎﾝ"));
  expectColumns(storedOf(claim).claim, {{u"被保険者のフリガナ", u"ﾐﾎﾝ"}});
}

TEST(StoreClaim, TicksJoinInTheirOrder) {
  const auto stored = storedOf(makeClaim(u"", u"鍼", u"", u"",
                                         {{u"高齢7", u"-1"},
                                          {u"高齢8", u"-1"},
                                          {u"高齢9", u"-1"},
                                          {u"家族", u"-1"},
                                          {u"就学前", u"-1"},
                                          {u"本人", u"-1"}}));
  expectColumns(stored.claim, {{u"負担割合", u"本人,三歳未満,家族,高齢9,高齢8,高齢7,"}});
  // ticks taken off leave it blank; a claim that knows no ticks keeps its text
  expectColumns(storedOf(makeClaim(u"", u"鍼", u"", u"", {{u"本人", u"0"}, {u"負担割合", u"本人,"}})).claim,
                {{u"負担割合", u""}});
  expectColumns(storedOf(makeClaim(u"", u"鍼", u"", u"", {{u"負担割合", u"本人,"}})).claim,
                {{u"負担割合", u"本人,"}});
}

TEST(StoreClaim, CorrectedBoxesAreKept) {
  const auto claim = makeClaim(u"令和6年10月", u"あマ", u"1割", u"1-2=g1 3=g2",
                               {{u"躯幹", u"-1"}, {u"d3", u"2"}, {u"d4", u"1"}});
  expectColumns(storedOf(claim).claim, {{u"d3", u"2"}, {u"d4", u"1"}});
  AreaBoxes typed;
  typed.areas[4] = QStringLiteral("3");
  const auto stored = storedOf(claim, typed);
  expectColumns(stored.claim, {{u"d3", nullptr}, {u"d4", nullptr}, {u"d7", u"3"}});
  EXPECT_TRUE(stored.claim.named(QStringLiteral("m1"))
                  .startsWith(u"あマデータ集結ver9.0,0,0,0,0,3,0,0,0,0,450,2,900,"));
}

TEST(StoreClaim, ClearsThirtyOneColumnsOfTheFirstHalfAndEightOfTheSecond) {
  EXPECT_EQ(calculatedColumns().size(), 31U);
  EXPECT_EQ(calculatedColumnsSecond().size(), 8U);
}

TEST(StoreClaim, StoringTwiceChangesNothing) {
  const auto claim = makeClaim(u"令和6年10月", u"あマ", u"2割", u"1-9=g3h1/t 10=i1/v3", {{u"躯幹", u"-1"}});
  const auto once = storedOf(claim), twice = storedOf(once.claim);
  EXPECT_EQ(once.claim.columns(), twice.claim.columns());
}

}  // namespace
}  // namespace claims
