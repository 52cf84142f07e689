#include <gtest/gtest.h>

#include "claims/tests/core/full_claim.h"

// Claims from 2018/06 to 2024/09.
// The total is written as the sum of counts times the notice's fees; the share is its tenth, two tenths or
// three tenths, rounded up.

namespace claims {
namespace {

using testing::FullClaim;
using testing::makeClaim;

const FullClaim kClaims[] = {
    {"first_month_of_two_bands", makeClaim(u"平成30年6月", u"鍼", u"1割", u"1-3=a/4 4=a/5", {}),
     4 * 1540 + 3 * 2300 + 2700, 1576, u"鍼"},
    {"last_heisei_month", makeClaim(u"平成31年4月", u"鍼灸", u"2割", u"1-8=e", {{u"初回有無", u"-1"}}),
     1760 + 8 * 1590, 2896, u"鍼灸"},
    {"first_reiwa_month", makeClaim(u"令和1年5月", u"鍼灸", u"2割", u"1-8=e", {{u"初回有無", u"-1"}}),
     1760 + 8 * 1590, 2896, u"鍼灸"},
    {"first_reiwa_month_by_its_first_word",
     makeClaim(u"令和元年5月", u"鍼灸", u"2割", u"1-8=e", {{u"初回有無", u"-1"}}), 1760 + 8 * 1590, 2896,
     u"鍼灸"},
    {"reports_begin", makeClaim(u"平成30年10月", u"鍼", u"3割", u"1-2=a", {{u"yn2", u"-1"}}), 2 * 1540 + 300,
     1014, u"鍼"},
    {"no_report_fee_the_month_before", makeClaim(u"平成30年9月", u"鍼", u"3割", u"1-2=a", {{u"yn2", u"-1"}}),
     2 * 1540, 924, u"鍼"},
    {"two_reports",
     makeClaim(u"令和2年3月", u"あマ", u"1割", u"1-5=g4/3", {{u"yn2", u"-1"}, {u"yn3", u"-1"}}),
     20 * 340 + 5 * 2300 + 2 * 300, 1890, u"マ術"},
    {"three_reports",
     makeClaim(u"令和2年3月", u"あマ", u"1割", u"1-5=g4/3", {{u"yn2", u"-1"}, {u"yn4", u"-1"}}),
     20 * 340 + 5 * 2300 + 3 * 300, 1920, u"マ術"},
    {"both_report_ticks_are_three",
     makeClaim(u"令和2年3月", u"あマ", u"1割", u"1-5=g4/3",
               {{u"yn2", u"-1"}, {u"yn3", u"-1"}, {u"yn4", u"-1"}}),
     20 * 340 + 5 * 2300 + 3 * 300, 1920, u"マ術"},
    {"more_reports_need_the_first_tick",
     makeClaim(u"令和2年3月", u"あマ", u"1割", u"1-5=g4/3", {{u"yn3", u"-1"}, {u"yn4", u"-1"}}),
     20 * 340 + 5 * 2300, 1830, u"マ術"},
    {"last_month_of_2020_file", makeClaim(u"令和2年11月", u"あマ", u"3割", u"1=g2h3 2=g3h3", {}),
     5 * 340 + 6 * 790, 1932, u"マ術"},
    {"first_month_of_2020_12", makeClaim(u"令和2年12月", u"あマ", u"3割", u"1=g2h3 2=g3h3", {}),
     5 * 350 + 6 * 450, 1335, u"マ術"},
    {"electric_2022", makeClaim(u"令和4年5月", u"灸", u"1割", u"2=d 5=d 9=c", {{u"初回有無", u"-1"}}),
     1770 + 3 * 1550 + 2 * 30, 648, u"灸"},
    {"first_month_of_2022_06",
     makeClaim(u"令和4年6月", u"灸", u"1割", u"2=d 5=d 9=c", {{u"初回有無", u"-1"}}),
     1780 + 3 * 1550 + 2 * 34, 650, u"灸"},
    // the column of the pair prices hot pack and light together
    {"hot_packs_and_light",
     makeClaim(u"令和5年8月", u"あマ", u"2割", u"1-5=i3/10 8-9=j3/10", {{u"yn2", u"-1"}}),
     21 * 350 + 5 * 125 + 2 * 160 + 7 * 2550 + 480, 5325, u"マ術"},
    {"last_month_of_2024_file",
     makeClaim(u"令和6年5月", u"鍼灸", u"3割", u"1-12=f/20", {{u"初回有無", u"-1"}}),
     1860 + 12 * 1610 + 12 * 34 + 12 * 2550, 15657, u"鍼灸"},
    // the newest row of the current file rules, though made for 2024/10
    {"current_file_from_2024_06",
     makeClaim(u"令和6年6月", u"鍼灸", u"3割", u"1-12=f/20", {{u"初回有無", u"-1"}}),
     2230 + 12 * 1770 + 12 * 100 + 12 * 2550, 16581, u"鍼灸"},
    {"last_month_of_two_bands",
     makeClaim(u"令和6年9月", u"あマ", u"1割", u"1-10=g5h4/2 11=g5", {{u"yn2", u"-1"}}),
     55 * 450 + 40 * 470 + 10 * 2300 + 480, 6703, u"マ術"},
    // 7 areas: 2 + 2 + 3
    {"two_numbers_of_areas", makeClaim(u"令和3年1月", u"あマ", u"2割", u"1-2=g2 3=g3", {}), 7 * 350, 490,
     u"マ術"},
    {"three_numbers_of_areas_all_count", makeClaim(u"令和3年1月", u"あマ", u"2割", u"1=g1 2=g3 3=i5", {}),
     9 * 350 + 110, 652, u"マ術"},
    {"massage_first_day_has_no_fee",
     makeClaim(u"令和3年1月", u"あマ", u"2割", u"1-2=g1", {{u"初回有無", u"-1"}}), 2 * 350, 140, u"マ術"},
    // an unknown share gives none
    {"western_text_is_no_share_of_five", makeClaim(u"令和3年1月", u"鍼", u"5割", u"1=a", {}), 1550, 0, u"鍼"},
    {"every_day_of_the_month", makeClaim(u"令和3年1月", u"鍼灸", u"3割", u"1-31=f/1", {{u"初回有無", u"-1"}}),
     1850 + 31 * 1610 + 31 * 30 + 31 * 2300, 37197, u"鍼灸"},
    {"special_area_counts_nothing_before", makeClaim(u"令和6年9月", u"鍼", u"1割", u"1=a/2", {{u"d2", u"1"}}),
     1610 + 2300, 391, u"鍼"},
};

class ClaimsBefore202410 : public ::testing::TestWithParam<FullClaim> {};
TEST_P(ClaimsBefore202410, ComesOutToTheYen) { testing::expectStored(GetParam()); }
INSTANTIATE_TEST_SUITE_P(Claims, ClaimsBefore202410, ::testing::ValuesIn(kClaims), testing::nameOf);

}  // namespace
}  // namespace claims
