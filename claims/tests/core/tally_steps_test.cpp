#include "claims/core/tally_steps.h"

#include <gtest/gtest.h>

#include "claims/tests/core/claim_builder.h"

namespace claims {
namespace {

using testing::makeClaim;

TEST(StepVisits, EvenKilometresTwoToSixteen) {
  const StepVisits v =
      tallySteps(makeClaim(u"平成30年5月", u"鍼灸", u"", u"1=a/2 2=a/4 3=a/16 4=a/3 5=a/18"));
  EXPECT_EQ(v.total(), 3);
  EXPECT_EQ(v.count[0], 1);
  EXPECT_EQ(v.count[1], 1);
  EXPECT_EQ(v.count[7], 1);
  EXPECT_TRUE(v.differing);
  EXPECT_FALSE(tallySteps(makeClaim(u"平成30年5月", u"鍼灸", u"", u"1-9=a/12")).differing);
}

}  // namespace
}  // namespace claims
