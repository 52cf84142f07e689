#include "platform/store/criteria_text.h"

#include <gtest/gtest.h>

#include "platform/store/criteria.h"

namespace store {
namespace {

TEST(CriteriaText, PutsTheTextBetweenQuotes) {
  EXPECT_EQ(likeCriterion(QStringLiteral("氏名"), QStringLiteral("見本")),
            QStringLiteral("氏名 like '*見本*' "));
  EXPECT_EQ(patternCriterion(QStringLiteral("氏名"), QStringLiteral("見?*")),
            QStringLiteral("氏名 like '見?*' "));
  EXPECT_EQ(prefixCriterion(QStringLiteral("治療日時"), QStringLiteral("令和2年")),
            QStringLiteral("治療日時 like '令和2年*' "));
  EXPECT_EQ(spanCriterion(QStringLiteral("要加療期間2"), QStringLiteral("令和6年")),
            QStringLiteral("要加療期間2 >= '令和6年' "));
  EXPECT_EQ(spanCriterion(QStringLiteral("要加療期間2"), QStringLiteral("2024"), QStringLiteral("2025")),
            QStringLiteral("要加療期間2 >= '2024' and 要加療期間2 <= '2025' "));
  EXPECT_EQ(equalCriterion(QStringLiteral("患者ID"), QStringLiteral("7")), QStringLiteral("患者ID = '7' "));
}

class QuotedText : public testing::TestWithParam<const char*> {};

TEST_P(QuotedText, IsRefusedByTheEngineInEveryForm) {
  const QString column = QStringLiteral("氏名"), text = QString::fromUtf8(GetParam());
  for (const QString& criteria :
       {likeCriterion(column, text), prefixCriterion(column, text), patternCriterion(column, text),
        equalCriterion(column, text), spanCriterion(column, text),
        spanCriterion(column, QStringLiteral("a"), text)})
    EXPECT_FALSE(parseCriteria(criteria)) << criteria.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Rows, QuotedText,
                         testing::Values("'", "O'x", "x'", "'x", "''", "x' or 氏名 like '*",
                                         "' or 氏名 <> '"));

}  // namespace
}  // namespace store
