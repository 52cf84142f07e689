// A row that cannot be read is a fault: never an empty row, never the end of the rows. The next try works
// when the cause is gone.

#include <QElapsedTimer>

#include "platform/store/bulk.h"
#include "platform/store/testing/broken_file.h"
#include "platform/store/tests/store_fixture.h"

namespace store {
namespace {

using broken::DamagedPage;
using broken::LockedFile;

const QString kFile = QStringLiteral("臨床QV2000N.mdb");
const QString kTable = QStringLiteral("臨床QV");
const QString kName = QStringLiteral("氏名");
const QString kNote = QStringLiteral("tmemo1");

class UnreadableTest : public StoreTest {
 protected:
  void SetUp() override {
    at = fresh(kFile);
    QList<QHash<QString, Value>> rows;
    for (int row = 1; row <= kRows; ++row)
      rows += broken::pageOfRow(*tableOfFile(kFile), {{kName, nameOf(row)}, {kNote, nameOf(row)}});
    ASSERT_TRUE(addRows(at, kTable, rows).ok());
  }
  static QString nameOf(int row) { return QStringLiteral("見本患者%1番").arg(row); }
  static void expectDamaged(const std::optional<Fault>& fault) {
    ASSERT_TRUE(fault);
    EXPECT_TRUE(fault->message.contains(QStringLiteral("壊れている"))) << fault->message.toStdString();
    EXPECT_TRUE(fault->message.contains(kFile));
  }
  static void expectBusy(const Fault& fault) {
    EXPECT_TRUE(fault.message.contains(QStringLiteral("使用中"))) << fault.message.toStdString();
    EXPECT_TRUE(fault.message.contains(kFile));
  }

