#include "platform/text/fold.h"

#include <gtest/gtest.h>

namespace text {
namespace {

TEST(Fold, CaseWidthAndKanaFallTogether) {
  const char* same[][2] = {
      {"ｻﾄｳ", "さとう"}, {"サトウ", "さとう"},          {"ＡＢＣ", "abc"}, {"ABC", "abc"},
      {"１２", "12"},    {"ﾀﾞｲｽﾞ", "だいず"},           {"パン", "ﾊﾟﾝ"},   {"ｱｰｸ", "あーく"},
      {"　", " "},       {"ﾊﾝｶｸ･ﾅｶ", "はんかく・なか"}, {"ヴ", "ｳﾞ"},      {"＊", "*"}};
  for (const auto& [a, b] : same)
    EXPECT_EQ(foldForComparison(QString::fromUtf8(a)), foldForComparison(QString::fromUtf8(b))) << a;
}

TEST(Fold, OtherDifferencesStay) {
  const char* different[][2] = {{"か", "が"}, {"つ", "っ"}, {"①", "1"},   {"㈱", "(株)"},
                                {"斉", "斎"}, {"ー", "-"},  {"は", "ぱ"}, {"サトウ", "サトー"}};
  for (const auto& [a, b] : different)
    EXPECT_NE(foldForComparison(QString::fromUtf8(a)), foldForComparison(QString::fromUtf8(b))) << a;
}

TEST(Fold, AVoicedMarkWithoutItsLetterStays) {
  EXPECT_EQ(foldForComparison(QStringLiteral("ﾞ")).size(), 1);
  EXPECT_EQ(foldForComparison(QStringLiteral("aﾞ")).size(), 2);
  EXPECT_TRUE(foldForComparison(QString()).isEmpty());
}

TEST(Fold, LettersOutsideTheBasicPlaneStay) {
  EXPECT_EQ(foldForComparison(QStringLiteral("𠮷野")), QStringLiteral("𠮷野"));
}

}  // namespace
}  // namespace text
