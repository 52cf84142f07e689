#include "records/core/day_grid.h"

#include <gtest/gtest.h>

#include "platform/text/clock.h"

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;
using frame::EraCapability;

class DayGridTest : public testing::Test {
 protected:
  frame::EraDates era(EraCapability capability = EraCapability::Supported) const {
    return frame::EraDates(capability, m_clock);
  }
  text::FixedClock m_clock{QDate(2024, 11, 5)};
};

TEST_F(DayGridTest, ClaimMonthIsItsFirstDay) {
  const std::pair<const char16_t*, QDate> cases[] = {
      {u"令和6年10月", QDate(2024, 10, 1)}, {u"令和元年5月", QDate(2019, 5, 1)},
      {u"令和1年12月", QDate(2019, 12, 1)}, {u"平成31年4月", QDate(2019, 4, 1)},
      {u"2024/9", QDate(2024, 9, 1)},
  };
  for (const EraCapability capability : {EraCapability::Supported, EraCapability::Unsupported})
    for (const auto& [month, date] : cases)
      EXPECT_EQ(gridMonth(QString::fromUtf16(month), era(capability)), date)
          << QString::fromUtf16(month).toStdString() << int(capability);
  EXPECT_FALSE(gridMonth(u""_s, era()));
  EXPECT_FALSE(gridMonth(u"いつか"_s, era()));
}

TEST_F(DayGridTest, DaysFollowTheMonth) {
  for (const int month : {1, 3, 5, 7, 8, 10, 12}) EXPECT_EQ(visibleDays(QDate(2024, month, 1)), 31) << month;
  for (const int month : {4, 6, 9, 11}) EXPECT_EQ(visibleDays(QDate(2024, month, 1)), 30) << month;
  // The simple test by 4 and nothing for centuries.
  for (const int year : {2020, 2024, 2100, 2200}) EXPECT_EQ(visibleDays(QDate(year, 2, 1)), 29) << year;
  for (const int year : {2019, 2023, 2101}) EXPECT_EQ(visibleDays(QDate(year, 2, 1)), 28) << year;
  EXPECT_EQ(visibleDays(std::nullopt), 31);
}

TEST_F(DayGridTest, CellBeginsWithALetterOfItsKind) {
  const QString wrong = u"治療内容が正しくありません。"_s;
  for (const QString& kind : {u"灸"_s, u"鍼"_s, u"鍼灸"_s}) {
    for (const char16_t letter : u"abcdef"_s.toStdU16String())
      EXPECT_TRUE(gridCodeMessage(QChar(letter), kind).isNull());
    for (const QString& cell : {u"g"_s, u"h2"_s, u"i1"_s, u"j"_s, u"z"_s, u"A"_s, u"ａ"_s, u"1"_s})
      EXPECT_EQ(gridCodeMessage(cell, kind), wrong) << cell.toStdString();
  }
  for (const QString& cell : {u"g2"_s, u"g2h3"_s, u"h1"_s, u"i1"_s, u"j5"_s, u"gh"_s})
    EXPECT_TRUE(gridCodeMessage(cell, u"あマ"_s).isNull()) << cell.toStdString();
  for (const QString& cell : {u"a"_s, u"f"_s, u"k1"_s, u" g"_s})
    EXPECT_EQ(gridCodeMessage(cell, u"あマ"_s), wrong);
  EXPECT_TRUE(gridCodeMessage(u""_s, u"鍼灸"_s).isNull());
  EXPECT_EQ(gridCodeMessage(u"a"_s, u""_s), wrong);  // a claim of no kind takes no code
}

}  // namespace
}  // namespace records
