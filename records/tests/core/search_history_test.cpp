#include "records/core/search_history.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace records {
namespace {

QStringList numbered(int count) {
  QStringList lines;
  for (int i = 1; i <= count; ++i) lines << QStringLiteral("語%1").arg(i);
  return lines;
}

TEST(SearchHistoryRule, NewWordComesFirstWithNineOlderOnes) {
  const QStringList after = SearchHistory::remembered(numbered(11), QStringLiteral("見本"));
  EXPECT_EQ(after, QStringList{QStringLiteral("見本")} + numbered(9));
}

TEST(SearchHistoryRule, KnownWordKeepsItsPlace) {
  EXPECT_EQ(SearchHistory::remembered(numbered(11), QStringLiteral("語7")), numbered(11));
}

TEST(SearchHistoryRule, BlankWordChangesNothing) {
  EXPECT_EQ(SearchHistory::remembered(numbered(3), QString()), numbered(3));
}

TEST(SearchHistoryRule, FirstWordOfAll) {
  EXPECT_EQ(SearchHistory::remembered({}, QStringLiteral("サトウ")), QStringList{QStringLiteral("サトウ")});
}

TEST(SearchHistoryFile, MissingFileHasNoWords) {
  QTemporaryDir folder;
  EXPECT_TRUE(SearchHistory(folder.path()).words().isEmpty());
  EXPECT_FALSE(QFile::exists(QDir(folder.path()).filePath(QStringLiteral("word.txt"))));
}

TEST(SearchHistoryFile, ReadsElevenLinesOfTheFile) {
  QTemporaryDir folder;
  QFile file(QDir(folder.path()).filePath(QStringLiteral("word.txt")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  for (int i = 0; i < 14; ++i) file.write("w" + QByteArray::number(i) + "\r\n");
  file.close();
  const QStringList words = SearchHistory(folder.path()).words();
  ASSERT_EQ(words.size(), 11);
  EXPECT_EQ(words.last(), QStringLiteral("w10"));
}

TEST(SearchHistoryFile, RemembersAcrossRunsNewestFirstRareCharactersToo) {
  QTemporaryDir folder;
  const QString rare = QString::fromUcs4(U"\U00020BB7") + QStringLiteral("見");
  ASSERT_TRUE(SearchHistory(folder.path()).remember(QStringLiteral("髙橋見本")));
  ASSERT_TRUE(SearchHistory(folder.path()).remember(rare));
  EXPECT_EQ(SearchHistory(folder.path()).words(), (QStringList{rare, QStringLiteral("髙橋見本")}));
}

TEST(SearchHistoryFile, FolderThatCannotBeWrittenIsAFault) {
  EXPECT_FALSE(SearchHistory(QStringLiteral("/nonexistent/folder")).remember(QStringLiteral("語")));
}

}  // namespace
}  // namespace records
