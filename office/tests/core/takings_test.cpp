#include "office/core/takings.h"

#include <gtest/gtest.h>

namespace office {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(TakingsYears, RunFrom2000ToTheEndOfTheEraTables) {
  const QStringList years = takingsYears(QDate(2024, 6, 15));
  EXPECT_EQ(years.size(), 39);
  EXPECT_EQ(years.first(), u"2000"_s);
  EXPECT_EQ(years.last(), u"2038"_s);
}

TEST(TakingsYears, TodayIsAlwaysAmongThem) { EXPECT_EQ(takingsYears(QDate(2041, 1, 1)).last(), u"2041"_s); }

struct DayCase {
  frame::EraCapability capability;
  QDate day;
  QString text;
};

class TakingsDay : public testing::TestWithParam<DayCase> {};

TEST_P(TakingsDay, IsWrittenAsVisitsBearIt) {
  const text::FixedClock clock(QDate(2024, 6, 15));
  EXPECT_EQ(takingsDay(frame::EraDates(GetParam().capability, clock), GetParam().day), GetParam().text);
}

constexpr auto kKnown = frame::EraCapability::Supported, kUnknown = frame::EraCapability::Unsupported;
// Without the era the year alone decides: every day of 2019 counts as 令和1年.
INSTANTIATE_TEST_SUITE_P(Days, TakingsDay,
                         testing::Values(DayCase{kKnown, QDate(2024, 6, 5), u"令和6年6月5日"_s},
                                         DayCase{kKnown, QDate(2019, 4, 30), u"平成31年4月30日"_s},
                                         DayCase{kKnown, QDate(2019, 5, 1), u"令和1年5月1日"_s},
                                         DayCase{kUnknown, QDate(2024, 6, 5), u"令和6年6月5日"_s},
                                         DayCase{kUnknown, QDate(2019, 4, 30), u"令和1年4月30日"_s},
                                         DayCase{kUnknown, QDate(2018, 12, 31), u"平成30年12月31日"_s}));

}  // namespace
}  // namespace office
