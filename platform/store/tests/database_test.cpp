#include <sqlite3.h>

#include "platform/store/tests/store_fixture.h"

namespace store {
namespace {

const QString kDoctors = QStringLiteral("同意医師2000.mdb");
const QString kDoctorTable = QStringLiteral("同意医師");

class DatabaseTest : public StoreTest {
 protected:
  void put(const QString& file, const QByteArray& content) const {
    QFile out(path(file));
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(content);
  }
  QByteArray content(const QString& file) const {
    QFile in(path(file));
    EXPECT_TRUE(in.open(QIODevice::ReadOnly));
    return in.readAll();
  }
  /// Opening is refused, the file's name is told, and file and folder stay as they were.
  void expectRefused(const QString& what) const {
    const QByteArray before = QFile::exists(path(kDoctors)) ? content(kDoctors) : QByteArray();
    const QStringList listing = QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden);
    const Result<std::shared_ptr<Database>> opened = Database::open(path(kDoctors));
    ASSERT_FALSE(opened.ok()) << what.toStdString();
    EXPECT_TRUE(opened.fault().message.contains(kDoctors)) << opened.fault().message.toStdString();
    EXPECT_TRUE(opened.fault().message.contains(what)) << opened.fault().message.toStdString();
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), listing);
    if (!listing.isEmpty()) {
      EXPECT_EQ(content(kDoctors), before);
    }
  }
};

TEST_F(DatabaseTest, AMissingFileIsToldAndNotMade) { expectRefused(QStringLiteral("見つかりません")); }

TEST_F(DatabaseTest, AnEmptyFileIsTold) {
  put(kDoctors, "");
  expectRefused(QStringLiteral("空"));
}

TEST_F(DatabaseTest, AnAlienFileIsTold) {
  put(kDoctors, QByteArray(5000, 'x'));
  expectRefused(QStringLiteral("データファイルではありません"));
}

TEST_F(DatabaseTest, AFileOfTheOfficeDatabaseIsToldAsSuch) {
  for (const char* mark : {"Standard Jet DB", "Standard ACE DB"}) {
    put(kDoctors, QByteArray("\0\1\0\0", 4) + mark + QByteArray(4096, '\0'));
    expectRefused(QStringLiteral("Access"));
  }
}

TEST_F(DatabaseTest, AnotherProgramsTablesAreAlien) {
  sqlite3* handle = nullptr;
  ASSERT_EQ(sqlite3_open(QFile::encodeName(path(kDoctors)).constData(), &handle), SQLITE_OK);
  sqlite3_exec(handle, "CREATE TABLE other(a)", nullptr, nullptr, nullptr);
  sqlite3_close(handle);
  expectRefused(QStringLiteral("データファイルではありません"));
}

TEST_F(DatabaseTest, AFileCutShortIsToldAsDamaged) {
  fresh(kDoctors);
  ASSERT_TRUE(QFile::resize(path(kDoctors), content(kDoctors).size() / 2));
  expectRefused(QStringLiteral("壊れて"));
}

TEST_F(DatabaseTest, DamageInsideIsToldByNameWhenRead) {
  fresh(kDoctors);
  {
    RecordSet set = openSet(kDoctors, kDoctorTable);
    for (int row = 0; row < 200; ++row) add(set, {{QStringLiteral("氏名"), QString(200, u'架')}});
  }
  QByteArray bytes = content(kDoctors);
  for (qsizetype at = 3 * 4096; at < bytes.size(); ++at) bytes[at] = '\x5a';
  put(kDoctors, bytes);
  const Result<std::shared_ptr<Database>> opened = Database::open(path(kDoctors));
  ASSERT_TRUE(opened.ok());
  Result<RecordSet> set = RecordSet::open(*opened, kDoctorTable);
  Fault fault = set ? Fault{} : set.fault();
  if (set) {
    set->setFilter(QStringLiteral("氏名 like '*架*'"));
    const Result<RecordSet> found = set->openRecordset();
    ASSERT_FALSE(found.ok());
    fault = found.fault();
  }
  EXPECT_TRUE(fault.message.contains(kDoctors));
  EXPECT_TRUE(fault.message.contains(QStringLiteral("壊れて"))) << fault.message.toStdString();
}

