#include "claims/core/tally_visits.h"

#include <gtest/gtest.h>

#include "claims/tests/core/claim_builder.h"

namespace claims {
namespace {

VisitsTally tallyOf(const char16_t* grid) {
  return tallyVisits(testing::makeClaim(u"令和6年10月", u"鍼灸", u"3割", grid));
}

TEST(VisitsTally, PlainDaysByLetter) {
  const VisitsTally t = tallyOf(u"1=a 2-3=b 4=c 5-6=d 7=e 8-10=f");
  EXPECT_EQ(t.hari, 3);
  EXPECT_EQ(t.kyu, 3);
  EXPECT_EQ(t.oneArt, 6);
  EXPECT_EQ(t.twoArts, 4);
  EXPECT_EQ(t.electric, 7);  // b 2, d 2, f 3
  EXPECT_EQ(t.treatmentDays, 10);
  EXPECT_EQ(t.first, u'a');
}

TEST(VisitsTally, AVisitLeavesThePlainCountersUntouchedButNotTheSurcharges) {
  const VisitsTally t = tallyOf(u"1=b/v1 2=f/v2 3=d/v9 4=b/v10");
  EXPECT_EQ(t.hari + t.kyu + t.oneArt + t.twoArts, 0);
  EXPECT_EQ(t.electric, 4);
  EXPECT_EQ(t.visitsOf(u'b').one, 1);
  EXPECT_EQ(t.visitsOf(u'f').two, 1);
  EXPECT_EQ(t.visitsOf(u'd').small, 1);
  EXPECT_EQ(t.visitsOf(u'b').large, 1);
  EXPECT_EQ(t.treatmentDays, 4);
  EXPECT_EQ(t.artVisits(1, 0), 1);
  EXPECT_EQ(t.artVisits(2, 1), 1);
  EXPECT_EQ(t.artVisits(1, 2), 1);
  EXPECT_EQ(t.artVisits(1, 3), 1);
  EXPECT_EQ(t.visitDays, 4);
}

TEST(VisitsTally, BandsOfPatients) {
  for (int patients = 1; patients <= 20; ++patients) {
    ClaimRecord claim;
    claim.set(claim::dayCode[5], QStringLiteral("g3"));
    claim.set(claim::dayVisit[5], QStringLiteral("v%1").arg(patients));
    const VisitsTally t = tallyVisits(claim);
    const int form = patients <= 2 ? patients - 1 : patients <= 9 ? 2 : 3;
    for (int other = 0; other < 4; ++other)
      EXPECT_EQ(t.areaVisits(3, other), other == form ? 1 : 0) << patients << ' ' << other;
    EXPECT_EQ(t.areaDays(3), 0);
  }
}

TEST(VisitsTally, ASuddenVisitIsAPlainDayWithACharge) {
  const VisitsTally t = tallyOf(u"1=a/t 2=g2h1/t");
  EXPECT_EQ(t.oneArt, 1);
  EXPECT_EQ(t.count(u'g', 2), 1);
  EXPECT_EQ(t.visitsOf(u'a').sudden, 1);
  EXPECT_EQ(t.visitsOf(u'g', 2).sudden, 1);
  EXPECT_EQ(t.visitsOf(u'h', 1).sudden, 1);
  EXPECT_EQ(t.suddenDays, 2);  // once a day, also with two tokens
  EXPECT_EQ(t.visitDays, 2);
}

TEST(VisitsTally, TwoTokensOfOneVisitCountUnderEach) {
  const VisitsTally t = tallyOf(u"1=g2h1/v3");
  EXPECT_EQ(t.visitsOf(u'g', 2).small, 1);
  EXPECT_EQ(t.visitsOf(u'h', 1).small, 1);
  EXPECT_EQ(t.count(u'g', 2), 0);
  EXPECT_EQ(t.count(u'h', 1), 1);  // manipulation is charged beside the visit's fee
}

TEST(VisitsTally, HotPackAndLightOnEveryDayThatCarriesThem) {
  const VisitsTally t = tallyOf(u"1=i2 2=i3/v1 3=j1 4=j5/v20 5=g1");
  EXPECT_EQ(t.warm, 2);
  EXPECT_EQ(t.warmLight, 2);
  EXPECT_EQ(t.areaDays(2), 1);
  EXPECT_EQ(t.areaDays(3), 0);
  EXPECT_EQ(t.areaVisits(3, 0), 1);
  EXPECT_EQ(t.areaVisits(5, 3), 1);
}

TEST(VisitsTally, WhatFitsNoRuleIsADayAndNothingElse) {
  const VisitsTally t = tallyOf(u"1=h5 2=g 3=z/v1 4=gh 5=A/t");
  EXPECT_EQ(t.treatmentDays, 5);
  for (int token = 0; token < kTokens; ++token) EXPECT_EQ(t.plain[static_cast<size_t>(token)], 0);
  EXPECT_EQ(t.suddenDays, 0);
  EXPECT_EQ(t.visitDays, 0);
}

TEST(VisitsTally, AVisitWithoutACodeIsNoDay) {
  ClaimRecord claim;
  claim.set(claim::dayVisit[5], QStringLiteral("t"));
  EXPECT_EQ(tallyVisits(claim).suddenDays, 0);
  EXPECT_EQ(tallyVisits(claim).treatmentDays, 0);
}

TEST(VisitsTally, TokensHaveOneIndexEach) {
  for (int token = 0; token < kTokens; ++token) {
    const QString name = QString::fromUtf16(tokenName(token));
    const int number = name.size() > 1 ? name.mid(1).toInt() : 0;
    EXPECT_EQ(tokenIndex(name[0].unicode(), number), token);
  }
  EXPECT_EQ(tokenIndex(u'h', 5), -1);
  EXPECT_EQ(tokenIndex(u'g', 0), -1);
  EXPECT_EQ(tokenIndex(u'z', 1), -1);
}

}  // namespace
}  // namespace claims
