// A file of an older version gets the columns that it lacks when it is opened.

#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/store/bulk.h"
#include "platform/store/file_copy.h"
#include "platform/store/growth.h"
#include "platform/store/tests/cut_vfs.h"
#include "platform/store/tests/store_fixture.h"

namespace store {
namespace {

const QString kFees = QStringLiteral("料金設定2000.mdb");
const QString kFeeTable = QStringLiteral("料金設定");
const QString kKept = QStringLiteral("はり");
const QStringList kNew = {QStringLiteral("施術報告書交付料"), QStringLiteral("マ訪問施術325"),
                          QStringLiteral("特別地域")};

void run(const QString& at, const QString& sql) {
  sqlite3* handle = nullptr;
  sqlite3_open(QFile::encodeName(at).constData(), &handle);
  EXPECT_EQ(sqlite3_exec(handle, sql.toUtf8().constData(), nullptr, nullptr, nullptr), SQLITE_OK)
      << sqlite3_errmsg(handle);
  sqlite3_close(handle);
}

void dropColumns(const QString& at, const QString& table, const QStringList& columns) {
  for (const QString& column : columns)
    run(at, QStringLiteral("ALTER TABLE \"%1\" DROP COLUMN \"%2\"").arg(table, column));
}

QByteArray content(const QString& at) {
  QFile in(at);
  EXPECT_TRUE(in.open(QIODevice::ReadOnly));
  return in.readAll();
}

class CatalogueGrowthTest : public StoreTest {
 protected:
  /// The columns of a table as the file has them, without opening it for this program's own use.
  static QStringList columnsInFile(const QString& at, const QString& table) {
    const auto database = Database::openAsItIs(at);
    EXPECT_TRUE(database.ok());
    const auto set = database ? RecordSet::open(*database, table) : Result<RecordSet>(database.fault());
    QStringList found;
    for (const TableRow& row : catalogue()) {
      if (table != QStringView(row.table)) continue;
      for (const ColumnRow& column : row.columns) {
        const QString name = QString::fromUtf16(column.name);
        if (set && set->forEach({name}, [](RowViews) {}) && !found.contains(name)) found += name;
      }
    }
    return found;
  }
  /// A fee file of the time before the fees of `kNew`, with one edition.
  QString olderFees(const QString& name = kFees) const {
    const QString at = path(name);
    QFile::remove(at);
    EXPECT_TRUE(createFresh(at, kFees).ok());
    EXPECT_TRUE(addRows(at, kFeeTable, {{{kKept, QStringLiteral("1610")}}}).ok());
    dropColumns(at, kFeeTable, kNew);
    EXPECT_FALSE(columnsInFile(at, kFeeTable).contains(kNew[0]));
    return at;
  }
  static void expectGrown(const QString& at) {
    const auto database = Database::open(at);
    ASSERT_TRUE(database.ok()) << database.fault().message.toStdString();
    Result<RecordSet> set = RecordSet::open(*database, kFeeTable);
    ASSERT_TRUE(set.ok());
    EXPECT_EQ(column(*set, kKept), QStringList(QStringLiteral("1610")));
    ASSERT_TRUE(set->edit().ok());
    for (const QString& name : kNew) EXPECT_TRUE(set->setValue(name, QStringLiteral("7")).ok());
    EXPECT_TRUE(set->update().ok());
    for (const QString& name : kNew) EXPECT_EQ(column(*set, name), QStringList(QStringLiteral("7")));
  }
};

TEST_F(CatalogueGrowthTest, AnyTableOfAnyFileGetsTheColumnsThatItLacks) {
  for (const TableRow& row : catalogue()) {
    const QString file = QString::fromUtf16(row.file), table = QString::fromUtf16(row.table);
    SCOPED_TRACE((file + u' ' + table).toStdString());
    QStringList names;
    for (const ColumnRow& column : row.columns)
      if (!column.added && column.type != ColumnType::Counter) names += QString::fromUtf16(column.name);
    QFile::remove(path(file));
    const QString at = fresh(file);
    const QStringList before = columnsInFile(at, table);
    ASSERT_TRUE(addRows(at, table, {{{names.front(), QStringLiteral("1")}}}).ok());
    const QStringList gone =
        names.size() > 2 ? QStringList{names[names.size() / 2], names.back()} : QStringList(names.mid(1));
    dropColumns(at, table, gone);
    ASSERT_EQ(columnsInFile(at, table).size(), before.size() - gone.size());
    ASSERT_TRUE(Database::open(at).ok());
    EXPECT_EQ(columnsInFile(at, table), before);
    EXPECT_EQ(column(openSet(file, table), names.front()), QStringList(QStringLiteral("1")));
    const QByteArray bytes = content(at);
    ASSERT_TRUE(Database::open(at).ok());
    EXPECT_EQ(content(at), bytes) << "a file that lacks nothing is not written";
  }
}

TEST_F(CatalogueGrowthTest, AFileIsKnownByItsTablesWhateverItsName) {
  expectGrown(olderFees(QStringLiteral("fees of the office.mdb")));
  // Both halves of the claims have a table of one name.
  const QString table = QStringLiteral("保険申請");
  for (const auto& [file, lacks, other] : {std::tuple(u"保険申請2000_1.mdb", u"経過", u"c30"),
                                           std::tuple(u"保険申請2000_2.mdb", u"c30", u"経過")}) {
    const QString at = path(QStringLiteral("half.mdb"));
    QFile::remove(at);
    ASSERT_TRUE(createFresh(at, QString::fromUtf16(file)).ok());
    dropColumns(at, table, {QString::fromUtf16(lacks)});
    ASSERT_TRUE(Database::open(at).ok());
    const QStringList columns = columnsInFile(at, table);
    EXPECT_TRUE(columns.contains(QString::fromUtf16(lacks)));
    EXPECT_FALSE(columns.contains(QString::fromUtf16(other)));
  }
}

TEST_F(CatalogueGrowthTest, TheColumnsOfTheGrowthRunsWaitForTheirScreens) {
  const QString file = QStringLiteral("臨床QV2000N.mdb"), table = QStringLiteral("臨床QV");
  const QString at = path(file);
  ASSERT_TRUE(createFresh(at, file, FreshColumns::FirstSchema).ok());
  dropColumns(at, table, {QStringLiteral("会社名")});
  ASSERT_TRUE(Database::open(at).ok());
  EXPECT_TRUE(columnsInFile(at, table).contains(QStringLiteral("会社名")));
  EXPECT_FALSE(columnsInFile(at, table).contains(QStringLiteral("個人番号1")));
  EXPECT_TRUE(*needsGrowth(at, GrowthRun::Patient));
}

TEST_F(CatalogueGrowthTest, AFileThatMayOnlyBeReadOpensWithoutThem) {
  const QString at = olderFees();
  const QByteArray before = content(at);
  QFile::setPermissions(at, QFile::ReadOwner);
  RecordSet set = openSet(kFees, kFeeTable);
  EXPECT_EQ(column(set, kKept), QStringList(QStringLiteral("1610")));
  EXPECT_TRUE(set.value(kNew[0]).isNull());
  EXPECT_FALSE(set.fault());
  ASSERT_TRUE(set.edit().ok());
  EXPECT_FALSE(set.setValue(kNew[0], QStringLiteral("7")).ok());
  EXPECT_EQ(content(at), before);
}

TEST_F(CatalogueGrowthTest, AFileInUseElsewhereIsAFaultAndGrowsLater) {
  const QString at = olderFees();
  const auto own = Database::openAsItIs(at);
  ASSERT_TRUE(own.ok());
  sqlite3_busy_timeout((*own)->handle(), 10);
  sqlite3* other = nullptr;
  sqlite3_open(QFile::encodeName(at).constData(), &other);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
  const auto opened = Database::open(at);
  ASSERT_FALSE(opened.ok());
  EXPECT_TRUE(opened.fault().message.contains(u"使用中")) << opened.fault().message.toStdString();
  sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
  sqlite3_close(other);
  expectGrown(at);
}

TEST_F(CatalogueGrowthTest, ACopyIsTakenOfTheFileAsItIs) {
  const QString at = olderFees();
  const QByteArray before = content(at);
  const auto held = HeldFile::database(at);
  ASSERT_TRUE(held.ok());
  EXPECT_EQ(content(at), before);
}

TEST_F(CatalogueGrowthTest, ACutAtAnyMomentLeavesAllColumnsOrNone) {
  const QString at = olderFees(), start = path(QStringLiteral("start"));
  ASSERT_TRUE(QFile::copy(at, start));
  const qsizetype before = columnsInFile(at, kFeeTable).size();
  int cuts = 0;
  bool whole = false;
  for (int operations = 0; !whole; ++operations) {
    for (const QString& name : QDir(m_folder.path()).entryList(QDir::Files))
      if (name != u"start") QFile::remove(path(name));
    ASSERT_TRUE(QFile::copy(start, at));
    const pid_t child = ::fork();
    if (child == 0) {
      cutAfter(operations, operations % 2 ? Cut::Power : Cut::Kill, static_cast<unsigned>(operations));
      ::_exit(Database::open(at) ? 0 : 3);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status) && (WEXITSTATUS(status) == 0 || WEXITSTATUS(status) == kCutStatus));
    whole = WEXITSTATUS(status) == 0;
    cuts += !whole;
    const qsizetype after = columnsInFile(at, kFeeTable).size();
    EXPECT_TRUE(after == before || after == before + kNew.size()) << after << " at " << operations;
    expectGrown(at);
  }
  EXPECT_GT(cuts, 5);
}

TEST_F(CatalogueGrowthTest, ProgramsThatOpenOneFileAtOnceAddEachColumnAndEachRowOnce) {
  const QString at = olderFees();
  QList<QHash<QString, Value>> editions;
  for (int id = 1; id <= 3; ++id)
    editions += {{QStringLiteral("ID"), QString::number(id)}, {kNew[0], QString::number(100 * id)}};
  pid_t children[3];
  for (pid_t& child : children) {
    child = ::fork();
    if (child == 0) ::_exit(addNewerRows(at, kFeeTable, editions) ? 0 : 3);
  }
  for (const pid_t child : children) {
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  }
  const RecordSet set = openSet(kFees, kFeeTable);
  EXPECT_EQ(column(set, kKept).size(), 3);
  EXPECT_EQ(column(set, kNew[0]), QStringList({QString(), QStringLiteral("200"), QStringLiteral("300")}));
  const Result<int> again = addNewerRows(at, kFeeTable, editions);
  ASSERT_TRUE(again.ok());
  EXPECT_EQ(*again, 0);
}

TEST_F(CatalogueGrowthTest, ANewerRowWithAnUnknownColumnIsAFaultAndNoneIsAdded) {
  const QString at = olderFees();
  const Result<int> added = addNewerRows(
      at, kFeeTable,
      {{{QStringLiteral("ID"), QStringLiteral("2")}, {kKept, QStringLiteral("1700")}},
       {{QStringLiteral("ID"), QStringLiteral("3")}, {QStringLiteral("新料金"), QStringLiteral("1")}}});
  ASSERT_FALSE(added.ok());
  EXPECT_TRUE(added.fault().message.contains(QStringLiteral("新料金")));
  EXPECT_EQ(openSet(kFees, kFeeTable).recordCount(), 1);
}

}  // namespace
}  // namespace store
