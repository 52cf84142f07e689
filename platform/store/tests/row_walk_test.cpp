#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/store/bulk.h"
#include "platform/store/tests/store_fixture.h"

namespace store {
namespace {

const QString kFile = QStringLiteral("カルテ2データ2000.mdb");
const QString kTable = QStringLiteral("カルテ");
const QString kDate = QStringLiteral("治療日時");
const QString kShadow = QStringLiteral("治療日チェック");
const QString kKey = QStringLiteral("ETC1");

class RowWalkTest : public StoreTest {
 protected:
  void SetUp() override {
    fresh(kFile);
    fill(40);
  }
  void fill(int count) const {
    ASSERT_TRUE(addRows(path(kFile), kTable, count, [](int number) {
                  return QHash<QString, Value>{{kKey, QString::number(number % 4)},
                                               {kDate, QStringLiteral("日%1").arg(number + 1)}};
                }).ok());
  }
  RecordSet all() const { return openSet(kFile, kTable); }
  RecordSet ofKey(int key) const {
    RecordSet set = all();
    set.setFilter(QStringLiteral("ETC1 = '%1'").arg(key));
    set.setSort(QStringLiteral("ID DESC"));
    return std::move(*set.openRecordset());
  }
  static QStringList walked(const RecordSet& set, const QStringList& columns) {
    QStringList rows;
    const Done done = set.forEach(columns, [&](RowViews values) {
      QStringList row;
      for (const QStringView value : values)
        row += value.isNull() ? QStringLiteral("(null)") : value.toString();
      rows += row.join(u'|');
    });
    EXPECT_TRUE(done.ok()) << (done ? "" : done.fault().message.toStdString());
    return rows;
  }
  /// What another computer does to the file meanwhile.
  void elsewhere(const QString& statement) const {
    const pid_t child = ::fork();
    if (child == 0) {
      sqlite3* other = nullptr;
      sqlite3_open(QFile::encodeName(path(kFile)).constData(), &other);
      ::_exit(sqlite3_exec(other, statement.toUtf8().constData(), nullptr, nullptr, nullptr) == SQLITE_OK
                  ? 0
                  : 3);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  }
  static std::optional<Value> shadowOf(RowViews values) {
    return QStringLiteral("西暦") + values[0].mid(1).toString();
  }
};

TEST_F(RowWalkTest, TellsEveryRowOfTheSetInTheOrderOfTheIds) {
  RecordSet set = ofKey(1);
  set.setAbsolutePosition(3);
  const QStringList rows = walked(set, {QStringLiteral("ID"), kDate, kShadow, QStringLiteral("新患")});
  ASSERT_EQ(rows.size(), 10);
  EXPECT_EQ(rows.front(), QStringLiteral("2|日2|(null)|0"));
  EXPECT_EQ(rows.back(), QStringLiteral("38|日38|(null)|0"));
  EXPECT_EQ(set.absolutePosition(), 3);
  EXPECT_EQ(walked(all(), {kDate}).size(), 40);
}

TEST_F(RowWalkTest, GivesTheSameRowsWhetherTheyStandCloseOrFarApart) {
  fill(5000);
  RecordSet set = all();
  for (const int every : {1, 2, 15, 16, 17, 18, 100, 1999}) {
    QStringList terms, wanted;
    for (int id = 1; id <= 5040 && terms.size() < 200; id += every) {
      terms += QStringLiteral("ID = %1").arg(id);
      wanted += QString::number(id);
    }
    set.setFilter(terms.join(QStringLiteral(" or ")));
    const auto some = set.openRecordset();
    ASSERT_TRUE(some.ok());
    EXPECT_EQ(walked(*some, {QStringLiteral("ID")}), wanted) << every;
  }
}

TEST_F(RowWalkTest, PassesOverRowsThatWereDeletedMeanwhile) {
  RecordSet set = ofKey(2);
  elsewhere(QStringLiteral("DELETE FROM カルテ WHERE ID IN (3, 4, 7, 39)"));
  const QStringList rows = walked(set, {QStringLiteral("ID")});
  EXPECT_EQ(rows, (QStringList{QStringLiteral("11"), QStringLiteral("15"), QStringLiteral("19"),
                               QStringLiteral("23"), QStringLiteral("27"), QStringLiteral("31"),
                               QStringLiteral("35")}));
}

TEST_F(RowWalkTest, AnUnknownColumnIsTold) {
  const Done done = all().forEach({kDate, QStringLiteral("無い項目")}, [](RowViews) {});
  ASSERT_FALSE(done.ok());
  EXPECT_TRUE(done.fault().message.contains(QStringLiteral("無い項目")));
}

TEST_F(RowWalkTest, WritesOneColumnOfTheRowsOfTheSetAndOfNoOthers) {
  RecordSet set = ofKey(1);
  set.setAbsolutePosition(2);
  EXPECT_EQ(set.value(kShadow), Value());
  ASSERT_TRUE(set.updateAll({kDate}, kShadow, shadowOf).ok());
  EXPECT_EQ(set.absolutePosition(), 2);
  EXPECT_EQ(set.value(kShadow), QStringLiteral("西暦30"));
  EXPECT_EQ(set.lastModified(), kNoBookmark);
  EXPECT_EQ(column(set, kShadow).back(), QStringLiteral("西暦2"));
  set.setFilter(QStringLiteral("治療日チェック like '*西暦*' "));
  EXPECT_EQ(set.openRecordset()->recordCount(), 10);
  EXPECT_TRUE(all().valueAt(0, kShadow).isNull());
}

TEST_F(RowWalkTest, RowsWithoutANewValueAreNotWritten) {
  RecordSet set = all();
  ASSERT_TRUE(set.updateAll({kDate}, kShadow, shadowOf).ok());
  const quint32 counter = set.database()->handle() ? sqlite3_total_changes(set.database()->handle()) : 0;
  ASSERT_TRUE(set.updateAll({kDate}, kShadow, shadowOf).ok());
  ASSERT_TRUE(set.updateAll({kDate}, kShadow, [](RowViews) { return std::optional<Value>(); }).ok());
  EXPECT_EQ(sqlite3_total_changes(set.database()->handle()), static_cast<int>(counter));
}

TEST_F(RowWalkTest, ARefusedValueLeavesEveryRowAsItWas) {
  RecordSet set = all();
  int row = 0;
  const Done done = set.updateAll(
      {}, kShadow, [&](RowViews) -> std::optional<Value> { return QString(++row == 30 ? 256 : 3, u'長'); });
  ASSERT_FALSE(done.ok());
  EXPECT_TRUE(done.fault().message.contains(kShadow));
  for (const QString& value : column(all(), kShadow)) EXPECT_TRUE(value.isNull());
}

TEST_F(RowWalkTest, WhatAnotherComputerStoredIsSeenAndKept) {
  RecordSet set = all();
  set.moveFirst();
  EXPECT_EQ(set.value(kDate), QStringLiteral("日1"));
  elsewhere(QStringLiteral("UPDATE カルテ SET 治療日時='日99', 治療概略='よそで書いた' WHERE ID=1"));
  ASSERT_TRUE(set.updateAll({kDate}, kShadow, shadowOf).ok());
  RecordSet now = all();
  now.moveFirst();
  EXPECT_EQ(now.value(kShadow), QStringLiteral("西暦99"));
  EXPECT_EQ(now.value(QStringLiteral("治療概略")), QStringLiteral("よそで書いた"));
}

TEST_F(RowWalkTest, ALockedFileIsToldAndNothingIsWritten) {
  RecordSet set = all();
  sqlite3_busy_timeout(set.database()->handle(), 10);
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(QFile::encodeName(path(kFile)).constData(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
  const Done done = set.updateAll({kDate}, kShadow, shadowOf);
  ASSERT_FALSE(done.ok());
  EXPECT_TRUE(done.fault().message.contains(QStringLiteral("使用中"))) << done.fault().message.toStdString();
  sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
  sqlite3_close(other);
  EXPECT_TRUE(set.valueAt(0, kShadow).isNull());
  EXPECT_TRUE(set.updateAll({kDate}, kShadow, shadowOf).ok());
}

TEST_F(RowWalkTest, ARowThatIsBeingEnteredIsNotOverwritten) {
  RecordSet set = all();
  set.moveFirst();
  ASSERT_TRUE(set.edit().ok());
  ASSERT_TRUE(set.setValue(kDate, QStringLiteral("入力中")).ok());
  EXPECT_FALSE(set.updateAll({kDate}, kShadow, shadowOf).ok());
  EXPECT_EQ(set.value(kDate), QStringLiteral("入力中")) << "what was typed stays";
  EXPECT_TRUE(set.update().ok());
}

// The single store beside the bulk: another set of this program stands on the row with typed text.
TEST_F(RowWalkTest, AStoreOverARowThatTheBulkChangedIsRefusedAndKeepsWhatWasTyped) {
  RecordSet detail = all(), ledger = all();
  detail.moveFirst();
  ASSERT_TRUE(detail.edit().ok());
  ASSERT_TRUE(detail.setValue(QStringLiteral("治療概略"), QStringLiteral("打った文")).ok());
  ASSERT_TRUE(ledger.updateAll({kDate}, kShadow, shadowOf).ok());
  const Done done = detail.update();
  ASSERT_FALSE(done.ok());
  EXPECT_TRUE(done.fault().message.contains(QStringLiteral("変更されたため")))
      << done.fault().message.toStdString();
  EXPECT_EQ(detail.value(QStringLiteral("治療概略")), QStringLiteral("打った文"));
}

TEST_F(RowWalkTest, AStoreOverARowThatAnotherProgramChangedIsRefusedAndKeepsWhatWasTyped) {
  RecordSet set = all();
  set.moveFirst();
  ASSERT_TRUE(set.edit().ok());
  ASSERT_TRUE(set.setValue(QStringLiteral("治療概略"), QStringLiteral("打った文")).ok());
  elsewhere(QStringLiteral("UPDATE カルテ SET 治療概略='よそで書いた' WHERE ID=1"));
  const Done done = set.update();
  ASSERT_FALSE(done.ok());
  EXPECT_TRUE(done.fault().message.contains(QStringLiteral("変更されたため")));
  EXPECT_EQ(set.value(QStringLiteral("治療概略")), QStringLiteral("打った文"));
  EXPECT_EQ(all().valueAt(0, QStringLiteral("治療概略")), QStringLiteral("よそで書いた"));
}

}  // namespace
}  // namespace store
