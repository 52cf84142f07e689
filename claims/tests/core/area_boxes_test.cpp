#include "claims/core/area_boxes.h"

#include <gtest/gtest.h>

#include "claims/tests/core/claim_builder.h"

namespace claims {
namespace {

TEST(AreaBoxes, TreatedDaysByTickedAreaAndLimbDaysByTickedLimb) {
  const ClaimRecord claim =
      testing::makeClaim(u"令和6年10月", u"あマ", u"1割", u"1-6=g3 7-10=g3h2/v1",
                         {{u"躯幹", u"-1"}, {u"左上肢", u"-1"}, {u"左下肢", u"1"}, {u"徒手右下肢", u"true"}});
  const AreaBoxes boxes = areaBoxes(claim);
  EXPECT_EQ(boxes.areas[0], u"10");
  EXPECT_TRUE(boxes.areas[1].isEmpty());
  EXPECT_EQ(boxes.areas[2], u"10");
  EXPECT_TRUE(boxes.areas[3].isEmpty());
  EXPECT_EQ(boxes.areas[4], u"10");
  EXPECT_TRUE(boxes.limbs[0].isEmpty());
  EXPECT_TRUE(boxes.limbs[1].isEmpty());
  EXPECT_EQ(boxes.limbs[2], u"4");
}

TEST(AreaBoxes, ACountOfNothingLeavesTheBoxBlank) {
  const AreaBoxes boxes = areaBoxes(testing::makeClaim(u"令和6年10月", u"あマ", u"1割", u"1=g1",
                                                       {{u"躯幹", u"-1"}, {u"徒手右上肢", u"-1"}}));
  EXPECT_EQ(boxes.areas[0], u"1");
  EXPECT_TRUE(boxes.limbs[0].isEmpty());
  EXPECT_EQ(areaBoxes(testing::makeClaim(u"令和6年10月", u"あマ", u"1割", u"", {{u"躯幹", u"-1"}})),
            AreaBoxes());
}

TEST(AreaBoxes, AnyCellWithAnHIsALimbDay) {
  const AreaBoxes boxes = areaBoxes(
      testing::makeClaim(u"令和2年1月", u"あマ", u"1割", u"1=gh 2=h 3=h3g2 4=g2", {{u"徒手左下肢", u"-1"}}));
  EXPECT_EQ(boxes.limbs[3], u"3");
}

TEST(AreaBoxes, AcupunctureHasNone) {
  EXPECT_EQ(areaBoxes(testing::makeClaim(u"令和6年10月", u"鍼灸", u"1割", u"1=a", {{u"躯幹", u"-1"}})),
            AreaBoxes());
}

}  // namespace
}  // namespace claims
