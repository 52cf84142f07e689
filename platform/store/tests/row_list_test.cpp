#include "platform/store/row_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace store {
namespace {

constexpr int kRows = 3000;

/// A table of many rows with few kinds and many names, so that windows begin and end within equal keys.
class RowListTest : public testing::Test {
 protected:
  RowListTest() : schema(QStringLiteral("T")) {
    schema.add(QStringLiteral("ID"), ColumnType::Counter);
    schema.add(QStringLiteral("kind"), ColumnType::Integer);
    schema.add(QStringLiteral("name"), ColumnType::Text255);
    for (uint32_t row = 0; row < kRows; ++row) {
      ids.push_back(row * 3 + 1);
      rows.push_back(row);
      kinds.push_back(static_cast<int>(random() % 7) - 3);
      names.push_back(QString::number(random() % 1000 + 1000));
      columns[0].append(QString::number(kinds.back()));
      columns[1].append(names.back());
    }
    expected = rows;
    std::sort(expected.begin(), expected.end(), [&](uint32_t a, uint32_t b) {
      if (kinds[a] != kinds[b]) return kinds[a] > kinds[b];
      return names[a] != names[b] ? names[a] < names[b] : a < b;
    });
  }
  RowList list() const {
    const Order order{{QStringLiteral("kind"), true}, {QStringLiteral("name"), false}};
    return RowList(ids, rows, RowSorter(order, schema, [&](int column) -> const TextColumn& {
                     return columns[static_cast<size_t>(column - 1)];
                   }));
  }

  std::mt19937 random{5};
  TableSchema schema;
  std::vector<qint64> ids;
  std::vector<uint32_t> rows, expected;
  std::vector<int> kinds;
  std::vector<QString> names;
  TextColumn columns[2];
};

TEST_F(RowListTest, EveryPositionIsRightWhereverSomebodyLooksFirst) {
  const RowList sorted = list();
  for (int look = 0; look < 400; ++look) {
    const int position = static_cast<int>(random() % kRows);
    ASSERT_EQ(sorted.at(position), ids[expected[static_cast<size_t>(position)]]) << position;
  }
  for (int position = 0; position < kRows; ++position)
    ASSERT_EQ(sorted.at(position), ids[expected[static_cast<size_t>(position)]]) << position;
}

TEST_F(RowListTest, AnIdIsFoundAtItsPlaceBeforeTheListIsSortedThere) {
  for (int look = 0; look < 40; ++look) {
    const RowList sorted = list();
    if (look % 2) (void)sorted.at(static_cast<int>(random() % kRows));
    const size_t position = random() % kRows;
    ASSERT_EQ(sorted.find(ids[expected[position]]), static_cast<int>(position));
    ASSERT_EQ(sorted.at(static_cast<int>(position)), ids[expected[position]]);
  }
  EXPECT_EQ(list().find(2), -1);
}

TEST_F(RowListTest, ErasingAndAppendingKeepTheOthersInPlace) {
  RowList sorted = list();
  std::vector<qint64> model;
  for (const uint32_t row : expected) model.push_back(ids[row]);
  for (int step = 0; step < 300; ++step) {
    const int position = static_cast<int>(random() % model.size());
    switch (random() % 3) {
      case 0:
        sorted.erase(position);
        model.erase(model.begin() + position);
        break;
      case 1:
        sorted.append(100000 + step);
        model.push_back(100000 + step);
        break;
      default:
        ASSERT_EQ(sorted.at(position), model[static_cast<size_t>(position)]) << step;
    }
    ASSERT_EQ(sorted.size(), static_cast<int>(model.size()));
  }
  EXPECT_EQ(sorted.ids(), model);
}

TEST_F(RowListTest, AWholeTableGoesForwardsAndBackwardsAndMayChange) {
  const auto shared = std::make_shared<const std::vector<qint64>>(ids);
  for (const bool backwards : {false, true}) {
    RowList whole(shared, backwards);
    std::vector<qint64> model = ids;
    if (backwards) std::reverse(model.begin(), model.end());
    EXPECT_EQ(whole.find(ids[7]), backwards ? kRows - 8 : 7);
    EXPECT_EQ(whole.find(2), -1);
    EXPECT_EQ(whole.ids(), model);
    whole.erase(5);
    model.erase(model.begin() + 5);
    whole.append(99999);
    model.push_back(99999);
    EXPECT_EQ(whole.ids(), model);
  }
  EXPECT_EQ(*shared, ids);
}

}  // namespace
}  // namespace store
