#include "office/core/booking_date.h"

#include <gtest/gtest.h>

#include "office/core/booking_time.h"

namespace office {
namespace {

using namespace Qt::Literals::StringLiterals;

const text::FixedClock kClock{QDate(2024, 6, 15)};
const frame::EraDates kDates{frame::EraCapability::Supported, kClock};

struct RollCase {
  frame::DayAsked day;
  QDate date;
};
class Rolling : public testing::TestWithParam<RollCase> {};

TEST_P(Rolling, TheDateFunctionNormalises) { EXPECT_EQ(rolled(GetParam().day), GetParam().date); }

INSTANTIATE_TEST_SUITE_P(
    Days, Rolling,
    testing::Values(RollCase{{2024, 6, 15}, {2024, 6, 15}}, RollCase{{2024, 2, 31}, {2024, 3, 2}},
                    RollCase{{2023, 2, 31}, {2023, 3, 3}}, RollCase{{2024, 4, 31}, {2024, 5, 1}},
                    RollCase{{2024, 12, 32}, {2025, 1, 1}}, RollCase{{2024, 3, 0}, {2024, 2, 29}},
                    RollCase{{2024, 1, 0}, {2023, 12, 31}}, RollCase{{2024, 13, 1}, {2025, 1, 1}},
                    RollCase{{2024, 0, 1}, {2023, 12, 1}}));

TEST(RollingRange, LiesInTheYearsOfTheDateFunction) {
  EXPECT_FALSE(rolled({99, 1, 1}));
  EXPECT_TRUE(rolled({100, 1, 1}));
  EXPECT_TRUE(rolled({9999, 12, 31}));
  EXPECT_FALSE(rolled({9999, 12, 32}));
  EXPECT_FALSE(rolled({0, 0, 0}));
  EXPECT_FALSE(rolled({2024, 2147483647, 1}));
  EXPECT_FALSE(rolled({2024, 1, -2147483647 - 1}));
}

TEST(DayTyped, ReadsDigitsOfBothWidths) {
  const auto day = dayTyped(u"２０２４"_s, u"06"_s, u" 15 "_s);
  ASSERT_TRUE(day);
  EXPECT_EQ(rolled(*day), QDate(2024, 6, 15));
  for (const QString& wrong : {u""_s, u"六"_s, u"6月"_s, u"6.5"_s, u"99999999999"_s})
    EXPECT_FALSE(dayTyped(u"2024"_s, wrong, u"1"_s)) << wrong.toStdString();
}

TEST(Weekday, IsTheWholeWord) {
  const char16_t* words[] = {u"月曜日", u"火曜日", u"水曜日", u"木曜日", u"金曜日", u"土曜日", u"日曜日"};
  for (int i = 0; i < 7; ++i)  // 10 June 2024 was a Monday
    EXPECT_EQ(weekday(QDate(2024, 6, 10).addDays(i)), QString::fromUtf16(words[i]));
}

TEST(DayText, NamesEraAndWeekday) {
  EXPECT_EQ(dayText(kDates, QDate(2024, 6, 15)), u"令和6年6月15日土曜日"_s);
  EXPECT_EQ(dayText(kDates, QDate(2019, 4, 30)), u"平成31年4月30日火曜日"_s);
  EXPECT_EQ(dayText(kDates, QDate(2019, 5, 1)), u"令和1年5月1日水曜日"_s);
}

TEST(Stamp, HasNoLeadingZeros) {
  EXPECT_EQ(stampText(kDates, QDateTime(QDate(2024, 6, 5), QTime(9, 5, 59))), u"令和6年6月5日 9:5"_s);
  EXPECT_EQ(stampText(kDates, QDateTime(QDate(2024, 12, 31), QTime(23, 59))), u"令和6年12月31日 23:59"_s);
  EXPECT_EQ(stampText(kDates, QDateTime(QDate(2024, 6, 5), QTime(0, 0))), u"令和6年6月5日 0:0"_s);
}

TEST(Stamp, IsRewrittenFromWhatWasTyped) {
  const std::pair<QString, QString> cases[] = {
      {u"2024/6/5 9:05"_s, u"令和6年6月5日 9:5"_s},  {u"令和6年6月5日 9:5"_s, u"令和6年6月5日 9:5"_s},
      {u"R6/6/5 14:30"_s, u"令和6年6月5日 14:30"_s}, {u"令和6年6月5日14時30分"_s, u"令和6年6月5日 14:30"_s},
      {u"2024/6/5"_s, u"令和6年6月5日 0:0"_s},
  };
  for (const auto& [typed, stamp] : cases)
    EXPECT_EQ(stampRewritten(kDates, typed).value_or(u"refused"_s), stamp) << typed.toStdString();
  for (const QString& wrong : {u"きのう"_s, u"9:30"_s, u"2024/2/30 9:30"_s, u"2024/6/5 25:00"_s})
    EXPECT_FALSE(stampRewritten(kDates, wrong)) << wrong.toStdString();
}

TEST(ShadowDate, IsTheWesternForm) { EXPECT_EQ(shadowDate(QDate(2024, 3, 2)), u"2024/3/2"_s); }

TEST(Week, RunsFromSundayToSaturday) {
  EXPECT_EQ(tabOf(QDate(2024, 6, 16)), 1);  // a Sunday
  EXPECT_EQ(tabOf(QDate(2024, 6, 15)), 7);  // a Saturday
  EXPECT_EQ(tabOf(QDate(2024, 6, 12)), 4);
}

TEST(Week, TabsRollOverTheEndsOfMonthAndYear) {
  const QDate tuesday(2024, 10, 1);
  EXPECT_EQ(dayOfTab(tuesday, 1), QDate(2024, 9, 29));
  EXPECT_EQ(dayOfTab(tuesday, 3), tuesday);
  EXPECT_EQ(dayOfTab(tuesday, 7), QDate(2024, 10, 5));
  const QDate wednesday(2025, 1, 1);
  EXPECT_EQ(dayOfTab(wednesday, 1), QDate(2024, 12, 29));
  EXPECT_EQ(dayOfTab(wednesday, 7), QDate(2025, 1, 4));
  EXPECT_EQ(dayOfTab(QDate(2024, 2, 29), 7), QDate(2024, 3, 2));
}

struct TimeCase {
  const char16_t* typed;
  int hour, minute;
};
class TypedTime : public testing::TestWithParam<TimeCase> {};

TEST_P(TypedTime, IsRead) {
  const auto& [typed, hour, minute] = GetParam();
  const auto time = typedTime(QString::fromUtf16(typed));
  ASSERT_TRUE(time) << QString::fromUtf16(typed).toStdString();
  EXPECT_EQ(timeText(*time), u"%1 時 %2 分"_s.arg(hour).arg(minute));
}

INSTANTIATE_TEST_SUITE_P(
    Forms, TypedTime,
    testing::Values(TimeCase{u"9:30", 9, 30}, TimeCase{u"09:05", 9, 5}, TimeCase{u"９：３０", 9, 30},
                    TimeCase{u"9:30:59", 9, 30}, TimeCase{u"9時", 9, 0}, TimeCase{u"9時半", 9, 30},
                    TimeCase{u"14時30分", 14, 30}, TimeCase{u"１４時３０分", 14, 30},
                    TimeCase{u"9 時 0 分", 9, 0}, TimeCase{u"9時5分10秒", 9, 5}, TimeCase{u"午後2時", 14, 0},
                    TimeCase{u"午前9:15", 9, 15}, TimeCase{u"午後12時", 12, 0}, TimeCase{u"午前12時", 0, 0},
                    TimeCase{u"2:30 PM", 14, 30}, TimeCase{u"am 9:00", 9, 0}, TimeCase{u"0:00", 0, 0},
                    TimeCase{u"23:59", 23, 59}, TimeCase{u"　10：00　", 10, 0}));

TEST(TypedTimeRefused, WhereItIsNoTime) {
  for (const char16_t* typed : {u"", u"9", u"930", u"24:00", u"9:60", u"25時", u"午後13時", u"朝",
                                u"9:30ごろ", u"9時30", u"9::30", u"AM 9:00 PM", u"2024/6/15", u"9:30:60"})
    EXPECT_FALSE(typedTime(QString::fromUtf16(typed))) << QString::fromUtf16(typed).toStdString();
}

}  // namespace
}  // namespace office
