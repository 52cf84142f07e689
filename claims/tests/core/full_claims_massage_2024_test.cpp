#include <gtest/gtest.h>

#include "claims/tests/core/full_claim.h"

// Massage claims from 2024/10.
// The total is written as the sum of counts times the notice's fees; the share is its tenth, two tenths or
// three tenths, rounded up.

namespace claims {
namespace {

using testing::FullClaim;
using testing::makeClaim;

const FullClaim kClaims[] = {
    {"areas_1", makeClaim(u"令和6年10月", u"あマ", u"1割", u"1-7=g1", {}), 7 * 1 * 450, 315, u"マ術"},
    {"areas_2", makeClaim(u"令和6年10月", u"あマ", u"1割", u"1-7=g2", {}), 7 * 2 * 450, 630, u"マ術"},
    {"areas_3", makeClaim(u"令和6年10月", u"あマ", u"1割", u"1-7=g3", {}), 7 * 3 * 450, 945, u"マ術"},
    {"areas_4", makeClaim(u"令和6年10月", u"あマ", u"1割", u"1-7=g4", {}), 7 * 4 * 450, 1260, u"マ術"},
    {"areas_5", makeClaim(u"令和6年10月", u"あマ", u"1割", u"1-7=g5", {}), 7 * 5 * 450, 1575, u"マ術"},
    {"two_numbers_of_areas", makeClaim(u"令和6年10月", u"あマ", u"2割", u"1-2=g2 3=g3", {}),
     2 * 2 * 450 + 3 * 450, 630, u"マ術"},
    // the forms hold two numbers of areas; a third is not shown and not summed
    {"a_third_number_is_left_out", makeClaim(u"令和6年10月", u"あマ", u"2割", u"1=g2 2=g3 3=g4", {}),
     2 * 450 + 3 * 450, 450, u"マ術"},
    {"each_visit_form_has_its_own_two_lowest",
     makeClaim(u"令和6年10月", u"あマ", u"2割", u"1=g1/v1 2=g2/v1 3=g3/v1 4=g4/v2 5=g5", {}),
     2750 + 3200 + 2950 + 5 * 450, 2230, u"マ術"},
    {"visit_one_areas_1", makeClaim(u"令和6年10月", u"あマ", u"3割", u"1-4=g1/v1", {}), 4 * 2750, 3300,
     u"マ術"},
    {"visit_one_areas_3", makeClaim(u"令和6年10月", u"あマ", u"3割", u"1-4=g3/v1", {}), 4 * 3650, 4380,
     u"マ術"},
    {"visit_one_areas_5", makeClaim(u"令和6年10月", u"あマ", u"3割", u"1-4=g5/v1", {}), 4 * 4550, 5460,
     u"マ術"},
    {"visit_two_areas_1", makeClaim(u"令和6年10月", u"あマ", u"3割", u"1-4=g1/v2", {}), 4 * 1600, 1920,
     u"マ術"},
    {"visit_two_areas_3", makeClaim(u"令和6年10月", u"あマ", u"3割", u"1-4=g3/v2", {}), 4 * 2500, 3000,
     u"マ術"},
    {"visit_two_areas_5", makeClaim(u"令和6年10月", u"あマ", u"3割", u"1-4=g5/v2", {}), 4 * 3400, 4080,
     u"マ術"},
    {"visit_three_areas_1", makeClaim(u"令和6年10月", u"あマ", u"3割", u"1-4=g1/v3", {}), 4 * 910, 1092,
     u"マ術"},
    {"visit_three_areas_3", makeClaim(u"令和6年10月", u"あマ", u"3割", u"1-4=g3/v3", {}), 4 * 1810, 2172,
     u"マ術"},
    {"visit_three_areas_5", makeClaim(u"令和6年10月", u"あマ", u"3割", u"1-4=g5/v3", {}), 4 * 2710, 3252,
     u"マ術"},
    {"visit_ten_areas_1", makeClaim(u"令和6年10月", u"あマ", u"3割", u"1-4=g1/v10", {}), 4 * 600, 720,
     u"マ術"},
    {"visit_ten_areas_3", makeClaim(u"令和6年10月", u"あマ", u"3割", u"1-4=g3/v10", {}), 4 * 1500, 1800,
     u"マ術"},
    {"visit_ten_areas_5", makeClaim(u"令和6年10月", u"あマ", u"3割", u"1-4=g5/v10", {}), 4 * 2400, 2880,
     u"マ術"},
    {"upper_ends_of_the_bands", makeClaim(u"令和6年10月", u"あマ", u"1割", u"1=g4/v9 2=g4/v20", {}),
     2260 + 1950, 421, u"マ術"},
    {"hot_pack_beside_a_visit", makeClaim(u"令和6年10月", u"あマ", u"1割", u"1-2=i3/v1 3=i3", {}),
     2 * 3650 + 3 * 450 + 3 * 180, 919, u"マ術"},
    {"light_pair_beside_a_visit", makeClaim(u"令和6年10月", u"あマ", u"1割", u"1-2=j3/v2 3=j3", {}),
     2 * 2500 + 3 * 450 + 3 * 300, 725, u"マ術"},
    {"limbs_beside_a_visit", makeClaim(u"令和6年10月", u"あマ", u"3割", u"1-2=g2h2/v1 3=g2h2", {}),
     2 * 3200 + 2 * 450 + 3 * 2 * 470, 3036, u"マ術"},
    {"limbs_of_four", makeClaim(u"令和6年10月", u"あマ", u"3割", u"1-5=g1h4", {}), 5 * 450 + 5 * 4 * 470,
     3495, u"マ術"},
    {"limbs_of_two_numbers", makeClaim(u"令和6年10月", u"あマ", u"3割", u"1=g1h1 2=g1h3", {}),
     2 * 450 + 470 + 3 * 470, 834, u"マ術"},
    {"five_limbs_count_nothing", makeClaim(u"令和6年10月", u"あマ", u"3割", u"1=g1h5", {}), 450, 135,
     u"マ術"},
    {"sudden_visit_of_two_tokens_once", makeClaim(u"令和6年10月", u"あマ", u"2割", u"1-2=g2h1/t", {}),
     2 * 2 * 450 + 2 * 470 + 2 * 2300, 1468, u"マ術"},
    {"special_area",
     makeClaim(u"令和6年10月", u"あマ", u"2割", u"1=g2/v1 2=g2/v3 3=g2/t 4=g2", {{u"d2", u"1"}}),
     3200 + 1360 + 2 * 2 * 450 + 2300 + 3 * 250, 1882, u"マ術"},
    {"reports", makeClaim(u"令和6年10月", u"あマ", u"1割", u"1=g1", {{u"yn2", u"-1"}, {u"yn3", u"-1"}}),
     450 + 2 * 480, 141, u"マ術"},
    {"first_treatment_has_no_fee",
     makeClaim(u"令和6年10月", u"あマ", u"1割", u"1=g1", {{u"初回有無", u"-1"}}), 450, 45, u"マ術"},
    {"bare_letters_count_nothing",
     makeClaim(u"令和6年10月", u"あマ", u"1割", u"1=g 2=i 3=gh", {{u"マッサージ部位数", u"3"}}), 0, 0, u""},
    // plain: g2 on 8, g3 on 1 and 7; h2 on 4 and 7; visits on 2 to 7
    {"everything_at_once",
     makeClaim(u"令和7年3月", u"あマ", u"3割",
               u"1=g3 2=i3/v1 3=j4/v1 4=g3h2/v2 5=g2/v5 6=g5/v15 7=g3h2/t 8=g2",
               {{u"yn2", u"-1"}, {u"d2", u"1"}}),
     2 * 450 + 2 * 3 * 450 + 2 * 2 * 470 + 180 + 300 + 3650 + 4100 + 2500 + 1360 + 2400 + 2300 + 6 * 250 +
         480,
     7275, u"マ術"},
};

class MassageClaims2024 : public ::testing::TestWithParam<FullClaim> {};
TEST_P(MassageClaims2024, ComesOutToTheYen) { testing::expectStored(GetParam()); }
INSTANTIATE_TEST_SUITE_P(Claims, MassageClaims2024, ::testing::ValuesIn(kClaims), testing::nameOf);

}  // namespace
}  // namespace claims
