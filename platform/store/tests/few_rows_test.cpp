#include <sqlite3.h>

#include <functional>
#include <random>

#include "platform/store/bulk.h"
#include "platform/store/tests/store_fixture.h"
#include "platform/text/fold.h"

namespace store {
namespace {

const QString kFile = QStringLiteral("カルテ2データ2000.mdb");
const QString kTable = QStringLiteral("カルテ");
const QString kKey = QStringLiteral("ETC1");
const QString kDate = QStringLiteral("治療日チェック");
constexpr int kRows = 6000;

/// Keys of patients in every way in which they get into the column.
QString keyOf(int number) {
  constexpr const char16_t* kOdd[] = {u"",  u" ", u"２０２４０００７", u"abc", u"ＡＢＣ", u"ｶﾅ", u"カナ",
                                      u"*", u"?", u"20240007 "};
  if (number % 101 == 0) return QString();
  if (number % 53 == 0) return QString::fromUtf16(kOdd[number / 53 % std::size(kOdd)]);
  return QStringLiteral("2024%1").arg(number * 7 % 211, 4, 10, QLatin1Char('0'));
}
QString dateOf(int number) { return QStringLiteral("2024/%1/%2").arg(number % 12 + 1).arg(number % 28 + 1); }

/// Narrowing that leaves few rows of many reads those alone; what it gives must be what a scan gives.
class FewRowsTest : public StoreTest {
 protected:
  void SetUp() override {
    fresh(kFile);
    ASSERT_TRUE(addRows(path(kFile), kTable, {kKey, kDate}, kRows, [](int number, QStringList& values) {
                  values = {keyOf(number), dateOf(number)};
                }).ok());
  }
  /// IDs by a plain look at every row: folded texts that hold the folded part.
  static QList<qint64> scanned(const QString& part) {
    QList<qint64> ids;
    const QString sought = text::foldForComparison(part);
    for (int number = 0; number < kRows; ++number)
      if (!keyOf(number).isNull() && text::foldForComparison(keyOf(number)).contains(sought))
        ids += number + 1;
    return ids;
  }
  static QList<qint64> idsOf(RecordSet& set) {
    QList<qint64> ids;
    for (int row = 0; row < set.recordCount(); ++row) {
      set.setAbsolutePosition(row);
      ids += set.bookmark();
    }
    return ids;
  }
  /// What another program writes meanwhile.
  void elsewhere(const QByteArray& statement) const {
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(QFile::encodeName(path(kFile)).constData(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, statement.constData(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(other);
  }
  Result<RecordSet> ofKey(const QString& part, const QString& sort = {}) const {
    RecordSet all = openSet(kFile, kTable);
    all.setFilter(QStringLiteral("ETC1 like '*%1*' ").arg(part));
    Result<RecordSet> found = all.openRecordset();
    if (!found || sort.isEmpty()) return found;
    found->setSort(sort);
    return found->openRecordset();
  }
};

TEST_F(FewRowsTest, AnyPartOfAKeyGivesWhatAScanGives) {
  for (const char16_t* part : {u"20240007", u"2024", u"0007", u"7", u"２０２４０００７", u"", u" ", u"ABC",
                               u"ａｂｃ", u"かな", u"ｶﾅ", u"20240007 ", u"無い", u"０００７"}) {
    const QString text = QString::fromUtf16(part);
    Result<RecordSet> found = ofKey(text);
    ASSERT_TRUE(found.ok());
    EXPECT_EQ(idsOf(*found), scanned(text)) << text.toStdString();
  }
}

TEST_F(FewRowsTest, FewRowsAreSortedAsManyAre) {
  for (const QString& sort : {QStringLiteral("治療日チェック ASC"), QStringLiteral("治療日チェック DESC")}) {
    QList<qint64> wanted = scanned(QStringLiteral("20240007"));
    ASSERT_GT(wanted.size(), 5);
    ASSERT_LT(wanted.size() * 16, kRows);
    const bool descending = sort.endsWith(u"DESC");
    std::stable_sort(wanted.begin(), wanted.end(), [&](qint64 a, qint64 b) {
      const auto day = [](qint64 id) {
        return QDate::fromString(dateOf(static_cast<int>(id) - 1), QStringLiteral("yyyy/M/d"));
      };
      const QDate left = day(a), right = day(b);
      return descending ? left > right : left < right;
    });
    Result<RecordSet> alone = ofKey(QStringLiteral("20240007"), sort);
    ASSERT_TRUE(alone.ok());
    EXPECT_EQ(idsOf(*alone), wanted);
    RecordSet all = openSet(kFile, kTable);  // now the whole column is in memory
    all.setSort(sort);
    ASSERT_TRUE(all.openRecordset().ok());
    Result<RecordSet> inMemory = ofKey(QStringLiteral("20240007"), sort);
    EXPECT_EQ(idsOf(*inMemory), wanted);
  }
}

TEST_F(FewRowsTest, OwnWritesAreSeenByTheNextSearch) {
  RecordSet mine = std::move(*ofKey(QStringLiteral("20240007")));
  const int before = mine.recordCount();
  mine.moveFirst();
  ASSERT_TRUE(mine.edit().ok() && mine.setValue(kKey, QStringLiteral("20249999")).ok() && mine.update().ok());
  RecordSet all = openSet(kFile, kTable);
  add(all, {{kKey, QStringLiteral("20249999")}, {kDate, QStringLiteral("2025/1/1")}});
  EXPECT_EQ(ofKey(QStringLiteral("20240007"))->recordCount(), before - 1);
  EXPECT_EQ(ofKey(QStringLiteral("9999"), QStringLiteral("治療日チェック ASC"))->recordCount(), 2);
}

TEST_F(FewRowsTest, AnotherProgramsWritesAreSeenByTheNextSearch) {
  const RecordSet held = openSet(kFile, kTable);
  const int before = ofKey(QStringLiteral("20240007"))->recordCount();
  elsewhere("INSERT INTO カルテ (ETC1) VALUES ('20240007')");
  Result<RecordSet> found = ofKey(QStringLiteral("20240007"), QStringLiteral("治療日チェック ASC"));
  ASSERT_EQ(found->recordCount(), before + 1);
  EXPECT_EQ(idsOf(*found).front(), kRows + 1) << "no date stands before all dates";
}

// A store of what stands already, or the deletion of a row that is gone, leaves the file's counter alone: the
// next writer's count must not be taken for this one's.
TEST_F(FewRowsTest, AWriteThatChangesNothingHidesNoWriteOfAnotherProgram) {
  RecordSet mine = std::move(*ofKey(QStringLiteral("20240007")));
  const int before = mine.recordCount();
  mine.moveFirst();
  ASSERT_TRUE(mine.edit().ok() && mine.setValue(kKey, mine.value(kKey)).ok() && mine.update().ok());
  elsewhere("INSERT INTO カルテ (ETC1) VALUES ('20240007')");
  EXPECT_EQ(ofKey(QStringLiteral("20240007"))->recordCount(), before + 1);

  ASSERT_TRUE(mine.edit().ok() && mine.update().ok());
  elsewhere("INSERT INTO カルテ (ETC1) VALUES ('20240007')");
  EXPECT_EQ(ofKey(QStringLiteral("20240007"))->recordCount(), before + 2);

  elsewhere(QStringLiteral("DELETE FROM カルテ WHERE ID=%1").arg(mine.bookmark()).toUtf8());
  EXPECT_EQ(ofKey(QStringLiteral("20240007"))->recordCount(), before + 1);
  ASSERT_TRUE(mine.remove().ok());
  elsewhere("INSERT INTO カルテ (ETC1) VALUES ('20240007')");
  EXPECT_EQ(ofKey(QStringLiteral("20240007"))->recordCount(), before + 2);

  Connection connection;
  ASSERT_TRUE(connection.open(connectionString(path(kFile))).ok());
  ASSERT_TRUE(connection.execute(QStringLiteral("UPDATE カルテ SET 新患 = 0 WHERE ID = 1")).ok());
  elsewhere("INSERT INTO カルテ (ETC1) VALUES ('20240007')");
  EXPECT_EQ(ofKey(QStringLiteral("20240007"))->recordCount(), before + 3);
}

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A copy of the file is put back by hand while the program is open. First over the bytes of the file: its
// counter goes back, and this program's next write brings it to where it was.
TEST_F(FewRowsTest, BytesThatWerePutBackAreSeenByTheNextSearch) {
  const QString key = QStringLiteral("20240007");
  RecordSet mine = openSet(kFile, kTable);
  const int before = ofKey(key)->recordCount();
  const QByteArray kept = bytesOf(path(kFile));
  const auto putBack = [&] {
    QFile file(path(kFile));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.write(kept) == kept.size() &&
                file.resize(kept.size()));
  };
  for (const bool writes : {false, true}) {
    elsewhere("UPDATE カルテ SET ETC1='20240007' WHERE ID IN (3, 4)");
    EXPECT_EQ(ofKey(key)->recordCount(), before + 2);
    putBack();
    if (writes) {
      mine.moveLast();
      ASSERT_TRUE(mine.edit().ok() && mine.setValue(kKey, QStringLiteral("20249999")).ok());
      ASSERT_TRUE(mine.update().ok());
    }
    EXPECT_EQ(ofKey(key)->recordCount(), before) << writes;
  }
}

// Then as another file under the same name. What is open goes on with the file that was replaced and may not
// store into it, for that would be lost; what is opened from then on is the file put back.
TEST_F(FewRowsTest, AFileThatWasPutBackIsNeverWrittenPast) {
  const QString key = QStringLiteral("20240007"), spare = path(QStringLiteral("spare"));
  RecordSet mine = std::move(*ofKey(key));
  const int before = mine.recordCount();
  ASSERT_TRUE(QFile::copy(path(kFile), spare));
  elsewhere("UPDATE カルテ SET ETC1='20240007' WHERE ID IN (3, 4)");
  ASSERT_TRUE(mine.refresh().ok());
  EXPECT_EQ(mine.recordCount(), before + 2);
  ASSERT_EQ(::rename(QFile::encodeName(spare).constData(), QFile::encodeName(path(kFile)).constData()), 0);

  ASSERT_TRUE(mine.edit().ok() && mine.setValue(kDate, QStringLiteral("2030/1/1")).ok());
  const Done stored = mine.update();
  ASSERT_FALSE(stored.ok());
  EXPECT_TRUE(stored.fault().message.contains(u"置き換えられた")) << stored.fault().message.toStdString();
  EXPECT_EQ(mine.value(kDate), QStringLiteral("2030/1/1")) << "what was typed stays";
  EXPECT_TRUE(mine.editing());
  EXPECT_FALSE(mine.remove().ok());

  RecordSet again = std::move(*ofKey(key));
  EXPECT_EQ(again.recordCount(), before);
  ASSERT_TRUE(again.edit().ok() && again.setValue(kDate, QStringLiteral("2030/1/1")).ok());
  ASSERT_TRUE(again.update().ok());
  EXPECT_EQ(ofKey(key)->value(kDate), QStringLiteral("2030/1/1"));
}

// Whoever writes, and whether this program looked in between or not: a search gives what a scan of the file
// gives.
TEST_F(FewRowsTest, HandsOfEveryKindAreSeenByTheNextSearch) {
  std::mt19937 random{5};
  RecordSet mine = openSet(kFile, kTable);
  Connection connection;
  ASSERT_TRUE(connection.open(connectionString(path(kFile))).ok());
  QByteArray kept = bytesOf(path(kFile));
  const auto key = [&] { return QStringLiteral("2024%1").arg(random() % 4, 4, 10, QLatin1Char('0')); };
  const auto id = [&] { return QString::number(random() % kRows + 1); };
  const auto onSomeRow = [&](const std::function<bool()>& work) {
    mine.setAbsolutePosition(static_cast<int>(random() % static_cast<unsigned>(mine.recordCount())));
    if (!work()) mine.cancelUpdate();  // another one changed or deleted it
  };
  const std::function<void()> hands[] = {
      [&] { onSomeRow([&] { return mine.edit() && mine.setValue(kKey, key()) && mine.update(); }); },
      [&] { onSomeRow([&] { return mine.remove().ok(); }); },
      [&] {
        add(mine, {{kKey, key()}, {kDate, QStringLiteral("2025/1/1")}});
      },
      [&] {
        (void)connection.execute(
            QStringLiteral("UPDATE カルテ SET ETC1 = '%1' WHERE ID = %2").arg(key(), id()));
      },
      [&] { elsewhere(QStringLiteral("UPDATE カルテ SET ETC1='%1' WHERE ID=%2").arg(key(), id()).toUtf8()); },
      [&] { elsewhere(QStringLiteral("INSERT INTO カルテ (ETC1) VALUES ('%1')").arg(key()).toUtf8()); },
      [&] { elsewhere(QStringLiteral("DELETE FROM カルテ WHERE ID=%1").arg(id()).toUtf8()); },
      [&] { kept = bytesOf(path(kFile)); },
      [&] {
        QFile file(path(kFile));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.write(kept) == kept.size());
        ASSERT_TRUE(file.resize(kept.size()));
        file.close();
        add(mine, {{kKey, key()}});
      },
  };
  for (int step = 0; step < 200; ++step) {
    const size_t hand = random() % std::size(hands);
    hands[hand]();
    if (HasFatalFailure()) return;
    if (random() % 2) continue;
    if (random() % 8 == 0) {
      ASSERT_TRUE(mine.refresh().ok());
    }
    const QString sought = key();
    QList<qint64> wanted;
    sqlite3* other = nullptr;
    sqlite3_stmt* rows = nullptr;
    ASSERT_EQ(sqlite3_open(QFile::encodeName(path(kFile)).constData(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_prepare_v2(other, "SELECT ID, ETC1 FROM カルテ ORDER BY ID", -1, &rows, nullptr),
              SQLITE_OK);
    while (sqlite3_step(rows) == SQLITE_ROW) {
      const auto* text = static_cast<const QChar*>(sqlite3_column_text16(rows, 1));
      if (text && text::foldForComparison(QString(text)).contains(text::foldForComparison(sought)))
        wanted += sqlite3_column_int64(rows, 0);
    }
    sqlite3_finalize(rows);
    sqlite3_close(other);
    Result<RecordSet> found = ofKey(sought);
    ASSERT_TRUE(found.ok());
    ASSERT_EQ(idsOf(*found), wanted) << "step " << step << " hand " << hand;
  }
}

TEST_F(FewRowsTest, ValuesWithoutQuotesNarrowOneAfterAnother) {
  const QString file = QStringLiteral("予約2000.mdb"), table = QStringLiteral("予約");
  fresh(file);
  ASSERT_TRUE(addRows(path(file), table,
                      {QStringLiteral("予約年"), QStringLiteral("予約月"), QStringLiteral("予約日"),
                       QStringLiteral("予約時間")},
                      3000,
                      [](int number, QStringList& values) {
                        values = {QString::number(2023 + number % 2), QString::number(number % 12 + 1),
                                  QString::number(number % 31 + 1),
                                  QStringLiteral("%1 時 0 分").arg(8 + number % 11)};
                      })
                  .ok());
  RecordSet set = openSet(file, table);
  for (const QString& filter : {QStringLiteral("予約年 like 2024"), QStringLiteral("予約月 like 2"),
                                QStringLiteral("予約日 like 2 ")}) {
    set.setFilter(filter);
    set = std::move(*set.openRecordset());
  }
  set.setFilter(QString());
  set.setSort(QStringLiteral("予約時間 ASC"));
  set = std::move(*set.openRecordset());
  QStringList wanted;
  for (int number = 0; number < 3000; ++number)
    if (number % 2 == 1 && number % 12 == 1 && number % 31 == 1)
      wanted += QStringLiteral("%1 時 0 分").arg(8 + number % 11);
  std::sort(wanted.begin(), wanted.end());
  ASSERT_GT(wanted.size(), 3);
  EXPECT_EQ(column(set, QStringLiteral("予約時間")), wanted) << "10 時 stands before 9 時";
}

}  // namespace
}  // namespace store
