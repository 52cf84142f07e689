#include "frame/core/backup_generations.h"

#include <sys/stat.h>

#include "frame/core/backup_list.h"
#include "frame/tests/core/backup_fixture.h"
#include "platform/store/pair.h"

namespace frame {
namespace {

using test::scribble;

class BackupGenerationsTest : public test::BackupTest {
 protected:
  void runWith(int number) {
    stampAll(number);
    backUpGenerations(run);
  }
  void expectAll(const QList<int>& wanted, const char* where = "") const {
    for (const QString& name : test::kBackupNames)
      EXPECT_EQ(generations(name), wanted) << where << ' ' << name.toStdString();
  }
  void expectOthers(const QString& except, const QList<int>& wanted) const {
    for (const QString& name : test::kBackupNames)
      EXPECT_TRUE(name == except || generations(name) == wanted) << name.toStdString();
  }
  void expectOrder(const QString& folder) const {
    EXPECT_EQ(checkedBySystem(folder), QString());
    EXPECT_EQ(besides(folder), QStringList());
  }
};

struct CounterCase {
  const char16_t* stored;  ///< as stored when the run starts
  bool copies;
};
class CounterTest : public BackupGenerationsTest, public testing::WithParamInterface<CounterCase> {};

TEST_P(CounterTest, EveryTenthRunEndsWithCopies) {
  SettingsSlots settings = freshSettings();
  settings[slot::kRunCounter] = QString::fromUtf16(GetParam().stored);
  loadRun(settings, m_folder.path(), run);
  EXPECT_EQ(endsWithBackup(run), GetParam().copies);
}

INSTANTIATE_TEST_SUITE_P(Rows, CounterTest,
                         testing::Values(CounterCase{u"", true}, CounterCase{u"0", false},
                                         CounterCase{u"8", false}, CounterCase{u"9", true},
                                         CounterCase{u"10", false}, CounterCase{u"19", true},
                                         CounterCase{u"99", true}, CounterCase{u"100", false}));

TEST_F(BackupGenerationsTest, GenerationsFillUpAndMoveOn) {
  ASSERT_FALSE(QFileInfo::exists(backup(QString())));
  const QList<QList<int>> wanted = {{1, -1, -1}, {2, 1, -1}, {3, 2, 1}, {4, 3, 2}, {5, 4, 3}};
  for (int number = 1; number <= 5; ++number) {
    runWith(number);
    expectAll(wanted[number - 1]);
    expectOrder(backup(QString()));
  }
  EXPECT_EQ(QDir(backup(QString())).entryList(QDir::Files).size(), 36 + 1);
}

TEST_F(BackupGenerationsTest, NamesAreTheDefaultOnesWhereverTheFilesLie) {
  ASSERT_TRUE(QDir().mkpath(program(QStringLiteral("elsewhere"))));
  const QString moved = program(QStringLiteral("elsewhere/data.mdb"));
  ASSERT_TRUE(QFile::rename(live(test::kPatientsFile), moved));
  run.folders[folder::kPatients] = moved;
  backUpGenerations(run);
  EXPECT_EQ(stampOf(generation(1, test::kPatientsFile)), 1);
  EXPECT_EQ(bytesOf(generation(1, test::kPatientsFile)), bytesOf(moved));
}

// The picture charts are no part of it.
TEST_F(BackupGenerationsTest, NothingElseIsCopied) {
  ASSERT_TRUE(QDir().mkpath(program(QStringLiteral("GDATA"))));
  backUpGenerations(run);
  EXPECT_FALSE(QFileInfo::exists(backup(QStringLiteral("GDATA"))));
  EXPECT_EQ(QDir(backup(QString())).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 12 + 1);
}

TEST_F(BackupGenerationsTest, AMissingGenerationIsSkipped) {
  for (int number = 1; number <= 3; ++number) runWith(number);
  ASSERT_TRUE(QFile::remove(generation(2, test::kPatientsFile)));
  ASSERT_TRUE(QFile::remove(generation(1, test::kClaims1File)));
  runWith(4);
  EXPECT_EQ(generations(test::kPatientsFile), (QList<int>{4, 3, 1}));
  EXPECT_EQ(generations(test::kClaims1File), (QList<int>{4, 2, 2}));
  EXPECT_EQ(generations(test::kClaims2File), (QList<int>{4, 3, 2}));
  expectOrder(backup(QString()));
}

TEST_F(BackupGenerationsTest, CopiesWithoutAListMoveOnWhereTheyAreWhole) {
  for (int number = 1; number <= 2; ++number) runWith(number);
  ASSERT_TRUE(QFile::remove(BackupList::pathIn(backup(QString()))));
  scribble(generation(1, test::kPatientsFile), 4096);
  runWith(3);
  EXPECT_EQ(generations(test::kPatientsFile), (QList<int>{3, 1, 1}));
  expectOthers(test::kPatientsFile, {3, 2, 1});
  expectOrder(backup(QString()));
}

TEST_F(BackupGenerationsTest, ADamagedGenerationIsNotMovedOverAGoodOne) {
  for (int number = 1; number <= 3; ++number) runWith(number);
  scribble(generation(2, test::kPatientsFile), 9000);
  scribble(generation(1, test::kClaims1File), 200);
  runWith(4);
  EXPECT_EQ(generations(test::kPatientsFile), (QList<int>{4, 3, 1}));
  EXPECT_EQ(generations(test::kClaims1File), (QList<int>{4, 2, 2}));
  expectOrder(backup(QString()));
}

TEST_F(BackupGenerationsTest, ListShowsADamagedGenerationThatStays) {
  for (int number = 1; number <= 3; ++number) runWith(number);
  scribble(generation(3, test::kPatientsFile), 9000);
  ASSERT_TRUE(QFile::remove(generation(2, test::kPatientsFile)));
  runWith(4);
  EXPECT_EQ(stampOf(generation(1, test::kPatientsFile)), 4);
  EXPECT_TRUE(checkedBySystem(backup(QString())).contains(u"3_臨床QV2000N.mdb: FAILED"));
}

/// How a live file goes bad.
struct DamageCase {
  const char* title;
  std::function<void(const QString& path)> damage;
};
class LiveDamageTest : public BackupGenerationsTest, public testing::WithParamInterface<DamageCase> {};

TEST_P(LiveDamageTest, KeepsTheOlderCopiesHoweverManyRunsEnd) {
  for (int number = 1; number <= 3; ++number) runWith(number);
  GetParam().damage(live(test::kPatientsFile));
  for (int number = 4; number <= 7; ++number) {
    for (const QString& name : test::kBackupNames)
      if (name != test::kPatientsFile) stamp(name, number);
    backUpGenerations(run);
    EXPECT_EQ(generations(test::kPatientsFile), (QList<int>{3, 2, 1}));
    expectOthers(test::kPatientsFile, {number, number - 1, number - 2});
    expectOrder(backup(QString()));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LiveDamageTest,
    testing::Values(DamageCase{"vanished", [](const QString& path) { QFile::remove(path); }},
                    DamageCase{"empty", [](const QString& path) { QFile::resize(path, 0); }},
                    DamageCase{"cut short", [](const QString& path) { QFile::resize(path, 5000); }},
                    DamageCase{"no header", [](const QString& path) { scribble(path, 0); }},
                    DamageCase{"a page of rubbish", [](const QString& path) { scribble(path, 4096); }}),
    [](const auto& info) { return "Row" + std::to_string(info.index); });

TEST_F(BackupGenerationsTest, ShortSettingsKeepTheOlderCopies) {
  runWith(1);
  QFile::resize(live(QStringLiteral("qv.DAT")), 40);
  backUpGenerations(run);
  EXPECT_EQ(generations(QStringLiteral("qv.DAT")), (QList<int>{1, -1, -1}));
  EXPECT_EQ(generations(test::kPatientsFile), (QList<int>{1, 1, -1}));
}

// The halves of the claims come together: a new first half with an old second one would be of two moments.
TEST_F(BackupGenerationsTest, ADamagedHalfKeepsBothHalves) {
  for (int number = 1; number <= 2; ++number) runWith(number);
  stampAll(3);
  scribble(live(test::kClaims2File), 4096);
  backUpGenerations(run);
  EXPECT_EQ(generations(test::kClaims1File), (QList<int>{2, 1, -1}));
  EXPECT_EQ(generations(test::kClaims2File), (QList<int>{2, 1, -1}));
  EXPECT_EQ(generations(test::kPatientsFile), (QList<int>{3, 2, 1}));
  expectOrder(backup(QString()));
}

// A program may work with a copy in its place. It is the live file then; other copies come and go.
TEST_F(BackupGenerationsTest, AGenerationThatIsWorkedWithIsLeftOut) {
  for (int digit = 1; digit <= 3; ++digit) {
    run.folders[folder::kPatients] = live(test::kPatientsFile);
    QDir(backup(QString())).removeRecursively();
    for (int number = 1; number <= 3; ++number) runWith(number);
    const QString worked = generation(digit, test::kPatientsFile);
    run.folders[folder::kPatients] = worked;
    for (const int number : {7, 8}) {
      ASSERT_TRUE(test::runOn(worked, "PRAGMA user_version=" + QByteArray::number(number)));
      const test::OtherProgram open(worked, "SELECT count(*) FROM sqlite_master");
      backUpGenerations(run);
      EXPECT_EQ(stampOf(worked), number) << digit;
    }
    ASSERT_TRUE(test::runOn(worked, "PRAGMA user_version=9"));
    QList<int> now = {9};
    for (const int other : {1, 2, 3})
      if (other != digit) now += stampOf(generation(other, test::kPatientsFile));
    EXPECT_EQ(now, (QList<int>{9, 8, 7})) << digit;
    EXPECT_FALSE(checkedBySystem(backup(QString())).contains(u"FAILED"));
    EXPECT_EQ(besides(backup(QString())), QStringList());
    EXPECT_FALSE(QFileInfo::exists(backup(QStringLiteral("4_") + test::kPatientsFile)));
  }
}

TEST_F(BackupGenerationsTest, ALivingGenerationIsStillOneFileForOtherPrograms) {
  runWith(1);
  const QString worked = generation(1, test::kPatientsFile);
  run.folders[folder::kPatients] = worked;
  struct stat before {
  }, after{};
  ASSERT_EQ(::stat(QFile::encodeName(worked).constData(), &before), 0);
  backUpGenerations(run);
  ASSERT_EQ(::stat(QFile::encodeName(worked).constData(), &after), 0);
  EXPECT_EQ(before.st_ino, after.st_ino);
  EXPECT_EQ(after.st_nlink, 1u);
}

TEST_F(BackupGenerationsTest, JournalOfAGenerationIsNotAppliedToAnother) {
  for (int number = 1; number <= 2; ++number) runWith(number);
  for (const int digit : {1, 2}) test::leaveJournal(generation(digit, test::kPatientsFile));
  runWith(3);
  runWith(4);
  EXPECT_EQ(generations(test::kPatientsFile), (QList<int>{4, 3, -1}));
  expectOthers(test::kPatientsFile, {4, 3, 2});
  expectOrder(backup(QString()));
}

// No list, no new copies: they leave nothing on the disk, and the next run goes on.
TEST_F(BackupGenerationsTest, AListThatCannotBeWrittenLeavesNoNewCopies) {
  for (int number = 1; number <= 2; ++number) runWith(number);
  const QString list = BackupList::pathIn(backup(QString())), aside = backup(QStringLiteral("aside"));
  ASSERT_TRUE(QFile::rename(list, aside) && QDir().mkpath(list));
  runWith(3);
  EXPECT_EQ(besides(backup(QString())), QStringList());
  for (const QString& name : test::kBackupNames) EXPECT_EQ(stampOf(generation(1, name)), 2);
  ASSERT_TRUE(QDir().rmdir(list) && QFile::rename(aside, list));
  runWith(4);
  expectAll({4, 2, 1});
  expectOrder(backup(QString()));
}

TEST_F(BackupGenerationsTest, AnotherProgramInTheMiddleOfAWriteIsNotInTheCopy) {
  const test::OtherProgram writes(live(test::kPatientsFile), "BEGIN IMMEDIATE; PRAGMA user_version=77");
  backUpGenerations(run);
  expectAll({1, -1, -1});
}

TEST_F(BackupGenerationsTest, AFileThatCannotBeReadNowKeepsItsOlderCopy) {
  runWith(1);
  stampAll(2);
  const auto database = store::Database::open(live(test::kPatientsFile));
  ASSERT_TRUE(database.ok());
  sqlite3_busy_timeout((*database)->handle(), 1);
  const test::OtherProgram holds(live(test::kPatientsFile), "BEGIN EXCLUSIVE");
  backUpGenerations(run);
  EXPECT_EQ(generations(test::kPatientsFile), (QList<int>{1, -1, -1}));
  expectOthers(test::kPatientsFile, {2, 1, -1});
}

// What a program that died had half written is taken back, and the copy is of the moment before.
TEST_F(BackupGenerationsTest, AHotJournalBelongsToTheCopy) {
  const QString path = live(test::kPatientsFile);
  QByteArray before;
  test::leaveJournal(path, &before);
  ASSERT_NE(bytesOf(path), before);
  backUpGenerations(run);
  EXPECT_EQ(stampOf(generation(1, test::kPatientsFile)), 1);
  EXPECT_EQ(bytesOf(generation(1, test::kPatientsFile)), before);
  expectOrder(backup(QString()));
}

TEST_F(BackupGenerationsTest, BothHalvesOfTheClaimsAreOfOneMoment) {
  const QString first = live(test::kClaims1File), second = live(test::kClaims2File);
  const pid_t child = ::fork();
  if (child == 0) {
    auto pair = store::PairStore::open(first, second, QStringLiteral("保険申請"));
    if (!pair) ::_exit(3);
    for (;;) (void)(*pair)->add({}, {});
  }
  int different = 0;
  const auto rowsOf = [&](const QString& name) {
    sqlite3* handle = nullptr;
    sqlite3_stmt* count = nullptr;
    sqlite3_open(QFile::encodeName(generation(1, name)).constData(), &handle);
    sqlite3_prepare_v2(handle, "SELECT count(*) FROM \"保険申請\"", -1, &count, nullptr);
    sqlite3_step(count);
    const int rows = sqlite3_column_int(count, 0);
    sqlite3_finalize(count);
    sqlite3_close(handle);
    return rows;
  };
  for (int time = 0, last = 0; time < 1000 && different < 10; ++time) {
    backUpGenerations(run);
    const int rows = rowsOf(test::kClaims1File);
    EXPECT_EQ(rows, rowsOf(test::kClaims2File));
    different += rows > last;
    last = rows;
  }
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  EXPECT_EQ(different, 10) << "the other program wrote during the copy";
}

}  // namespace
}  // namespace frame
