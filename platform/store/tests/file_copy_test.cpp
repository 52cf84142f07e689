#include "platform/store/file_copy.h"

#include <sqlite3.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QProcess>

#include "platform/store/bulk.h"
#include "platform/store/integrity.h"
#include "platform/store/tests/store_fixture.h"

namespace {
useconds_t slowDisk = 0;  ///< what a sync of the whole disk takes longer
}

/// Stands before the library's own.
extern "C" int syncfs(int file) noexcept {
  ::usleep(slowDisk);
  return static_cast<int>(::syscall(SYS_syncfs, file));
}

namespace store {
namespace {

const QString kFile = QStringLiteral("保険申請2000_2.mdb");
const QString kTable = QStringLiteral("保険申請");
const QString kNote = QStringLiteral("memo dummy1");

class FileCopyTest : public StoreTest {
 protected:
  void put(const QString& name, const QByteArray& bytes) const {
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
  }
  QByteArray bytesOf(const QString& name) const {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  Result<QByteArray> copyOf(const HeldFile& held, const QString& target) const {
    CopyBatch batch;
    batch.add(held, path(target));
    return batch.finish().front();
  }
  /// A file of many pages of every kind: rows, long rows, an index, free pages.
  QString filled() const {
    fresh(kFile);
    const auto row = [](int number) -> QHash<QString, Value> {
      return {{kNote, QString(number % 100 == 0 ? 9000 : 200, u'例')}};
    };
    EXPECT_TRUE(addRows(path(kFile), kTable, 600, row).ok());
    return path(kFile);
  }
};

TEST_F(FileCopyTest, SumsAreThoseOfTheSystem) {
  for (const qint64 size : {0, 1, 1 << 20, (1 << 20) + 1, 5'000'000}) {
    QByteArray bytes(size, 'a');
    for (qint64 at = 0; at < size; at += 7) bytes[at] = char(at * 31);
    put(QStringLiteral("source"), bytes);
    QFile::remove(path(QStringLiteral("target")));
    const auto held = HeldFile::plain(path(QStringLiteral("source")));
    ASSERT_TRUE(held.ok());
    const auto sum = copyOf(**held, QStringLiteral("target"));
    ASSERT_TRUE(sum.ok());
    EXPECT_FALSE(QFileInfo::exists(path(QStringLiteral("target"))));
    ASSERT_TRUE(putInPlace(path(QStringLiteral("target"))).ok());
    EXPECT_FALSE(QFileInfo::exists(besideName(path(QStringLiteral("target")))));
    EXPECT_EQ(bytesOf(QStringLiteral("target")), bytes);
    QProcess system;
    system.start(QStringLiteral("b2sum"), {path(QStringLiteral("target"))});
    ASSERT_TRUE(system.waitForFinished());
    EXPECT_EQ(*sum, system.readAll().left(128)) << size;
    EXPECT_EQ(*sumOf(path(QStringLiteral("target"))), *sum);
  }
}

TEST_F(FileCopyTest, OnlyFilesAreHeld) {
  const auto why = [](const auto& held) { return held ? QString() : held.fault().message; };
  EXPECT_TRUE(why(HeldFile::plain(m_folder.path())).contains(u"ファイルではなくフォルダです。"));
  EXPECT_TRUE(why(HeldFile::plain(path(QStringLiteral("none")))).contains(u"見つかりません。"));
  EXPECT_TRUE(why(HeldFile::database(path(QStringLiteral("none")))).contains(u"見つかりません。"));
}

TEST_F(FileCopyTest, AWriterWaitsWhileAFileIsHeldAndIsNotInTheCopy) {
  filled();
  const QByteArray before = bytesOf(kFile);
  auto held = HeldFile::database(path(kFile));
  ASSERT_TRUE(held.ok());
  const auto write = [this] {
    const pid_t child = ::fork();
    if (child == 0) {
      sqlite3* handle = nullptr;
      sqlite3_open(QFile::encodeName(path(kFile)).constData(), &handle);
      ::_exit(sqlite3_exec(handle, "PRAGMA user_version=77", nullptr, nullptr, nullptr) & 0x7f);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WEXITSTATUS(status);
  };
  EXPECT_EQ(write(), SQLITE_BUSY);
  ASSERT_TRUE(copyOf(**held, QStringLiteral("copy.mdb")).ok());
  EXPECT_EQ(write(), SQLITE_BUSY) << "reading back has not dropped the lock";
  held->reset();
  EXPECT_EQ(write(), SQLITE_OK);
  ASSERT_TRUE(putInPlace(path(QStringLiteral("copy.mdb"))).ok());
  EXPECT_EQ(bytesOf(QStringLiteral("copy.mdb")), before);
}

TEST_F(FileCopyTest, AFileThatThisProgramHasOpenStaysUsable) {
  fresh(kFile);
  RecordSet set = openSet(kFile, kTable);
  {
    const auto held = HeldFile::database(path(kFile));
    ASSERT_TRUE(held.ok());
    ASSERT_TRUE(copyOf(**held, QStringLiteral("copy.mdb")).ok());
  }
  add(set, {{kNote, QStringLiteral("見本")}});
  EXPECT_EQ(set.recordCount(), 1);
}

TEST_F(FileCopyTest, SoundFilesAreSound) {
  EXPECT_TRUE(isIntactDatabase(filled()));
  EXPECT_TRUE(isIntactDatabase(fresh(QStringLiteral("保険者2000.mdb"))));
  ASSERT_TRUE(QFile::rename(path(kFile), path(QStringLiteral("a %41?#b.mdb"))));
  EXPECT_TRUE(isIntactDatabase(path(QStringLiteral("a %41?#b.mdb"))));
  EXPECT_FALSE(isIntactDatabase(path(QStringLiteral("none.mdb"))));
}

// Each page in turn is overwritten at its head; what the engine's own whole check finds, this one finds.
TEST_F(FileCopyTest, DamageOfAnyPageOfTheTreesIsFound) {
  const QByteArray whole = [&] { return QFileInfo(filled()).size() > 0 ? bytesOf(kFile) : QByteArray(); }();
  constexpr qsizetype kPage = 4096;
  int damaged = 0;
  for (qsizetype page = 0; page < whole.size(); page += kPage * 13) {
    QByteArray bytes = whole;
    bytes.replace(page, 16, QByteArray(16, '\x55'));
    put(QStringLiteral("damaged.mdb"), bytes);
    const bool found = !isIntactDatabase(path(QStringLiteral("damaged.mdb")));
    EXPECT_TRUE(found || checkIntegrity(path(QStringLiteral("damaged.mdb"))).ok()) << page / kPage;
    damaged += found;
  }
  EXPECT_GT(damaged, 5);
  put(QStringLiteral("damaged.mdb"), whole.left(whole.size() / 2));
  EXPECT_FALSE(isIntactDatabase(path(QStringLiteral("damaged.mdb"))));
}

TEST_F(FileCopyTest, PushingKeepsTheFileThatStands) {
  put(QStringLiteral("1"), "one");
  put(QStringLiteral("2"), "two");
  ASSERT_TRUE(pushOnto(path(QStringLiteral("1")), path(QStringLiteral("2"))).ok());
  EXPECT_EQ(bytesOf(QStringLiteral("1")), "one");
  EXPECT_EQ(bytesOf(QStringLiteral("2")), "one");
  EXPECT_TRUE(isSameFile(path(QStringLiteral("1")), path(QStringLiteral("2"))));
  EXPECT_FALSE(pushOnto(path(QStringLiteral("none")), path(QStringLiteral("2"))).ok());
  EXPECT_EQ(bytesOf(QStringLiteral("2")), "one");
}

// Sticks and some shared folders know no second names of a file.
TEST_F(FileCopyTest, PushingCopiesWhereThereAreNoSecondNames) {
  const QByteArray big(3'000'000, 'x');
  std::optional<DiskStep> full;
  const CopyWatch watch{{}, [&](DiskStep step, const QString&) {
                          return step == DiskStep::Link ? EPERM : step == full ? ENOSPC : 0;
                        }};
  put(QStringLiteral("1"), big);
  for (const DiskStep step :
       {DiskStep::Create, DiskStep::Write, DiskStep::Sync, DiskStep::ReadBack, DiskStep::Rename}) {
    put(QStringLiteral("2"), "two");
    full = step;
    EXPECT_FALSE(pushOnto(path(QStringLiteral("1")), path(QStringLiteral("2")), watch).ok());
    EXPECT_EQ(bytesOf(QStringLiteral("2")), "two");
    EXPECT_FALSE(QFile::exists(besideName(path(QStringLiteral("2")))));
  }
  full.reset();
  ASSERT_TRUE(pushOnto(path(QStringLiteral("1")), path(QStringLiteral("2")), watch).ok());
  EXPECT_EQ(bytesOf(QStringLiteral("2")), big);
  EXPECT_EQ(bytesOf(QStringLiteral("1")), big);
  EXPECT_FALSE(isSameFile(path(QStringLiteral("1")), path(QStringLiteral("2"))));
}

// Whatever fails of a batch, the sums of the others come, and nothing waits for what will not come.
TEST_F(FileCopyTest, ACopyThatFailsHoldsUpNoOther) {
  constexpr int kFiles = 4;
  const auto name = [](int number) { return QString::number(number); };
  for (int number = 0; number < kFiles; ++number)
    put(name(number), QByteArray(3'000'000 + number, static_cast<char>('a' + number)));
  for (const DiskStep at : {DiskStep::Create, DiskStep::Write, DiskStep::ReadBack}) {
    for (int failing = 0; failing < kFiles; ++failing) {
      for (const bool finished : {true, false}) {
        int writes = 0;
        CopyBatch batch({{}, [&](DiskStep step, const QString& beside) {
                           const bool meant =
                               step == at && beside.endsWith(name(failing) + QStringLiteral("c.~"));
                           return meant && (at != DiskStep::Write || ++writes == 2) ? EIO : 0;
                         }});
        for (int number = 0; number < kFiles; ++number) {
          const auto held = HeldFile::plain(path(name(number)));
          ASSERT_TRUE(held.ok());
          batch.add(**held, path(name(number) + QLatin1Char('c')));
        }
        if (!finished) continue;
        const auto sums = batch.finish();
        for (int number = 0; number < kFiles; ++number) {
          const auto& sum = sums[static_cast<size_t>(number)];
          ASSERT_EQ(sum.ok(), number != failing);
          EXPECT_TRUE(!sum || *sum == *sumOf(path(name(number))));
        }
      }
    }
  }
}

// The copy is of the file that was opened, whatever comes to stand under its name.
TEST_F(FileCopyTest, AFileThatIsReplacedMeanwhileIsCopiedAsItWas) {
  filled();
  put(QStringLiteral("plain"), QByteArray(3'000'000, 'x'));
  for (const QString& name : {kFile, QStringLiteral("plain")}) {
    const QByteArray before = bytesOf(name);
    const auto held = name == kFile ? HeldFile::database(path(name)) : HeldFile::plain(path(name));
    ASSERT_TRUE(held.ok());
    CopyBatch batch({{}, [&](DiskStep step, const QString&) {
                       if (step != DiskStep::Create) return 0;
                       put(QStringLiteral("other"), QByteArray(5000, 'o'));
                       return ::rename(QFile::encodeName(path(QStringLiteral("other"))).constData(),
                                       QFile::encodeName(path(name)).constData());
                     }});
    batch.add(**held, path(QStringLiteral("copy")));
    ASSERT_TRUE(batch.finish().front().ok());
    ASSERT_TRUE(putInPlace(path(QStringLiteral("copy"))).ok());
    EXPECT_EQ(bytesOf(QStringLiteral("copy")), before);
    EXPECT_EQ(bytesOf(name), QByteArray(5000, 'o'));
  }
}

TEST_F(FileCopyTest, WhoLooksOnIsToldWhileTheDiskIsSlow) {
  put(QStringLiteral("1"), "one");
  int told = 0;
  CopyBatch batch({[&](qint64 bytes) { told += bytes == 0; }, {}});
  for (const char16_t* name : {u"2", u"3"}) {
    const auto held = HeldFile::plain(path(QStringLiteral("1")));
    batch.add(**held, path(QString::fromUtf16(name)));
  }
  slowDisk = 300'000;
  batch.sync();
  slowDisk = 0;
  EXPECT_GT(told, 0);
  for (const auto& sum : batch.finish()) EXPECT_TRUE(sum.ok());
}

}  // namespace
}  // namespace store
