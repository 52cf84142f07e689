#include "claims/core/share_table.h"

#include <gtest/gtest.h>

namespace claims {
namespace {

struct ShareCase {
  qint64 base;
  std::array<std::array<qint64, 3>, 6> table;  ///< up, down, nearest of 1, 2, 3, 7, 8 and 9 tenths
};

const ShareCase kCases[] = {
    {0, {{{0, 0, 0}, {0, 0, 0}, {0, 0, 0}, {0, 0, 0}, {0, 0, 0}, {0, 0, 0}}}},
    {1000,
     {{{100, 100, 100},
       {200, 200, 200},
       {300, 300, 300},
       {700, 700, 700},
       {800, 800, 800},
       {900, 900, 900}}}},
    // 0.1, 0.2, 0.3, 0.7, 0.8, 0.9
    {1, {{{1, 0, 0}, {1, 0, 0}, {1, 0, 0}, {1, 0, 1}, {1, 0, 1}, {1, 0, 1}}}},
    // 494.7, 989.4, 1484.1, 3462.9, 3957.6, 4452.3
    {4947,
     {{{495, 494, 495},
       {990, 989, 989},
       {1485, 1484, 1484},
       {3463, 3462, 3463},
       {3958, 3957, 3958},
       {4453, 4452, 4452}}}},
    // 0.5 goes up: 0.5, 1, 1.5, 3.5, 4, 4.5
    {5, {{{1, 0, 1}, {1, 1, 1}, {2, 1, 2}, {4, 3, 4}, {4, 4, 4}, {5, 4, 5}}}},
    // -0.3, -0.6, -0.9, -2.1, -2.4, -2.7
    {-3, {{{0, -1, 0}, {0, -1, -1}, {0, -1, -1}, {-2, -3, -2}, {-2, -3, -2}, {-2, -3, -3}}}},
    {999'999'999'999,
     {{{100'000'000'000, 99'999'999'999, 100'000'000'000},
       {200'000'000'000, 199'999'999'999, 200'000'000'000},
       {300'000'000'000, 299'999'999'999, 300'000'000'000},
       {700'000'000'000, 699'999'999'999, 699'999'999'999},
       {800'000'000'000, 799'999'999'999, 799'999'999'999},
       {900'000'000'000, 899'999'999'999, 899'999'999'999}}}},
};

TEST(ShareTable, RoundsEachRateInItsThreeWays) {
  for (const ShareCase& row : kCases) {
    const auto lines = shareTable(row.base);
    for (size_t i = 0; i < lines.size(); ++i) {
      EXPECT_EQ(lines[i].tenths, kShareTenths[i]);
      EXPECT_EQ(lines[i].up, row.table[i][0]) << row.base << " at " << lines[i].tenths;
      EXPECT_EQ(lines[i].down, row.table[i][1]) << row.base << " at " << lines[i].tenths;
      EXPECT_EQ(lines[i].nearest, row.table[i][2]) << row.base << " at " << lines[i].tenths;
    }
  }
}

TEST(ShareTable, OffersThePatientsAndTheInsurersRates) {
  EXPECT_EQ(kShareTenths, (std::array<int, 6>{1, 2, 3, 7, 8, 9}));
}

}  // namespace
}  // namespace claims
