#include <sqlite3.h>

#include "claims/tests/screens/claim_list_fixture.h"
#include "platform/store/bulk.h"
#include "platform/store/growth.h"

// The claim list over a second file of an older version.

namespace claims {
namespace {

class ClaimListGrowth : public ClaimListTest {
 protected:
  void SetUp() override {
    ClaimListTest::SetUp();
    ASSERT_TRUE(QFile::remove(second()));
    ASSERT_TRUE(
        store::createFresh(second(), qs(u"保険申請2000_2.mdb"), store::FreshColumns::FirstSchema).ok());
    ASSERT_TRUE(
        store::addRows(path(qs(u"保険申請2000_1.mdb")), qs(u"保険申請"), {{{qs(u"氏名"), qs(u"見本 太郎")}}})
            .ok());
    ASSERT_TRUE(store::addRows(second(), qs(u"保険申請"), {{{qs(u"c1"), qs(u"架空町")}}}).ok());
    ASSERT_TRUE(needed(store::GrowthRun::Claim1));
    ASSERT_TRUE(needed(store::GrowthRun::Claim2));
  }
  QString second() const { return path(qs(u"保険申請2000_2.mdb")); }
  bool needed(store::GrowthRun run) const {
    const auto lacks = store::needsGrowth(second(), run);
    EXPECT_TRUE(lacks.ok());
    return lacks && *lacks;
  }
};

TEST_F(ClaimListGrowth, GrowsAtItsLoadWithoutAQuestion) {
  openList();
  activate();
  EXPECT_EQ(told(), QStringList());
  EXPECT_FALSE(needed(store::GrowthRun::Claim1));
  EXPECT_FALSE(needed(store::GrowthRun::Claim2));
  EXPECT_EQ(stored(1).named(qs(u"c1")), qs(u"架空町"));
  ClaimRecord changed;
  changed.setNamed(qs(u"d1"), qs(u"1"));
  changed.setNamed(qs(u"h1"), qs(u"2"));
  ASSERT_TRUE(file().store(1, stored(1), changed).ok());
  EXPECT_EQ(stored(1).named(qs(u"d1")), qs(u"1"));
  EXPECT_EQ(stored(1).named(qs(u"h1")), qs(u"2"));
}

TEST_F(ClaimListGrowth, AGrownFileIsLeftAlone) {
  openList();
  QFile grown(second());
  ASSERT_TRUE(grown.open(QIODevice::ReadOnly));
  const QByteArray before = grown.readAll();
  openList();
  grown.seek(0);
  EXPECT_EQ(grown.readAll(), before);
}

TEST_F(ClaimListGrowth, ARefusalIsReportedOnceAndTheListWorks) {
  QFile::setPermissions(second(), QFile::ReadOwner);
  openList();
  EXPECT_EQ(told(), QStringList()) << "before the list has the keyboard nothing is told";
  activate();
  const QStringList texts = told();
  ASSERT_EQ(texts.size(), 1);
  EXPECT_TRUE(texts[0].startsWith(qs(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :")));
  EXPECT_TRUE(texts[0].contains(qs(u"保険申請2000_2.mdb"))) << texts[0].toStdString();
  m_list->onActivate();
  QCoreApplication::processEvents();
  EXPECT_EQ(told(), QStringList());
  EXPECT_EQ(shown(u"氏名"), QStringList(qs(u"見本 太郎")));
  search(u"氏名", qs(u"見本"));
  EXPECT_EQ(shown(), QStringList(qs(u"1")));
}

TEST_F(ClaimListGrowth, AFileLockedElsewhereIsReportedAndGrowsAtTheNextLoad) {
  const auto held = store::Database::open(second());
  ASSERT_TRUE(held.ok());
  sqlite3_busy_timeout((*held)->handle(), 10);
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(QFile::encodeName(second()).constData(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
  openList();
  activate();
  EXPECT_EQ(told().size(), 1);
  EXPECT_EQ(shown(), QStringList(qs(u"1")));
  sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
  sqlite3_close(other);
  openList();
  EXPECT_FALSE(needed(store::GrowthRun::Claim2));
}

}  // namespace
}  // namespace claims
