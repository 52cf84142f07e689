#include "platform/store/growth.h"

#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QMap>
#include <QRegularExpression>

#include "platform/store/bulk.h"
#include "platform/store/integrity.h"
#include "platform/store/tests/cut_vfs.h"
#include "platform/store/tests/store_fixture.h"

namespace store {
namespace {

struct RunRow {
  GrowthRun run;
  const char* file;
  const char* table;
  const char* marker;
  const char* type;
  int columns;
  const char* note;  ///< a column of the first schema
};

// The second half's first run: d1 to d31, e1 to e31, ten texts, five numbers, five yes/no, three memos.
constexpr RunRow kRuns[] = {
    {GrowthRun::Patient, "臨床QV2000N.mdb", "臨床QV", "個人番号1", "TEXT(255)", 88, "氏名"},
    {GrowthRun::Visit, "カルテ2データ2000.mdb", "カルテ", "d1", "TEXT(255)", 123, "治療概略"},
    {GrowthRun::Claim1, "保険申請2000_2.mdb", "保険申請", "d1", "TEXT(255)", 85, "c1"},
    {GrowthRun::Claim2, "保険申請2000_2.mdb", "保険申請", "h1", "TEXT", 8, "c1"},
};

QString qs(const char* text) { return QString::fromUtf8(text); }

class GrowthTest : public StoreTest, public testing::WithParamInterface<RunRow> {
 protected:
  /// A file of the first schema with two rows.
  QString older(const RunRow& run) const {
    const QString at = path(qs(run.file));
    QFile::remove(at);
    const Done made = createFresh(at, qs(run.file), FreshColumns::FirstSchema);
    EXPECT_TRUE(made.ok()) << (made ? "" : made.fault().message.toStdString());
    EXPECT_TRUE(
        addRows(at, qs(run.table), {{{qs(run.note), u"見本"_qs}}, {{qs(run.note), u"例示"_qs}}}).ok());
    return at;
  }
  /// Column names and declared types as the file itself tells them, in its order.
  static QList<std::pair<QString, QString>> columnsInFile(const QString& at, const QString& table) {
    QList<std::pair<QString, QString>> columns;
    sqlite3* handle = nullptr;
    sqlite3_stmt* rows = nullptr;
    sqlite3_open(QFile::encodeName(at).constData(), &handle);
    const QByteArray sql = QStringLiteral("PRAGMA table_info(\"%1\")").arg(table).toUtf8();
    sqlite3_prepare_v2(handle, sql.constData(), -1, &rows, nullptr);
    while (sqlite3_step(rows) == SQLITE_ROW) {
      const auto text = [&](int place) {
        return qs(reinterpret_cast<const char*>(sqlite3_column_text(rows, place)));
      };
      columns.append({text(1), text(2)});
    }
    sqlite3_finalize(rows);
    sqlite3_close(handle);
    return columns;
  }
  static QByteArray content(const QString& at) {
    QFile in(at);
    EXPECT_TRUE(in.open(QIODevice::ReadOnly));
    return in.readAll();
  }
  static QStringList alters(const RunRow& run) {
    QStringList texts;
    for (const ColumnRow& column : tableOfFile(qs(run.file))->columns) {
      const QString name = QString::fromUtf16(column.name);
      const QRegularExpression second(u"^[hm][1-4]$"_qs);
      const bool ofSecond = second.match(name).hasMatch();
      const bool here = run.run == GrowthRun::Claim1   ? !ofSecond
                        : run.run == GrowthRun::Claim2 ? ofSecond
                                                       : true;
      const char* words[] = {"", "TEXT(255)", "TEXT", "integer", "yesno"};
      if (column.added && here)
        texts += QStringLiteral("ALTER TABLE %1 ADD COLUMN %2 %3")
                     .arg(qs(run.table), name, qs(words[static_cast<int>(column.type)]));
    }
    return texts;
  }
  void expectGrown(const RunRow& run, const QString& at, qsizetype columnsBefore) const {
    const auto needed = needsGrowth(at, run.run);
    ASSERT_TRUE(needed.ok());
    EXPECT_FALSE(*needed);
    const auto columns = columnsInFile(at, qs(run.table));
    EXPECT_EQ(columns.size(), columnsBefore + run.columns);
    QMap<QString, int> times;
    for (const auto& column : columns) ++times[column.first];
    for (auto name = times.cbegin(); name != times.cend(); ++name) EXPECT_EQ(name.value(), 1);
    EXPECT_TRUE(checkIntegrity(at).ok());
    RecordSet set = openSet(qs(run.file), qs(run.table));
    EXPECT_EQ(column(set, qs(run.note)), (QStringList{u"見本"_qs, u"例示"_qs}));
  }
};

TEST_P(GrowthTest, AnOlderFileGetsTheColumnsOfTheRunAndKeepsItsRows) {
  const RunRow& run = GetParam();
  const QString at = older(run);
  const auto before = columnsInFile(at, qs(run.table));
  ASSERT_TRUE(*needsGrowth(at, run.run));
  const Done done = grow(at, run.run);
  ASSERT_TRUE(done.ok()) << done.fault().message.toStdString();
  expectGrown(run, at, before.size());
  const auto after = columnsInFile(at, qs(run.table));
  EXPECT_EQ(after.mid(0, before.size()), before) << "what stood stays in its place";
  EXPECT_TRUE(after.contains(std::pair(qs(run.marker), qs(run.type))));
  const QByteArray bytes = content(at);
  EXPECT_TRUE(grow(at, run.run).ok()) << "a second run does nothing";
  EXPECT_EQ(content(at), bytes);
}

TEST_P(GrowthTest, ARunCutOffByAnOlderProgramIsCompleted) {
  const RunRow& run = GetParam();
  const QStringList texts = alters(run);
  ASSERT_EQ(texts.size(), run.columns);
  for (const qsizetype done : {qsizetype(1), texts.size() / 2, texts.size() - 1}) {
    const QString at = older(run);
    const qsizetype before = columnsInFile(at, qs(run.table)).size();
    {
      Connection connection;
      ASSERT_TRUE(connection.open(connectionString(at)).ok());
      for (const QString& text : texts.mid(0, done)) ASSERT_TRUE(connection.execute(text).ok());
    }
    EXPECT_TRUE(*needsGrowth(at, run.run)) << "the marker alone says nothing";
    ASSERT_TRUE(grow(at, run.run).ok());
    expectGrown(run, at, before);
  }
}

TEST_P(GrowthTest, AnOpenFileSeesTheNewColumnsAndWritesThem) {
  const RunRow& run = GetParam();
  const QString at = older(run);
  RecordSet set = openSet(qs(run.file), qs(run.table));
  set.moveFirst();
  EXPECT_TRUE(set.value(qs(run.marker)).isNull());
  ASSERT_TRUE(grow(at, run.run).ok());
  ASSERT_TRUE(set.refresh().ok());
  ASSERT_TRUE(set.edit().ok());
  ASSERT_TRUE(set.setValue(qs(run.marker), u"書いた"_qs).ok());
  ASSERT_TRUE(set.update().ok());
  EXPECT_EQ(set.value(qs(run.marker)), u"書いた"_qs);
  EXPECT_EQ(set.value(qs(run.note)), u"見本"_qs);
}

// A form that is open meanwhile keeps what was typed, and stores it.
TEST_P(GrowthTest, ARowThatIsBeingEditedIsStoredAfterwards) {
  const RunRow& run = GetParam();
  const QString at = older(run);
  RecordSet set = openSet(qs(run.file), qs(run.table)), list = openSet(qs(run.file), qs(run.table));
  set.moveFirst();
  ASSERT_TRUE(set.edit().ok() && set.setValue(qs(run.note), u"書いた"_qs).ok());
  ASSERT_TRUE(grow(at, run.run).ok());
  EXPECT_EQ(set.value(qs(run.note)), u"書いた"_qs);
  const Done stored = set.update();
  ASSERT_TRUE(stored.ok()) << stored.fault().message.toStdString();
  ASSERT_TRUE(list.refresh().ok());
  EXPECT_EQ(column(list, qs(run.note)), (QStringList{u"書いた"_qs, u"例示"_qs}));
  list.setFilter(qs(run.marker) + u" like '*'"_qs);
  const auto found = list.openRecordset();
  ASSERT_TRUE(found.ok()) << found.fault().message.toStdString();
}

TEST_P(GrowthTest, AFileThatMayOnlyBeReadIsToldAndStaysAsItWas) {
  const RunRow& run = GetParam();
  const QString at = older(run);
  const QByteArray before = content(at);
  QFile::setPermissions(at, QFile::ReadOwner);
  EXPECT_TRUE(*needsGrowth(at, run.run));
  const Done done = grow(at, run.run);
  ASSERT_FALSE(done.ok());
  EXPECT_TRUE(done.fault().message.contains(u"読み取り専用")) << done.fault().message.toStdString();
  EXPECT_TRUE(done.fault().message.contains(qs(run.file)));
  EXPECT_EQ(content(at), before);
}

TEST_P(GrowthTest, AMissingOrDamagedFileIsToldAndStaysAsItWas) {
  const RunRow& run = GetParam();
  const QString at = path(qs(run.file));
  EXPECT_FALSE(needsGrowth(at, run.run).ok());
  EXPECT_FALSE(grow(at, run.run).ok());
  EXPECT_FALSE(QFile::exists(at));
  older(run);
  ASSERT_TRUE(QFile::resize(at, QFileInfo(at).size() / 2));
  const QByteArray before = content(at);
  EXPECT_FALSE(needsGrowth(at, run.run).ok());
  const Done done = grow(at, run.run);
  ASSERT_FALSE(done.ok());
  EXPECT_TRUE(done.fault().message.contains(qs(run.file)));
  EXPECT_EQ(content(at), before);
}

TEST_P(GrowthTest, AFileThatIsHeldElsewhereIsToldAndGrowsLater) {
  const RunRow& run = GetParam();
  const QString at = older(run);
  const RecordSet set = openSet(qs(run.file), qs(run.table));
  sqlite3_busy_timeout(set.database()->handle(), 10);
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(QFile::encodeName(at).constData(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
  const qsizetype before = columnsInFile(at, qs(run.table)).size();
  const Done done = grow(at, run.run);
  ASSERT_FALSE(done.ok());
  EXPECT_TRUE(done.fault().message.contains(u"使用中")) << done.fault().message.toStdString();
  EXPECT_EQ(columnsInFile(at, qs(run.table)).size(), before);
  sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
  sqlite3_close(other);
  ASSERT_TRUE(grow(at, run.run).ok());
  expectGrown(run, at, before);
}

TEST_P(GrowthTest, ACutAtAnyMomentLeavesAllColumnsOrNoneAndTheNextRunCompletes) {
  const RunRow& run = GetParam();
  const QString start = older(run) + u".start"_qs, at = path(qs(run.file));
  QFile::remove(start);
  ASSERT_TRUE(QFile::copy(at, start));
  const qsizetype before = columnsInFile(at, qs(run.table)).size();
  int cuts = 0, completed = 0;
  bool whole = false;
  for (int operations = 0; !whole; ++operations) {
    for (const QString& name : QDir(m_folder.path()).entryList(QDir::Files))
      if (!name.endsWith(u".start")) QFile::remove(path(name));
    ASSERT_TRUE(QFile::copy(start, at));
    const pid_t child = ::fork();
    if (child == 0) {
      cutAfter(operations, operations % 2 ? Cut::Power : Cut::Kill, static_cast<unsigned>(operations));
      ::_exit(grow(at, run.run) ? 0 : 3);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status) && (WEXITSTATUS(status) == 0 || WEXITSTATUS(status) == kCutStatus));
    whole = WEXITSTATUS(status) == 0;
    cuts += !whole;
    const qsizetype after = columnsInFile(at, qs(run.table)).size();
    EXPECT_TRUE(after == before || after == before + run.columns) << after << " at " << operations;
    completed += after == before;
    const Done done = grow(at, run.run);
    ASSERT_TRUE(done.ok()) << done.fault().message.toStdString();
    expectGrown(run, at, before);
  }
  EXPECT_GT(cuts, 5);
  EXPECT_GT(completed, 0);
}

// Two computers that open the screen at once.
TEST_P(GrowthTest, ProgramsThatGrowOneFileAtOnceAddEachColumnOnce) {
  const RunRow& run = GetParam();
  const QString at = older(run);
  const qsizetype before = columnsInFile(at, qs(run.table)).size();
  pid_t children[3];
  for (pid_t& child : children) {
    child = ::fork();
    if (child == 0) ::_exit(grow(at, run.run) ? 0 : 3);
  }
  for (const pid_t child : children) {
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  }
  expectGrown(run, at, before);
}

INSTANTIATE_TEST_SUITE_P(Runs, GrowthTest, testing::ValuesIn(kRuns),
                         [](const auto& of) { return "Run" + std::to_string(of.index + 1); });

using GrowthOfClaims = GrowthTest;

TEST_F(GrowthOfClaims, TheTwoRunsOfOneFileTogetherMakeItWhole) {
  const QString at = older(kRuns[2]);
  ASSERT_TRUE(grow(at, GrowthRun::Claim1).ok());
  EXPECT_FALSE(*needsGrowth(at, GrowthRun::Claim1));
  EXPECT_TRUE(*needsGrowth(at, GrowthRun::Claim2));
  ASSERT_TRUE(grow(at, GrowthRun::Claim2).ok());
  const auto sorted = [&](const QString& file) {
    auto columns = columnsInFile(file, qs("保険申請"));
    std::sort(columns.begin(), columns.end());
    return columns;
  };
  const QString whole = path(u"whole.mdb"_qs);
  ASSERT_TRUE(createFresh(whole, qs(kRuns[2].file)).ok());
  EXPECT_EQ(sorted(at), sorted(whole));
}

TEST(GrowthOfFreshFiles, FreshFilesNeedNoGrowth) {
  const QTemporaryDir folder(QDir::tempPath() + u"/store-XXXXXX"_qs);
  for (const RunRow& run : kRuns) {
    const QString at = folder.filePath(qs(run.file));
    if (!QFile::exists(at)) {
      ASSERT_TRUE(createFresh(at, qs(run.file)).ok());
    }
    EXPECT_FALSE(*needsGrowth(at, run.run));
  }
}

}  // namespace
}  // namespace store
