#include "frame/core/era_date.h"

#include <gtest/gtest.h>

#include "frame/core/eras.h"

using namespace frame;

namespace {

const EraCapability kSupported = EraCapability::Supported, kUnsupported = EraCapability::Unsupported;

struct Dates {
  explicit Dates(EraCapability capability, QDate today = QDate(2024, 10, 1))
      : clock(today), era(capability, clock) {}
  text::FixedClock clock;
  EraDates era;
};

QString u(const char16_t* text) { return QString::fromUtf16(text); }

struct Change {
  const char16_t* text;
  const char16_t* result;  ///< nullptr: cannot be read
};

void expectResult(const std::optional<QString>& result, const Change& row) {
  ASSERT_EQ(result.has_value(), row.result != nullptr) << u(row.text).toStdString();
  if (!result) return;
  EXPECT_EQ(result->toStdString(), u(row.result).toStdString()) << u(row.text).toStdString();
}

}  // namespace

TEST(Eras, EachBeginsOnItsFirstDay) {
  const std::pair<QDate, const char16_t*> rows[] = {
      {{1868, 1, 24}, u"1868年1月24日"},     {{1868, 1, 25}, u"明治1年1月25日"},
      {{1912, 7, 29}, u"明治45年7月29日"},   {{1912, 7, 30}, u"大正1年7月30日"},
      {{1926, 12, 24}, u"大正15年12月24日"}, {{1926, 12, 25}, u"昭和1年12月25日"},
      {{1989, 1, 7}, u"昭和64年1月7日"},     {{1989, 1, 8}, u"平成1年1月8日"},
      {{2019, 4, 30}, u"平成31年4月30日"},   {{2019, 5, 1}, u"令和1年5月1日"},
      {{2038, 12, 31}, u"令和20年12月31日"}, {{2039, 1, 1}, u"令和21年1月1日"}};
  const Dates dates(kSupported);
  for (const auto& [day, text] : rows)
    EXPECT_EQ(dates.era.formatEra(day).toStdString(), u(text).toStdString());
}

TEST(Eras, APlatformWithoutReiwaGoesOnCountingHeisei) {
  const Dates dates(kUnsupported);
  EXPECT_EQ(dates.era.formatEra(QDate(2019, 7, 9)), u(u"平成31年7月9日"));
  EXPECT_EQ(dates.era.formatEra(QDate(2039, 1, 1)), u(u"平成51年1月1日"));
  EXPECT_EQ(dates.era.formatEra(QDate(1989, 1, 7)), u(u"昭和64年1月7日"));
  EXPECT_FALSE(dates.era.platformDate(u(u"令和1年5月5日")));
  EXPECT_TRUE(Dates(kSupported).era.platformDate(u(u"令和1年5月5日")));
}

TEST(EraDates, ParseEraDateReadsTheShortFormsByThreeCharacters) {
  const Change rows[] = {
      {u"R1/5/1", u"2019/5/1"},
      {u"r01/5/1", u"2019/5/1"},
      {u"R01/5/1", u"2019/5/1"},
      {u"r1/5/1", u"2019/5/1"},
      {u"R9/12/31", u"2027/12/31"},
      {u"r09/1/1", u"2027/1/1"},
      {u"R10/5/1", u"2028/5/1"},
      {u"r10/5/1", u"2028/5/1"},
      {u"R20/5/1", u"2038/5/1"},
      {u"r20/2/28", u"2038/2/28"},
      {u"R06/5/1", u"2024/5/1"},
      {u"R21/5/1", nullptr},
      {u"R0/5/1", nullptr},
      {u"R00/5/1", nullptr},
      {u"R1", nullptr},
      {u"R1-5-1", nullptr},
      {u"R15", nullptr},
      {u"R6/2/30", nullptr},
      {u"H31/4/30", nullptr},
      {u"2019/5/1", nullptr},
      {u"", nullptr},
      {u"R012/5/1", nullptr},
      {u"R1/", nullptr},
      {u"令和1年5月1日", u"2019/5/1"},
      {u"令和6年10月1日", u"2024/10/1"},
      {u"令和元年5月1日", u"2019/5/1"},
      {u"令和6年10月", u"2024/10/1"},
      {u"令和20年12月31日", u"2038/12/31"},
      {u"令和6年2月30日", nullptr},
      {u"令和1年1月1日", u"2019/1/1"},
      {u"令和年1月1日", nullptr},
      {u"令和6年", nullptr},
      {u"令和6年10月1", nullptr},
      {u"平成31年4月30日", nullptr},
      {u"令", nullptr},
  };
  for (const EraCapability capability : {kSupported, kUnsupported})
    for (const Change& row : rows) expectResult(Dates(capability).era.parseEraDate(u(row.text)), row);
}

