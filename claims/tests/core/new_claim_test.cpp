#include "claims/core/new_claim.h"

#include <gtest/gtest.h>

#include <QSet>

#include "claims/core/insurance.h"

namespace claims {
namespace {

/// A patient each of whose texts is his own.
frame::Patient patient() {
  frame::Patient patient;
  patient.serial = QStringLiteral("20240401001");
  patient.number = QStringLiteral("患者17");
  patient.chartNumber = QStringLiteral("K001");
  patient.name = QStringLiteral("見本 太郎");
  patient.kana = QStringLiteral("ﾐﾎﾝ ﾀﾛｳ");
  patient.sex = QStringLiteral("男");
  patient.birth = QStringLiteral("昭和28年3月5日");
  patient.age = QStringLiteral("71");
  patient.zip = QStringLiteral("000-0001");
  patient.address = QStringLiteral("架空県みほん市");
  patient.address2 = QStringLiteral("見本町１");
  patient.telephone = QStringLiteral("00-0000-0001");
  patient.firstVisit = QStringLiteral("令和6年4月1日");
  return patient;
}

ClaimRecord claimFor(const char16_t* insurance, Kind treatment, CardHolder holder) {
  frame::ClinicProfile profile;
  profile[frame::slot::kPractitioner] = QStringLiteral("見本 施術");
  profile[frame::slot::kElderlyMassage] = QStringLiteral("E-2");
  return newClaim(patient(), {QString::fromUtf16(insurance), treatment, holder}, profile);
}

void expect(const ClaimRecord& claim, const char16_t* column, const char16_t* value) {
  EXPECT_EQ(claim.named(QString::fromUtf16(column)), value) << QString::fromUtf16(column).toStdString();
}

TEST(NewClaim, OfTheInsuredPerson) {
  const ClaimRecord claim = claimFor(u"国保", Kind::Acupuncture, CardHolder::Insured);
  for (const char16_t* stem : {u"被保険者の", u"療養を受ける者の"}) {
    const QString person = QString::fromUtf16(stem);
    EXPECT_EQ(claim.named(person + QStringLiteral("氏名")), u"見本 太郎");
    EXPECT_EQ(claim.named(person + QStringLiteral("フリガナ")), u"ﾐﾎﾝ ﾀﾛｳ");
    EXPECT_EQ(claim.named(person + QStringLiteral("生年月日")), u"昭和28年3月5日");
    EXPECT_EQ(claim.named(person + QStringLiteral("性別")), u"男");
    EXPECT_EQ(claim.named(person + QStringLiteral("郵便番号")), u"000-0001");
    EXPECT_EQ(claim.named(person + QStringLiteral("住所")), u"架空県みほん市見本町１");
    EXPECT_EQ(claim.named(person + QStringLiteral("電話番号")), u"00-0000-0001");
  }
  expect(claim, u"被保険者との続柄", u"本人");
  expect(claim, u"カルテ番号", u"K001");
  expect(claim, u"番号1", u"20240401001");
  expect(claim, u"氏名", u"見本 太郎");
  expect(claim, u"生年月日", u"昭和28年3月5日");
  expect(claim, u"施術内容", u"鍼灸");
  expect(claim, u"保険の種類", u"国保");
  expect(claim, u"保険順位", u"4");
  expect(claim, u"numdummy16", u"1");
  expect(claim, u"施術者氏名", u"見本 施術");
  expect(claim, u"c15", u"E-2");
}

/// The slot of the settings file that a column of a new claim is copied from.
struct Copied {
  int slot;
  const char16_t* column;
};
constexpr Copied kCopied[] = {
    {29, u"施術者氏名"},
    {30, u"施術所の所在地"},
    {31, u"施術所の名称"},
    {32, u"施術所の郵便番号"},
    {33, u"施術所の所在地カナ"},
    {34, u"支払い機関区分"},
    {35, u"預金の種類"},
    {36, u"金融機関名"},
    {37, u"本店支店名"},
    {38, u"郵便局名"},
    {39, u"師会等の機関番号"},
    {40, u"口座名義カタカナ"},
    {41, u"口座名義"},
    {42, u"口座番号"},
    {43, u"代表者フリガナ"},
    {44, u"代表者氏名"},
    {45, u"代表者住所フリガナ"},
    {46, u"代表者預金の種類"},
    {47, u"代表者金融機関名"},
    {48, u"代表者本店支店名"},
    {49, u"代表者郵便局名"},
    {50, u"代表者口座名義カタカナ"},
    {51, u"代表者口座名義"},
    {52, u"代表者口座番号"},
    {56, u"師会名"},
    {58, u"施術者フリガナ"},
    {59, u"代表者住所"},
    {60, u"代表者郵便番号"},
    {61, u"施術所電話番号"},
    {62, u"代表者電話番号"},
    {64, u"金融機関名種類"},
    {65, u"本店支店名種類"},
    {66, u"代表者金融機関名種類"},
    {67, u"代表者本店支店名種類"},
    {78, u"c14"},
    {79, u"c15"},
};

TEST(NewClaim, TheProfileGoesToItsColumnsAndNoOthers) {
  frame::ClinicProfile profile;
  for (int slot = 0; slot < 90; ++slot) profile[slot] = QStringLiteral("slot %1").arg(slot);
  const ClaimRecord claim =
      newClaim(patient(), {QStringLiteral("国保"), Kind::Acupuncture, CardHolder::Family}, profile);
  QHash<QString, QString> expected;
  for (const Copied& row : kCopied)
    expected.insert(QString::fromUtf16(row.column), QStringLiteral("slot %1").arg(row.slot));
  QHash<QString, QString> copied;
  for (auto it = claim.columns().cbegin(); it != claim.columns().cend(); ++it)
    if (it.value().startsWith(u"slot")) copied.insert(it.key(), it.value());
  EXPECT_EQ(copied.size(), expected.size());
  for (auto it = expected.cbegin(); it != expected.cend(); ++it)
    EXPECT_EQ(copied.value(it.key()), it.value()) << it.key().toStdString();
}

TEST(NewClaim, TheRepresentativesDataAreThoseOfTheProfile) {
  QSet<QString> columns;
  for (const store::Column& column : representativeColumns()) columns.insert(column);
  QSet<QString> expected;
  for (const Copied& row : kCopied)
    if (const QString column = QString::fromUtf16(row.column); column.startsWith(u"代表者"))
      expected.insert(column);
  EXPECT_EQ(columns, expected);
}

TEST(NewClaim, OfTheFamilyOnlyThePersonTreated) {
  const ClaimRecord claim = claimFor(u"全国健康保険協会", Kind::Massage, CardHolder::Family);
  EXPECT_TRUE(claim.blank(claim::insuredName));
  EXPECT_TRUE(claim.blank(claim::relation));
  expect(claim, u"療養を受ける者の氏名", u"見本 太郎");
  expect(claim, u"施術内容", u"あマ");
  expect(claim, u"保険順位", u"3");
  expect(claim, u"numdummy16", u"222");
}

TEST(NewClaim, NotTheHeadOfTheHousehold) {
  const ClaimRecord claim = claimFor(u"国保", Kind::Acupuncture, CardHolder::InsuredNotHead);
  EXPECT_TRUE(claim.ticked(claim::notHead));
  expect(claim, u"被保険者の氏名", u"見本 太郎");
  EXPECT_FALSE(claimFor(u"国保", Kind::Acupuncture, CardHolder::Insured).ticked(claim::notHead));
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
  EXPECT_TRUE(claim.blank(claim::month));
  EXPECT_TRUE(claim.blank(claim::subject));
}

}  // namespace
}  // namespace claims
