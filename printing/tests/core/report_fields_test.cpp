#include "printing/contract/report_fields.h"

#include <gtest/gtest.h>

#include "printing/contract/prompts.h"
#include "printing/tests/core/spy_engine.h"

namespace printing {
namespace {

using tests::SpyEngine;

TEST(ReportFields, ShowsFirstAndThenSetsTheText) {
  SpyEngine engine;
  ReportFields(engine).show(u"Name1", QStringLiteral("見本"));
  EXPECT_EQ(engine.itemCalls, QStringList({"-1 Name1", "Name1=見本"}));
}

TEST(ReportFields, EmptyValueLeavesTheItemAlone) {
  SpyEngine engine;
  ReportFields fields(engine);
  fields.show(u"Name1", QString());
  fields.show(u"Name1", QStringLiteral(""));
  fields.digits(u"Name0_", QString(), 8);
  fields.markIf(false, u"Circle1");
  EXPECT_TRUE(engine.itemCalls.isEmpty());
}

TEST(ReportFields, BoxesTakeOneCharacterEachFromTheLeft) {
  SpyEngine engine;
  ReportFields(engine).digits(u"kouza_num", QStringLiteral("12 4"), 8);
  EXPECT_EQ(engine.sheet(), QStringList({"kouza_num1=1", "kouza_num2=2", "kouza_num4=4"}));
}

TEST(ReportFields, WhatIsLongerThanTheRowOfBoxesIsNotPrinted) {
  SpyEngine engine;
  ReportFields(engine).digits(u"b", QStringLiteral("1234"), 4, 3);
  EXPECT_EQ(engine.sheet(), QStringList({"b3=1", "b4=2"}));
}

TEST(ReportFields, LengthPicksTheFirstSizeThatTakesIt) {
  constexpr Variant sizes[] = {{3, u"A"}, {5, u"B"}, {kAnyLength, u"C"}};
  const struct {
    const char* text;
    const char* expected;
  } rows[] = {{"123", "A=123"}, {"1234", "B=1234"}, {"12345", "B=12345"}, {"123456", "C=123456"}};
  for (const auto& row : rows) {
    SpyEngine engine;
    EXPECT_TRUE(ReportFields(engine).variant(sizes, QString::fromUtf8(row.text)));
    EXPECT_EQ(engine.sheet(), QStringList({row.expected}));
  }
}

TEST(ReportFields, TextThatNoSizeTakesIsNotPrinted) {
  constexpr Variant sizes[] = {{3, u"A"}};
  SpyEngine engine;
  EXPECT_FALSE(ReportFields(engine).variant(sizes, QStringLiteral("1234")));
  EXPECT_TRUE(engine.itemCalls.isEmpty());
}

TEST(Prompts, EachScreenAsksInItsOwnWords) {
  const struct {
    const char16_t* screen;
    const char16_t* prompt;
  } rows[] = {
      {u"レセプト印刷", u"レセプトデータの印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。"},
      {u"レセプト印刷2024aimakai",
       u"レセプトデータの印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。"},
      {u"年月印刷2018",
       u"指定年月のレセプトデータの印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。"},
      {u"用紙印刷2024", u"レセプト用紙の印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。"},
      {u"大阪レセプト印刷",
       u"レセプトデータの印刷を行います。大阪市専用の用紙をプリンタにセットして下さい。"},
      {u"大阪年月印刷",
       u"指定年月のレセプトデータの印刷を行います。大阪専用の用紙をプリンタにセットして下さい。"},
      {u"施術録", u"従来の総括表の印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。"},
      {u"施術録3", u"新しい総括表の印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。"},
      {u"施術録単体印刷",
       u"レセプトデータを施術録として印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。"},
      {u"総括表700_2",
       u"申請総括票－Ⅱの印刷を行います。プリンタオプションで縦にして、Ａ４サイズの用紙をプリンタにセットして"
       u"下さい。"},
      {u"同意期限一ヶ月",
       u"現在表示している一覧の印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(promptOf(QString::fromUtf16(row.screen)), QString::fromUtf16(row.prompt));
  EXPECT_TRUE(promptOf(QStringLiteral("治療台帳4")).isEmpty());
}

}  // namespace
}  // namespace printing