TEST(EraDates, WesternToReiwaGoesByTheYearAlone) {
  const Change rows[] = {
      {u"2019/5/25", u"令和1年5月25日"},
      {u"2019/1/1", u"令和1年1月1日"},
      {u"2038/12/31", u"令和20年12月31日"},
      {u"2024/05/01", u"令和6年5月1日"},
      {u"R1/5/1", u"令和1年5月1日"},
      {u"r01/5/1", u"令和1年5月1日"},
      {u"R20/3/4", u"令和20年3月4日"},
      {u"2039/1/1", nullptr},
      {u"2018/12/31", nullptr},
      {u"2019-5-25", nullptr},
      {u"2019年5月25日", nullptr},
      {u"R21/1/1", nullptr},
      {u"2023/2/29", nullptr},
      {u"令和6年10月1日", nullptr},
      {u"", nullptr},
      {u"R1", nullptr},
  };
  for (const EraCapability capability : {kSupported, kUnsupported})
    for (const Change& row : rows) expectResult(Dates(capability).era.westernToReiwa(u(row.text)), row);
}

TEST(EraDates, HeiseiToReiwaGoesByTheEraYearAlone) {
  const Dates unsupported(kUnsupported), supported(kSupported);
  EXPECT_EQ(unsupported.era.heiseiToReiwa(QDate(2019, 4, 30)), u(u"令和1年4月30日"));
  EXPECT_EQ(unsupported.era.heiseiToReiwa(QDate(2019, 1, 1)), u(u"令和1年1月1日"));
  EXPECT_EQ(unsupported.era.heiseiToReiwa(QDate(2038, 12, 31)), u(u"令和20年12月31日"));
  EXPECT_FALSE(unsupported.era.heiseiToReiwa(QDate(2039, 1, 1)));
  EXPECT_FALSE(unsupported.era.heiseiToReiwa(QDate(2018, 12, 31)));
  EXPECT_FALSE(unsupported.era.heiseiToReiwa(QDate(1988, 12, 31)));
  EXPECT_EQ(supported.era.heiseiToReiwa(QDate(2019, 4, 30)), u(u"令和1年4月30日"));
  EXPECT_FALSE(supported.era.heiseiToReiwa(QDate(2019, 5, 1)));  // the platform already answers 令和
}

TEST(EraDates, TodayEraPartsMapsTheYearsFromHeisei31On) {
  struct Row {
    QDate today;
    const char16_t *eraYear, *eraDate, *reiwaDate, *menuYear, *menuDate;
  };
  const Row rows[] = {
      {{2018, 3, 4}, u"平成30年", u"平成30年3月4日", u"平成30年3月4日", u"平成30年", u"平成30年3月4日"},
      {{2019, 4, 30}, u"令和1年", u"平成31年4月30日", u"令和1年4月30日", u"令和1年", u"令和1年4月30日"},
      {{2019, 5, 25}, u"令和1年", u"平成31年5月25日", u"令和1年5月25日", u"令和1年", u"令和1年5月25日"},
      {{2020, 1, 1}, u"令和2年", u"平成32年1月1日", u"令和2年1月1日", u"令和3年", u"令和3年1月1日"},
      {{2024, 10, 1}, u"令和6年", u"平成36年10月1日", u"令和6年10月1日", u"令和7年", u"令和7年10月1日"},
      {{2037, 2, 3}, u"令和19年", u"平成49年2月3日", u"令和19年2月3日", u"令和20年", u"令和20年2月3日"},
      {{2038, 2, 3}, u"令和20年", u"平成50年2月3日", u"令和20年2月3日", u"平成50年", u"平成50年2月3日"},
      {{2039, 2, 3}, u"平成51年", u"平成51年2月3日", u"平成51年2月3日", u"平成51年", u"平成51年2月3日"},
  };
  for (const Row& row : rows) {
    const Dates dates(kUnsupported, row.today);
    const TodayParts parts = dates.era.todayEraParts(), menu = dates.era.todayEraPartsMenu();
    EXPECT_EQ(parts.eraYear.toStdString(), u(row.eraYear).toStdString());
    EXPECT_EQ(parts.eraDate.toStdString(), u(row.eraDate).toStdString());
    EXPECT_EQ(parts.reiwaDate.toStdString(), u(row.reiwaDate).toStdString());
    EXPECT_EQ(parts.month, QString::number(row.today.month()));
    EXPECT_EQ(parts.day, QString::number(row.today.day()));
    EXPECT_EQ(menu.eraYear.toStdString(), u(row.menuYear).toStdString());
    EXPECT_EQ(menu.reiwaDate.toStdString(), u(row.menuDate).toStdString());
  }
}

