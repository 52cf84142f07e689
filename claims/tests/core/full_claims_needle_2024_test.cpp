#include <gtest/gtest.h>

#include "claims/tests/core/full_claim.h"

// Acupuncture claims from 2024/10.
// The total is written as the sum of counts times the notice's fees; the share is its tenth, two tenths or
// three tenths, rounded up.

namespace claims {
namespace {

using testing::FullClaim;
using testing::makeClaim;

const FullClaim kClaims[] = {
    {"plain_days", makeClaim(u"令和6年10月", u"鍼灸", u"1割", u"1-4=a 5-7=e", {}), 4 * 1610 + 3 * 1770, 1175,
     u"鍼灸"},
    {"first_by_one_art", makeClaim(u"令和6年10月", u"鍼", u"2割", u"3=b 5=a", {{u"初回有無", u"-1"}}),
     1950 + 2 * 1610 + 100, 1054, u"鍼"},
    {"first_by_two_arts", makeClaim(u"令和6年10月", u"鍼灸", u"3割", u"3=f 5=e", {{u"初回有無", u"-1"}}),
     2230 + 2 * 1770 + 100, 1761, u"鍼灸"},
    {"first_of_moxa", makeClaim(u"令和6年10月", u"灸", u"3割", u"3=c 5=d", {{u"初回有無", u"-1"}}),
     1950 + 2 * 1610 + 100, 1581, u"灸"},
    {"first_ticked_on_an_empty_grid", makeClaim(u"令和6年10月", u"鍼灸", u"3割", u"", {{u"初回有無", u"-1"}}),
     0, 0, u""},
    {"visit_one_patient", makeClaim(u"令和6年10月", u"鍼", u"1割", u"1-8=a/v1", {}), 8 * 3910, 3128, u"鍼"},
    {"visit_one_patient_two_arts", makeClaim(u"令和6年10月", u"鍼灸", u"1割", u"1-8=e/v1", {}), 8 * 4070,
     3256, u"鍼灸"},
    // 電療 is charged beside the visit fee
    {"visit_two_patients", makeClaim(u"令和6年10月", u"灸", u"2割", u"1=c/v2 2=d/v2 3-4=f/v2", {}),
     2 * 2760 + 2 * 2920 + 3 * 100, 2332, u"鍼灸"},
    {"visit_three_to_nine", makeClaim(u"令和6年10月", u"鍼灸", u"3割", u"1=a/v3 2=a/v9 3=e/v3 4=f/v9", {}),
     2 * 2070 + 2 * 2230 + 100, 2610, u"鍼灸"},
    {"visit_ten_to_twenty",
     makeClaim(u"令和6年10月", u"鍼灸", u"3割", u"1=b/v10 2=a/v20 3=e/v10 4=e/v20", {}),
     2 * 1760 + 2 * 1920 + 100, 2238, u"鍼灸"},
    {"all_bands_of_visits", makeClaim(u"令和6年11月", u"鍼", u"1割", u"1=a/v1 2=a/v2 3=a/v3 4=a/v10 5=a", {}),
     3910 + 2760 + 2070 + 1760 + 1610, 1211, u"鍼"},
    {"sudden_visits", makeClaim(u"令和6年10月", u"鍼", u"2割", u"1=a/t 2=b/t 3=a", {}),
     3 * 1610 + 100 + 2 * 2300, 1906, u"鍼"},
    {"special_area_by_visit_days",
     makeClaim(u"令和6年10月", u"鍼灸", u"3割", u"1=e/v1 2=e/t 3=e", {{u"d2", u"1"}}),
     4070 + 2 * 1770 + 2300 + 2 * 250, 3123, u"鍼灸"},
    {"special_area_not_ticked",
     makeClaim(u"令和6年10月", u"鍼灸", u"3割", u"1=e/v1 2=e/t 3=e", {{u"d2", u"0"}}), 4070 + 2 * 1770 + 2300,
     2973, u"鍼灸"},
    {"one_report", makeClaim(u"令和6年12月", u"鍼", u"1割", u"1-2=a", {{u"yn2", u"-1"}}), 2 * 1610 + 480, 370,
     u"鍼"},
    {"two_reports", makeClaim(u"令和6年12月", u"鍼", u"1割", u"1-2=a", {{u"yn2", u"-1"}, {u"yn3", u"-1"}}),
     2 * 1610 + 2 * 480, 418, u"鍼"},
    {"three_reports", makeClaim(u"令和6年12月", u"鍼", u"1割", u"1-2=a", {{u"yn2", u"-1"}, {u"yn4", u"-1"}}),
     2 * 1610 + 3 * 480, 466, u"鍼"},
    // 一術: d on 7 and c on 8; 二術: f on 1 and e on 2; 電療: days 1, 3, 4, 7
    {"everything_at_once",
     makeClaim(u"令和7年10月", u"鍼灸", u"3割", u"1=f 2=e 3=b/v1 4=f/v2 5=a/v4 6=e/v12 7=d/t 8=c",
               {{u"初回有無", u"-1"}, {u"yn2", u"-1"}, {u"d2", u"1"}}),
     2230 + 2 * 1610 + 2 * 1770 + 4 * 100 + 3910 + 2920 + 2070 + 1920 + 2300 + 5 * 250 + 480, 7272, u"鍼灸"},
    {"first_day_on_a_visit", makeClaim(u"令和6年10月", u"鍼", u"3割", u"1-2=a/v1", {{u"初回有無", u"-1"}}),
     1950 + 2 * 3910, 2931, u"鍼"},
    {"no_share", makeClaim(u"令和6年10月", u"鍼", u"", u"1=a", {}), 1610, 0, u"鍼"},
    {"unknown_letters_are_left_out", makeClaim(u"令和6年10月", u"鍼", u"1割", u"1=a 2=z 3=aa", {}), 1610, 161,
     u"鍼"},
    // v21 is refused at entry
    {"a_wrong_visit_is_charged_nothing", makeClaim(u"令和6年10月", u"鍼", u"1割", u"1=a 2=a/v21", {}), 1610,
     161, u"鍼"},
    {"moxa_and_needles_by_visits", makeClaim(u"令和6年10月", u"鍼灸", u"1割", u"1=a/v1 2=c/v1", {}), 2 * 3910,
     782, u"鍼灸"},
    {"massage_codes_count_nothing_here", makeClaim(u"令和6年10月", u"鍼灸", u"1割", u"1=e 2=g3", {}), 1770,
     177, u"鍼灸"},
};

class NeedleClaims2024 : public ::testing::TestWithParam<FullClaim> {};
TEST_P(NeedleClaims2024, ComesOutToTheYen) { testing::expectStored(GetParam()); }
INSTANTIATE_TEST_SUITE_P(Claims, NeedleClaims2024, ::testing::ValuesIn(kClaims), testing::nameOf);

}  // namespace
}  // namespace claims
