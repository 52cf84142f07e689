// Small tables and derived values of a claim.
#include <gtest/gtest.h>

#include "claims/core/insurance.h"
#include "claims/core/kinds.h"
#include "claims/core/print_fields.h"
#include "claims/core/print_settings.h"
#include "claims/core/rule_dates.h"
#include "claims/core/share_rate.h"
#include "claims/core/share_ticks.h"
#include "claims/core/treatment_period.h"
#include "claims/tests/core/claim_builder.h"

namespace claims {
namespace {

using testing::era;
using testing::makeClaim;

TEST(Kinds, ByTreatment) {
  for (const char16_t* text : {u"鍼灸", u"鍼", u"灸"})
    EXPECT_EQ(kindOf(QString::fromUtf16(text)), Kind::Acupuncture);
  EXPECT_EQ(kindOf(QStringLiteral("あマ")), Kind::Massage);
  for (const char16_t* text : {u"", u"マ", u"あん摩"})
    EXPECT_EQ(kindOf(QString::fromUtf16(text)), Kind::None);
}

TEST(Kinds, AddresseeOfABlankField) {
  const struct {
    const char16_t *kind, *addressee;
  } rows[] = {{u"全国健康保険協会", u"全国健康保険協会支部長"},
              {u"共済", u"共済組合長"},
              {u"組合", u"健康保険組合長"},
              {u"国保", u"市町村長"},
              {u"退職国保", u"市町村長"},
              {u"特別国保", u"国民健康保険組合長"},
              {u"後期高齢", u"後期高齢者医療広域連合長"}};
  for (const auto& row : rows) EXPECT_EQ(defaultAddressee(QString::fromUtf16(row.kind)), row.addressee);
  for (const char16_t* kind : {u"社保", u"老人", u""})
    EXPECT_TRUE(defaultAddressee(QString::fromUtf16(kind)).isNull());
}

TEST(Kinds, ShareRates) {
  EXPECT_EQ(shareRate(QStringLiteral("1割")), 0.1);
  EXPECT_EQ(shareRate(QStringLiteral("2割")), 0.2);
  EXPECT_EQ(shareRate(QStringLiteral("3割")), 0.3);
  for (const char16_t* text : {u"", u"3", u"３割", u"10割"})
    EXPECT_EQ(shareRate(QString::fromUtf16(text)), 0);
}

TEST(RuleDates, FlagsByMonth) {
  const auto flagsOf = [](const char16_t* month) { return monthFlags(QString::fromUtf16(month), era()); };
  EXPECT_FALSE(flagsOf(u"平成30年5月").isAfter201806);
  EXPECT_TRUE(flagsOf(u"平成30年6月").isAfter201806);
  EXPECT_FALSE(flagsOf(u"平成30年9月").isAfter201810);
  EXPECT_TRUE(flagsOf(u"平成30年10月").isAfter201810);
  EXPECT_FALSE(flagsOf(u"令和2年11月").isAfter202012);
  EXPECT_TRUE(flagsOf(u"令和2年12月").isAfter202012);
  EXPECT_FALSE(flagsOf(u"令和4年5月").isAfter202206);
  EXPECT_TRUE(flagsOf(u"令和4年6月").isAfter202206);
  EXPECT_FALSE(flagsOf(u"令和6年9月").isAfter202410);
  EXPECT_TRUE(flagsOf(u"令和6年10月").isAfter202410);
  EXPECT_FALSE(flagsOf(u"令和7年9月").isAfter202510);
  EXPECT_TRUE(flagsOf(u"令和7年10月").isAfter202510);
  for (const char16_t* none : {u"", u"?"}) {
    const MonthFlags flags = flagsOf(none);
    EXPECT_FALSE(flags.month);
    EXPECT_FALSE(flags.isAfter201806 || flags.isAfter202410);
  }
}

TEST(RuleDates, LastDays) {
  const int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (int month = 1; month <= 12; ++month) EXPECT_EQ(lastDayOfMonth(2023, month), days[month - 1]);
  EXPECT_EQ(lastDayOfMonth(2024, 2), 29);
  EXPECT_EQ(lastDayOfMonth(2100, 2), 29);  // kept: leap years by mod 4 alone
}

TEST(TreatmentPeriod, ByRequestAndOutcome) {
  const auto periodOf = [](const char16_t* month, const char16_t* request, const char16_t* outcome) {
    const auto claim =
        makeClaim(month, u"鍼", u"", u"5=a 17=a",
                  {{u"請求区分", request}, {u"転帰", outcome}, {u"初療年月日", u"令和6年2月5日"}});
    return treatmentPeriod(claim, monthFlags(QString::fromUtf16(month), era()));
  };
  const TreatmentPeriod fresh = periodOf(u"令和6年2月", u"新規", u"継続");
  EXPECT_EQ(fresh.startText, u"令和6年2月5日");
  EXPECT_EQ(fresh.endDay, 29);
  EXPECT_EQ(fresh.firstTreated, 5);
  EXPECT_EQ(fresh.lastTreated, 17);
  const TreatmentPeriod running = periodOf(u"令和5年2月", u"継続", u"継続");
  EXPECT_TRUE(running.startText.isNull());
  EXPECT_EQ(running.startDay, 1);
  EXPECT_EQ(running.endDay, 28);
  for (const char16_t* outcome : {u"治癒", u"転医", u"中止"})
    EXPECT_EQ(periodOf(u"令和6年4月", u"継続", outcome).endDay, 17);
  EXPECT_EQ(periodOf(u"令和6年4月", u"継続", u"").endDay, 0);
}

TEST(ShareTicks, ReadFromTheText) {
  const ShareTicks ticks = shareTicksOf(QStringLiteral("三歳未満,高齢8,"));
  EXPECT_EQ(ticks, (ShareTicks{false, true, false, false, true, false}));
  EXPECT_EQ(shareTicksText(ticks), u"三歳未満,高齢8,");
  EXPECT_EQ(shareTicksOf(QString()), ShareTicks{});
  ClaimRecord claim;
  claim.setNamed(QStringLiteral("負担割合"), QStringLiteral("家族,"));
  EXPECT_TRUE(shareTicksOf(claim)[2]);
  claim.setNamed(QStringLiteral("本人"), QStringLiteral("-1"));
  EXPECT_TRUE(shareTicksOf(claim)[0]);
  EXPECT_FALSE(shareTicksOf(claim)[2]);
}

TEST(PrintSettings, OneRowASwitch) {
  const char16_t* columns[] = {u"txt dummy1",  u"txt dummy2",  u"txt dummy3",  u"txt dummy4", u"txt dummy9",
                               u"txt dummy10", u"txt dummy11", u"txt dummy13", u"txtdummy26", u"c8",
                               u"c9",          u"c10",         u"c11",         u"c13",        u"c16",
                               u"txt dummy5",  u"txt dummy6",  u"txt dummy7",  u"txt dummy8"};
  ASSERT_EQ(std::size(kPrintSettings), std::size(columns));
  for (size_t i = 0; i < std::size(columns); ++i)
    EXPECT_EQ(QStringView(kPrintSettings[i].column.name()), QStringView(columns[i]));
}

TEST(PrintSettings, ChosenByTheColumnElseTheDefault) {
  ClaimRecord claim;
  const Setting setting = Setting::ProxyWords;
  EXPECT_EQ(chosen(claim, setting, {}), 1);
  claim.setNamed(QStringLiteral("c10"), QStringLiteral("0"));
  EXPECT_EQ(chosen(claim, setting, {}), 0);
  claim.setNamed(QStringLiteral("txt dummy1"), QStringLiteral("77"));  // the ID of a repaired half
  EXPECT_EQ(chosen(claim, Setting::PeriodFrom, {}), 1);
}

TEST(PrintFields, FullWidthNumbersByKind) {
  const auto fieldsOf = [](const char16_t* kind) {
    return printFields(makeClaim(u"", u"", u"", u"",
                                 {{u"保険の種類", kind},
                                  {u"保険証番号", u"12"},
                                  {u"保険証記号1", u"A"},
                                  {u"保険証記号2", u"ｱ3"},
                                  {u"被保険者の郵便番号", u"000-0001"}}));
  };
  const auto union_ = fieldsOf(u"組合");
  EXPECT_EQ(union_.value(QStringLiteral("保険証番号")), u"１２");
  EXPECT_EQ(union_.value(QStringLiteral("保険証記号1")), u"Ａ");
  EXPECT_EQ(union_.value(QStringLiteral("保険証記号2")), u"ア３");
  EXPECT_EQ(union_.value(QStringLiteral("被保険者の郵便番号")), u"０００－０００１");
  EXPECT_FALSE(union_.contains(QStringLiteral("受給者番号")));
  for (const char16_t* kind : {u"老人", u"後期高齢", u"国保", u"退職国保", u"特別国保"}) {
    EXPECT_FALSE(fieldsOf(kind).contains(QStringLiteral("保険証記号1")));
    EXPECT_TRUE(fieldsOf(kind).contains(QStringLiteral("保険証番号")));
  }
}

}  // namespace
}  // namespace claims
