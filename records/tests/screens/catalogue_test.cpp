#include "platform/store/catalogue.h"

#include <QAction>
#include <QPushButton>

#include "platform/screen/testing/screen_probe.h"
#include "records/screens/patient_rows.h"
#include "records/tests/screens/records_fixture.h"

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

class RecordsCatalogueTest : public test::RecordsFixture, public testing::WithParamInterface<QString> {};

TEST_P(RecordsCatalogueTest, EveryControlIsNamedSpokenAndReached) {
  addNamed({u"見本 一"_s});
  screen::Screen* screen = navigator.show(GetParam());
  ASSERT_NE(screen, nullptr);
  screen::testing::ScreenProbe probe(*screen, channel);
  probe.open();
  const QStringList faults = probe.faults();
  EXPECT_TRUE(faults.isEmpty()) << faults.join(u'\n').toStdString();
  EXPECT_EQ(probe.unknownColumns({kFile}), QStringList());
}

TEST_P(RecordsCatalogueTest, TwinsBothExist) {
  screen::Screen* screen = navigator.show(GetParam());
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(screen->objectName(), GetParam());
  for (const screen::Row& row : screen->declaration().rows) {
    const auto* command = std::get_if<screen::Command>(&row);
    if (!command || !command->menu) continue;
    EXPECT_NE(screen->findChild<QPushButton*>(QString::fromUtf16(command->name.family())), nullptr);
    EXPECT_NE(screen->findChild<QAction*>(QString::fromUtf16(command->menu)), nullptr)
        << QString::fromUtf16(command->menu).toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(AllScreens, RecordsCatalogueTest,
                         testing::Values(u"選択4"_s, u"治療台帳4"_s, u"無データ"_s, u"一覧表"_s, u"抽出2"_s,
                                         u"抽出3"_s, u"ソート1"_s));

/// Columns of the first schema only: the screen works on a file that never grew.
TEST(PatientDeclaration, BindsNoColumnThatCameLater) {
  const store::TableRow* table = store::tableOfFile(u"臨床QV2000N.mdb"_s);
  ASSERT_NE(table, nullptr);
  int bound = 0;
  for (const screen::Row& row : patient_rows::kRows) {
    const auto* field = std::get_if<screen::TextField>(&row);
    if (!field || !field->bind.bound()) continue;
    const store::ColumnRow* column = store::findColumn(*table, QString::fromUtf16(field->bind.column()));
    ASSERT_NE(column, nullptr) << QString::fromUtf16(field->bind.column()).toStdString();
    EXPECT_FALSE(column->added) << QString::fromUtf16(field->bind.column()).toStdString();
    ++bound;
  }
  EXPECT_EQ(bound, 35);  // every column of the first schema
}

}  // namespace
}  // namespace records
