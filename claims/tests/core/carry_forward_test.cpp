#include "claims/core/carry_forward.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSet>

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
    EXPECT_EQ(next.named(QString::fromUtf16(column)), claim.named(QString::fromUtf16(column)))
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
    EXPECT_TRUE(next.named(QString::fromUtf16(column)).isEmpty()) << QString::fromUtf16(column).toStdString();
  for (const store::Column& column : calculatedColumns()) EXPECT_TRUE(next.blank(column));
  for (const store::Column& column : calculatedColumnsSecond()) EXPECT_TRUE(next.blank(column));
}

/// What 翌月へ継続 takes over, page by page, with series as "name1..name6".
const char16_t* kTakenOver[] = {
    // The claim's keys: the join to the patient, the kind of treatment, the first key of the lists.
    u"番号1,Flag4,Flag5,カルテ番号,氏名,生年月日,施術内容,保険順位,保険証番号1,numdummy16",
    // Page 保険証.
    u"保険の種類,保険の種類2,保険の種類3,一部負担金,負担割合,本人,家族,就学前,高齢7..高齢9,公費負担",
    u"保険者名称,保険者番号,保険者住所,保険証記号1,保険証記号2,保険証番号,資格取得年月日,有効期限,区市町村番号,"
    u"受給者番号,区市町村名称,公費負担番号,公費受給者番号,師会名,c6,c14,c15,c18",
    u"被保険者のフリガナ,被保険者の氏名,被保険者の生年月日,被保険者の性別,被保険者の郵便番号,被保険者の住所,"
    u"被保険者の住所フリガナ,被保険者の電話番号,被保険者との続柄,事業所の名称,事業所の所在地",
    u"療養を受ける者の氏名,療養を受ける者のフリガナ,療養を受ける者の生年月日,療養を受ける者の性別,"
    u"療養を受ける者の郵便番号,療養を受ける者の住所,療養を受ける者の住所フリガナ,療養を受ける者の電話番号",
    // Page 同意書.
    u"傷病名,傷病名1..傷病名8,発病又は負傷年月日,発病又は負傷の原因,初療年月日,同意の年月日,"
    u"実際の同意の年月日,同意の傷病名,memodummy11,同意症状,同意医師氏名,同意医師フリガナ,同意医師住所,"
    u"同意医師の電話番号,医療機関名,要加療期間1,要加療期間2,同意_施術者,同意_患者,躯幹,右上肢,左上肢,右下肢,"
    u"左下肢,徒手右上肢,徒手左上肢,徒手右下肢,徒手左下肢,温あん法,電気光線器具,入院期間1,入院期間2,入院日数,"
    u"摘要1..摘要6",
    // Page 既往症.
    u"既往症,主要症状,経過,施術経過所見,備考",
    // Page 申請者の確認.
    u"施術者氏名,施術者フリガナ,施術所の名称,施術所の所在地,施術所の所在地カナ,施術所の郵便番号,"
    u"施術所電話番号,師会等の機関番号,支払い機関区分,金融機関名,金融機関名種類,本店支店名,本店支店名種類,"
    u"預金の種類,口座番号,口座名義,口座名義カタカナ,郵便局名",
    u"代表者氏名,代表者フリガナ,代表者郵便番号,代表者住所,代表者住所フリガナ,代表者電話番号,代表者金融機関名,"
    u"代表者金融機関名種類,代表者本店支店名,代表者本店支店名種類,代表者預金の種類,代表者口座番号,"
    u"代表者口座名義,代表者口座名義カタカナ,代表者郵便局名",
    // Page 印刷設定.
    u"txt dummy1..txt dummy11,txt dummy13,txtdummy26,c8..c11,c13,c16,c12,c24"};
/// What the next month's claim has a value of its own in.
const char16_t* kSetAnew[] = {
    u"申請年月,申請月,請求回数,請求区分,業務上外のもの,第三者行為によるもの,入院入院外の別"};

template <size_t N>
QSet<QString> expanded(const char16_t* const (&texts)[N]) {
  static const QRegularExpression series(QStringLiteral("^(.*\\D)(\\d+)\\.\\.\\1(\\d+)$"));
  QSet<QString> names;
  for (const char16_t* text : texts)
    for (const QString& part : QString::fromUtf16(text).split(u',')) {
      const auto ends = series.match(part);
      if (!ends.hasMatch()) names.insert(part);
      for (int n = ends.captured(2).toInt(); ends.hasMatch() && n <= ends.captured(3).toInt(); ++n)
        names.insert(ends.captured(1) + QString::number(n));
    }
  return names;
}

TEST(CarryForward, EveryColumnOfBothHalvesIsTakenOverOrNot) {
  ClaimRecord claim;
  QStringList all;
  for (const store::Table& half : {claim::firstHalf, claim::secondHalf})
    for (const store::ColumnRow& column : half.columns()) all << QString::fromUtf16(column.name);
  for (const QString& column : all) claim.setNamed(column, u'<' + column + u'>');
  claim.set(claim::month, QStringLiteral("令和6年10月"));
  claim.set(claim::requestCount, QStringLiteral("7"));
  const ClaimRecord next = carryForward(claim);
  const QSet<QString> taken = expanded(kTakenOver), anew = expanded(kSetAnew);
  for (const QString& column : all) {
    if (anew.contains(column)) continue;
    EXPECT_EQ(next.named(column), taken.contains(column) ? claim.named(column) : QString())
        << column.toStdString();
  }
  for (const QString& column : taken + anew) EXPECT_TRUE(all.contains(column)) << column.toStdString();
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
  for (const auto& row : rows) EXPECT_EQ(next.named(QString::fromUtf16(row.column)), row.value);
}

TEST(CarryForward, OtherInsuranceKeepsItsName) {
  ClaimRecord claim = storedClaim();
  claim.setNamed(QStringLiteral("保険の種類"), QStringLiteral("国保"));
  claim.setNamed(QStringLiteral("保険の種類3"), QStringLiteral("国民健保"));
  EXPECT_EQ(carryForward(claim).named(QStringLiteral("保険の種類")), u"国保");
  EXPECT_EQ(carryForward(claim).named(QStringLiteral("保険の種類3")), u"国民健保");
}

TEST(CarryForward, RefusalsInTheirOrder) {
  ClaimRecord claim = storedClaim();
  EXPECT_TRUE(carryForwardRefusal(claim).isNull());
  claim.setNamed(QStringLiteral("申請年月"), QString());
  EXPECT_EQ(carryForwardRefusal(claim), u"申請年月が空欄です。記入してください。");
  claim.setNamed(QStringLiteral("請求回数"), QStringLiteral(""));
  EXPECT_EQ(carryForwardRefusal(claim), u"申請回数が空欄です。記入してください。");
}

}  // namespace
}  // namespace claims
