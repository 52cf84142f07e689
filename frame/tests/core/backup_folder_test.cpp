#include "frame/core/backup_folder.h"

#include "frame/core/backup_list.h"
#include "frame/tests/core/backup_fixture.h"

namespace frame {
namespace {

using namespace Qt::Literals::StringLiterals;
using test::scribble;

const QStringList kOwnNames = [] {
  QStringList names = test::kBackupNames;
  names.back() = QStringLiteral("qv.dat");
  return names;
}();

class BackupFolderTest : public test::BackupTest {
 protected:
  void SetUp() override {
    BackupTest::SetUp();
    put(QStringLiteral("GDATA/body.bmp"), "front");
    put(QStringLiteral("GDATA/0001/1.bmp"), "first chart");
    put(QStringLiteral("GDATA/0001/.hidden"), "");
    put(QStringLiteral("GDATA/0002/old/図 2.bmp"), QByteArray(3'000'000, 'x'));
    ASSERT_TRUE(QDir().mkpath(program(QStringLiteral("GDATA/0003"))));
    ASSERT_TRUE(QDir().mkpath(folder()));
  }
  QString folder() const { return m_target.filePath(QStringLiteral("控え")); }
  QString copy(const QString& name) const { return folder() + u'/' + name; }
  void put(const QString& name, const QByteArray& bytes) const {
    ASSERT_TRUE(QDir().mkpath(QFileInfo(program(name)).path()));
    QFile file(program(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  void expectCopies(int number) const {
    for (const QString& name : kOwnNames) EXPECT_EQ(stampOf(copy(name)), number) << name.toStdString();
    for (const char16_t* name :
         {u"GDATA/body.bmp", u"GDATA/0001/1.bmp", u"GDATA/0001/.hidden", u"GDATA/0002/old/図 2.bmp"})
      EXPECT_EQ(bytesOf(copy(QString::fromUtf16(name))), bytesOf(program(QString::fromUtf16(name))));
    EXPECT_TRUE(QFileInfo(copy(QStringLiteral("GDATA/0003"))).isDir());
    EXPECT_EQ(checkedBySystem(folder()), QString());
    EXPECT_EQ(besides(folder()), QStringList());
  }
  static QStringList faultsOf(const BackupReport& report) {
    QStringList lines;
    for (const auto* faults : {&report.faults, &report.pictureFaults})
      for (const text::Fault& fault : *faults) lines += fault.message;
    return lines;
  }
  /// Fails the step on files of this name.
  static store::CopyWatch failing(store::DiskStep at, int error, const QString& name) {
    return {{}, [=](store::DiskStep step, const QString& path) {
              return step == at && path.contains(name) ? error : 0;
            }};
  }
  QTemporaryDir m_target{pattern()};
};

TEST_F(BackupFolderTest, CopiesElevenFilesTheSettingsAndAllPictures) {
  ASSERT_TRUE(checkBackupFolder(run, folder()));
  const BackupReport report = backUpToFolder(run, folder());
  EXPECT_EQ(faultsOf(report), QStringList());
  EXPECT_TRUE(report.whole());
  EXPECT_EQ(report.copied, kOwnNames);
  EXPECT_EQ(report.pictures, 4);
  expectCopies(1);
  for (const QString& name : kOwnNames)
    EXPECT_EQ(bytesOf(copy(name)), bytesOf(program(name))) << name.toStdString();
  EXPECT_EQ(QDir(folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 12 + 1 + 1);
}

TEST_F(BackupFolderTest, TheProgressCountsAllBytes) {
  qint64 bytes = 0;
  (void)backUpToFolder(run, folder(), {[&](qint64 more) { bytes += more; }, {}});
  EXPECT_EQ(bytes, backupSize(run));
}

TEST_F(BackupFolderTest, ASecondRunOverwrites) {
  ASSERT_TRUE(backUpToFolder(run, folder()).whole());
  stampAll(2);
  put(QStringLiteral("GDATA/body.bmp"), "front, drawn on");
  ASSERT_TRUE(backUpToFolder(run, folder()).whole());
  expectCopies(2);
}

TEST_F(BackupFolderTest, FilesKeepTheNamesOfTheirPaths) {
  ASSERT_TRUE(QDir().mkpath(program(QStringLiteral("shared"))));
  ASSERT_TRUE(QFile::rename(live(test::kPatientsFile), program(QStringLiteral("shared/患者.mdb"))));
  ASSERT_TRUE(QDir().rename(program(QStringLiteral("GDATA")), program(QStringLiteral("shared/図"))));
  run.folders[folder::kPatients] = program(QStringLiteral("shared/患者.mdb"));
  run.folders[folder::kPictures] = program(QStringLiteral("shared/図/"));
  const BackupReport report = backUpToFolder(run, folder());
  EXPECT_TRUE(report.whole());
  EXPECT_EQ(stampOf(copy(QStringLiteral("患者.mdb"))), 1);
  EXPECT_EQ(bytesOf(copy(QStringLiteral("図/body.bmp"))), "front");
  EXPECT_FALSE(QFileInfo::exists(copy(test::kPatientsFile)));
}

TEST_F(BackupFolderTest, TwoFilesOfOneNameAreReported) {
  ASSERT_TRUE(QDir().mkpath(program(QStringLiteral("shared"))));
  const QString other = program(QStringLiteral("shared/保険者2000.mdb"));
  ASSERT_TRUE(QFile::rename(live(test::kPatientsFile), other));
  run.folders[folder::kPatients] = other;
  const BackupReport report = backUpToFolder(run, folder());
  EXPECT_EQ(
      faultsOf(report),
      (QStringList{
          QStringLiteral("「保険者2000.mdb」は、同じ名前の別のファイルがあるためコピーしていません。（%1）")
              .arg(other)}));
  EXPECT_EQ(bytesOf(copy(QStringLiteral("保険者2000.mdb"))), bytesOf(live(QStringLiteral("保険者2000.mdb"))));
  EXPECT_EQ(report.copied.size(), 11);
}

TEST_F(BackupFolderTest, MissingAndDamagedFilesAreReportedAndTheOthersCopied) {
  ASSERT_TRUE(backUpToFolder(run, folder()).whole());
  stampAll(2);
  const QString doctors = live(QStringLiteral("同意医師2000.mdb")),
                fees = live(QStringLiteral("料金設定2000.mdb"));
  ASSERT_TRUE(QFile::remove(doctors));
  scribble(fees, 4096);
  ASSERT_TRUE(QDir(program(QStringLiteral("GDATA"))).removeRecursively());
  const BackupReport report = backUpToFolder(run, folder());
  EXPECT_EQ(faultsOf(report),
            (QStringList{
                QStringLiteral("「同意医師2000.mdb」が見つかりません。（%1）").arg(doctors),
                QStringLiteral("「料金設定2000.mdb」は、壊れているためコピーしていません。（%1）").arg(fees),
                QStringLiteral("「GDATA」を読むことができません。見つかりません。（%1）")
                    .arg(program(QStringLiteral("GDATA")))}));
  EXPECT_EQ(report.copied.size(), 10);
  EXPECT_EQ(stampOf(copy(QStringLiteral("料金設定2000.mdb"))), 1) << "the older copy stays";
  EXPECT_EQ(stampOf(copy(QStringLiteral("同意医師2000.mdb"))), 1);
  EXPECT_EQ(stampOf(copy(test::kPatientsFile)), 2);
  EXPECT_EQ(checkedBySystem(folder()), QString());
}

TEST_F(BackupFolderTest, AFullFolderKeepsTheOlderCopies) {
  ASSERT_TRUE(backUpToFolder(run, folder()).whole());
  stampAll(2);
  const BackupReport report =
      backUpToFolder(run, folder(), failing(store::DiskStep::Write, ENOSPC, test::kPatientsFile));
  EXPECT_EQ(faultsOf(report), (QStringList{QStringLiteral("「臨床QV2000N.mdb」に書き込むことができません。"
                                                          "ディスクの空きがありません。（%1）")
                                               .arg(copy(test::kPatientsFile))}));
  EXPECT_EQ(stampOf(copy(test::kPatientsFile)), 1);
  EXPECT_EQ(stampOf(copy(test::kClaims1File)), 2);
  EXPECT_EQ(checkedBySystem(folder()), QString());
  EXPECT_EQ(besides(folder()), QStringList());
  EXPECT_EQ(report.shortfall(),
            QStringLiteral("データのバックアップは、全部は出来ませんでした。\nコピーできなかったもの:\n%1\n"
                           "コピーしたもの:\n%2")
                .arg(faultsOf(report)[0],
                     (report.copied + QStringList{QStringLiteral("人体図のファイル 4個")}).join(u'、')));
}

TEST_F(BackupFolderTest, EveryFailingStepIsReported) {
  using store::DiskStep;
  for (const auto step : {DiskStep::Create, DiskStep::Write, DiskStep::ReadBack, DiskStep::Rename}) {
    for (const QString& name : {test::kPatientsFile, QStringLiteral("図 2.bmp")}) {
      const BackupReport report = backUpToFolder(run, folder(), failing(step, EIO, name));
      ASSERT_EQ(faultsOf(report).size(), 1) << int(step);
      EXPECT_TRUE(faultsOf(report)[0].startsWith(u"「%1」に書き込むことができません。"_s.arg(name)))
          << int(step);
      EXPECT_EQ(besides(folder()), QStringList());
      EXPECT_EQ(besides(copy(QStringLiteral("GDATA/0002/old"))), QStringList());
    }
  }
}

// One sync serves all files: where it fails, none of them is safe.
TEST_F(BackupFolderTest, AFailingSyncKeepsAllOlderCopies) {
  ASSERT_TRUE(backUpToFolder(run, folder()).whole());
  stampAll(2);
  const BackupReport report =
      backUpToFolder(run, folder(), failing(store::DiskStep::Sync, EIO, QStringLiteral(".mdb")));
  EXPECT_EQ(report.faults.size(), 12u);
  EXPECT_EQ(report.copied, QStringList());
  EXPECT_EQ(report.pictures, 4);
  expectCopies(1);
}

// A new half of the claims with an older one would be of two moments.
TEST_F(BackupFolderTest, FailedHalfOfTheClaimsLeavesTheOtherOutToo) {
  const auto fails = failing(store::DiskStep::Write, ENOSPC, test::kClaims2File);
  EXPECT_EQ(backUpToFolder(run, folder(), fails).faults.size(), 1u);
  EXPECT_EQ(stampOf(copy(test::kClaims1File)), 1) << "where there is none, one half is better than nothing";
  ASSERT_TRUE(backUpToFolder(run, folder()).whole());
  stampAll(2);
  const BackupReport report = backUpToFolder(run, folder(), fails);
  EXPECT_EQ(report.faults.size(), 2u);
  EXPECT_EQ(faultsOf(report)[0],
            QStringLiteral("「%1」は、「%2」と同じ時のものがそろわないためコピーしていません。（%3）")
                .arg(test::kClaims1File, test::kClaims2File, live(test::kClaims1File)));
  EXPECT_FALSE(report.copied.contains(test::kClaims1File));
  for (const QString& name : kOwnNames)
    EXPECT_EQ(stampOf(copy(name)), name.startsWith(u"保険申請") ? 1 : 2) << name.toStdString();
  EXPECT_EQ(checkedBySystem(folder()), QString());
  EXPECT_EQ(besides(folder()), QStringList());
}

// A copy that another program worked with, and died, is a copy like any other.
TEST_F(BackupFolderTest, JournalOfAnOlderCopyIsNotAppliedToTheNewOne) {
  ASSERT_TRUE(backUpToFolder(run, folder()).whole());
  test::leaveJournal(copy(test::kPatientsFile));
  stampAll(2);
  ASSERT_TRUE(backUpToFolder(run, folder()).whole());
  expectCopies(2);
  EXPECT_EQ(bytesOf(copy(test::kPatientsFile)), bytesOf(live(test::kPatientsFile)));
}

TEST_F(BackupFolderTest, LockedFileIsReported) {
  const auto database = store::Database::open(live(test::kPatientsFile));
  ASSERT_TRUE(database.ok());
  sqlite3_busy_timeout((*database)->handle(), 1);
  const test::OtherProgram holds(live(test::kPatientsFile), "BEGIN EXCLUSIVE");
  const BackupReport report = backUpToFolder(run, folder());
  ASSERT_EQ(faultsOf(report).size(), 1);
  EXPECT_TRUE(
      faultsOf(report)[0].startsWith(u"「臨床QV2000N.mdb」は、ほかのコンピュータまたは画面で使用中です。"));
  EXPECT_EQ(report.copied.size(), 11);
}

// What the folder gives back is compared with what was read.
TEST_F(BackupFolderTest, CopyThatReadsBackChangedIsReported) {
  const QString target = copy(test::kPatientsFile);
  const auto spoil = [&](store::DiskStep step, const QString& path) {
    if (step == store::DiskStep::ReadBack && path.contains(test::kPatientsFile)) scribble(path, 5000);
    return 0;
  };
  const BackupReport report = backUpToFolder(run, folder(), {{}, spoil});
  EXPECT_EQ(
      faultsOf(report),
      (QStringList{QStringLiteral("「臨床QV2000N.mdb」のコピーが、元のファイルと同じになりません。（%1）")
                       .arg(target)}));
  EXPECT_FALSE(QFileInfo::exists(target));
}

TEST_F(BackupFolderTest, VanishedFolderIsReported) {
  for (const QString& name : {test::kClaims1File, QStringLiteral("1.bmp")}) {
    for (const auto at : {store::DiskStep::Create, store::DiskStep::Sync, store::DiskStep::Rename}) {
      ASSERT_TRUE(QDir().mkpath(folder()));
      const auto vanish = [&](store::DiskStep step, const QString& path) {
        if (step == at && (step == store::DiskStep::Sync || path.contains(name)))
          QDir(folder()).removeRecursively();
        return 0;
      };
      const BackupReport report = backUpToFolder(run, folder(), {{}, vanish});
      EXPECT_FALSE(report.whole()) << name.toStdString();
      EXPECT_TRUE(faultsOf(report).join(u'\n').contains(name)) << faultsOf(report).join(u'\n').toStdString();
    }
  }
}

TEST_F(BackupFolderTest, AKillLeavesEachFileOldOrNew) {
  ASSERT_TRUE(backUpToFolder(run, folder()).whole());
  stampAll(2);
  for (int step = 0;; step += 5) {
    const int ended = inChild([&] {
      int steps = 0;
      (void)backUpToFolder(run, folder(), {{}, [&](store::DiskStep, const QString&) {
                                             if (steps++ == step) ::_exit(9);
                                             return 0;
                                           }});
    });
    for (const QString& name : kOwnNames)
      EXPECT_GT(stampOf(copy(name)), 0) << step << ' ' << name.toStdString();
    if (ended == 0 || HasFailure()) break;
  }
  expectCopies(2);
}

TEST_F(BackupFolderTest, FoldersThatCannotTakeCopiesAreRefused) {
  const auto why = [&](const QString& place) {
    const text::Done fit = checkBackupFolder(run, place);
    return fit ? QString() : fit.fault().message;
  };
  const QString own =
      QStringLiteral("「%1」は、元のデータのあるフォルダです。ほかのフォルダを選択して下さい。（%2）");
  EXPECT_EQ(why(m_folder.path()), own.arg(QFileInfo(m_folder.path()).fileName(), m_folder.path()));
  EXPECT_EQ(
      why(program(QStringLiteral("GDATA/0001"))),
      QStringLiteral("「0001」は、人体図のフォルダの中にあります。ほかのフォルダを選択して下さい。（%1）")
          .arg(program(QStringLiteral("GDATA/0001"))));
  ASSERT_TRUE(QDir().mkpath(backup(QString())));
  EXPECT_TRUE(
      why(program(QStringLiteral("backup"))).contains(u"治療台帳が自動でバックアップするフォルダです。"));
  EXPECT_EQ(why(folder() + QStringLiteral("/none")),
            QStringLiteral("「none」に書き込むことができません。見つかりません。（%1/none）").arg(folder()));
  ASSERT_TRUE(QFile::link(m_folder.path(), m_target.filePath(QStringLiteral("link"))));
  EXPECT_TRUE(why(m_target.filePath(QStringLiteral("link"))).contains(u"元のデータのあるフォルダです。"));
  ASSERT_TRUE(QDir().mkpath(program(QStringLiteral("shared"))));
  run.folders[folder::kFees] = program(QStringLiteral("shared/料金設定2000.mdb"));
  EXPECT_TRUE(why(program(QStringLiteral("shared"))).contains(u"元のデータのあるフォルダです。"));
  EXPECT_EQ(why(folder()), QString());
  const QString doctors = QStringLiteral("同意医師2000.mdb");
  ASSERT_TRUE(QFile::rename(live(doctors), copy(doctors)) && QFile::link(copy(doctors), live(doctors)));
  EXPECT_TRUE(why(folder()).contains(u"元のデータのあるフォルダです。")) << "through a link";
}

TEST_F(BackupFolderTest, PictureFolderThatCannotBeMadeIsReported) {
  QFile inTheWay(copy(QStringLiteral("GDATA")));
  ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
  inTheWay.close();
  const BackupReport report = backUpToFolder(run, folder());
  EXPECT_EQ(report.copied.size(), 12);
  EXPECT_EQ(report.pictures, 0);
  EXPECT_TRUE(faultsOf(report)[0].startsWith(u"「GDATA」に書き込むことができません。"))
      << faultsOf(report)[0].toStdString();
}

TEST_F(BackupFolderTest, ManyPicturesThatFailAreCounted) {
  for (int number = 0; number < 70; ++number) put(QStringLiteral("GDATA/many/%1.bmp").arg(number), "x");
  const BackupReport report =
      backUpToFolder(run, folder(), failing(store::DiskStep::Write, ENOSPC, QStringLiteral("many")));
  EXPECT_EQ(report.pictureFaults.size(), 70u);
  EXPECT_EQ(report.pictures, 4);
  EXPECT_EQ(report.shortfall().count(u".bmp」"), 5);
  EXPECT_TRUE(report.shortfall().contains(u"ほかに人体図のファイル 65個。"));
}

}  // namespace
}  // namespace frame
