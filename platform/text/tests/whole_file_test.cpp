#include "platform/text/whole_file.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <thread>
#include <vector>

using namespace text;

TEST(WholeFile, ReplacesTheOldContentsAndLeavesNothingBeside) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("見本.txt"));
  ASSERT_TRUE(writeWholeFile(path, "first and long"));
  ASSERT_TRUE(writeWholeFile(path, "second"));
  EXPECT_EQ(*readWholeFile(path), "second");
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
            QStringList{QStringLiteral("見本.txt")});
}

TEST(WholeFile, AFaultNamesTheFileAndTheOldContentsStay) {
  QTemporaryDir folder;
  const QString lost = folder.filePath("none/qv.dat");
  EXPECT_EQ(writeWholeFile(lost, "x").fault().message,
            QStringLiteral("「qv.dat」に書き込むことができません。見つかりません。（%1）").arg(lost));
  EXPECT_EQ(readWholeFile(lost).fault().message,
            QStringLiteral("「qv.dat」を読むことができません。見つかりません。（%1）").arg(lost));
}

TEST(WholeFile, AFolderInTheFilesPlaceIsTold) {
  QTemporaryDir folder;
  EXPECT_TRUE(readWholeFile(folder.path()).fault().message.contains(QStringLiteral("フォルダです。")));
  EXPECT_TRUE(writeWholeFile(folder.path(), "x").fault().message.contains(QStringLiteral("フォルダです。")));
}

TEST(WholeFile, AnEmptyAndALongFileAreReadWhole) {
  QTemporaryDir folder;
  const QString path = folder.filePath("long");
  for (const QByteArray& bytes : {QByteArray(), QByteArray("\0\xFF\r\n", 4), QByteArray(1'000'003, 'x')}) {
    ASSERT_TRUE(writeWholeFile(path, bytes));
    EXPECT_EQ(*readWholeFile(path), bytes);
  }
}

TEST(WholeFile, PermissionsStayAndLinksAreFollowed) {
  QTemporaryDir folder;
  const QString path = folder.filePath("real"), link = folder.filePath("link");
  ASSERT_TRUE(writeWholeFile(path, "a"));
  ASSERT_TRUE(QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner));
  ASSERT_TRUE(QFile::link(path, link));
  ASSERT_TRUE(writeWholeFile(link, "b"));
  EXPECT_TRUE(QFileInfo(link).isSymLink());
  EXPECT_EQ(*readWholeFile(path), "b");
  EXPECT_FALSE(QFileInfo(path).permission(QFileDevice::ReadOther));
}

TEST(WholeFile, ManyWritersAtOnceLeaveOneWholeText) {
  QTemporaryDir folder;
  const QString path = folder.filePath("word.txt");
  std::vector<std::thread> writers;
  for (char letter = 'a'; letter < 'e'; ++letter)
    writers.emplace_back([&path, letter] {
      for (int i = 0; i < 50; ++i) EXPECT_TRUE(writeWholeFile(path, QByteArray(5000 + i, letter)));
    });
  for (std::thread& writer : writers) writer.join();
  const QByteArray text = *readWholeFile(path);
  EXPECT_EQ(text.count(text[0]), text.size());
  EXPECT_EQ(text.size(), 5049);
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}
