#include <csignal>

#include "frame/core/backup_generations.h"
#include "frame/core/backup_list.h"
#include "frame/tests/core/backup_fixture.h"

namespace frame {
namespace {

constexpr int kCut = 9;

/// A file alone, a pair and the settings; without the others there are fewer steps to be cut off at.
const QStringList kNames = {test::kClaims1File, test::kClaims2File, test::kPatientsFile,
                            QStringLiteral("qv.DAT")};

/// There are three generations (3, 2, 1), the live files are 4, and the run that ends is killed.
class BackupKillTest : public test::BackupTest {
 protected:
  void SetUp() override {
    BackupTest::SetUp();
    for (const QString& name : test::kBackupNames)
      ASSERT_TRUE(kNames.contains(name) || QFile::remove(live(name)));
    for (int number = 1; number <= 3; ++number) {
      stampFour(number);
      backUpGenerations(run);
    }
    stampFour(4);
    ASSERT_TRUE(QDir().mkpath(program(QStringLiteral("start"))));
    keep(backup(QString()), program(QStringLiteral("start")));
  }
  void stampFour(int number) const {
    for (const QString& name : kNames) stamp(name, number);
  }
  static void keep(const QString& from, const QString& to) {
    for (const QString& name : QDir(to).entryList(QDir::Files)) QFile::remove(to + u'/' + name);
    for (const QString& name : QDir(from).entryList(QDir::Files))
      ASSERT_TRUE(QFile::copy(from + u'/' + name, to + u'/' + name));
  }
  void startAnew() const {
    stampFour(4);
    keep(program(QStringLiteral("start")), backup(QString()));
  }

  bool fitsItsSum(const BackupList& list, int digit, const QString& name) const {
    const auto sum = store::sumOf(generation(digit, name));
    return sum && *sum == list.sumOf(QString::number(digit) + u'_' + name);
  }
  void expectAWholeGenerationOfEach(const std::string& where) const {
    const BackupList list = BackupList::read(backup(QString()));
    for (const QString& name : kNames) {
      int whole = 0;
      for (const int digit : {1, 2, 3})
        whole += stampOf(generation(digit, name)) > 0 && fitsItsSum(list, digit, name);
      EXPECT_GE(whole, 1) << where << ' ' << name.toStdString();
    }
  }
  /// The next run goes on counting: no number is lost or occurs twice, and all is in order again.
  void expectTheNextRunGoesOn(const std::string& where) {
    QHash<QString, bool> came;
    for (const QString& name : kNames) came.insert(name, stampOf(generation(1, name)) == 4);
    stampFour(5);
    backUpGenerations(run);
    for (const QString& name : kNames)
      EXPECT_EQ(generations(name), came[name] ? (QList<int>{5, 4, 3}) : (QList<int>{5, 3, 2}))
          << where << ' ' << name.toStdString();
    EXPECT_EQ(checkedBySystem(backup(QString())), QString()) << where;
    EXPECT_EQ(besides(backup(QString())), QStringList()) << where;
  }
};

TEST_F(BackupKillTest, KillAtAnyStepKeepsOneIntactGeneration) {
  int came = 0;
  for (int step = 0;; ++step) {
    startAnew();
    const int ended = inChild([&] {
      int steps = 0;
      const auto cut = [&](store::DiskStep, const QString&) {
        if (steps++ == step) ::_exit(kCut);
        return 0;
      };
      backUpGenerations(run, {{}, cut});
    });
    ASSERT_TRUE(ended == 0 || ended == kCut) << ended;
    const std::string where = "step " + std::to_string(step);
    expectAWholeGenerationOfEach(where);
    came += stampOf(generation(1, test::kPatientsFile)) == 4;
    expectTheNextRunGoesOn(where);
    if (HasFailure()) return;
    if (ended == 0) {
      EXPECT_GT(step, 30);
      break;
    }
  }
  EXPECT_GT(came, 1) << "some cuts came after the new copy";
}

// Where the folder knows no second names, what the run had moved already may be moved once more; but whole
// generations remain, and the next run ends in order.
TEST_F(BackupKillTest, KillAtAnyStepWithoutHardLinksKeepsOneIntactGeneration) {
  const auto noLinks = [](store::DiskStep step, const QString&) {
    return step == store::DiskStep::Link ? EPERM : 0;
  };
  for (int step = 0;; ++step) {
    startAnew();
    const int ended = inChild([&] {
      int steps = 0;
      const auto cut = [&](store::DiskStep kind, const QString& path) {
        if (steps++ == step) ::_exit(kCut);
        return noLinks(kind, path);
      };
      backUpGenerations(run, {{}, cut});
    });
    ASSERT_TRUE(ended == 0 || ended == kCut) << ended;
    const std::string where = "step " + std::to_string(step);
    expectAWholeGenerationOfEach(where);
    QHash<QString, QList<int>> left;
    for (const QString& name : kNames) left.insert(name, generations(name));
    stampFour(5);
    backUpGenerations(run, {{}, noLinks});
    for (const QString& name : kNames)
      EXPECT_EQ(generations(name), (QList<int>{5, left[name][0], left[name][1]})) << where;
    EXPECT_EQ(checkedBySystem(backup(QString())), QString()) << where;
    EXPECT_EQ(besides(backup(QString())), QStringList()) << where;
    if (HasFailure()) return;
    if (ended == 0) {
      EXPECT_GT(step, 60);
      break;
    }
  }
}

TEST_F(BackupKillTest, KillAtAnyMomentKeepsOneIntactGeneration) {
  bool ended = false;  // before it was killed
  for (int microseconds = 0; !ended; microseconds += 400) {
    startAnew();
    const pid_t child = ::fork();
    if (child == 0) {
      backUpGenerations(run);
      ::_exit(0);
    }
    ::usleep(static_cast<useconds_t>(microseconds));
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    ended = WIFEXITED(status);
    const std::string where = std::to_string(microseconds) + " us";
    expectAWholeGenerationOfEach(where);
    expectTheNextRunGoesOn(where);
    if (HasFailure()) return;
  }
}

// A disk that fails at any step is no reason to lose a copy either; what can be copied is.
TEST_F(BackupKillTest, FullDiskKeepsOneIntactGeneration) {
  for (int step = 0;; step += 3) {
    startAnew();
    int steps = 0;
    const auto fill = [&](store::DiskStep kind, const QString&) {
      const bool needsRoom = kind == store::DiskStep::Create || kind == store::DiskStep::Write ||
                             kind == store::DiskStep::Sync || kind == store::DiskStep::Link;
      return steps++ >= step && needsRoom ? ENOSPC : 0;
    };
    backUpGenerations(run, {{}, fill});
    const std::string where = "full from step " + std::to_string(step);
    expectAWholeGenerationOfEach(where);
    EXPECT_EQ(besides(backup(QString())), QStringList()) << where;
    if (HasFailure() || steps < step) break;
  }
}

}  // namespace
}  // namespace frame
