#include "claims/core/trim.h"

#include <gtest/gtest.h>

#include <QHash>
#include <QSet>
#include <vector>

#include "claims/tests/core/claim_builder.h"

namespace claims {
namespace {

/// What the boxes of a paper take: a number of characters and the columns whose boxes take as many. All other
/// columns are never cut.
using Boxes = std::vector<std::pair<int, const char16_t*>>;

const Boxes kAcupunctureClaim = {
    {4, u"被保険者との続柄"},
    {1, u"マッサージ部位数"},
    {6, u"代表者本店支店名"},
    {7, u"代表者郵便局名"},
    {8, u"金融機関名,代表者金融機関名"},
    {10, u"傷病名8,本店支店名,郵便局名"},
    {14, u"摘要1"},
    {15, u"傷病名7"},
    {22, u"被保険者の氏名"},
    {26, u"同意の傷病名"},
    {30, u"口座名義,代表者口座名義"},
    {37, u"代表者氏名"},
    {40, u"同意医師住所"},
    {50, u"傷病名,摘要4,摘要5,摘要6"},
    {52, u"事業所の名称,事業所の所在地"},
    {60, u"被保険者の住所"},
    {100, u"施術所の所在地"},
    {200, u"代表者住所"},
};
const Boxes kMassageClaim = {
    {4, u"被保険者との続柄"},
    {1, u"マッサージ部位数"},
    {8, u"金融機関名,代表者金融機関名,代表者本店支店名,代表者郵便局名"},
    {10, u"傷病名8,本店支店名,郵便局名"},
    {14, u"摘要1"},
    {15, u"傷病名7"},
    {22, u"被保険者のフリガナ,被保険者の氏名"},
    {23, u"施術所の名称"},
    {24, u"同意の傷病名,口座名義,代表者口座名義"},
    {27, u"代表者住所フリガナ"},
    {30, u"代表者氏名"},
    {40, u"同意医師住所"},
    {41, u"施術所の所在地カナ"},
    {50, u"傷病名,摘要4,摘要5,摘要6"},
    {52, u"事業所の名称,事業所の所在地"},
    {58, u"被保険者の住所フリガナ"},
    {60, u"被保険者の住所"},
    {64, u"施術者フリガナ,代表者フリガナ"},
    {100, u"施術所の所在地"},
    {120, u"代表者住所"},
};
/// The treatment record: the same boxes for both kinds, but for those below.
const Boxes kRecord = {
    {1, u"マッサージ部位数"}, {4, u"被保険者との続柄"}, {10, u"傷病名7,傷病名8"},
    {14, u"摘要1"},           {22, u"被保険者の氏名"},  {30, u"事業所の名称,事業所の所在地"},
    {37, u"摘要6"},           {39, u"被保険者の住所"},  {40, u"同意医師住所"},
    {50, u"傷病名"},          {79, u"摘要4,摘要5"},
};
const Boxes kOnlyAcupunctureRecord = {{26, u"同意の傷病名"}};
const Boxes kOnlyMassageRecord = {
    {24, u"同意の傷病名"}, {22, u"被保険者のフリガナ"}, {58, u"被保険者の住所フリガナ"}};

QHash<QString, int> limitsOf(std::initializer_list<const Boxes*> papers) {
  QHash<QString, int> limits;
  for (const Boxes* boxes : papers)
    for (const auto& [limit, columns] : *boxes)
      for (const QString& column : QString::fromUtf16(columns).split(u',')) limits.insert(column, limit);
  return limits;
}

/// Fills the column to one character beyond the limit, then to the limit; without one it is left whole.
void expectLimit(const QString& column, const char16_t* kind, TrimForm form, int limit) {
  constexpr int kFull = 255;
  ClaimRecord claim;
  claim.set(claim::treatmentKind, QString::fromUtf16(kind));
  claim.setNamed(column, QString(limit == 0 ? kFull : limit, u'漢'));
  EXPECT_TRUE(trimForPrint(claim, form).cut.isEmpty()) << column.toStdString();
  if (limit == 0) return;
  claim.setNamed(column, QString(limit, u'漢') + u'余');
  const TrimResult result = trimForPrint(claim, form);
  EXPECT_EQ(result.cut, QStringList{column});
  EXPECT_EQ(result.claim.named(column), QString(limit, u'漢'));
}

/// Every column of both halves, so that none is cut that no box asks for.
void expectLimits(const char16_t* kind, TrimForm form, const QHash<QString, int>& limits) {
  QSet<QString> seen;
  for (const store::Table& half : {claim::firstHalf, claim::secondHalf})
    for (const store::ColumnRow& row : half.columns()) {
      const QString column = QString::fromUtf16(row.name);
      if (column == claim::treatmentKind.text()) continue;
      expectLimit(column, kind, form, limits.value(column));
      seen.insert(column);
    }
  for (auto it = limits.cbegin(); it != limits.cend(); ++it)
    EXPECT_TRUE(seen.contains(it.key())) << it.key().toStdString();
}

TEST(Trim, LimitsOfEveryPaperAndKind) {
  for (const char16_t* kind : {u"鍼灸", u"鍼", u"灸"}) {
    expectLimits(kind, TrimForm::Claim, limitsOf({&kAcupunctureClaim}));
    expectLimits(kind, TrimForm::TreatmentRecord, limitsOf({&kRecord, &kOnlyAcupunctureRecord}));
  }
  expectLimits(u"あマ", TrimForm::Claim, limitsOf({&kMassageClaim}));
  expectLimits(u"あマ", TrimForm::TreatmentRecord, limitsOf({&kRecord, &kOnlyMassageRecord}));
}

TEST(Trim, CharactersAreCountedNotBytes) {
  ClaimRecord claim;
  const QString rare = QString::fromUcs4(U"\U00020BB7");  // two units, one character
  claim.setNamed(QStringLiteral("被保険者との続柄"), rare + rare + rare + rare);
  EXPECT_TRUE(trimForPrint(claim, TrimForm::Claim).cut.isEmpty());
  claim.setNamed(QStringLiteral("被保険者との続柄"), rare + rare + rare + rare + u'子');
  EXPECT_EQ(trimForPrint(claim, TrimForm::Claim).claim.named(QStringLiteral("被保険者との続柄")),
            rare + rare + rare + rare);
}

TEST(Trim, OtherColumnsStay) {
  ClaimRecord claim;
  claim.setNamed(QStringLiteral("摘要1"), QString(20, u'あ'));
  claim.setNamed(QStringLiteral("摘要3"), QString(200, u'あ'));
  const TrimResult result = trimForPrint(claim, TrimForm::Claim);
  EXPECT_EQ(result.claim.named(QStringLiteral("摘要3")), QString(200, u'あ'));
  EXPECT_EQ(result.claim.columns().size(), 2);
}

TEST(Trim, OnlyEmployeesInsuranceIsTrimmedAtStore) {
  for (const char16_t* kind : {u"全国健康保険協会", u"共済", u"組合", u"社保"})
    EXPECT_TRUE(storeTrims(QString::fromUtf16(kind)));
  for (const char16_t* kind : {u"国保", u"退職国保", u"特別国保", u"老人", u"後期高齢", u""})
    EXPECT_FALSE(storeTrims(QString::fromUtf16(kind)));
}

TEST(Trim, TheInsurersFieldsAreElevenColumns) {
  const QString insurers = QStringLiteral(
      "保険者名称,保険者番号,保険者住所,保険証記号1,保険証記号2,保険証番号,区市町村番号,受給者番号,"
      "区市町村名称,公費負担番号,公費受給者番号");
  ClaimRecord claim;
  for (const store::ColumnRow& row : claim::firstHalf.columns())
    claim.setNamed(QString::fromUtf16(row.name), QStringLiteral(" x "));
  const ClaimRecord trimmed = trimInsurer(claim);
  for (const store::ColumnRow& row : claim::firstHalf.columns()) {
    const QString column = QString::fromUtf16(row.name);
    EXPECT_EQ(trimmed.named(column) == u"x", insurers.split(u',').contains(column)) << column.toStdString();
  }
}

TEST(Trim, BlanksAroundTheInsurersFieldsGo) {
  ClaimRecord claim;
  claim.setNamed(QStringLiteral("保険者番号"), QStringLiteral("  0199 "));
  claim.setNamed(QStringLiteral("保険者名称"), QStringLiteral("　見本　"));
  claim.setNamed(QStringLiteral("被保険者の氏名"), QStringLiteral(" 見本 "));
  const ClaimRecord trimmed = trimInsurer(claim);
  EXPECT_EQ(trimmed.named(QStringLiteral("保険者番号")), u"0199");
  EXPECT_EQ(trimmed.named(QStringLiteral("保険者名称")), u"　見本　");
  EXPECT_EQ(trimmed.named(QStringLiteral("被保険者の氏名")), u" 見本 ");
}

}  // namespace
}  // namespace claims
