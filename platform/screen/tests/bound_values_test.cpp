#include "platform/screen/bound_values.h"

#include <gtest/gtest.h>

#include "platform/screen/control_book.h"
#include "sample_screen.h"

namespace screen::testing {
namespace {

class BoundValues : public ::testing::Test {
 protected:
  using Map = QHash<QString, store::Value>;
  Map changed() const { return changedValues(screen, {1}); }
  Desk desk;
  SampleScreen screen{desk.services};
};

TEST_F(BoundValues, WhatIsShownIsUnchangedAndNullStaysNull) {
  showValues(screen, {{"氏名", "見本一"}, {"yn1", "-1"}, {"性別", "2"}}, {1});
  EXPECT_EQ(screen.text("txtFields(4)"), "見本一");
  EXPECT_EQ(screen.text("txtFields(5)"), "") << "a column that the map lacks";
  EXPECT_TRUE(screen.checked("Check1"));
  EXPECT_EQ(screen.chosen("Frame1"), "2");
  EXPECT_EQ(changed(), Map());
  EXPECT_TRUE(screen.log.isEmpty()) << "no handler runs";
}

TEST_F(BoundValues, OnlyWhatChangedIsGiven) {
  showValues(screen, {{"氏名", "見本一"}, {"住所1", "架空市"}, {"yn1", "-1"}}, {1});
  screen.setText("txtFields(4)", "見本二");
  screen.setChecked("Check1", false);
  screen.choose("Frame1", "1");
  EXPECT_EQ(changed(), Map({{"氏名", "見本二"}, {"yn1", "0"}, {"性別", "1"}}));
}

TEST_F(BoundValues, AClearedFieldIsBlankNotNull) {
  showValues(screen, {{"氏名", "見本一"}, {"区分", "一"}}, {1});
  screen.setText("txtFields(4)", QString());
  screen.setText("Combo2", QString());
  const Map values = changed();
  ASSERT_EQ(values.size(), 2);
  for (const store::Value& value : values) {
    EXPECT_TRUE(value.isEmpty());
    EXPECT_FALSE(value.isNull());
  }
}

TEST_F(BoundValues, AGroupWithoutAChoiceChangesNothing) {
  showValues(screen, {{"性別", "2"}}, {1});
  screen.choose("Frame1", QString());
  EXPECT_EQ(changed(), Map());
}

TEST_F(BoundValues, TheControlOfAColumnIsFoundAmongTheSources) {
  ASSERT_NE(controlOf(screen, "氏名", {1}), nullptr);
  EXPECT_EQ(controlOf(screen, "氏名", {1})->name(), "txtFields(4)");
  EXPECT_EQ(controlOf(screen, "氏名", {2}), nullptr);
  EXPECT_EQ(controlOf(screen, "無い", {1}), nullptr);
}

}  // namespace
}  // namespace screen::testing
