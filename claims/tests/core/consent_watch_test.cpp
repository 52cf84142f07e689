#include "claims/core/consent_watch.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/store/bulk.h"
#include "platform/store/database.h"

namespace claims {
namespace {

using namespace Qt::Literals::StringLiterals;

struct ClaimRow {
  const char16_t* name;
  const char16_t* end;
  const char16_t* treatment = u"鍼灸";
  const char16_t* insurance = u"国保";
};

/// The watch over a first file with these claims, as of a day.
class ConsentWatch : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(store::createFresh(path(), u"保険申請2000_1.mdb"_s).ok()); }
  QString path() const { return folder.filePath(u"保険申請2000_1.mdb"_s); }

  void add(const QList<ClaimRow>& claims) {
    QList<QHash<QString, store::Value>> rows;
    for (const ClaimRow& claim : claims)
      rows.append({{u"氏名"_s, QString::fromUtf16(claim.name)},
                   {u"要加療期間2"_s, claim.end ? QString::fromUtf16(claim.end) : QString()},
                   {u"施術内容"_s, QString::fromUtf16(claim.treatment)},
                   {u"保険の種類"_s, QString::fromUtf16(claim.insurance)}});
    ASSERT_TRUE(store::addRows(path(), u"保険申請"_s, rows).ok());
  }
  QList<ConsentEnd> rows(QDate today,
                         frame::EraCapability capability = frame::EraCapability::Supported) const {
    const text::FixedClock clock(today);
    const auto found = consentsRunningOut(path(), frame::EraDates(capability, clock));
    EXPECT_TRUE(found.ok()) << (found ? "" : found.fault().message.toStdString());
    return found ? *found : QList<ConsentEnd>();
  }
  /// "name end treatment" of each row.
  QStringList shown(QDate today = {2024, 11, 5},
                    frame::EraCapability capability = frame::EraCapability::Supported) const {
    QStringList texts;
    for (const ConsentEnd& row : rows(today, capability))
      texts += row.name + u' ' + consentEndText(row.end) + u' ' + row.treatment;
    return texts;
  }

  QTemporaryDir folder;
};

TEST_F(ConsentWatch, EmptyFileGivesNobody) { EXPECT_EQ(shown(), QStringList()); }

TEST_F(ConsentWatch, ARowHasNameInsuranceEndAndTreatment) {
  add({{u"見本　太郎", u"令和6年11月20日", u"あマ", u"後期高齢"}});
  const QList<ConsentEnd> expected = {{u"見本　太郎"_s, u"後期高齢"_s, QDate(2024, 11, 20), u"あマ"_s, {}}};
  EXPECT_EQ(rows({2024, 11, 5}), expected);
  EXPECT_EQ(consentEndText({2024, 11, 20}), u"2024年11月20日"_s);
  EXPECT_EQ(consentEndText({2025, 1, 5}), u"2025年1月5日"_s);
}

struct SpanRow {
  const char16_t* end;
  bool shown;
};
class ConsentSpan : public ConsentWatch, public ::testing::WithParamInterface<SpanRow> {};

TEST_P(ConsentSpan, FromTodayUpToOneMonthAhead) {
  add({{u"見本", GetParam().end}});
  EXPECT_EQ(shown().size(), GetParam().shown ? 1 : 0);
}
INSTANTIATE_TEST_SUITE_P(OnFifthOfNovember2024, ConsentSpan,
                         ::testing::Values(SpanRow{u"令和6年11月4日", false},
                                           SpanRow{u"令和6年11月5日", true}, SpanRow{u"令和6年12月5日", true},
                                           SpanRow{u"令和6年12月6日", false}, SpanRow{u"2024/11/4", false},
                                           SpanRow{u"2024/11/5", true}, SpanRow{u"2024/12/5", true},
                                           SpanRow{u"2024/12/6", false}, SpanRow{u"平成36年11月30日", true},
                                           SpanRow{u"R6/11/30", true}, SpanRow{u"r06/11/30", true},
                                           SpanRow{u"令和5年11月20日", false},
                                           SpanRow{u"令和7年11月20日", false}));

class ConsentUnreadable : public ConsentWatch, public ::testing::WithParamInterface<const char16_t*> {};

TEST_P(ConsentUnreadable, IsLeftOutAndHidesNobody) {
  add({{u"見本", GetParam()}, {u"例示", u"令和6年11月20日"}, {u"例示", GetParam()}});
  EXPECT_EQ(shown(), QStringList{u"例示 2024年11月20日 鍼灸"_s});
}
INSTANTIATE_TEST_SUITE_P(Texts, ConsentUnreadable,
                         ::testing::Values(nullptr, u"", u" ", u"未定", u"令和6年11月31日", u"2024/13/1"));

