#include <gtest/gtest.h>

#include "claims/tests/core/full_claim.h"

// Claims before 2018/06.
// The total is written as the sum of counts times the notice's fees; the share is its tenth, two tenths or
// three tenths, rounded up.

namespace claims {
namespace {

using testing::FullClaim;
using testing::makeClaim;

const FullClaim kClaims[] = {
    {"oldest_file_hari", makeClaim(u"平成21年4月", u"鍼", u"3割", u"1-5=a", {}), 5 * 1195, 1793, u"鍼"},
    {"oldest_file_serves_all_earlier_months", makeClaim(u"平成15年3月", u"鍼灸", u"1割", u"1-2=e 9=f", {}),
     3 * 1495 + 30, 452, u"鍼灸"},
    {"last_month_of_the_oldest_file",
     makeClaim(u"平成22年5月", u"灸", u"2割", u"1=c 2=d", {{u"初回有無", u"-1"}}), 1135 + 2 * 1195 + 30, 711,
     u"灸"},
    {"first_month_of_2010", makeClaim(u"平成22年6月", u"灸", u"2割", u"1=c 2=d", {{u"初回有無", u"-1"}}),
     1405 + 2 * 1195 + 30, 765, u"灸"},
    // a store prices visits by two bands in every month before 2024/10
    {"massage_of_2010", makeClaim(u"平成24年7月", u"あマ", u"1割", u"1-10=g3/2", {}),
     10 * 3 * 260 + 10 * 1860, 2640, u"マ術"},
    {"last_month_of_2010_prices",
     makeClaim(u"平成25年4月", u"鍼灸", u"3割", u"1-4=f/6", {{u"初回有無", u"-1"}}),
     1455 + 4 * 1495 + 4 * 30 + 4 * 1600, 4187, u"鍼灸"},
    // the ruling row of the file is that of 2014/04
    {"first_month_of_2013", makeClaim(u"平成25年5月", u"鍼灸", u"3割", u"1-4=f/6", {{u"初回有無", u"-1"}}),
     1660 + 4 * 1510 + 4 * 30 + 4 * 1600, 4266, u"鍼灸"},
    {"last_month_of_2016_file", makeClaim(u"平成28年9月", u"あマ", u"", u"1-3=i2 5=j2", {}),
     8 * 275 + 3 * 80 + 110, 0, u"マ術"},
    {"first_month_of_2016_10", makeClaim(u"平成28年10月", u"あマ", u"", u"1-3=i2 5=j2", {}),
     8 * 285 + 3 * 80 + 110, 0, u"マ術"},
    {"limbs_of_2016_10", makeClaim(u"平成29年2月", u"あマ", u"2割", u"1-6=g2h2/4 7-8=g2h1/5", {}),
     16 * 285 + 14 * 575 + 6 * 1800 + 2 * 1540, 5298, u"マ術"},
    {"report_ticks_count_nothing_before_2018_10",
     makeClaim(u"平成30年5月", u"鍼", u"1割", u"1-3=a", {{u"yn2", u"-1"}, {u"yn4", u"-1"}}), 3 * 1300, 390,
     u"鍼"},
    {"needles_and_moxa_on_different_days", makeClaim(u"平成29年12月", u"鍼灸", u"3割", u"1-2=a 3-5=c", {}),
     2 * 1300 + 3 * 1300, 1950, u"鍼灸"},
    {"needles_first_rule_the_subject",
     makeClaim(u"平成29年12月", u"鍼灸", u"3割", u"1=a 2-5=e", {{u"初回有無", u"-1"}}),
     1610 + 1300 + 4 * 1520, 2697, u"鍼"},
    {"bare_letters_by_the_claims_numbers",
     makeClaim(u"平成28年11月", u"あマ", u"3割", u"1-4=g", {{u"マッサージ部位数", u"3"}}), 12 * 285, 1026,
     u"マ術"},
    {"bare_limbs_by_the_claims_number",
     makeClaim(u"平成28年11月", u"あマ", u"3割", u"1-4=h", {{u"徒手矯正数", u"2"}}), 8 * 575, 1380, u"マ術"},
    {"a_number_that_is_none_prices_nothing",
     makeClaim(u"平成28年11月", u"あマ", u"3割", u"1-4=i", {{u"マッサージ部位数", u"三"}}), 0 + 4 * 80, 96,
     u"マ術"},
    {"two_letter_forms_add_nothing",
     makeClaim(u"平成28年11月", u"あマ", u"3割", u"1-4=gh", {{u"マッサージ部位数", u"3"}}), 0, 0, u""},
    {"no_days_no_money", makeClaim(u"平成28年11月", u"鍼灸", u"3割", u"", {{u"初回有無", u"-1"}}), 0, 0, u""},
};

class ClaimsBefore201806 : public ::testing::TestWithParam<FullClaim> {};
TEST_P(ClaimsBefore201806, ComesOutToTheYen) { testing::expectStored(GetParam()); }
INSTANTIATE_TEST_SUITE_P(Claims, ClaimsBefore201806, ::testing::ValuesIn(kClaims), testing::nameOf);

}  // namespace
}  // namespace claims
