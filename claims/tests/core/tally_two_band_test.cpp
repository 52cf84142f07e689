#include "claims/core/tally_two_band.h"

#include <gtest/gtest.h>

#include "claims/tests/core/claim_builder.h"

namespace claims {
namespace {

using testing::makeClaim;
using testing::Set;

TwoBandTally tallyOf(const char16_t* grid, std::initializer_list<Set> columns = {}) {
  return tallyTwoBand(makeClaim(u"令和2年1月", u"鍼灸", u"3割", grid, columns));
}

struct CountRow {
  const char16_t* grid;
  int hari, kyu, hariKyu, electric, massage, limb, warm, light, days;
};

class TwoBandCounts : public ::testing::TestWithParam<CountRow> {};

TEST_P(TwoBandCounts, ByCode) {
  const CountRow& row = GetParam();
  const TwoBandTally t = tallyOf(row.grid);
  EXPECT_EQ(t.hari, row.hari);
  EXPECT_EQ(t.kyu, row.kyu);
  EXPECT_EQ(t.hariKyu, row.hariKyu);
  EXPECT_EQ(t.electric, row.electric);
  EXPECT_EQ(t.massageDays, row.massage);
  EXPECT_EQ(t.limbDays, row.limb);
  EXPECT_EQ(t.warm, row.warm);
  EXPECT_EQ(t.warmLight, row.light);
  EXPECT_EQ(t.treatmentDays, row.days);
}

INSTANTIATE_TEST_SUITE_P(
    Letters, TwoBandCounts,
    ::testing::Values(
        CountRow{u"1=a", 1, 0, 0, 0, 0, 0, 0, 0, 1}, CountRow{u"1=b", 1, 0, 0, 1, 0, 0, 0, 0, 1},
        CountRow{u"1=c", 0, 1, 0, 0, 0, 0, 0, 0, 1}, CountRow{u"1=d", 0, 1, 0, 1, 0, 0, 0, 0, 1},
        CountRow{u"1=e", 0, 0, 1, 0, 0, 0, 0, 0, 1}, CountRow{u"1=f", 0, 0, 1, 1, 0, 0, 0, 0, 1},
        CountRow{u"1=g", 0, 0, 0, 0, 1, 0, 0, 0, 1}, CountRow{u"1=h", 0, 0, 0, 0, 0, 1, 0, 0, 1},
        CountRow{u"1=i", 0, 0, 0, 0, 1, 0, 1, 0, 1}, CountRow{u"1=j", 0, 0, 0, 0, 1, 0, 0, 1, 1},
        CountRow{u"1=a 2-4=b 5=c 6-7=d 8=e 9-10=f", 4, 3, 3, 7, 0, 0, 0, 0, 10},
        CountRow{u"1-31=b", 31, 0, 0, 31, 0, 0, 0, 0, 31}));

INSTANTIATE_TEST_SUITE_P(Tokens, TwoBandCounts,
                         ::testing::Values(CountRow{u"1=g2", 0, 0, 0, 0, 1, 0, 0, 0, 1},
                                           CountRow{u"1=g2h3", 0, 0, 0, 0, 1, 1, 0, 0, 1},
                                           CountRow{u"1=h3g2", 0, 0, 0, 0, 1, 1, 0, 0, 1},
                                           CountRow{u"1=i5h1", 0, 0, 0, 0, 1, 1, 1, 0, 1},
                                           CountRow{u"1=j1", 0, 0, 0, 0, 1, 0, 0, 1, 1},
                                           // two tokens of massage on one day count twice, nothing forbids it
                                           CountRow{u"1=g1g2", 0, 0, 0, 0, 2, 0, 0, 0, 1},
                                           CountRow{u"1=h5", 0, 0, 0, 0, 0, 1, 0, 0, 1}));

// Two letters without numbers, and what is no code, count nowhere, not as a day either.
INSTANTIATE_TEST_SUITE_P(Nothing, TwoBandCounts,
                         ::testing::Values(CountRow{u"1=gh 2=ih 3=jh 4=hg 5=hi 6=hj", 0, 0, 0, 0, 0, 0, 0, 0,
                                                    0},
                                           CountRow{u"1=z 2=A 3=ab 4=g6 5=k", 0, 0, 0, 0, 0, 0, 0, 0, 0},
                                           CountRow{u"", 0, 0, 0, 0, 0, 0, 0, 0, 0}));

TEST(TwoBandTally, DifferentNumbersOfAreasMakeTheLocalCountBlank) {
  const TwoBandTally t = tallyOf(u"1-3=g2 4=g3");
  EXPECT_EQ(t.areaSum, 9);  // 2 + 2 + 2 + 3
  EXPECT_EQ(t.massageN, 0);
  EXPECT_TRUE(t.digitMassage);
}

TEST(TwoBandTally, OneNumberOfAreasIsTheLocalCount) {
  const TwoBandTally t = tallyOf(u"1-3=g2 9=i2 10=j2");
  EXPECT_EQ(t.areaSum, 10);
  EXPECT_EQ(t.massageN, 2);
}

TEST(TwoBandTally, OnceUnequalStaysUnequal) { EXPECT_EQ(tallyOf(u"1=g2 2=g3 3=g2").massageN, 0); }

TEST(TwoBandTally, BareLettersAreOneAreaButNoNumber) {
  const TwoBandTally t = tallyOf(u"1-4=g");
  EXPECT_EQ(t.areaSum, 4);
  EXPECT_EQ(t.massageN, 1);
  EXPECT_FALSE(t.digitMassage);
  const TwoBandTally mixed = tallyOf(u"1=g 2=g3");
  EXPECT_EQ(mixed.areaSum, 4);
  EXPECT_TRUE(mixed.digitMassage);
  EXPECT_EQ(mixed.massageN, 0);
}

TEST(TwoBandTally, LimbsOfTheirOwn) {
  const TwoBandTally t = tallyOf(u"1-2=g2h3 3=g2h3");
  EXPECT_EQ(t.limbSum, 9);
  EXPECT_EQ(t.limbN, 3);
  EXPECT_TRUE(t.digitLimb);
  EXPECT_EQ(tallyOf(u"1=g2h3 2=g2h1").limbN, 0);
  const TwoBandTally bare = tallyOf(u"1-2=h");
  EXPECT_EQ(bare.limbSum, 0);
  EXPECT_FALSE(bare.digitLimb);
  EXPECT_FALSE(bare.limbN);
}

TEST(TwoBandTally, FirstTreatmentByTheFirstCountedDay) {
  const struct {
    const char16_t* grid;
    char16_t letter;
    std::optional<Fee> fee;
  } rows[] = {{u"3=a 4=e", u'a', Fee::HariFirst},      {u"3=b", u'b', Fee::HariFirst},
              {u"3=c", u'c', Fee::KyuFirst},           {u"3=d", u'd', Fee::KyuFirst},
              {u"3=e 4-9=e", u'e', Fee::HariKyuFirst}, {u"3=f", u'f', Fee::HariKyuFirst},
              {u"3=g2", u'g', std::nullopt},           {u"3=h3g2", u'h', std::nullopt},
              {u"1=z 2=gh 3=c", u'c', Fee::KyuFirst},  {u"", 0, std::nullopt}};
  for (const auto& row : rows) {
    const TwoBandTally t = tallyOf(row.grid, {{u"初回有無", u"-1"}});
    EXPECT_EQ(t.first, row.letter);
    EXPECT_EQ(t.firstFee, row.fee);
  }
  EXPECT_EQ(tallyOf(u"3=a").first, 0);
  EXPECT_EQ(tallyOf(u"3=a", {{u"初回有無", u"0"}}).first, 0);
  // the first day is counted as usual
  EXPECT_EQ(tallyOf(u"3=e 4-9=e", {{u"初回有無", u"-1"}}).hariKyu, 7);
}

TEST(TwoBandTally, VisitBandsOnDaysWithACode) {
  const TwoBandTally t = tallyOf(u"1=a/1 2=a/4 3=a/5 4=a/20 5=a/21 6=a 7=z/2");
  EXPECT_EQ(t.nearVisits, 3);  // 1 and 4 km, and the day of z, which holds a code
  EXPECT_EQ(t.farVisits, 2);
  ClaimRecord bare;
  bare.set(claim::dayVisit[9], QStringLiteral("3"));
  EXPECT_EQ(tallyTwoBand(bare).nearVisits, 0);
}

}  // namespace
}  // namespace claims
