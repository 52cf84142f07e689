#include "claims/core/trim.h"

#include <gtest/gtest.h>

#include "claims/tests/core/claim_builder.h"

namespace claims {
namespace {

struct LimitRow {
  const char16_t* column;
  int claimNeedle, claimMassage, recordNeedle, recordMassage;  // 0: none
};

const LimitRow kRows[] = {
    {u"事業所の名称", 52, 52, 30, 30},
    {u"事業所の所在地", 52, 52, 30, 30},
    {u"被保険者のフリガナ", 0, 22, 0, 22},
    {u"被保険者の氏名", 22, 22, 22, 22},
    {u"被保険者の住所フリガナ", 0, 58, 0, 58},
    {u"被保険者の住所", 60, 60, 39, 39},
    {u"被保険者との続柄", 4, 4, 4, 4},
    {u"傷病名", 50, 50, 50, 50},
    {u"傷病名7", 15, 15, 10, 10},
    {u"傷病名8", 10, 10, 10, 10},
    {u"同意の傷病名", 26, 24, 26, 24},
    {u"同意医師住所", 40, 40, 40, 40},
    {u"摘要1", 14, 14, 14, 14},
    {u"摘要4", 50, 50, 79, 79},
    {u"摘要5", 50, 50, 79, 79},
    {u"摘要6", 50, 50, 37, 37},
    {u"マッサージ部位数", 1, 1, 1, 1},
    {u"施術所の名称", 0, 23, 0, 0},
    {u"施術者フリガナ", 0, 64, 0, 0},
    {u"施術所の所在地", 100, 100, 0, 0},
    {u"施術所の所在地カナ", 0, 41, 0, 0},
    {u"金融機関名", 8, 8, 0, 0},
    {u"本店支店名", 10, 10, 0, 0},
    {u"郵便局名", 10, 10, 0, 0},
    {u"口座名義", 30, 24, 0, 0},
    {u"代表者フリガナ", 0, 64, 0, 0},
    {u"代表者氏名", 37, 30, 0, 0},
    {u"代表者住所", 200, 120, 0, 0},
    {u"代表者住所フリガナ", 0, 27, 0, 0},
    {u"代表者金融機関名", 8, 8, 0, 0},
    {u"代表者本店支店名", 6, 8, 0, 0},
    {u"代表者郵便局名", 7, 8, 0, 0},
    {u"代表者口座名義", 30, 24, 0, 0},
    {u"保険者名称", 0, 0, 0, 0},
    {u"摘要2", 0, 0, 0, 0},
};

void expectLimit(const char16_t* column, const char16_t* kind, TrimForm form, int limit) {
  const QString name = QString::fromUtf16(column);
  ClaimRecord claim;
  claim.set(QStringLiteral("施術内容"), QString::fromUtf16(kind));
  const int length = limit == 0 ? 250 : limit;
  claim.set(name, QString(length, u'漢'));
  EXPECT_TRUE(trimForPrint(claim, form).cut.isEmpty()) << name.toStdString();
  if (limit == 0) return;
  claim.set(name, QString(limit, u'漢') + u'余');
  const TrimResult result = trimForPrint(claim, form);
  EXPECT_EQ(result.cut, QStringList{name});
  EXPECT_EQ(result.claim.get(name), QString(limit, u'漢'));
}

TEST(Trim, LimitsOfEveryPaperAndKind) {
  for (const LimitRow& row : kRows) {
    for (const char16_t* kind : {u"鍼灸", u"鍼", u"灸"}) {
      expectLimit(row.column, kind, TrimForm::Claim, row.claimNeedle);
      expectLimit(row.column, kind, TrimForm::TreatmentRecord, row.recordNeedle);
    }
    expectLimit(row.column, u"あマ", TrimForm::Claim, row.claimMassage);
    expectLimit(row.column, u"あマ", TrimForm::TreatmentRecord, row.recordMassage);
  }
}

TEST(Trim, CharactersAreCountedNotBytes) {
  ClaimRecord claim;
  const QString rare = QString::fromUcs4(U"\U00020BB7");  // two units, one character
  claim.set(QStringLiteral("被保険者との続柄"), rare + rare + rare + rare);
  EXPECT_TRUE(trimForPrint(claim, TrimForm::Claim).cut.isEmpty());
  claim.set(QStringLiteral("被保険者との続柄"), rare + rare + rare + rare + u'子');
  EXPECT_EQ(trimForPrint(claim, TrimForm::Claim).claim.get(QStringLiteral("被保険者との続柄")),
            rare + rare + rare + rare);
}

TEST(Trim, OtherColumnsStay) {
  ClaimRecord claim;
  claim.set(QStringLiteral("摘要1"), QString(20, u'あ'));
  claim.set(QStringLiteral("摘要3"), QString(200, u'あ'));
  const TrimResult result = trimForPrint(claim, TrimForm::Claim);
  EXPECT_EQ(result.claim.get(QStringLiteral("摘要3")), QString(200, u'あ'));
  EXPECT_EQ(result.claim.columns().size(), 2);
}

TEST(Trim, OnlyEmployeesInsuranceIsTrimmedAtStore) {
  for (const char16_t* kind : {u"全国健康保険協会", u"共済", u"組合", u"社保"})
    EXPECT_TRUE(storeTrims(QString::fromUtf16(kind)));
  for (const char16_t* kind : {u"国保", u"退職国保", u"特別国保", u"老人", u"後期高齢", u""})
    EXPECT_FALSE(storeTrims(QString::fromUtf16(kind)));
}

TEST(Trim, BlanksAroundTheInsurersFieldsGo) {
  ClaimRecord claim;
  claim.set(QStringLiteral("保険者番号"), QStringLiteral("  0199 "));
  claim.set(QStringLiteral("保険者名称"), QStringLiteral("　見本　"));
  claim.set(QStringLiteral("被保険者の氏名"), QStringLiteral(" 見本 "));
  const ClaimRecord trimmed = trimInsurer(claim);
  EXPECT_EQ(trimmed.get(QStringLiteral("保険者番号")), u"0199");
  EXPECT_EQ(trimmed.get(QStringLiteral("保険者名称")), u"　見本　");
  EXPECT_EQ(trimmed.get(QStringLiteral("被保険者の氏名")), u" 見本 ");
}

}  // namespace
}  // namespace claims
