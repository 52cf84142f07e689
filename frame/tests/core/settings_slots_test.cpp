#include "frame/core/settings_slots.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <random>

#include "platform/text/sjis.h"
#include "platform/text/whole_file.h"

using namespace frame;

namespace {

SettingsSlots filled(const QString& mark) {
  SettingsSlots settings;
  for (int i = 0; i < SettingsSlots::kFileFields; ++i) settings[i] = mark + QString::number(i);
  return settings;
}

void writeBytes(const QString& path, const QByteArray& bytes) {
  ASSERT_TRUE(text::writeWholeFile(path, bytes));
}

}  // namespace

TEST(SettingsFile, IsOneShiftJisLineOfNinetyQuotedFields) {
  QTemporaryDir folder;
  const QString path = folder.filePath("qv.dat");
  ASSERT_TRUE(writeSettingsFile(path, filled(QStringLiteral("鍼①"))));
  const QByteArray bytes = *text::readWholeFile(path);
  EXPECT_TRUE(bytes.startsWith(*text::toSjis(QStringLiteral("\"鍼①0\",\"鍼①1\","))));
  EXPECT_TRUE(bytes.endsWith(*text::toSjis(QStringLiteral(",\"鍼①89\"\r\n"))));
  EXPECT_EQ(bytes.count('\n'), 1);
  EXPECT_EQ(bytes.count('"'), 180);
}

TEST(SettingsFile, EveryTextReadsBack) {
  QTemporaryDir folder;
  const QString path = folder.filePath("qv.dat");
  SettingsSlots settings = filled(QStringLiteral("見本"));
  settings[29] = QStringLiteral("𠮷田 \"例示\"");
  settings[30] = QStringLiteral("架空市１－２，３\r\n～");
  settings[31] = QString(QLatin1String(""));
  ASSERT_TRUE(writeSettingsFile(path, settings));
  const auto read = readSettingsFile(path);
  ASSERT_TRUE(read);
  EXPECT_TRUE(read->readWhole);
  for (int i = 0; i <= 100; ++i) EXPECT_EQ((*read)[i], i < 90 ? settings[i] : QString()) << i;
}

TEST(SettingsFile, AMissingFileIsAFaultThatNamesIt) {
  const auto read = readSettingsFile(QStringLiteral("/nonexistent/qv.dat"));
  ASSERT_FALSE(read);
  EXPECT_TRUE(read.fault().message.contains(QStringLiteral("/nonexistent/qv.dat")));
}

TEST(SettingsFile, AShortListLeavesTheRemainingSlotsBlank) {
  QTemporaryDir folder;
  const QString path = folder.filePath("qv.dat");
  writeBytes(path, "\"w\",\"7\",\"qvchkfolders.ini\"");
  const auto read = readSettingsFile(path);
  ASSERT_TRUE(read);
  EXPECT_FALSE(read->readWhole);
  EXPECT_EQ((*read)[1], QStringLiteral("7"));
  EXPECT_TRUE((*read)[3].isEmpty());
  writeBytes(path, "");
  EXPECT_TRUE(readSettingsFile(path));
}

TEST(SettingsFile, DamagedBytesAreNotTakenForAWholeFile) {
  QTemporaryDir folder;
  const QString path = folder.filePath("qv.dat");
  ASSERT_TRUE(writeSettingsFile(path, filled(QStringLiteral("鍼"))));
  QByteArray bytes = *text::readWholeFile(path);
  bytes[2] = '\x05';  // the second half of a character
  writeBytes(path, bytes);
  EXPECT_FALSE(readSettingsFile(path)->readWhole);
}

TEST(SettingsFile, CutAnywhereItStillReadsWithoutAFault) {
  QTemporaryDir folder;
  const QString path = folder.filePath("qv.dat");
  ASSERT_TRUE(writeSettingsFile(path, filled(QStringLiteral("鍼"))));
  const QByteArray whole = *text::readWholeFile(path);
  for (qsizetype length = 0; length < whole.size() - 10; length += 37) {
    writeBytes(path, whole.left(length));
    const auto read = readSettingsFile(path);
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->readWhole) << length;
  }
}

TEST(SettingsFile, AWriterKilledAtAnyMomentLeavesAWholeFile) {
  QTemporaryDir folder;
  const QString path = folder.filePath("qv.dat");
  ASSERT_TRUE(writeSettingsFile(path, filled(QStringLiteral("始"))));
  std::mt19937 random(90);
  for (int round = 0; round < 40; ++round) {
    const pid_t writer = fork();
    ASSERT_GE(writer, 0);
    if (writer == 0) {
      for (int i = 0;; ++i)
        if (!writeSettingsFile(path, filled(QString(200, QChar(u'ア' + i % 40))))) _exit(1);
    }
    usleep(static_cast<useconds_t>(random() % 8000));
    kill(writer, SIGKILL);
    int status = 0;
    waitpid(writer, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
    const auto read = readSettingsFile(path);
    ASSERT_TRUE(read);
    ASSERT_TRUE(read->readWhole);
    const QString mark = (*read)[0].chopped(1);
    EXPECT_EQ((*read)[89], mark + QStringLiteral("89"));  // no mixture of two writes
  }
}
