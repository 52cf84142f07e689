#include "claims/core/amount_record.h"

#include <gtest/gtest.h>

#include "claims/tests/core/claim_builder.h"

namespace claims {
namespace {

using testing::makeClaim;

QString recordOf(const ClaimRecord& claim) {
  testing::CsvFees fees;
  const auto flags = monthFlags(claim.get(claim::month), testing::era());
  const FeeEdition edition = fees.load(pickFeeFile(*flags.month)).value();
  return amountRecord(amounts(claim, edition, flags, Path::Store), areaBoxes(claim));
}

TEST(AmountRecord, NeedleFieldsStandAtTheirNumbers) {
  const auto claim =
      makeClaim(u"令和6年10月", u"鍼灸", u"3割",
                u"1=b 2-3=e 4=a/v1 5=e/v1 6=a/v2 7=e/v2 8=a/v3 9=e/v3 10=a/v10 11=e/v10 12=a/t",
                {{u"初回有無", u"-1"}, {u"yn2", u"-1"}, {u"yn3", u"-1"}, {u"d2", u"1"}});
  // one art: 1, 4, 6, 8, 10, 12; two arts: 2, 3, 5, 7, 9, 11; the report's fee is charged twice
  const QStringList expected = {QStringLiteral("鍼データ集結ver9.0"), "1950", "6", "6", "1610", "2", "3220",
                                "1770", "2", "3540",                       // plain
                                "3910", "1", "3910", "4070", "1", "4070",  // one patient
                                "2760", "1", "2760", "2920", "1", "2920",  // two
                                "2070", "1", "2070", "2230", "1", "2230",  // three to nine
                                "1760", "1", "1760", "1920", "1", "1920",  // ten and more
                                "100", "1", "100", "250", "9", "2250",     // 電療, 特別地域
                                "2300", "1", "2300", "480", "2", "960",    // 往療, 施術報告書
                                // 1950 + 3220 + 3540 + 7980 + 5680 + 4300 + 3680 + 100 + 2250 + 2300 + 960
                                "35960", "10788", "25172"};
  EXPECT_EQ(amountRecordFields(recordOf(claim)), expected);
  EXPECT_EQ(expected.size(), 49);
}

TEST(AmountRecord, ALineWithoutACountIsZeroThroughout) {
  const QStringList fields = amountRecordFields(recordOf(makeClaim(u"令和6年10月", u"鍼", u"1割", u"1=a")));
  ASSERT_EQ(fields.size(), 49);
  for (int field = 7; field <= 45; ++field) EXPECT_EQ(fields[field], u"0") << field;
  EXPECT_EQ(fields[1], u"0");
  EXPECT_EQ(fields[2], u"1");
  EXPECT_EQ(fields[3], u"0");
}

TEST(AmountRecord, MassageFieldsStandAtTheirNumbers) {
  const auto claim = makeClaim(u"令和6年10月", u"あマ", u"2割",
                               u"1-2=g3 3=g2h2 4=i3/v1 5=g1/v1 6=g2/v2 7=g5/v4 8=g4/v11 9=j2h2/t",
                               {{u"躯幹", u"-1"},
                                {u"右上肢", u"-1"},
                                {u"左下肢", u"-1"},
                                {u"徒手左上肢", u"-1"},
                                {u"yn2", u"-1"},
                                {u"d2", u"1"}});
  const QStringList expected = {
      QStringLiteral("あマデータ集結ver9.0"), "9", "9", "0", "0", "9", "0", "2", "0",
      "0",                                       // boxes of areas and limbs
      "900", "2", "1800", "1350", "2", "2700",   // plain: two areas on 3 and 9, three on 1 and 2
      "2750", "1", "2750", "3650", "1", "3650",  // one patient: one area on 5, three on 4
      "2050", "1", "2050", "0", "0", "0",        // two patients
      "2710", "1", "2710", "0", "0", "0",        // three to nine
      "1950", "1", "1950", "0", "0", "0",        // ten and more
      "180", "1", "180", "300", "1", "300",      // hot pack, pair
      "470", "4", "1880",                        // limbs: two days of two
      "250", "6", "1500", "2300", "1", "2300", "480", "1", "480",
      // 1800 + 2700 + 2750 + 3650 + 2050 + 2710 + 1950 + 180 + 300 + 1880 + 1500 + 2300 + 480
      "24250", "4850", "19400"};
  EXPECT_EQ(amountRecordFields(recordOf(claim)), expected);
  EXPECT_EQ(expected.size(), 61);
}

TEST(AmountRecord, OlderClaimsHaveNone) {
  EXPECT_TRUE(recordOf(makeClaim(u"令和6年9月", u"鍼", u"1割", u"1=a")).isNull());
}

TEST(AmountRecord, OtherTextsAreNoRecord) {
  for (const char16_t* text : {u"", u"鍼データ集結ver9.0", u"鍼データ集結ver9.0,1,2", u"a,b,c"})
    EXPECT_TRUE(amountRecordFields(QString::fromUtf16(text)).isEmpty());
}

}  // namespace
}  // namespace claims
