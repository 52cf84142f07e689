#pragma once

#include "frame/core/csv_table.h"
#include "frame/core/installation.h"
#include "platform/screen/testing/screen_probe.h"
#include "records/tests/screens/records_fixture.h"

namespace records::test {

/// A program folder that is laid out as the program is shipped, dictionaries filled.
class DictionaryFixture : public RecordsFixture {
 protected:
  static void SetUpTestSuite() {
    s_shipped = std::make_unique<QTemporaryDir>();
    ASSERT_TRUE(frame::layOut(s_shipped->path(), QStringLiteral(SOURCE_FOLDER "/data"),
                              QStringLiteral(SOURCE_FOLDER "/templates")));
  }
  static void TearDownTestSuite() { s_shipped.reset(); }

  void SetUp() override {
    RecordsFixture::SetUp();
    for (const char* file : {"CLmoji2000.mdb", "CL2moji2000.mdb", "Keiraku2000.mdb"}) {
      const QString name = QString::fromUtf8(file);
      ASSERT_TRUE(QFile::copy(s_shipped->filePath(name), path(name)));
    }
  }

  store::RecordSet open(const QString& file, const QString& table) const {
    return std::move(store::RecordSet::open(store::Database::open(path(file)).value(), table).value());
  }
  void empty(const QString& file, const QString& table) {
    QFile::remove(path(file));
    makeFile(file);
    ASSERT_EQ(open(file, table).recordCount(), 0);
  }
  /// Presses a key in the control that has the focus.
  void press(screen::Screen& screen, Qt::Key key) {
    screen::testing::ScreenProbe probe(screen, channel);
    probe.press(key);
  }

  static inline std::unique_ptr<QTemporaryDir> s_shipped;
};

}  // namespace records::test
