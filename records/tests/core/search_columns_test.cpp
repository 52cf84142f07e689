#include "records/core/search_columns.h"

#include <gtest/gtest.h>

#include "platform/store/catalogue.h"

namespace records {
namespace {

TEST(SearchColumns, EveryColumnIsInThePatientTable) {
  const store::TableRow* table = store::tableOfFile(QStringLiteral("臨床QV2000N.mdb"));
  ASSERT_NE(table, nullptr);
  for (const SearchColumn& row : searchColumns())
    EXPECT_NE(store::findColumn(*table, row.column.text()), nullptr) << row.column.text().toStdString();
}

TEST(SearchColumns, ThirtyThreeCaptionsFromIdToMemo) {
  ASSERT_EQ(searchColumns().size(), 33u);
  EXPECT_EQ(searchColumns().front().caption, QStringLiteral("ID"));
  EXPECT_EQ(searchColumns().back().caption, QStringLiteral("メモ1"));
}

TEST(SearchColumns, FuriganaIsTheColumnOfTheTable) {
  EXPECT_EQ(columnOfCaption(QStringLiteral("フリガナ")), QStringLiteral("ふりがな"));
  EXPECT_TRUE(columnOfCaption(QStringLiteral("ない項目")).isNull());
}

}  // namespace
}  // namespace records
