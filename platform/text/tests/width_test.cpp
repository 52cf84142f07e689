#include "platform/text/width.h"

#include <gtest/gtest.h>

using namespace text;

namespace {

struct Row {
  const char16_t* half;
  const char16_t* full;
};

const Row kRows[] = {
    {u"0123-456", u"０１２３－４５６"},
    {u"aZ!~", u"ａＺ！～"},
    {u" ", u"　"},
    {u"ｶﾞｷﾞﾊﾟﾋﾞｳﾞ", u"ガギパビヴ"},
    {u"ｱｲｳ｡｢｣､･", u"アイウ。「」、・"},
    {u"ｧｯｰ", u"ァッー"},
    {u"ﾐﾎﾝ ﾊﾅｺ", u"ミホン　ハナコ"},
    {u"", u""},
};

}  // namespace

TEST(Width, HalfAndFullWidthAreEachOthersReverse) {
  for (const Row& row : kRows) {
    EXPECT_EQ(toFullWidth(QString::fromUtf16(row.half)), QString::fromUtf16(row.full));
    EXPECT_EQ(toHalfWidth(QString::fromUtf16(row.full)), QString::fromUtf16(row.half));
  }
}

TEST(Width, AVoiceMarkWithoutItsKanaStandsAlone) {
  EXPECT_EQ(toFullWidth(QStringLiteral("ｱﾞﾞﾟﾅﾟ")), QStringLiteral("ア゛゛゜ナ゜"));
}

TEST(Width, OtherCharactersStay) {
  const QString others = QStringLiteral("鍼灸あが①※ヵヰ\n𠮷");
  EXPECT_EQ(toFullWidth(others), others);
  EXPECT_EQ(toHalfWidth(others), others);
}

TEST(Width, OnlyDigitsBecomeAscii) {
  EXPECT_EQ(asciiDigits(QStringLiteral("令和６年１０月　Ａ1")), QStringLiteral("令和6年10月　Ａ1"));
}