TEST_F(ConsentWatch, TheMonthEndsWithTheMonth) {
  add({{u"甲", u"2024/2/29"}, {u"乙", u"2024/3/1"}, {u"丙", u"2023/2/28"}, {u"丁", u"2023/3/1"}});
  EXPECT_EQ(shown({2024, 1, 31}), QStringList{u"甲 2024年2月29日 鍼灸"_s});
  EXPECT_EQ(shown({2023, 1, 31}), QStringList{u"丙 2023年2月28日 鍼灸"_s});
}

TEST_F(ConsentWatch, PlatformsWithoutTheEraReadItAllTheSame) {
  add({{u"甲", u"令和6年11月20日"}, {u"乙", u"R6/11/21"}, {u"丙", u"2024/11/22"}});
  EXPECT_EQ(
      shown({2024, 11, 5}, frame::EraCapability::Unsupported),
      QStringList({u"甲 2024年11月20日 鍼灸"_s, u"乙 2024年11月21日 鍼灸"_s, u"丙 2024年11月22日 鍼灸"_s}));
}

TEST_F(ConsentWatch, TheNearestEndComesFirstWhateverTheCalendar) {
  add({{u"甲", u"令和6年11月30日"}, {u"乙", u"2024/11/9"}, {u"丙", u"令和6年11月10日"}});
  EXPECT_EQ(shown(), QStringList({u"乙 2024年11月9日 鍼灸"_s, u"丙 2024年11月10日 鍼灸"_s,
                                  u"甲 2024年11月30日 鍼灸"_s}));
}

TEST_F(ConsentWatch, APatientIsListedOnceByTheNewestClaim) {
  add({{u"見本", u"令和6年11月20日", u"鍼灸", u"国保"}, {u"見本", u"R6/11/20", u"鍼灸", u"後期高齢"}});
  const QList<ConsentEnd> expected = {{u"見本"_s, u"後期高齢"_s, QDate(2024, 11, 20), u"鍼灸"_s, {}}};
  EXPECT_EQ(rows({2024, 11, 5}), expected);
}

// A later consent is told beside the end and does not take the warning back.
TEST_F(ConsentWatch, ARenewedConsentGivesItsLaterEnd) {
  add({{u"見本", u"令和6年11月20日"}, {u"見本", u"令和7年5月20日"}, {u"例示", u"令和6年11月21日"}});
  const QList<ConsentEnd> found = rows({2024, 11, 5});
  ASSERT_EQ(found.size(), 2);
  EXPECT_EQ(found[0].end, QDate(2024, 11, 20));
  EXPECT_EQ(found[0].later, QDate(2025, 5, 20));
  EXPECT_FALSE(found[1].later.isValid());
}

TEST_F(ConsentWatch, ALateClaimOfAnEarlierMonthHidesNothing) {
  add({{u"見本", u"令和6年11月20日"}, {u"見本", u"令和6年5月20日"}});
  EXPECT_EQ(shown(), QStringList{u"見本 2024年11月20日 鍼灸"_s});
}

TEST_F(ConsentWatch, AcupunctureAndMassageHaveAConsentEach) {
  add({{u"甲", u"令和6年11月20日", u"あマ"},
       {u"甲", u"令和7年5月20日", u"鍼灸"},
       {u"乙", u"令和6年11月21日", u"鍼"},
       {u"乙", u"令和7年5月20日", u"鍼灸"}});
  const QList<ConsentEnd> found = rows({2024, 11, 5});
  ASSERT_EQ(found.size(), 2);
  EXPECT_FALSE(found[0].later.isValid()) << "the consent to needles is another one";
  EXPECT_EQ(found[1].later, QDate(2025, 5, 20)) << "鍼 and 鍼灸 are one consent";
}

TEST_F(ConsentWatch, OfTwoEndsTheOneOfTheNewestClaimIsListed) {
  add({{u"甲", u"令和6年11月10日", u"あマ"}, {u"甲", u"令和6年12月1日", u"鍼灸"}});
  EXPECT_EQ(shown(), QStringList{u"甲 2024年12月1日 鍼灸"_s});
}

TEST_F(ConsentWatch, AMissingFileIsAFault) {
  ASSERT_TRUE(QFile::remove(path()));
  const text::FixedClock clock(QDate(2024, 11, 5));
  const auto found = consentsRunningOut(path(), frame::EraDates(frame::EraCapability::Supported, clock));
  ASSERT_FALSE(found.ok());
  EXPECT_TRUE(found.fault().message.contains(u"保険申請2000_1.mdb"_s));
}

}  // namespace
}  // namespace claims