TEST_F(DatabaseTest, AReadOnlyFileIsReadAndToldWhenWritten) {
  fresh(kDoctors);
  QFile::setPermissions(path(kDoctors), QFile::ReadOwner);
  RecordSet set = openSet(kDoctors, kDoctorTable);
  EXPECT_EQ(set.recordCount(), 0);
  ASSERT_TRUE(set.addNew().ok());
  const Done done = set.update();
  ASSERT_FALSE(done.ok());
  EXPECT_TRUE(done.fault().message.contains(kDoctors));
  EXPECT_TRUE(done.fault().message.contains(QStringLiteral("読み取り専用")));
}

TEST_F(DatabaseTest, AMissingTableIsToldWithBothNames) {
  fresh(kDoctors);
  const Result<RecordSet> set = RecordSet::open(*Database::open(path(kDoctors)), QStringLiteral("保険者"));
  ASSERT_FALSE(set.ok());
  EXPECT_TRUE(set.fault().message.contains(QStringLiteral("保険者")));
  EXPECT_TRUE(set.fault().message.contains(kDoctors));
}

TEST_F(DatabaseTest, AFileThatIsHeldElsewhereIsToldAfterTheWait) {
  fresh(kDoctors);
  RecordSet set = openSet(kDoctors, kDoctorTable);
  sqlite3_busy_timeout(set.database()->handle(), 10);
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(QFile::encodeName(path(kDoctors)).constData(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  ASSERT_TRUE(set.addNew().ok());
  const Done done = set.update();
  ASSERT_FALSE(done.ok());
  EXPECT_TRUE(done.fault().message.contains(QStringLiteral("使用中"))) << done.fault().message.toStdString();
  EXPECT_TRUE(set.adding()) << "the entry stays, to be stored again";
  sqlite3_close(other);
  EXPECT_TRUE(set.update().ok());
}

TEST_F(DatabaseTest, ARowChangedElsewhereIsRefusedAndTheEntryKept) {
  const QString name = QStringLiteral("氏名");
  fresh(kDoctors);
  RecordSet set = openSet(kDoctors, kDoctorTable);
  add(set, {{name, QStringLiteral("前")}});
  set.moveFirst();
  EXPECT_EQ(set.value(name), QStringLiteral("前"));
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(QFile::encodeName(path(kDoctors)).constData(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "UPDATE \"同意医師\" SET \"住所\"='他'", nullptr, nullptr, nullptr),
            SQLITE_OK);
  sqlite3_close(other);
  ASSERT_TRUE(set.edit().ok());
  ASSERT_TRUE(set.setValue(name, QStringLiteral("後")).ok());
  const Done done = set.update();
  ASSERT_FALSE(done.ok());
  EXPECT_TRUE(done.fault().message.contains(QStringLiteral("変更された")));
  EXPECT_EQ(set.value(name), QStringLiteral("後"));
  set.cancelUpdate();
  EXPECT_EQ(set.value(QStringLiteral("住所")), QStringLiteral("他"));
  ASSERT_TRUE(set.edit().ok());
  ASSERT_TRUE(set.setValue(name, QStringLiteral("後")).ok());
  EXPECT_TRUE(set.update().ok());
}

TEST_F(DatabaseTest, AnotherRowsStoreDoesNotHideThatARowWasChangedElsewhere) {
  const QString name = QStringLiteral("氏名");
  fresh(kDoctors);
  RecordSet set = openSet(kDoctors, kDoctorTable);
  add(set, {{name, QStringLiteral("一")}});
  add(set, {{name, QStringLiteral("二")}});
  set.moveFirst();
  EXPECT_TRUE(set.value(QStringLiteral("住所")).isNull());
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(QFile::encodeName(path(kDoctors)).constData(), &other), SQLITE_OK);
  ASSERT_EQ(
      sqlite3_exec(other, "UPDATE \"同意医師\" SET \"住所\"='他' WHERE ID=1", nullptr, nullptr, nullptr),
      SQLITE_OK);
  sqlite3_close(other);
  RecordSet second = openSet(kDoctors, kDoctorTable);
  second.moveLast();
  ASSERT_TRUE(second.edit().ok() && second.setValue(name, QStringLiteral("二の二")).ok() &&
              second.update().ok());
  ASSERT_TRUE(set.edit().ok() && set.setValue(name, QStringLiteral("一の二")).ok());
  EXPECT_FALSE(set.update().ok());
}

// A walk that asks for few columns reads them alone: what was shown of them counts all the same.
TEST_F(DatabaseTest, AWalkThatShowsFewColumnsNoticesThatTheyWereChangedElsewhere) {
  const QString name = QStringLiteral("氏名");
  fresh(kDoctors);
  RecordSet set = openSet(kDoctors, kDoctorTable);
  add(set, {{name, QStringLiteral("一")}});
  add(set, {{name, QStringLiteral("二")}});
  set.moveFirst();
  EXPECT_EQ(set.value(name), QStringLiteral("一"));
  set.moveLast();
  EXPECT_EQ(set.value(name), QStringLiteral("二"));
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(QFile::encodeName(path(kDoctors)).constData(), &other), SQLITE_OK);
  ASSERT_EQ(
      sqlite3_exec(other, "UPDATE \"同意医師\" SET \"氏名\"='他' WHERE ID=2", nullptr, nullptr, nullptr),
      SQLITE_OK);
  sqlite3_close(other);
  ASSERT_TRUE(set.edit().ok() && set.setValue(name, QStringLiteral("後")).ok());
  EXPECT_FALSE(set.update().ok());
  set.cancelUpdate();
  EXPECT_EQ(set.value(name), QStringLiteral("他")) << "read afresh after the refusal";
}

