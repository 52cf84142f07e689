#pragma once

#include "frame/core/routes.h"
#include "frame/tests/screens/screen_fixture.h"
#include "platform/report/recording_operations.h"
#include "records/screens/records_screens.h"

namespace records::test {

/// The screens of patients and visits, and an empty patient table.
class RecordsFixture : public frame::test::ScreenFixture {
 protected:
  RecordsFixture() { registerScreens(registry, run, engine); }

  void SetUp() override {
    ScreenFixture::SetUp();
    makeFile(kFile);
    standIn(QStringLiteral("選択3"));
  }

  store::RecordSet table() const {
    return std::move(
        store::RecordSet::open(store::Database::open(path(kFile)).value(), QStringLiteral("臨床QV")).value());
  }

  /// Adds a patient to the file; columns by name.
  void addPatient(const QHash<QString, QString>& columns) {
    store::RecordSet rows = table();
    ASSERT_TRUE(rows.addNew());
    for (auto column = columns.cbegin(); column != columns.cend(); ++column)
      ASSERT_TRUE(rows.setValue(column.key(), column.value())) << column.key().toStdString();
    ASSERT_TRUE(rows.update());
  }
  void addNamed(const QStringList& names) {
    for (const QString& name : names) addPatient({{QStringLiteral("氏名"), name}});
  }

  /// All values of a column as they are in the file, in ID order.
  QStringList stored(const QString& column) const {
    store::RecordSet rows = table();
    QStringList values;
    for (int i = 0; i < rows.recordCount(); ++i) values << rows.valueAt(i, column);
    return values;
  }

  report::RecordingOperations engine;
  const QString kFile = QStringLiteral("臨床QV2000N.mdb");
};

}  // namespace records::test
