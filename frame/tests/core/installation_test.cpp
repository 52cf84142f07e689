#include "frame/core/installation.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "frame/core/csv_table.h"
#include "frame/core/prefecture.h"
#include "frame/core/run_state.h"
#include "platform/store/catalogue.h"
#include "platform/store/database.h"
#include "platform/store/record_set.h"

namespace frame {
namespace {

class InstallationTest : public testing::Test {
 protected:
  QString path(const QString& name) const { return m_folder.filePath(QStringLiteral("program/") + name); }
  QStringList layOutHere() const {
    const auto made = layOut(m_folder.filePath(QStringLiteral("program")), m_data, m_templates);
    EXPECT_TRUE(made.ok()) << (made ? "" : made.fault().message.toStdString());
    return made ? *made : QStringList();
  }
  store::RecordSet open(const QString& file) const {
    auto database = store::Database::open(path(file));
    EXPECT_TRUE(database.ok()) << file.toStdString();
    auto set = store::RecordSet::open(*database, QString::fromUtf16(store::tableOfFile(file)->table));
    EXPECT_TRUE(set.ok()) << file.toStdString();
    return std::move(*set);
  }
  void write(const QString& file, const QByteArray& content) const {
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(content);
  }
  QByteArray read(const QString& file) const {
    QFile in(file);
    EXPECT_TRUE(in.open(QIODevice::ReadOnly));
    return in.readAll();
  }