TEST_F(DatabaseTest, ARowDeletedElsewhereIsTold) {
  fresh(kDoctors);
  RecordSet set = openSet(kDoctors, kDoctorTable);
  add(set, {{QStringLiteral("氏名"), QStringLiteral("前")}});
  set.moveFirst();
  ASSERT_TRUE(set.edit().ok());
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(QFile::encodeName(path(kDoctors)).constData(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "DELETE FROM \"同意医師\"", nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(other);
  ASSERT_TRUE(set.setValue(QStringLiteral("氏名"), QStringLiteral("後")).ok());
  EXPECT_FALSE(set.update().ok());
}

TEST_F(DatabaseTest, OpeningTwiceGivesOneHandleAndAReplacedFileAnother) {
  fresh(kDoctors);
  const std::shared_ptr<Database> first = *Database::open(path(kDoctors));
  EXPECT_EQ(*Database::open(path(kDoctors)), first);
  ASSERT_TRUE(QFile::rename(path(kDoctors), path(QStringLiteral("old"))));
  fresh(kDoctors);
  EXPECT_NE(*Database::open(path(kDoctors)), first);
}

// A backup put back while the program runs: what was opened is no longer the file at the path.
TEST_F(DatabaseTest, AFileThatWasReplacedWhileOpenIsToldWhenWritten) {
  fresh(kDoctors);
  RecordSet set = openSet(kDoctors, kDoctorTable);
  ASSERT_TRUE(QFile::rename(path(kDoctors), path(QStringLiteral("old"))));
  fresh(kDoctors);
  ASSERT_TRUE(set.addNew().ok());
  const Done done = set.update();
  ASSERT_FALSE(done.ok());
  EXPECT_TRUE(done.fault().message.contains(QStringLiteral("再起動"))) << done.fault().message.toStdString();
}

TEST_F(DatabaseTest, AFreshFileNeverReplacesOneThatStands) {
  put(kDoctors, "kept");
  EXPECT_FALSE(createFresh(path(kDoctors), kDoctors).ok());
  EXPECT_EQ(content(kDoctors), "kept");
  EXPECT_FALSE(createFresh(path(QStringLiteral("x.mdb")), QStringLiteral("x.mdb")).ok());
}

TEST_F(DatabaseTest, AFreshFileUnderAnotherNameHoldsTheCataloguesTables) {
  const QString elsewhere = path(QStringLiteral("写し.mdb"));
  ASSERT_TRUE(createFresh(elsewhere, kDoctors).ok());
  EXPECT_TRUE(RecordSet::open(*Database::open(elsewhere), kDoctorTable).ok());
  EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("写し.mdb")));
}

}  // namespace
}  // namespace store
