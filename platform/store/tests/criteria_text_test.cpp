#include "platform/store/criteria_text.h"

#include <gtest/gtest.h>

namespace store {
namespace {

// The text goes in as it was typed: what a quote in it does is the engine's to say.
TEST(CriteriaText, PutsTheTextBetweenQuotesAsItIs) {
  EXPECT_EQ(likeCriterion(QStringLiteral("氏名"), QStringLiteral("O'")), QStringLiteral("氏名 like '*O'*' "));
  EXPECT_EQ(prefixCriterion(QStringLiteral("治療日時"), QStringLiteral("令和2年")),
            QStringLiteral("治療日時 like '令和2年*' "));
  EXPECT_EQ(spanCriterion(QStringLiteral("要加療期間2"), QStringLiteral("令和6年")),
            QStringLiteral("要加療期間2 >= '令和6年' "));
  EXPECT_EQ(spanCriterion(QStringLiteral("要加療期間2"), QStringLiteral("2024"), QStringLiteral("2025")),
            QStringLiteral("要加療期間2 >= '2024' and 要加療期間2 <= '2025' "));
  EXPECT_EQ(equalCriterion(QStringLiteral("患者ID"), QStringLiteral("7")), QStringLiteral("患者ID = '7' "));
}

}  // namespace
}  // namespace store