  QTemporaryDir m_folder;
  QString m_data = QStringLiteral(SOURCE_FOLDER "/data");
  QString m_templates = QStringLiteral(SOURCE_FOLDER "/templates");
};

TEST_F(InstallationTest, AFreshFolderHoldsEveryFileOfTheCatalogue) {
  layOutHere();
  for (const store::TableRow& row : store::catalogue()) {
    auto database = store::Database::open(path(QString::fromUtf16(row.file)));
    ASSERT_TRUE(database.ok()) << database.fault().message.toStdString();
    EXPECT_TRUE(store::RecordSet::open(*database, QString::fromUtf16(row.table)).ok());
  }
  for (const char* data : {"臨床QV2000N.mdb", "予約2000.mdb", "保険申請2000_1.mdb", "保険申請2000_2.mdb",
                           "カルテ2データ2000.mdb", "同意医師2000.mdb", "保険者2000.mdb"})
    EXPECT_EQ(open(QString::fromUtf8(data)).recordCount(), 0) << data;
  EXPECT_TRUE(QDir(path(QStringLiteral("GDATA"))).exists());
  EXPECT_TRUE(QDir(path(QStringLiteral("backup"))).exists());
  EXPECT_EQ(readPrefectureCode(m_folder.filePath(QStringLiteral("program"))), QStringLiteral("01"));
  const auto settings = readSettingsFile(path(QStringLiteral("qv.dat")));
  ASSERT_TRUE(settings.ok());
  EXPECT_TRUE(settings->readWhole);
  EXPECT_FALSE((*settings)[12].isEmpty()) << "a blank one opens no menu";
  EXPECT_TRUE(QDir(path({})).entryList({QStringLiteral("*.part*"), QStringLiteral("*.new*")}).isEmpty());
}

TEST_F(InstallationTest, TheDictionariesAreFilled) {
  layOutHere();
  EXPECT_EQ(open(QStringLiteral("Keiraku2000.mdb")).recordCount(), 361);
  EXPECT_EQ(open(QStringLiteral("CLmoji2000.mdb")).recordCount(), 60);
  EXPECT_EQ(open(QStringLiteral("CL2moji2000.mdb")).recordCount(), 60);
  const store::RecordSet points = open(QStringLiteral("Keiraku2000.mdb"));
  EXPECT_EQ(points.valueAt(0, QStringLiteral("経穴名漢字")), QStringLiteral("中府"));
  EXPECT_EQ(points.valueAt(0, QStringLiteral("経絡コード")), QStringLiteral("LU1"));
  EXPECT_EQ(points.valueAt(0, QStringLiteral("禁鍼フラグ")), QStringLiteral("0"));
}

TEST_F(InstallationTest, EveryFeeEditionHasItsId) {
  layOutHere();
  const auto table = readCsvTable(m_data + QStringLiteral("/fees/editions.csv"));
  ASSERT_TRUE(table.ok());
  QMap<QString, int> counted;
  for (const QStringList& row : table->rows) {
    const QString file = row[0] + QStringLiteral(".mdb");
    ++counted[file];
    store::RecordSet set = open(file);
    set.setBookmark(row[1].toLongLong());
    ASSERT_EQ(set.value(QStringLiteral("ID")), row[1]) << file.toStdString();
    for (int column = 3; column < row.size(); ++column) {
      const QString stored = set.value(table->columns[column]);
      EXPECT_EQ(stored, row[column]) << file.toStdString() << table->columns[column].toStdString();
      EXPECT_EQ(stored.isNull(), row[column].isEmpty()) << "a fee that the edition had not is NULL";
    }
  }
  for (auto file = counted.cbegin(); file != counted.cend(); ++file)
    EXPECT_EQ(open(file.key()).recordCount(), *file);
  EXPECT_EQ(counted.size(), 12);
}

TEST_F(InstallationTest, ASecondRunFindsNothingToDo) {
  EXPECT_FALSE(layOutHere().isEmpty());
  EXPECT_EQ(layOutHere(), QStringList());
}

TEST_F(InstallationTest, TheUsersDataAreNeverTouched) {
  layOutHere();
  {
    store::RecordSet phrases = open(QStringLiteral("CLmoji2000.mdb"));
    while (phrases.recordCount() > 1) {
      phrases.moveLast();
      ASSERT_TRUE(phrases.remove().ok());
    }
  }
  write(path(QStringLiteral("qv.dat")), "mine");
  write(path(QStringLiteral("prefecture.txt")), "34");
  write(path(QStringLiteral("予約2000.mdb")), "another kind of file");
  EXPECT_EQ(layOutHere(), QStringList());
  EXPECT_EQ(open(QStringLiteral("CLmoji2000.mdb")).recordCount(), 1);
  EXPECT_EQ(read(path(QStringLiteral("qv.dat"))), "mine");
  EXPECT_EQ(read(path(QStringLiteral("prefecture.txt"))), "34");
  EXPECT_EQ(read(path(QStringLiteral("予約2000.mdb"))), "another kind of file");
}

TEST_F(InstallationTest, NewerEditionIsAddedAfterTheExistingRows) {
  const QString current = QStringLiteral("料金設定2000.mdb");
  layOutHere();
  {
    store::RecordSet fees = open(current);
    fees.moveLast();
    ASSERT_TRUE(fees.remove().ok());
    ASSERT_TRUE(fees.edit().ok());
    ASSERT_TRUE(fees.setValue(QStringLiteral("はり"), QStringLiteral("9")).ok());
    ASSERT_TRUE(fees.update().ok());
  }
  EXPECT_EQ(layOutHere(), QStringList(current));
  const store::RecordSet fees = open(current);
  EXPECT_EQ(fees.recordCount(), 2);
  EXPECT_EQ(fees.valueAt(0, QStringLiteral("はり")), QStringLiteral("9"));
  EXPECT_EQ(fees.valueAt(1, QStringLiteral("ID")), QStringLiteral("2"));
}

TEST_F(InstallationTest, ShippedFormsAndHelpAreBroughtUpToDate) {
  QTemporaryDir forms;
  m_templates = forms.path();
  const QString form = forms.filePath(QStringLiteral("X.PRP"));
  write(form, "first");
  layOutHere();
  EXPECT_EQ(read(path(QStringLiteral("X.PRP"))), "first");
  write(form, "second one");
  EXPECT_EQ(layOutHere(), QStringList(QStringLiteral("X.PRP")));
  EXPECT_EQ(read(path(QStringLiteral("X.PRP"))), "second one");
  EXPECT_TRUE(QFile::exists(path(QStringLiteral("sippei3.csv"))));
  EXPECT_FALSE(QFile::exists(path(QStringLiteral("acupoints.csv"))));
}

TEST_F(InstallationTest, AFileThatWasCutOffWhileItWasMadeIsMadeAgain) {
  layOutHere();
  ASSERT_TRUE(
      QFile::rename(path(QStringLiteral("CLmoji2000.mdb")), path(QStringLiteral("CLmoji2000.mdb.part"))));
  EXPECT_EQ(layOutHere(), QStringList(QStringLiteral("CLmoji2000.mdb")));
  EXPECT_EQ(open(QStringLiteral("CLmoji2000.mdb")).recordCount(), 60);
}

TEST_F(InstallationTest, ALostRegisterIsNotMadeAnewWhereTheProgramHasRun) {
  layOutHere();
  for (const char* name : {"臨床QV2000N.mdb", "予約2000.mdb", "保険申請2000_1.mdb", "保険申請2000_2.mdb",
                           "カルテ2データ2000.mdb", "同意医師2000.mdb", "保険者2000.mdb"}) {
    const QString file = QString::fromUtf8(name);
    ASSERT_TRUE(QFile::remove(path(file))) << name;
    EXPECT_EQ(layOutHere(), QStringList()) << name;
    EXPECT_FALSE(QFile::exists(path(file))) << name << ": an empty register would hide the loss";
  }
}

TEST_F(InstallationTest, WhatIsShippedComesBackWhereTheProgramHasRun) {
  layOutHere();
  const QStringList shipped{QStringLiteral("Keiraku2000.mdb"), QStringLiteral("料金設定2024.mdb"),
                            QStringLiteral("help.txt")};
  for (const QString& file : shipped) ASSERT_TRUE(QFile::remove(path(file))) << file.toStdString();
  EXPECT_EQ(layOutHere(), shipped);
  EXPECT_EQ(open(QStringLiteral("Keiraku2000.mdb")).recordCount(), 361);
  EXPECT_GT(open(QStringLiteral("料金設定2024.mdb")).recordCount(), 0);
}

TEST_F(InstallationTest, AFirstLayoutThatWasCutOffIsCompleted) {
  layOutHere();
  for (const char* name : {"qv.dat", "保険者2000.mdb"})
    ASSERT_TRUE(QFile::remove(path(QString::fromUtf8(name))));
  EXPECT_EQ(layOutHere(), QStringList({QStringLiteral("保険者2000.mdb"), QStringLiteral("qv.dat")}))
      << "the settings are written after the registers: without them the folder is not laid out yet";
}

TEST_F(InstallationTest, ADamagedFeeFileIsLeftAsItIs) {
  layOutHere();
  const QString damaged = QStringLiteral("料金設定2018.mdb");
  write(path(damaged), "another kind of file");
  EXPECT_EQ(layOutHere(), QStringList()) << "the screen that reads it reports the fault, the others work";
  EXPECT_EQ(read(path(damaged)), "another kind of file");
}

TEST_F(InstallationTest, WrongTableIsReportedWithItsRow) {
  QTemporaryDir data;
  m_data = data.path();
  write(data.filePath(QStringLiteral("t.csv")), "a,b\n1,2\n3\n");
  const auto table = readCsvTable(data.filePath(QStringLiteral("t.csv")));
  ASSERT_FALSE(table.ok());
  EXPECT_TRUE(table.fault().message.contains(QStringLiteral("3行目")));
}

}  // namespace
}  // namespace frame