TEST(EraDates, TodayEraPartsKeepsThePlatformsAnswerWhereItKnowsReiwa) {
  const Dates dates(kSupported, QDate(2024, 10, 1));
  for (const TodayParts& parts : {dates.era.todayEraParts(), dates.era.todayEraPartsMenu()}) {
    EXPECT_EQ(parts.eraYear, u(u"令和6年"));
    EXPECT_EQ(parts.eraDate, u(u"令和6年10月1日"));
    EXPECT_EQ(parts.reiwaDate, u(u"令和6年10月1日"));
  }
}

TEST(EraDates, AgeFollowsTheRoundedArithmetic) {
  struct Row {
    const char16_t* birth;
    QDate today;
    int age;
  };
  const Row rows[] = {
      {u"2000/5/15", {2024, 5, 14}, 24},  // even age: already on the day before
      {u"2000/5/15", {2023, 5, 14}, 22},  // odd age: not yet
      {u"2000/5/15", {2023, 5, 15}, 23},     {u"2000/5/15", {2024, 5, 13}, 23},
      {u"2000/2/29", {2023, 2, 28}, 22},  // 230228-... ends in 9999: n.5 goes to 22
      {u"2000/2/29", {2023, 3, 1}, 23},      {u"昭和25年1月1日", {2024, 10, 1}, 74},  // 1950
      {u"令和6年10月1日", {2024, 10, 1}, 0}, {u"R6/9/30", {2024, 10, 1}, 0},
      {u"1924/10/2", {2024, 10, 1}, 100},
  };
  for (const EraCapability capability : {kSupported, kUnsupported})
    for (const Row& row : rows) {
      const auto age = Dates(capability, row.today).era.ageFromBirthDate(u(row.birth));
      ASSERT_TRUE(age) << u(row.birth).toStdString();
      EXPECT_EQ(*age, row.age) << u(row.birth).toStdString() << row.today.toString(Qt::ISODate).toStdString();
    }
}

TEST(EraDates, AnAgeIsNotComputedFromABlankOrUnreadableText) {
  for (const EraCapability capability : {kSupported, kUnsupported})
    for (const char16_t* text : {u"", u"不明", u"令和6年2月30日", u"R1", u"2023/2/29"})
      EXPECT_FALSE(Dates(capability).era.ageFromBirthDate(u(text)));
}

TEST(EraDates, CutoversIncludeTheirDay) {
  const Dates dates(kSupported);
  for (const QDate cutover : {QDate(2019, 5, 1), QDate(2019, 4, 1), QDate(2019, 4, 30)}) {
    EXPECT_FALSE(dates.era.isAfterReiwaCutover(cutover.addDays(-1), cutover));
    EXPECT_TRUE(dates.era.isAfterReiwaCutover(cutover, cutover));
    EXPECT_TRUE(dates.era.isAfterReiwaCutover(cutover.addDays(1), cutover));
  }
}

TEST(EraDates, WarekiOfAFieldByThePlatform) {
  const Change rows[] = {{u"2019/5/25", u"令和1年5月25日"},
                         {u"2019/4/30", u"平成31年4月30日"},
                         {u"R1/5/1", u"令和1年5月1日"},
                         {u"令和元年5月1日", u"令和1年5月1日"},
                         {u"平成31年5月1日", u"令和1年5月1日"},
                         {u"令和1年1月1日", u"平成31年1月1日"},
                         {u"2039/5/1", u"令和21年5月1日"},
                         {u"s50/3/15", u"昭和50年3月15日"},
                         {u"", u""},
                         {u"不明", u"不明"},
                         {u"2023/2/29", u"2023/2/29"}};
  const Dates dates(kSupported);
  for (const Change& row : rows)
    EXPECT_EQ(dates.era.wareki(u(row.text)).toStdString(), u(row.result).toStdString());
}

