#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include "frame/core/backup_files.h"
#include "frame/core/run_state.h"
#include "platform/store/database.h"
#include "platform/store/integrity.h"

namespace frame::test {

inline const QString kPatientsFile = QStringLiteral("臨床QV2000N.mdb");
inline const QString kClaims1File = QStringLiteral("保険申請2000_1.mdb");
inline const QString kClaims2File = QStringLiteral("保険申請2000_2.mdb");
inline const QStringList kBackupNames = {QStringLiteral("CL2moji2000.mdb"),
                                         QStringLiteral("CLmoji2000.mdb"),
                                         QStringLiteral("Keiraku2000.mdb"),
                                         QStringLiteral("カルテ2データ2000.mdb"),
                                         QStringLiteral("同意医師2000.mdb"),
                                         QStringLiteral("保険者2000.mdb"),
                                         kClaims1File,
                                         kClaims2File,
                                         QStringLiteral("予約2000.mdb"),
                                         QStringLiteral("料金設定2000.mdb"),
                                         kPatientsFile,
                                         QStringLiteral("qv.DAT")};

/// Runs a statement on a file by the database library alone.
inline bool runOn(const QString& path, const QByteArray& sql) {
  sqlite3* handle = nullptr;
  const bool done = sqlite3_open(QFile::encodeName(path).constData(), &handle) == SQLITE_OK &&
                    sqlite3_exec(handle, sql.constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
  sqlite3_close(handle);
  return done;
}

/// Damages a file in its place.
inline void scribble(const QString& path, qint64 at) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(at) && file.write(QByteArray(300, '\x55')) == 300);
}

/// Another program that holds a file open while the test goes on.
class OtherProgram {
 public:
  /// Runs the texts on one handle, then waits; `dies` ends without tidying up instead.
  OtherProgram(const QString& path, const QByteArray& sql, bool dies = false) {
    int ready[2];
    EXPECT_EQ(::pipe(ready), 0);
    m_child = ::fork();
    if (m_child == 0) {
      sqlite3* handle = nullptr;
      const bool done = sqlite3_open(QFile::encodeName(path).constData(), &handle) == SQLITE_OK &&
                        sqlite3_exec(handle, sql.constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
      if (::write(ready[1], done ? "y" : "n", 1) != 1 || dies) ::_exit(9);
      for (;;) ::pause();
    }
    char answer = 0;
    EXPECT_EQ(::read(ready[0], &answer, 1), 1);
    EXPECT_EQ(answer, 'y');
    ::close(ready[0]);
    ::close(ready[1]);
    if (dies) ::waitpid(std::exchange(m_child, 0), nullptr, 0);
  }
  ~OtherProgram() {
    if (m_child == 0) return;
    ::kill(m_child, SIGKILL);
    ::waitpid(m_child, nullptr, 0);
  }

 private:
  pid_t m_child = 0;
};

/// Lets a program die in the middle of a write, so that the file is half written and its journal is there.
/// `before`: its bytes before that write.
inline void leaveJournal(const QString& path, QByteArray* before = nullptr) {
  ASSERT_TRUE(
      runOn(path,
            "CREATE TABLE big(x); INSERT INTO big SELECT zeroblob(3000) FROM "
            "(WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<200) SELECT i FROM n)"));
  if (QFile file(path); before && file.open(QIODevice::ReadOnly)) *before = file.readAll();
  const OtherProgram died(
      path, "PRAGMA cache_size=5; BEGIN; UPDATE big SET x=randomblob(3000); PRAGMA user_version=77", true);
  ASSERT_TRUE(QFileInfo::exists(path + QStringLiteral("-journal")));
}

/// A program folder with all twelve files, each with a number by which its copies are recognised.
class BackupTest : public testing::Test {
 protected:
  void SetUp() override {
    for (const QString& name : kBackupNames.first(11))
      ASSERT_TRUE(store::createFresh(program(name), name)) << name.toStdString();
    loadRun(freshSettings(), m_folder.path(), run);
    stampAll(1);
  }

  QString program(const QString& name) const { return m_folder.filePath(name); }
  QString backup(const QString& name) const { return m_folder.filePath(QStringLiteral("backup/") + name); }
  QString generation(int digit, const QString& name) const {
    return backup(QString::number(digit) + u'_' + name);
  }
  /// The live file of a backup name.
  QString live(const QString& name) const {
    return program(name == u"qv.DAT" ? QStringLiteral("qv.dat") : name);
  }

  void stamp(const QString& name, int number) const {
    if (name == u"qv.DAT") {
      SettingsSlots settings = freshSettings();
      settings[slot::kPractitioner] = QString::number(number);
      ASSERT_TRUE(writeSettingsFile(live(name), settings));
    } else {
      ASSERT_TRUE(runOn(live(name), "PRAGMA user_version=" + QByteArray::number(number)))
          << name.toStdString();
    }
  }
  void stampAll(int number) const {
    for (const QString& name : kBackupNames) stamp(name, number);
  }
  /// The number of a whole file; -1 where it is missing or damaged.
  static int stampOf(const QString& path) {
    if (!QFileInfo::exists(path)) return -1;
    if (!path.endsWith(u".mdb")) {
      const auto settings = readSettingsFile(path);
      return settings && settings->readWhole ? (*settings)[slot::kPractitioner].toInt() : -1;
    }
    if (!store::checkIntegrity(path)) return -1;
    QFile file(path);
    constexpr int kUserVersion = 60;  // in the file's header, most significant byte first
    return file.open(QIODevice::ReadOnly) && file.seek(kUserVersion)
               ? QByteArray(file.read(4)).toHex().toInt(nullptr, 16)
               : -1;
  }
  /// The numbers of the three generations.
  QList<int> generations(const QString& name) const {
    QList<int> numbers;
    for (const int digit : {1, 2, 3}) numbers += stampOf(generation(digit, name));
    return numbers;
  }

  static QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  /// What b2sum says to the list of a folder: "" where every file fits.
  static QString checkedBySystem(const QString& folder) {
    QProcess check;
    check.setWorkingDirectory(folder);
    check.start(QStringLiteral("b2sum"), {QStringLiteral("-c"), QStringLiteral("--strict"),
                                          QStringLiteral("--quiet"), QStringLiteral("b2sums.txt")});
    check.waitForFinished();
    return check.exitStatus() == QProcess::NormalExit && check.exitCode() == 0
               ? QString()
               : QStringLiteral("%1 %2").arg(check.exitCode()).arg(QString::fromUtf8(check.readAll()));
  }
  /// Names of a folder that are neither copies nor the list.
  static QStringList besides(const QString& folder) {
    return QDir(folder).entryList({QStringLiteral("*.~"), QStringLiteral("*-journal")}, QDir::Files);
  }

  /// Does the work in another process, which ends without tidying up; gives its status.
  template <class Work>
  static int inChild(const Work& work) {
    const pid_t child = ::fork();
    if (child == 0) {
      work();
      ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  }

  /// In memory where the system offers it: the tests do not wait for a disk.
  static QString pattern() {
    const QString memory = QStringLiteral("/dev/shm");
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + QStringLiteral("/backup-XXXXXX");
  }
  QTemporaryDir m_folder{pattern()};
  RunState run;
};

}  // namespace frame::test
