#include "platform/text/number.h"

#include <gtest/gtest.h>

using namespace text;

TEST(Number, ThousandsAreParted) {
  const std::pair<qint64, const char*> rows[] = {{0, ""},
                                                 {7, "7"},
                                                 {999, "999"},
                                                 {1000, "1,000"},
                                                 {123456, "123,456"},
                                                 {1234567, "1,234,567"},
                                                 {-1000, "-1,000"},
                                                 {-999, "-999"},
                                                 {-123456, "-123,456"}};
  for (const auto& [number, shown] : rows) EXPECT_EQ(thousands(number), QString(shown));
}

TEST(Number, TheNumericTestTakesWhatIsTypedAsANumber) {
  for (const char16_t* yes : {u"0", u"12", u" 12 ", u"-3", u"+3", u"1,234", u"1.5", u".5", u"3.", u"３",
                              u"－１２．５", u"１，０００"})
    EXPECT_TRUE(isNumeric(QString::fromUtf16(yes))) << QString::fromUtf16(yes).toStdString();
  for (const char16_t* no :
       {u"", u" ", u"　", u"a", u"3割", u"1.2.3", u"-", u".", u"--1", u"1-", u"三", u",1", u"1 2"})
    EXPECT_FALSE(isNumeric(QString::fromUtf16(no))) << QString::fromUtf16(no).toStdString();
}

TEST(Number, ConversionReadsTheLeadingNumberAndDropsTheFraction) {
  const std::pair<const char16_t*, qint64> rows[] = {
      {u"1,234円", 1234}, {u"3.9", 3},  {u"３割", 3}, {u"", 0},        {u"abc", 0},
      {u"-2.7", -2},      {u" 15", 15}, {u".9", 0},   {u"2550", 2550}, {u"-", 0}};
  for (const auto& [text, number] : rows) EXPECT_EQ(intOf(QString::fromUtf16(text)), number);
  EXPECT_DOUBLE_EQ(numberOf(QStringLiteral("2.5km")), 2.5);
}

TEST(Number, HalvesGoToTheEvenNeighbour) {
  const std::pair<double, qint64> rows[] = {{0.5, 0},   {1.5, 2},   {2.5, 2},  {-0.5, 0},
                                            {-1.5, -2}, {-2.5, -2}, {2.4, 2},  {2.6, 3},
                                            {-2.6, -3}, {23.5, 24}, {22.5, 22}};
  for (const auto& [number, whole] : rows) EXPECT_EQ(roundHalfEven(number), whole) << number;
}
