#include "records/core/label_sheet.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

const LabelAddress kFull{
    u"100-0000"_s, {u"東京都架空区見本町1-2-3"_s, u"見本ビル4階"_s, u"例示方"_s}, u"見本　太郎"_s};

QStringList texts(const std::vector<LabelLine>& lines) {
  QStringList texts;
  for (const LabelLine& line : lines) texts << line.text;
  return texts;
}

TEST(LabelSheet, FillsAnA4Page) {
  EXPECT_DOUBLE_EQ(2 * label::kLeft + label::kColumns * label::kWidth, 210.0);
  EXPECT_DOUBLE_EQ(2 * label::kTop + label::kRows * label::kHeight, 297.0);
}

TEST(LabelSheet, TwelveLabelsAPage) {
  const std::pair<int, int> rows[] = {{0, 0}, {1, 1}, {12, 1}, {13, 2}, {24, 2}, {25, 3}, {5000, 417}};
  for (const auto& [labels, sheets] : rows) EXPECT_EQ(labelSheets(labels), sheets) << labels;
}

TEST(LabelLines, PostcodeAddressAndNameFromTopToBottom) {
  const auto lines = labelLines(kFull, 0);
  EXPECT_EQ(texts(lines), (QStringList{u"〒100-0000"_s, u"東京都架空区見本町1-2-3"_s, u"見本ビル4階"_s,
                                       u"例示方"_s, u"見本　太郎  様"_s}));
  for (size_t i = 1; i < lines.size(); ++i) EXPECT_GE(lines[i].y, lines[i - 1].y + lines[i - 1].size) << i;
  EXPECT_EQ(lines[0].size, label::kTextSize);
  EXPECT_EQ(lines[4].size, label::kNameSize);
}

struct BlankCase {
  const char* what;
  LabelAddress address;
  QStringList printed;
};
class LabelBlanks : public testing::TestWithParam<BlankCase> {};

TEST_P(LabelBlanks, ABlankPartTakesNoLine) {
  EXPECT_EQ(texts(labelLines(GetParam().address, 3)), GetParam().printed) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LabelBlanks,
    testing::Values(
        BlankCase{"no postcode",
                  {QString(), {u"甲"_s, u"乙"_s, u"丙"_s}, u"見本"_s},
                  {u"甲"_s, u"乙"_s, u"丙"_s, u"見本  様"_s}},
        BlankCase{"blanks only", {u"　 "_s, {u" "_s, u"　"_s, u"丙"_s}, u"見本"_s}, {u"丙"_s, u"見本  様"_s}},
        BlankCase{"the middle line",
                  {u"1"_s, {u"甲"_s, QString(), u"丙"_s}, u"見本"_s},
                  {u"〒1"_s, u"甲"_s, u"丙"_s, u"見本  様"_s}},
        BlankCase{"the mark is there", {u"〒100-0000"_s, {}, u"見本"_s}, {u"〒100-0000"_s, u"見本  様"_s}},
        BlankCase{"no name", {u"1"_s, {u"甲"_s, {}, {}}, QString()}, {u"〒1"_s, u"甲"_s}},
        BlankCase{"nothing at all", {}, {}}));

TEST(LabelLines, LeftThenRightThenTheNextRow) {
  const auto at = [](int place) { return labelLines(kFull, place).front(); };
  EXPECT_DOUBLE_EQ(at(1).x - at(0).x, 86.4);
  EXPECT_DOUBLE_EQ(at(1).y, at(0).y);
  EXPECT_DOUBLE_EQ(at(2).x, at(0).x);
  EXPECT_DOUBLE_EQ(at(2).y - at(0).y, 42.3);
  EXPECT_DOUBLE_EQ(at(11).x, at(1).x);
  EXPECT_NEAR(at(11).y - at(0).y, 5 * 42.3, 1e-9);
}

/// No text leaves its label, and none is lost.
void expectInside(const LabelAddress& address, int place) {
  const double left = label::kLeft + (place % 2) * label::kWidth;
  const double top = label::kTop + (place / 2) * label::kHeight;
  const auto lines = labelLines(address, place);
  for (const LabelLine& line : lines) {
    EXPECT_GE(line.x, left + label::kMarginX);
    EXPECT_LE(line.x + line.size * labelTextWidth(line.text), left + label::kWidth - label::kMarginX + 1e-9)
        << line.text.toStdString();
    EXPECT_GE(line.y, top + label::kMarginY);
    EXPECT_LE(line.y + line.size, top + label::kHeight - label::kMarginY + 1e-9) << line.text.toStdString();
  }
  const QString whole = u"〒"_s + address.postcode + address.lines[0] + address.lines[1] + address.lines[2] +
                        address.name + u"  様"_s;
  EXPECT_EQ(texts(lines).join(QString()), whole);
}

TEST(LabelLines, TwentyCharactersFitOneLineAtFullSize) {
  const LabelAddress address{
      u"1"_s, {u"あ"_s.repeated(20), u"い"_s.repeated(20), u"う"_s.repeated(20)}, u"見本"_s};
  const auto lines = labelLines(address, 0);
  EXPECT_EQ(lines.size(), 5u);
  EXPECT_EQ(lines[1].size, label::kTextSize);
  expectInside(address, 0);
}

TEST(LabelLines, WhatIsTooLongStaysInsideItsLabel) {
  for (const int length : {21, 30, 60, 255}) {
    const QString kanji = u"鬱"_s.repeated(length);
    const QString capitals = u"W"_s.repeated(length);
    expectInside({u"100-0000"_s, {kanji, u"二"_s, u"三"_s}, u"見本"_s}, 4);
    expectInside({u"100-0000"_s, {kanji, capitals, kanji}, kanji}, 7);
  }
}

TEST(LabelLines, AWrappedLineBreaksBetweenWholeCharacters) {
  const QString rare = QString::fromUcs4(U"\U00020BB7");
  const auto lines = labelLines({u"1"_s, {rare.repeated(30), {}, {}}, u"見本"_s}, 0);
  for (const LabelLine& line : lines) {
    EXPECT_FALSE(line.text.front().isLowSurrogate());
    EXPECT_FALSE(line.text.back().isHighSurrogate());
  }
  EXPECT_EQ(labelTextWidth(rare), 1.0);
  EXPECT_EQ(labelTextWidth(u"ｶﾞ"_s), 1.0) << "two half-width characters";
}

}  // namespace
}  // namespace records