TEST(EraDates, WarekiOfAFieldByTheProgramsOwnTables) {
  const Change rows[] = {{u"2019/5/25", u"令和1年5月25日"},
                         {u"2019/4/30", u"令和1年4月30日"},
                         {u"R1/5/1", u"令和1年5月1日"},
                         {u"平成31年4月30日", u"令和1年4月30日"},
                         {u"平成30年4月30日", u"平成30年4月30日"},
                         {u"2018/12/31", u"平成30年12月31日"},
                         {u"令和6年10月1日", u"令和6年10月1日"},
                         {u"2039/5/1", u"平成51年5月1日"},
                         {u"R21/5/1", u"R21/5/1"},
                         {u"", u""},
                         {u"不明", u"不明"}};
  const Dates dates(kUnsupported);
  for (const Change& row : rows)
    EXPECT_EQ(dates.era.wareki(u(row.text)).toStdString(), u(row.result).toStdString());
}

TEST(EraDates, SeirekiOfAField) {
  const Change rows[] = {{u"令和6年10月1日", u"2024/10/1"},
                         {u"R1/5/1", u"2019/5/1"},
                         {u"r01/5/1", u"2019/5/1"},
                         {u"平成31年4月30日", u"2019/4/30"},
                         {u"2024/05/01", u"2024/5/1"},
                         {u"昭和64年1月7日", u"1989/1/7"},
                         {u"", u""},
                         {u"不明", u"不明"},
                         {u"令和6年2月30日", u"令和6年2月30日"}};
  for (const EraCapability capability : {kSupported, kUnsupported})
    for (const Change& row : rows)
      EXPECT_EQ(Dates(capability).era.seireki(u(row.text)).toStdString(), u(row.result).toStdString());
}

TEST(EraDates, ClaimDatesPassUnderBothCapabilities) {
  for (const EraCapability capability : {kSupported, kUnsupported}) {
    const Dates dates(capability);
    for (const char16_t* yes :
         {u"令和6年10月1日", u"令和6年10月", u"R6/10/1", u"2024/10/1", u"平成31年4月30日", u"令和1年1月1日"})
      EXPECT_TRUE(dates.era.isDateOk(u(yes))) << u(yes).toStdString();
    for (const char16_t* no : {u"", u"令和6年2月30日", u"令和6年13月", u"6/10/1", u"R1", u"令和", u"なし"})
      EXPECT_FALSE(dates.era.isDateOk(u(no))) << u(no).toStdString();
  }
}

TEST(EraDates, AClaimMonthIsItsFirstDay) {
  for (const EraCapability capability : {kSupported, kUnsupported}) {
    const Dates dates(capability);
    EXPECT_EQ(dates.era.claimMonthToDate(u(u"令和6年10月")), QDate(2024, 10, 1));
    EXPECT_EQ(dates.era.claimMonthToDate(u(u"令和元年5月")), QDate(2019, 5, 1));
    EXPECT_EQ(dates.era.claimMonthToDate(u(u"平成30年6月")), QDate(2018, 6, 1));
    EXPECT_EQ(dates.era.claimMonthToDate(u(u"令和6年10月15日")), QDate(2024, 10, 1));
    EXPECT_FALSE(dates.era.claimMonthToDate(QString()));
    EXPECT_FALSE(dates.era.claimMonthToDate(u(u"令和6年13月")));
  }
}

TEST(EraDates, PartsAreAsWrittenOrByTheDay) {
  const Dates dates(kSupported);
  const auto written = dates.era.parts(u(u"平成31年5月1日")), western = dates.era.parts(u(u"2019/5/1"));
  ASSERT_TRUE(written && western);
  EXPECT_EQ(written->era, u(u"平成"));
  EXPECT_EQ(written->year, 31);
  EXPECT_EQ(western->era, u(u"令和"));
  EXPECT_EQ(western->year, 1);
  EXPECT_EQ(western->month, 5);
  EXPECT_EQ(western->day, 1);
  EXPECT_FALSE(dates.era.parts(u(u"")));
}