  static constexpr int kRows = 7;
  static constexpr int kBroken = 4;
  QString at;
};

TEST_F(UnreadableTest, AMoveToARowBehindALockIsAFaultAndTheSetStaysOnItsRow) {
  RecordSet set = openSet(kFile, kTable);
  ASSERT_TRUE(set.readRow().ok());
  LockedFile other(at);
  const Done moved = set.moveAndRead(&RecordSet::moveNext);
  ASSERT_FALSE(moved.ok());
  expectBusy(moved.fault());
  EXPECT_EQ(set.absolutePosition(), 0);
  EXPECT_EQ(set.value(kName), nameOf(1)) << "the row at hand needs no file";
  EXPECT_EQ(set.value(kNote), nameOf(1));
  EXPECT_FALSE(set.fault());
  other.release();
  ASSERT_TRUE(set.moveAndRead(&RecordSet::moveNext).ok());
  EXPECT_EQ(set.value(kName), nameOf(2));
}

TEST_F(UnreadableTest, ADamagedPageHidesItsOwnRowAlone) {
  DamagedPage page(at, nameOf(kBroken));
  RecordSet set = openSet(kFile, kTable);
  ASSERT_EQ(set.recordCount(), kRows);
  for (int row = 1; row <= kRows; ++row) {
    const Done moved = set.moveAndRead([row](RecordSet& rows) { rows.setAbsolutePosition(row - 1); });
    EXPECT_EQ(moved.ok(), row != kBroken);
    EXPECT_EQ(set.value(kName), nameOf(row == kBroken ? row - 1 : row));
  }
  page.repair();
  set.setAbsolutePosition(kBroken - 1);
  ASSERT_TRUE(set.readRow().ok());
  EXPECT_EQ(set.value(kNote), nameOf(kBroken));
}

TEST_F(UnreadableTest, AValueThatCannotBeReadIsNullAndTheSetSaysWhy) {
  DamagedPage page(at, nameOf(kBroken));
  RecordSet set = openSet(kFile, kTable);
  set.setAbsolutePosition(kBroken - 1);
  EXPECT_FALSE(set.fault());
  EXPECT_TRUE(set.value(kName).isNull());
  expectDamaged(set.fault());
  set.moveNext();
  EXPECT_FALSE(set.fault()) << "it was of the other row";
  EXPECT_EQ(set.value(kName), nameOf(kBroken + 1));
  EXPECT_TRUE(set.valueAt(kBroken - 1, kName).isNull());
  expectDamaged(set.fault());
}

TEST_F(UnreadableTest, AListReadsTheRowsAroundADamagedOne) {
  DamagedPage page(at, nameOf(kBroken));
  RecordSet set = openSet(kFile, kTable);
  for (int row = 1; row <= kRows; ++row) {
    const Result<Value> value = set.readAt(row - 1, kName);
    EXPECT_EQ(value.ok(), row != kBroken);
    if (value) {
      EXPECT_EQ(*value, nameOf(row));
    } else {
      expectDamaged(value.fault());
    }
  }
  page.repair();
  EXPECT_EQ(*set.readAt(kBroken - 1, kName), nameOf(kBroken));
}

// A window of a list asks for some hundred cells: it must not wait for the file at each.
TEST_F(UnreadableTest, AListWaitsForALockedFileOnceAndReadsAgainAfterTheNextRow) {
  constexpr int kWait = 200;
  RecordSet set = openSet(kFile, kTable);
  LockedFile other(at, kWait);
  QElapsedTimer waited;
  waited.start();
  for (int look = 0; look < 30; ++look) {
    const Result<Value> value = set.readAt(look % kRows, kName);
    ASSERT_FALSE(value.ok());
    expectBusy(value.fault());
  }
  EXPECT_LT(waited.elapsed(), 5 * kWait);
  other.release();
  EXPECT_FALSE(set.readAt(1, kName).ok()) << "nobody has tried again yet";
  ASSERT_TRUE(set.readRow().ok());
  EXPECT_EQ(*set.readAt(1, kName), nameOf(2));
}

TEST_F(UnreadableTest, TheFormOfALockedRowWaitsOnce) {
  constexpr int kWait = 200;
  RecordSet set = openSet(kFile, kTable);
  LockedFile other(at, kWait);
  QElapsedTimer waited;
  waited.start();
  for (const ColumnRow& column : tableOfFile(kFile)->columns)
    EXPECT_TRUE(set.value(QString::fromUtf16(column.name)).isNull());
  EXPECT_LT(waited.elapsed(), 5 * kWait);
  ASSERT_TRUE(set.fault());
  other.release();
  ASSERT_TRUE(set.readRow().ok());
  EXPECT_EQ(set.value(kName), nameOf(1));
}

TEST_F(UnreadableTest, WhatGoesThroughManyRowsEndsWithTheFault) {
  DamagedPage page(at, nameOf(kBroken));
  RecordSet set = openSet(kFile, kTable);
  int rows = 0;
  const Done summed = set.forEach({kName}, [&](RowViews) { ++rows; });
  ASSERT_FALSE(summed.ok());
  expectDamaged(summed.fault());
  EXPECT_LT(rows, kRows);
  EXPECT_FALSE(set.findFirst(kName + QStringLiteral(" = '見本患者1番'")).ok());
  EXPECT_TRUE(set.noMatch());
  EXPECT_EQ(set.absolutePosition(), 0);
  set.setFilter(kName + QStringLiteral(" like '*7番'"));
  EXPECT_FALSE(set.openRecordset().ok());
  set.setFilter({});
  set.setSort(kName + QStringLiteral(" ASC"));
  EXPECT_FALSE(set.openRecordset().ok());
  EXPECT_FALSE(set.updateAll({kName}, kNote, [](RowViews) { return Value(); }).ok());
  set.setAbsolutePosition(kBroken - 1);
  EXPECT_FALSE(set.edit().ok());
  EXPECT_FALSE(set.editing());
  page.repair();
  EXPECT_TRUE(set.edit().ok());
  rows = 0;
  EXPECT_TRUE(set.forEach({kName}, [&](RowViews) { ++rows; }).ok());
  EXPECT_EQ(rows, kRows);
}

TEST_F(UnreadableTest, ReadingAgainBehindALockIsAFaultAndTheSetStaysAsItWas) {
  RecordSet set = openSet(kFile, kTable);
  ASSERT_TRUE(set.moveAndRead(&RecordSet::moveLast).ok());
  LockedFile other(at);
  const Done read = set.refresh();
  ASSERT_FALSE(read.ok());
  expectBusy(read.fault());
  EXPECT_EQ(set.recordCount(), kRows);
  EXPECT_EQ(set.absolutePosition(), kRows - 1);
  EXPECT_EQ(set.value(kName), nameOf(kRows));
  other.release();
  EXPECT_TRUE(set.refresh().ok());
}

TEST_F(UnreadableTest, ACursorStopsAtTheRowAndGoesOnFromIt) {
  Connection connection;
  ASSERT_TRUE(connection.open(connectionString(at)).ok());
  Result<Cursor> cursor = Cursor::open(connection, QStringLiteral("SELECT * FROM 臨床QV"));
  ASSERT_TRUE(cursor.ok());
  ASSERT_TRUE(*cursor->next());
  EXPECT_EQ(cursor->value(kName), nameOf(1));
  LockedFile other(at);
  for (int attempt = 0; attempt < 2; ++attempt) {
    const Result<bool> row = cursor->next();
    ASSERT_FALSE(row.ok()) << "neither a row nor the end";
    expectBusy(row.fault());
  }
  other.release();
  QStringList names;
  for (Result<bool> row = cursor->next(); row.ok() && *row; row = cursor->next())
    names += cursor->value(kName);
  EXPECT_EQ(names.size(), kRows - 1);
  EXPECT_EQ(names.value(0), nameOf(2));
  EXPECT_FALSE(*cursor->next());
}

TEST_F(UnreadableTest, ACursorReportsAValueThatItCouldNotRead) {
  Connection connection;
  ASSERT_TRUE(connection.open(connectionString(at)).ok());
  Result<Cursor> cursor = Cursor::open(connection, QStringLiteral("SELECT * FROM 臨床QV"));
  ASSERT_TRUE(cursor.ok());
  ASSERT_TRUE(*cursor->next());
  EXPECT_TRUE(cursor->check().ok());
  {
    const LockedFile other(at);
    EXPECT_TRUE(cursor->value(kName).isNull());
  }
  ASSERT_FALSE(cursor->check().ok());
  expectBusy(cursor->check().fault());
  const Result<bool> row = cursor->next();
  ASSERT_FALSE(row.ok()) << "the row before is not passed over in silence";
  expectBusy(row.fault());
}

// Reading ahead is no looking: a store is refused for the columns that were asked for alone.
TEST_F(UnreadableTest, WhatNobodyAskedForMayChangeMeanwhile) {
  const auto storedAfterAChangeOf = [this](const QString& column) {
    RecordSet set = openSet(kFile, kTable);
    EXPECT_EQ(set.value(kName), nameOf(1));  // learnt as what is asked of every row
    EXPECT_TRUE(set.moveAndRead(&RecordSet::moveNext).ok());
    EXPECT_FALSE(set.value(kName).isNull());
    sqlite3* other = nullptr;
    sqlite3_open(QFile::encodeName(at).constData(), &other);
    const QByteArray sql = QStringLiteral("UPDATE 臨床QV SET %1 = '別' WHERE ID = 2").arg(column).toUtf8();
    EXPECT_EQ(sqlite3_exec(other, sql.constData(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(other);
    EXPECT_TRUE(set.edit().ok());
    EXPECT_TRUE(set.setValue(QStringLiteral("職業"), QStringLiteral("見本")).ok());
    return set.update().ok();
  };
  EXPECT_TRUE(storedAfterAChangeOf(kNote));
  EXPECT_FALSE(storedAfterAChangeOf(kName));
}

}  // namespace
}  // namespace store
