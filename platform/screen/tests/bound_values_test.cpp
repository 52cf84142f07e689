#include "platform/screen/bound_values.h"

#include <gtest/gtest.h>

#include "platform/screen/control_book.h"
#include "platform/screen/shown_record.h"
#include "platform/store/tables/patients.h"
#include "sample_screen.h"

namespace screen::testing {
namespace {

using Values = QHash<QString, store::Value>;

class BoundValues : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(screen.source().open(harness.patientsFile({"見本一", "見本二"})));
    screen.log.clear();
  }
  Harness harness;
  SampleScreen screen{harness.services};
};

TEST_F(BoundValues, AClearedFieldIsBlankNotNull) {
  showValues(screen, {{"氏名", "見本一"}, {"区分", "一"}}, {1});
  screen.setText("txtFields(4)", QString());
  screen.setText("Combo2", QString());
  const Values values = changedValues(screen, {1});
  ASSERT_EQ(values.size(), 2);
  for (const store::Value& value : values) {
    EXPECT_TRUE(value.isEmpty());
    EXPECT_FALSE(value.isNull());
  }
}

TEST_F(BoundValues, AGroupWithoutAChoiceChangesNothing) {
  showValues(screen, {{"性別", "2"}}, {1});
  screen.choose("Frame1", QString());
  EXPECT_EQ(changedValues(screen, {1}), Values());
}

TEST_F(BoundValues, TheControlOfAColumnIsFoundAmongTheSources) {
  ASSERT_NE(controlOf(screen, "氏名", {1}), nullptr);
  EXPECT_EQ(controlOf(screen, "氏名", {1})->name(), "txtFields(4)");
  EXPECT_EQ(controlOf(screen, "氏名", {2}), nullptr);
  EXPECT_EQ(controlOf(screen, "無い", {1}), nullptr);
}

TEST_F(BoundValues, OnlyWhatWasChangedIsGivenAsItIsStored) {
  EXPECT_EQ(changedValues(screen, {1}), Values());
  screen.setText("txtFields(4)", "架空");
  screen.setChecked("Check1", true);
  EXPECT_EQ(changedValues(screen, {1}), (Values{{"氏名", "架空"}, {"yn1", "-1"}}));
  EXPECT_EQ(changedValues(screen, {}), Values());
}

TEST_F(BoundValues, ShownValuesCountAsUnchangedAndRunNoHandler) {
  screen.setText("txtFields(4)", "架空");
  showValues(screen, {{"氏名", "別人"}, {"yn1", "-1"}}, {1});
  EXPECT_EQ(screen.text("txtFields(4)"), "別人");
  EXPECT_TRUE(screen.checked("Check1"));
  EXPECT_EQ(changedValues(screen, {1}), Values());
  showValues(screen, {}, {1});
  EXPECT_EQ(screen.text("txtFields(4)"), "");
  EXPECT_FALSE(screen.checked("Check1"));
  EXPECT_TRUE(screen.log.isEmpty());
}

TEST_F(BoundValues, ARecordIsFilledWithWhatIsShown) {
  struct Person {
    QString name;
    static std::span<const store::Field<Person>> fields() {
      static constexpr store::Field<Person> kFields[] = {{patients::name, &Person::name}};
      return kFields;
    }
  };
  screen.setText("txtFields(4)", "まだ登録していない");
  EXPECT_EQ(shownRecord<Person>(screen).name, "まだ登録していない");
}

}  // namespace
}  // namespace screen::testing
