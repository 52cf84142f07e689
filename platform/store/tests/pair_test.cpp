#include "platform/store/pair.h"

#include <sqlite3.h>

#include "platform/store/tests/store_fixture.h"

namespace store {
namespace {

const QString kFirst = QStringLiteral("保険申請2000_1.mdb");
const QString kSecond = QStringLiteral("保険申請2000_2.mdb");
const QString kTable = QStringLiteral("保険申請");
const QString kName = QStringLiteral("氏名");
const QString kNote = QStringLiteral("txt dummy14");

class PairTest : public StoreTest {
 protected:
  void SetUp() override {
    fresh(kFirst);
    fresh(kSecond);
    reopen();
  }
  void reopen() {
    pair.reset();
    Result<std::unique_ptr<PairStore>> opened = PairStore::open(path(kFirst), path(kSecond), kTable);
    ASSERT_TRUE(opened.ok()) << opened.fault().message.toStdString();
    pair = std::move(*opened);
  }
  QString first(qint64 id) const { return pair->read(id)->first.value(kName); }
  QString second(qint64 id) const { return pair->read(id)->second.value(kNote); }
  /// Another computer: its own handle, no part of this program's.
  void elsewhere(const QString& file, const char* sql) const {
    sqlite3* handle = nullptr;
    ASSERT_EQ(sqlite3_open(QFile::encodeName(path(file)).constData(), &handle), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(handle, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(handle);
    sqlite3_close(handle);
  }
  std::unique_ptr<PairStore> pair;
};

TEST_F(PairTest, BothHalvesCarryOneIdThatIsNeverReused) {
  EXPECT_EQ(*pair->add({{kName, QStringLiteral("甲")}}, {{kNote, QStringLiteral("乙")}}), 1);
  ASSERT_TRUE(pair->remove(1).ok());
  EXPECT_EQ(*pair->add({}, {}), 2);
  EXPECT_TRUE(pair->read(1)->first.isEmpty());
  EXPECT_EQ(pair->read(2)->second.value(QStringLiteral("ID")), QStringLiteral("2"));
}

TEST_F(PairTest, TheIdIsNewInBothFilesWhereOneRanAhead) {
  elsewhere(kSecond, "INSERT INTO \"保険申請\" (\"ID\") VALUES (40)");
  EXPECT_EQ(*pair->add({}, {}), 41);
}

TEST_F(PairTest, ARefusedHalfLeavesBothAsTheyWere) {
  const qint64 id = *pair->add({{kName, QStringLiteral("前")}}, {{kNote, QStringLiteral("前")}});
  const Done done = pair->update(id, {{kName, QStringLiteral("後")}}, {{kNote, QString(256, u'x')}});
  ASSERT_FALSE(done.ok());
  EXPECT_TRUE(done.fault().message.contains(kNote));
  EXPECT_EQ(first(id), QStringLiteral("前"));
  EXPECT_EQ(second(id), QStringLiteral("前"));
  EXPECT_FALSE(pair->add({}, {{QStringLiteral("無い項目"), QString()}}).ok());
  EXPECT_EQ(*pair->add({}, {}), id + 1) << "nothing of the refused one is left";
}

TEST_F(PairTest, AHalfChangedMeanwhileRefusesTheStore) {
  const qint64 id = *pair->add({{kName, QStringLiteral("前")}}, {{kNote, QStringLiteral("前")}});
  const auto seen = *pair->read(id);
  elsewhere(kSecond, "UPDATE \"保険申請\" SET \"txt dummy14\"='他'");
  const PairStore::Columns after1{{kName, QStringLiteral("後")}}, after2{{kNote, QStringLiteral("後")}};
  EXPECT_FALSE(pair->update(id, after1, after2, &seen.first, &seen.second).ok());
  EXPECT_EQ(first(id), QStringLiteral("前"));
  EXPECT_EQ(second(id), QStringLiteral("他"));
  const auto again = *pair->read(id);
  EXPECT_TRUE(pair->update(id, after1, after2, &again.first, &again.second).ok());
  EXPECT_EQ(second(id), QStringLiteral("後"));
}

TEST_F(PairTest, RecordSetsOfTheFilesSeeTheStoreAtOnce) {
  RecordSet list = openSet(kFirst, kTable);
  const qint64 id = *pair->add({{kName, QStringLiteral("ｻﾄｳ")}}, {});
  ASSERT_TRUE(list.refresh().ok());
  EXPECT_EQ(list.value(kName), QStringLiteral("ｻﾄｳ"));
  list.setFilter(QStringLiteral("氏名 like '*さとう*'"));
  EXPECT_EQ(list.openRecordset()->recordCount(), 1);
  ASSERT_TRUE(pair->update(id, {{kName, QStringLiteral("別")}}, {}).ok());
  EXPECT_EQ(list.value(kName), QStringLiteral("別"));
  EXPECT_EQ(list.openRecordset()->recordCount(), 0);
}

TEST_F(PairTest, AFaultTakesAllOfATogetherBackAndARefusedCallOnlyItself) {
  const qint64 id = *pair->add({{kName, QStringLiteral("前")}}, {});
  const Done all = pair->together([&]() -> Done {
    EXPECT_TRUE(pair->update(id, {{kName, QStringLiteral("後")}}, {}).ok());
    EXPECT_EQ(first(id), QStringLiteral("後"));
    return Fault{QStringLiteral("停止")};
  });
  EXPECT_EQ(all.fault().message, QStringLiteral("停止"));
  EXPECT_EQ(first(id), QStringLiteral("前"));
  const Done some = pair->together([&]() -> Done {
    EXPECT_FALSE(pair->update(id, {{kName, QStringLiteral("半分")}}, {{kNote, QString(300, u'x')}}).ok());
    return {};
  });
  EXPECT_TRUE(some.ok());
  EXPECT_EQ(first(id), QStringLiteral("前"));
}

TEST_F(PairTest, AMissingSecondHalfReadsEmptyAndIsRepaired) {
  elsewhere(kFirst, "INSERT INTO \"保険申請\" (\"ID\",\"氏名\") VALUES (7,'甲')");
  EXPECT_EQ(first(7), QStringLiteral("甲"));
  EXPECT_TRUE(pair->read(7)->second.isEmpty());
  EXPECT_FALSE(pair->update(7, {{kName, QStringLiteral("乙")}}, {}).ok());
  EXPECT_EQ(first(7), QStringLiteral("甲"));
  ASSERT_TRUE(pair->repairSecond(7, {{QStringLiteral("Txt dummy1"), QStringLiteral("7")}}).ok());
  EXPECT_EQ(pair->read(7)->second.value(QStringLiteral("txt dummy1")), QStringLiteral("7"));
  EXPECT_FALSE(pair->repairSecond(8, {}).ok());
}

TEST_F(PairTest, AMissingFileIsToldByNameAndNotMade) {
  pair.reset();
  ASSERT_TRUE(QFile::remove(path(kSecond)));
  const auto opened = PairStore::open(path(kFirst), path(kSecond), kTable);
  ASSERT_FALSE(opened.ok());
  EXPECT_TRUE(opened.fault().message.contains(kSecond));
  EXPECT_FALSE(QFile::exists(path(kSecond)));
}

TEST_F(PairTest, AReadOnlyFileIsToldByName) {
  pair.reset();
  QFile::setPermissions(path(kSecond), QFile::ReadOwner);
  reopen();
  const Result<qint64> added = pair->add({}, {});
  ASSERT_FALSE(added.ok());
  EXPECT_TRUE(added.fault().message.contains(kSecond));
}

}  // namespace
}  // namespace store
