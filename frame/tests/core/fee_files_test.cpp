// Fee files of an older version: new columns before new rows, wherever the file lies.

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "frame/core/installation.h"
#include "frame/core/run_state.h"
#include "platform/store/database.h"

namespace frame {
namespace {

const QString kCurrent = QStringLiteral("料金設定2000.mdb");
const QString kTable = QStringLiteral("料金設定");
const QString kVisit = QStringLiteral("はり訪問施術11");
constexpr char kEditions[] = "/fees/editions.csv";

class FeeFilesTest : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* name : {"acupoints.csv", "phrases1.csv", "phrases2.csv"})
      ASSERT_TRUE(QFile::copy(QStringLiteral(SOURCE_FOLDER "/data/") + QLatin1String(name),
                              m_data.filePath(QLatin1String(name))));
    ASSERT_TRUE(QDir(m_data.path()).mkdir(QStringLiteral("fees")));
    write(editions());
  }
  static QByteArray editions() {
    QFile in(QStringLiteral(SOURCE_FOLDER "/data") + QLatin1String(kEditions));
    EXPECT_TRUE(in.open(QIODevice::ReadOnly));
    return in.readAll();
  }
  void write(const QByteArray& editions) const {
    QFile out(m_data.path() + QLatin1String(kEditions));
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(editions);
  }
  text::Result<QStringList> layOutHere() const {
    return layOut(m_folder.path(), m_data.path(), m_data.path());
  }
  QString path(const QString& file) const { return m_folder.filePath(file); }
  /// The file as it was before the edition of 2024/10: without its row and its fees.
  static void makeOlder(const QString& at) {
    sqlite3* handle = nullptr;
    sqlite3_open(QFile::encodeName(at).constData(), &handle);
    const QByteArray sql = QStringLiteral("DELETE FROM %1 WHERE ID > 1; ALTER TABLE %1 DROP COLUMN %2")
                               .arg(kTable, kVisit)
                               .toUtf8();
    EXPECT_EQ(sqlite3_exec(handle, sql.constData(), nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(handle);
    sqlite3_close(handle);
  }
  static QStringList visits(const QString& at) {
    const auto rows = store::RecordSet::open(*store::Database::open(at), kTable);
    QStringList values;
    for (int row = 0; row < rows->recordCount(); ++row) values += rows->valueAt(row, kVisit);
    return values;
  }
  void expectUnknown(const QByteArray& editions, const QString& what) const {
    write(editions);
    const auto made = layOutHere();
    ASSERT_FALSE(made.ok()) << what.toStdString();
    EXPECT_TRUE(made.fault().message.contains(what)) << made.fault().message.toStdString();
  }

  QTemporaryDir m_folder, m_data;
};

TEST_F(FeeFilesTest, AnOldFileGetsItsNewColumnsAndThenTheNewRows) {
  ASSERT_TRUE(layOutHere().ok());
  const QStringList whole = visits(path(kCurrent));
  ASSERT_EQ(whole, QStringList({QString(), QStringLiteral("3910")}));
  makeOlder(path(kCurrent));
  const auto made = layOutHere();
  ASSERT_TRUE(made.ok()) << made.fault().message.toStdString();
  EXPECT_EQ(*made, QStringList(kCurrent));
  EXPECT_EQ(visits(path(kCurrent)), whole);
}

TEST_F(FeeFilesTest, AFileOnAnotherPathGetsThemToo) {
  ASSERT_TRUE(layOutHere().ok());
  QTemporaryDir shared;
  const QString elsewhere = shared.filePath(QStringLiteral("fees of the office.mdb"));
  ASSERT_TRUE(QFile::copy(path(kCurrent), elsewhere));
  makeOlder(elsewhere);
  auto settings = readSettingsFile(settingsPath(m_folder.path()));
  ASSERT_TRUE(settings.ok());
  constexpr int kFeesSlot = 55;
  (*settings)[kFeesSlot] = elsewhere;
  ASSERT_TRUE(writeSettingsFile(settingsPath(m_folder.path()), *settings).ok());
  const auto made = layOutHere();
  ASSERT_TRUE(made.ok()) << made.fault().message.toStdString();
  EXPECT_EQ(*made, QStringList(kCurrent));
  EXPECT_EQ(visits(elsewhere), QStringList({QString(), QStringLiteral("3910")}));

  ASSERT_TRUE(QFile::remove(elsewhere));
  EXPECT_TRUE(layOutHere().ok()) << "a folder that is away costs nothing";
  EXPECT_FALSE(QFile::exists(elsewhere));
}

TEST_F(FeeFilesTest, AFeeThatTheCatalogueDoesNotKnowFailsTheLayout) {
  expectUnknown(editions().replace("特別地域", "新加算"), QStringLiteral("新加算"));
}

TEST_F(FeeFilesTest, AFileThatTheCatalogueDoesNotKnowFailsTheLayout) {
  expectUnknown(editions().replace("料金設定2018,1", "料金設定2017,1"), QStringLiteral("料金設定2017"));
  expectUnknown(editions().replace("料金設定2018,1", "同意医師2000,1"), QStringLiteral("同意医師2000"));
}

}  // namespace
}  // namespace frame
