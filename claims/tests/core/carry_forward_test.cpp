#include "claims/core/carry_forward.h"

#include <gtest/gtest.h>

#include "claims/core/claim_store.h"
#include "claims/tests/core/claim_builder.h"

namespace claims {
namespace {

TEST(NextMonth, WithinAndAcrossYearsAndEras) {
  const struct {
    const char16_t *from, *to, *number;
  } rows[] = {{u"令和6年10月", u"令和6年11月", u"11"}, {u"令和6年12月", u"令和7年1月", u"1"},
              {u"令和6年9月", u"令和6年10月", u"10"},  {u"令和元年5月", u"令和1年6月", u"6"},
              {u"令和元年12月", u"令和2年1月", u"1"},  {u"令和1年12月", u"令和2年1月", u"1"},
              {u"平成31年3月", u"平成31年4月", u"4"},  {u"平成31年4月", u"令和1年5月", u"5"},
              {u"平成31年12月", u"令和2年1月", u"1"},  {u"平成32年2月", u"令和2年3月", u"3"},
              {u"平成30年12月", u"平成31年1月", u"1"}, {u"昭和63年12月", u"昭和64年1月", u"1"},
              {u"昭和64年1月", u"平成1年2月", u"2"},   {u"平成元年1月", u"平成1年2月", u"2"},
              {u"令和20年12月", u"令和21年1月", u"1"}, {u"令和６年１月", u"令和6年2月", u"2"}};
  for (const auto& row : rows) {
    const auto next = nextMonth(QString::fromUtf16(row.from));
    ASSERT_TRUE(next) << QString::fromUtf16(row.from).toStdString();
    EXPECT_EQ(next->month, row.to);
    EXPECT_EQ(next->number, row.number);
  }
}

TEST(NextMonth, OnlyEraMonths) {
  for (const char16_t* text :
       {u"", u"2024/10", u"令和6年", u"令和6年13月", u"令和6年0月", u"令和年5月", u"6年5月", u"令和x年5月"})
    EXPECT_FALSE(nextMonth(QString::fromUtf16(text)));
}

ClaimRecord storedClaim() {
  ClaimRecord claim = testing::makeClaim(u"令和6年12月", u"鍼灸", u"3割", u"1=a 2=e/v1",
                                         {{u"請求回数", u"7"},
                                          {u"申請月", u"12"},
                                          {u"請求区分", u"新規"},
                                          {u"転帰", u"治癒"},
                                          {u"保険の種類", u"社保"},
                                          {u"保険の種類3", u"政管健保"},
                                          {u"保険者名称", u"見本"},
                                          {u"被保険者の氏名", u"見本 太郎"},
                                          {u"同意医師氏名", u"見本 医太郎"},
                                          {u"要加療期間2", u"令和7年3月"},
                                          {u"初療年月日", u"令和6年4月1日"},
                                          {u"初回有無", u"-1"},
                                          {u"yn2", u"-1"},
                                          {u"yn3", u"-1"},
                                          {u"yn4", u"-1"},
                                          {u"txtdummy27", u"令和6年12月3日"},
                                          {u"業務上外のもの", u"業務上"},
                                          {u"第三者行為によるもの", u"はい"},
                                          {u"入院入院外の別", u"入院"},
                                          {u"既往症", u"高血圧"},
                                          {u"備考", u"覚え"},
                                          {u"施術者氏名", u"見本 施術"},
                                          {u"代表者口座番号", u"000"},
                                          {u"txt dummy1", u"0"},
                                          {u"c11", u"1"},
                                          {u"合計", u"5000"},
                                          {u"h1", u"x"},
                                          {u"施術科目", u"鍼"},
                                          {u"総括表", u"1"},
                                          {u"カルテ番号", u"K1"},
                                          {u"d3", u"5"},
                                          {u"請求年月日", u"令和7年1月5日"},
                                          {u"本人", u"-1"},
                                          {u"ID", u"12"}});
  return claim;
}

TEST(CarryForward, CarriesThePagesOfTheCard) {
  const ClaimRecord claim = storedClaim(), next = carryForward(claim);
  for (const char16_t* column : {u"保険者名称", u"被保険者の氏名", u"同意医師氏名", u"要加療期間2",
                                 u"初療年月日", u"既往症", u"備考", u"施術者氏名", u"代表者口座番号",
                                 u"txt dummy1", u"c11", u"カルテ番号", u"施術内容", u"一部負担金", u"本人"})
    EXPECT_EQ(next.get(QString::fromUtf16(column)), claim.get(QString::fromUtf16(column)))
        << QString::fromUtf16(column).toStdString();
}

TEST(CarryForward, WhatTheMonthMadeStaysBlank) {
  const ClaimRecord next = carryForward(storedClaim());
  for (int day = 1; day <= 31; ++day) {
    EXPECT_TRUE(next.code(day).isEmpty());
    EXPECT_TRUE(next.visit(day).isEmpty());
  }
  for (const char16_t* column : {u"初回有無", u"yn2", u"yn3", u"yn4", u"txtdummy27", u"施術科目", u"d3",
                                 u"転帰", u"請求年月日", u"ID"})
    EXPECT_TRUE(next.blank(QString::fromUtf16(column))) << QString::fromUtf16(column).toStdString();
  for (const store::Column& column : calculatedColumns()) EXPECT_TRUE(next.blank(column));
  for (const store::Column& column : calculatedColumnsSecond()) EXPECT_TRUE(next.blank(column));
}

TEST(CarryForward, WhatIsSetAnew) {
  const ClaimRecord next = carryForward(storedClaim());
  const struct {
    const char16_t *column, *value;
  } rows[] = {{u"保険の種類", u"全国健康保険協会"},
              {u"保険の種類3", u"全国健康保険協会"},
              {u"請求区分", u"継続"},
              {u"業務上外のもの", u"その他"},
              {u"第三者行為によるもの", u"いいえ"},
              {u"入院入院外の別", u"入院外"},
              {u"申請年月", u"令和7年1月"},
              {u"申請月", u"1"},
              {u"請求回数", u"8"}};
  for (const auto& row : rows) EXPECT_EQ(next.get(QString::fromUtf16(row.column)), row.value);
}

TEST(CarryForward, OtherInsuranceKeepsItsName) {
  ClaimRecord claim = storedClaim();
  claim.set(QStringLiteral("保険の種類"), QStringLiteral("国保"));
  claim.set(QStringLiteral("保険の種類3"), QStringLiteral("国民健保"));
  EXPECT_EQ(carryForward(claim).get(QStringLiteral("保険の種類")), u"国保");
  EXPECT_EQ(carryForward(claim).get(QStringLiteral("保険の種類3")), u"国民健保");
}

TEST(CarryForward, RefusalsInTheirOrder) {
  ClaimRecord claim = storedClaim();
  EXPECT_TRUE(carryForwardRefusal(claim).isNull());
  claim.set(QStringLiteral("申請年月"), QString());
  EXPECT_EQ(carryForwardRefusal(claim), u"申請年月が空欄です。記入してください。");
  claim.set(QStringLiteral("請求回数"), QStringLiteral(""));
  EXPECT_EQ(carryForwardRefusal(claim), u"申請回数が空欄です。記入してください。");
}

}  // namespace
}  // namespace claims
