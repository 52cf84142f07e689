#include "claims/core/amounts.h"

#include <gtest/gtest.h>

#include "claims/core/counters.h"
#include "claims/tests/core/claim_builder.h"

namespace claims {
namespace {

using testing::era;
using testing::makeClaim;

ClaimAmounts amountsOf(const ClaimRecord& claim, Path path) {
  testing::CsvFees fees;
  const FeeFiles files(QStringLiteral("/program"), QStringLiteral("/program/料金設定2000.mdb"));
  const auto flags = monthFlags(claim.get(claim::month), era());
  auto computed = amounts(claim, flags, path, files, fees);
  EXPECT_TRUE(computed.ok());
  return computed.value();
}

TEST(Share, RoundsUpButForAFractionUnderAThousandth) {
  const struct {
    qint64 total;
    double rate;
    qint64 share;
  } rows[] = {{0, 0.3, 0},      {5000, 0.1, 500},     {4945, 0.3, 1484},   {4947, 0.3, 1485},
              {1000, 0.2, 200}, {1, 0.1, 1},          {9, 0.1, 1},         {10, 0.1, 1},
              {11, 0.1, 2},     {5, 0.2, 1},          {6, 0.2, 2},         {10, 0.3, 3},
              {11, 0.3, 4},     {100000, 0.3, 30000}, {99999, 0.3, 30000}, {123456, 0.0, 0}};
  for (const auto& row : rows)
    EXPECT_EQ(shareOf(row.total, row.rate), row.share) << row.total << ' ' << row.rate;
}

TEST(Share, WholeTenthsAreNeverRoundedUpAndOtherAlways) {
  // In whole numbers: tenths rounded up.
  for (qint64 total = 0; total < 200000; total += 7) {
    for (int tenths = 1; tenths <= 3; ++tenths)
      ASSERT_EQ(shareOf(total, tenths == 1   ? 0.1
                               : tenths == 2 ? 0.2
                                             : 0.3),
                (total * tenths + 9) / 10)
          << total;
  }
}

TEST(Preview, ScreenByMonthAndKind) {
  const struct {
    const char16_t *month, *kind, *screen;
  } rows[] = {{u"平成30年5月", u"鍼灸", u"施術料金1"},     {u"平成30年5月", u"あマ", u"施術料金2"},
              {u"平成30年6月", u"鍼", u"施術料金2018H"},   {u"平成30年6月", u"あマ", u"施術料金2108A"},
              {u"平成31年1月", u"灸", u"施術料金2018H"},   {u"令和1年5月", u"鍼灸", u"施術料金2018H"},
              {u"令和6年9月", u"鍼灸", u"施術料金2018H"},  {u"令和6年9月", u"あマ", u"施術料金2108A"},
              {u"令和6年10月", u"鍼灸", u"施術料金2024H"}, {u"令和6年10月", u"あマ", u"施術料金2024A"}};
  for (const auto& row : rows) {
    const auto claim = makeClaim(row.month, row.kind, u"1割", u"");
    EXPECT_EQ(previewScreen(amountsOf(claim, Path::Preview).preview), row.screen);
  }
}

TEST(Preview, StepsOfTwoKilometresBefore201806) {
  // 平成28年10月: base 1,800; add-ons 770, 1,540, 2,310, 2,310, 2,310, 2,310, 2,310 for 4 to 16 km.
  const struct {
    const char16_t* visit;
    qint64 perVisit;
  } rows[] = {{u"2", 1800},         {u"4", 1800 + 770},   {u"6", 1800 + 1540},  {u"8", 1800 + 2310},
              {u"10", 1800 + 2310}, {u"12", 1800 + 2310}, {u"14", 1800 + 2310}, {u"16", 1800 + 2310}};
  for (const auto& row : rows) {
    ClaimRecord claim = makeClaim(u"平成28年10月", u"鍼", u"3割", u"1-3=a");
    for (int day = 1; day <= 3; ++day) claim.set(claim::dayVisit[day], QString::fromUtf16(row.visit));
    EXPECT_EQ(amountsOf(claim, Path::Preview).total, 3 * 1300 + 3 * row.perVisit);
  }
}

TEST(Preview, AMonthOfDifferingDistancesTakesTheColumnOfTenForTwelve) {
  FeeEdition fees;
  fees.set(Fee::Base2K, 1000);
  fees.set(Fee::Add8K, 80);
  fees.set(Fee::Add10K, 500);
  const MonthFlags flags = monthFlags(QDate(2017, 1, 1));
  const auto alike = makeClaim(u"平成29年1月", u"鍼", u"", u"1-2=a/12");
  EXPECT_EQ(amounts(alike, fees, flags, Path::Preview).total, 2 * (1000 + 500));
  const auto differing = makeClaim(u"平成29年1月", u"鍼", u"", u"1=a/12 2=a/10 3=a/2");
  EXPECT_EQ(amounts(differing, fees, flags, Path::Preview).total, 3 * 1000 + 80 + 80);
}

TEST(Preview, AddOnsByTheirOwnColumns) {
  FeeEdition fees;
  fees.set(Fee::Base2K, 1000);
  const struct {
    const char16_t* grid;
    Fee fee;
  } rows[] = {{u"1=a/4", Fee::Add2K},  {u"1=a/6", Fee::Add4K},   {u"1=a/8", Fee::Add6K},
              {u"1=a/10", Fee::Add8K}, {u"1=a/12", Fee::Add10K}, {u"1=a/14", Fee::Add12K},
              {u"1=a/16", Fee::Add14K}};
  for (const auto& row : rows) {
    FeeEdition edition = fees;
    edition.set(row.fee, 7);
    const auto claim = makeClaim(u"平成29年1月", u"鍼", u"", row.grid);
    EXPECT_EQ(amounts(claim, edition, monthFlags(QDate(2017, 1, 1)), Path::Preview).total, 1007);
  }
}

TEST(Preview, OtherNumbersThanStepsAreChargedNothing) {
  const auto claim = makeClaim(u"平成28年10月", u"鍼", u"", u"1=a/1 2=a/3 3=a/18 4=a/20");
  EXPECT_EQ(amountsOf(claim, Path::Preview).total, 4 * 1300);
}

TEST(Preview, FromTheTwoBandsOnTheSameAsTheStore) {
  for (const char16_t* month : {u"平成30年6月", u"令和2年12月", u"令和6年9月", u"令和6年10月"}) {
    const auto claim = makeClaim(month, u"あマ", u"2割", u"1-3=g3h2/4 9=i2/t 10=j2/v1 11=g1/6",
                                 {{u"yn2", u"-1"}, {u"d2", u"1"}});
    const ClaimAmounts store = amountsOf(claim, Path::Store), preview = amountsOf(claim, Path::Preview);
    EXPECT_GT(store.total, 0);
    EXPECT_EQ(store.total, preview.total);
    EXPECT_EQ(store.share, preview.share);
  }
}

TEST(Rows, NeedleRowsOf2024StandInTheirOrder) {
  const auto claim = makeClaim(u"令和6年10月", u"鍼灸", u"3割",
                               u"1=b 2=e 3=a/v1 4=e/v1 5=a/v2 6=e/v2 7=a/v3 8=e/v3 9=a/v10 10=e/v10 11=a/t",
                               {{u"初回有無", u"-1"}, {u"yn2", u"-1"}, {u"d2", u"1"}});
  const struct {
    const char16_t* label;
    int unit, count;
  } rows[] = {{u"初回施術", 1950, 1},
              {u"はり・きゅう 1術", 1610, 2},
              {u"はり・きゅう 2術", 1770, 1},
              {u"電気鍼・電気温灸器・電気光線器具", 100, 1},
              {u"訪問施術①（1人） 1術", 3910, 1},
              {u"訪問施術①（1人） 2術", 4070, 1},
              {u"訪問施術②（2人） 1術", 2760, 1},
              {u"訪問施術②（2人） 2術", 2920, 1},
              {u"訪問施術③（3人～9人） 1術", 2070, 1},
              {u"訪問施術③（3人～9人） 2術", 2230, 1},
              {u"訪問施術③（10人以上） 1術", 1760, 1},
              {u"訪問施術③（10人以上） 2術", 1920, 1},
              {u"突発的な往療", 2300, 1},
              {u"特別地域の往療", 250, 9},
              {u"施術報告書交付料", 480, 1}};
  const ClaimAmounts computed = amountsOf(claim, Path::Preview);
  ASSERT_EQ(computed.rows.size(), static_cast<qsizetype>(std::size(rows)));
  for (size_t i = 0; i < std::size(rows); ++i) {
    const AmountRow& row = computed.rows[static_cast<qsizetype>(i)];
    EXPECT_EQ(row.label, rows[i].label);
    EXPECT_EQ(row.unit, rows[i].unit);
    EXPECT_EQ(row.count, rows[i].count);
  }
}

TEST(Rows, MassageRowsOf2024ShowTheTwoLowestNumbers) {
  const auto claim = makeClaim(u"令和6年10月", u"あマ", u"3割", u"1=g5 2=g3 3=g1 4=g4/v1 5=g2/v1 6=g3/v1");
  const ClaimAmounts computed = amountsOf(claim, Path::Store);
  ASSERT_EQ(computed.rows.size(), 4);
  EXPECT_EQ(computed.rows[0].label, u"マッサージ 1局所");
  EXPECT_EQ(computed.rows[0].unit, 450);
  EXPECT_EQ(computed.rows[1].label, u"マッサージ 3局所");
  EXPECT_EQ(computed.rows[1].unit, 3 * 450);
  EXPECT_EQ(computed.rows[2].label, u"訪問施術①（1人） 2局所");
  EXPECT_EQ(computed.rows[2].unit, 3200);
  EXPECT_EQ(computed.rows[3].label, u"訪問施術①（1人） 3局所");
  EXPECT_EQ(computed.rows[3].unit, 3650);
  EXPECT_EQ(computed.total, 450 + 3 * 450 + 3200 + 3650);
}

TEST(Rows, OldMassageIsPricedByAreas) {
  const auto claim = makeClaim(u"令和2年1月", u"あマ", u"3割", u"1-3=g2 4=g3");
  const ClaimAmounts computed = amountsOf(claim, Path::Store);
  ASSERT_EQ(computed.rows.size(), 1);
  EXPECT_EQ(computed.rows[0].unit, 340);
  EXPECT_EQ(computed.rows[0].count, 9);  // areas: 2 + 2 + 2 + 3
}

TEST(Amounts, NoReadableMonthWritesNone) {
  for (const char16_t* month : {u"", u"いつか"}) {
    const ClaimAmounts computed = amountsOf(makeClaim(month, u"鍼", u"3割", u"1=a"), Path::Store);
    EXPECT_EQ(computed.regime, Regime::None);
    EXPECT_TRUE(computed.rows.isEmpty());
    EXPECT_EQ(computed.total, 0);
  }
}

TEST(Amounts, AMissingFeeFileIsToldAndNothingIsComputed) {
  class NoFees final : public FeeSource {
    text::Result<FeeEdition> load(const QString& path) override { return text::Fault{path}; }
  } none;
  const FeeFiles files(QStringLiteral("/p"), QStringLiteral("/p/料金設定2000.mdb"));
  const auto claim = makeClaim(u"令和2年1月", u"鍼", u"3割", u"1=a");
  const auto computed = amounts(claim, monthFlags(QDate(2020, 1, 1)), Path::Store, files, none);
  ASSERT_FALSE(computed.ok());
  EXPECT_EQ(computed.fault().message, u"/p/料金設定2020.mdb");
}

TEST(Reports, CountByTicks) {
  const auto with = [](std::initializer_list<testing::Set> ticks) {
    const ClaimRecord claim = makeClaim(u"令和6年10月", u"鍼", u"1割", u"", ticks);
    return counters::reports(ClaimAmounts().counts(claim)).count;
  };
  EXPECT_EQ(with({}), 0);
  EXPECT_EQ(with({{u"yn2", u"-1"}}), 1);
  EXPECT_EQ(with({{u"yn2", u"-1"}, {u"yn3", u"-1"}}), 2);
  EXPECT_EQ(with({{u"yn2", u"-1"}, {u"yn4", u"-1"}}), 3);
  EXPECT_EQ(with({{u"yn3", u"-1"}, {u"yn4", u"-1"}}), 0);
}

}  // namespace
}  // namespace claims
