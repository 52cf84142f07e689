#include "claims/core/new_claim.h"

#include <gtest/gtest.h>

#include "claims/core/insurance.h"

namespace claims {
namespace {

const QHash<QString, QString> kPatient = {{QStringLiteral("テキスト5"), QStringLiteral("20240401001")},
                                          {QStringLiteral("カルテ番号"), QStringLiteral("K001")},
                                          {QStringLiteral("氏名"), QStringLiteral("見本 太郎")},
                                          {QStringLiteral("ふりがな"), QStringLiteral("ﾐﾎﾝ ﾀﾛｳ")},
                                          {QStringLiteral("性別"), QStringLiteral("男")},
                                          {QStringLiteral("生年月日"), QStringLiteral("昭和28年3月5日")},
                                          {QStringLiteral("郵便番号"), QStringLiteral("000-0001")},
                                          {QStringLiteral("住所1"), QStringLiteral("架空県みほん市")},
                                          {QStringLiteral("住所2"), QStringLiteral("見本町１")},
                                          {QStringLiteral("電話1"), QStringLiteral("00-0000-0001")}};

ClaimRecord claimFor(const char16_t* insurance, Kind treatment, CardHolder holder) {
  frame::ClinicProfile profile;
  profile[frame::profile::kPractitioner] = QStringLiteral("見本 施術");
  profile[frame::profile::kElderlyMassage] = QStringLiteral("E-2");
  return newClaim(kPatient, {QString::fromUtf16(insurance), treatment, holder}, profile);
}

void expect(const ClaimRecord& claim, const char16_t* column, const char16_t* value) {
  EXPECT_EQ(claim.get(QString::fromUtf16(column)), value) << QString::fromUtf16(column).toStdString();
}

TEST(NewClaim, OfTheInsuredPerson) {
  const ClaimRecord claim = claimFor(u"国保", Kind::Acupuncture, CardHolder::Insured);
  for (const char16_t* stem : {u"被保険者の", u"療養を受ける者の"}) {
    const QString person = QString::fromUtf16(stem);
    EXPECT_EQ(claim.get(person + QStringLiteral("氏名")), u"見本 太郎");
    EXPECT_EQ(claim.get(person + QStringLiteral("フリガナ")), u"ﾐﾎﾝ ﾀﾛｳ");
    EXPECT_EQ(claim.get(person + QStringLiteral("生年月日")), u"昭和28年3月5日");
    EXPECT_EQ(claim.get(person + QStringLiteral("性別")), u"男");
    EXPECT_EQ(claim.get(person + QStringLiteral("郵便番号")), u"000-0001");
    EXPECT_EQ(claim.get(person + QStringLiteral("住所")), u"架空県みほん市見本町１");
    EXPECT_EQ(claim.get(person + QStringLiteral("電話番号")), u"00-0000-0001");
  }
  expect(claim, u"被保険者との続柄", u"本人");
  expect(claim, u"カルテ番号", u"K001");
  expect(claim, u"番号1", u"20240401001");
  expect(claim, u"氏名", u"見本 太郎");
  expect(claim, u"生年月日", u"昭和28年3月5日");
  expect(claim, u"施術内容", u"鍼灸");
  expect(claim, u"保険の種類", u"国保");
  expect(claim, u"保険順位", u"4");
  expect(claim, kSummaryCodeColumn, u"1");
  expect(claim, u"施術者氏名", u"見本 施術");
  expect(claim, u"c15", u"E-2");
}

TEST(NewClaim, OfTheFamilyOnlyThePersonTreated) {
  const ClaimRecord claim = claimFor(u"全国健康保険協会", Kind::Massage, CardHolder::Family);
  EXPECT_TRUE(claim.blank(QStringLiteral("被保険者の氏名")));
  EXPECT_TRUE(claim.blank(QStringLiteral("被保険者との続柄")));
  expect(claim, u"療養を受ける者の氏名", u"見本 太郎");
  expect(claim, u"施術内容", u"あマ");
  expect(claim, u"保険順位", u"3");
  expect(claim, kSummaryCodeColumn, u"222");
}

TEST(NewClaim, NotTheHeadOfTheHousehold) {
  const ClaimRecord claim = claimFor(u"国保", Kind::Acupuncture, CardHolder::InsuredNotHead);
  EXPECT_TRUE(claim.ticked(QStringLiteral("保険の種類2")));
  expect(claim, u"被保険者の氏名", u"見本 太郎");
  EXPECT_FALSE(
      claimFor(u"国保", Kind::Acupuncture, CardHolder::Insured).ticked(QStringLiteral("保険の種類2")));
}

TEST(NewClaim, Defaults) {
  const ClaimRecord claim = claimFor(u"共済", Kind::Acupuncture, CardHolder::Insured);
  expect(claim, u"業務上外のもの", u"その他");
  expect(claim, u"第三者行為によるもの", u"いいえ");
  expect(claim, u"入院入院外の別", u"入院外");
  for (const char16_t* column : {u"txt dummy1", u"txt dummy2", u"txt dummy3", u"txt dummy5", u"txt dummy6",
                                 u"txt dummy7", u"txt dummy8"})
    expect(claim, column, u"1");
  for (const char16_t* column : {u"txt dummy4", u"txt dummy9"}) expect(claim, column, u"0");
  EXPECT_TRUE(claim.blank(QStringLiteral("申請年月")));
  EXPECT_TRUE(claim.blank(QStringLiteral("施術科目")));
}

}  // namespace
}  // namespace claims
