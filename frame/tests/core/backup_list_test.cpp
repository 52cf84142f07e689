#include "frame/core/backup_list.h"

#include "frame/tests/core/backup_fixture.h"

namespace frame {
namespace {

class BackupListTest : public test::BackupTest {};

TEST_F(BackupListTest, NamesOfAnyKindAreCheckedByTheSystemAndReadBack) {
  const QStringList names = {QStringLiteral("臨床QV2000N.mdb"), QStringLiteral("図 1  a.bmp"),
                             QStringLiteral("a\\b"), QStringLiteral("a\nb"), QStringLiteral("# c")};
  ASSERT_TRUE(QDir().mkpath(program(QStringLiteral("copies"))));
  const QString folder = program(QStringLiteral("copies"));
  BackupList list;
  for (const QString& name : names) {
    QFile file(folder + u'/' + name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(name.toUtf8());
    file.close();
    list.put(name, QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Blake2b_512).toHex());
  }
  list.announce(names[0], QByteArray(128, 'a'));
  ASSERT_TRUE(list.write(folder));
  EXPECT_EQ(checkedBySystem(folder), QString());
  BackupList read = BackupList::read(folder);
  for (const QString& name : names) EXPECT_EQ(read.sumOf(name), list.sumOf(name)) << name.toStdString();
  EXPECT_EQ(read.sumsOfAny({names[0]}), (QSet<QByteArray>{list.sumOf(names[0]), QByteArray(128, 'a')}));
  ASSERT_TRUE(QFile::remove(folder + u'/' + names[0]));
  read.keepStanding(folder);
  EXPECT_EQ(read.sumOf(names[0]), QByteArray());
  EXPECT_EQ(read.sumOf(names[1]), list.sumOf(names[1]));
}

TEST_F(BackupListTest, LinesOfAnotherKindAreNoSums) {
  QFile file(BackupList::pathIn(m_folder.path()));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("\n# a remark\nshort  x\n" + QByteArray(128, 'b') + " *y\n");
  file.close();
  const BackupList read = BackupList::read(m_folder.path());
  EXPECT_TRUE(
      read.sumsOfAny({QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("a remark")}).isEmpty());
}

}  // namespace
}  // namespace frame
