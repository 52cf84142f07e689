#include "records/core/grid_claim.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

class GridClaimTest : public testing::Test {
 protected:
  void SetUp() override {
    for (const auto& [entry, name] : {std::pair(frame::folder::kClaims1, u"保険申請2000_1.mdb"_s),
                                      std::pair(frame::folder::kClaims2, u"保険申請2000_2.mdb"_s)}) {
      folders[entry] = folder.filePath(name);
      ASSERT_TRUE(store::createFresh(folders[entry], name));
    }
  }
  GridClaim open() { return std::move(GridClaim::open(folders).value()); }
  claims::ClaimFile file() { return std::move(claims::ClaimFile::open(folders).value()); }
  qint64 add(const QString& patient, const QString& month) {
    return file().add(typed({{u"番号1"_s, patient}, {u"申請年月"_s, month}})).value();
  }
  static claims::ClaimRecord typed(const QHash<QString, QString>& columns) { return {columns, {}}; }
  static QList<qint64> ids(const text::Result<store::RecordSet>& set) {
    QList<qint64> ids;
    for (int row = 0; row < set->recordCount(); ++row) ids << set->valueAt(row, u"ID"_s).toLongLong();
    return ids;
  }

  QTemporaryDir folder;
  frame::DataFolders folders;
};

TEST_F(GridClaimTest, FindsThePatientsClaimsOfTheMonthInTheirOrder) {
  const qint64 older = add(u"P1"_s, u"令和6年9月"_s);
  add(u"Q9"_s, u"令和6年10月"_s);
  const qint64 first = add(u"P1"_s, u"令和6年10月"_s), second = add(u"P1"_s, u"令和6年10月"_s);
  GridClaim claims = open();
  EXPECT_EQ(ids(claims.of(u"P1"_s, u""_s)), (QList<qint64>{older, first, second}));
  EXPECT_EQ(ids(claims.of(u"P1"_s, u"令和6年10月"_s)), (QList<qint64>{first, second}));
  EXPECT_EQ(ids(claims.of(u"P1"_s, u"令和6年"_s)), (QList<qint64>{older, first, second}));
  EXPECT_EQ(ids(claims.of(u"P1"_s, u"令和5年"_s)), QList<qint64>());
  EXPECT_EQ(ids(claims.of(u""_s, u""_s)), QList<qint64>()) << "no serial is not everybody's";
}

TEST_F(GridClaimTest, WritesTypedColumnsOfBothHalves) {
  const qint64 id = add(u"P1"_s, u"令和6年10月"_s);
  GridClaim claim = open();
  EXPECT_EQ(claim.id(), 0);
  ASSERT_TRUE(claim.take(id));
  EXPECT_EQ(claim.id(), id);
  const auto change = typed({{u"治療内容1"_s, u"a"_s}, {u"yn2"_s, u"-1"_s}});
  EXPECT_EQ(claim.with(change).code(1), u"a"_s);
  EXPECT_EQ(claim.with(change).get(claim::patientSerial), u"P1"_s);
  ASSERT_TRUE(claim.write(change));
  EXPECT_EQ(file().read(id)->code(1), u"a"_s);
  EXPECT_TRUE(file().read(id)->ticked(u"yn2"_s));
}

TEST_F(GridClaimTest, AChangeOfAnotherComputerRefusesOnceAndSurvives) {
  const qint64 id = add(u"P1"_s, u"令和6年10月"_s);
  GridClaim claim = open();
  ASSERT_TRUE(claim.take(id));
  claims::ClaimFile other = file();
  ASSERT_TRUE(other.store(id, *other.read(id), typed({{u"治療内容2"_s, u"b"_s}})));
  const auto change = typed({{u"治療内容1"_s, u"a"_s}});
  EXPECT_FALSE(claim.write(change));
  EXPECT_TRUE(file().read(id)->code(1).isEmpty());
  ASSERT_TRUE(claim.write(change));
  EXPECT_EQ(file().read(id)->code(1), u"a"_s);
  EXPECT_EQ(file().read(id)->code(2), u"b"_s);
}

TEST_F(GridClaimTest, AClaimThatIsGoneIsNotMadeAgain) {
  const qint64 id = add(u"P1"_s, u"令和6年10月"_s);
  GridClaim claim = open();
  ASSERT_TRUE(claim.take(id));
  ASSERT_TRUE(file().remove(id));
  EXPECT_FALSE(claim.write(typed({{u"治療内容1"_s, u"a"_s}})));
  ASSERT_TRUE(claim.take(id));
  EXPECT_FALSE(claim.write(typed({{u"治療内容1"_s, u"a"_s}}))) << "nor its second half";
  EXPECT_EQ(ids(open().of(u"P1"_s, u""_s)), QList<qint64>());
  EXPECT_EQ(open().take(id)->recordCount(), 0);
}

TEST_F(GridClaimTest, WithoutAClaimNoneIsTaken) {
  GridClaim claim = open();
  const auto none = claim.take(0);
  ASSERT_TRUE(none);
  EXPECT_EQ(none->recordCount(), 0);
  EXPECT_EQ(claim.id(), 0);
}

TEST_F(GridClaimTest, AMissingFileIsAFault) {
  ASSERT_TRUE(QFile::remove(folders[frame::folder::kClaims2]));
  const auto opened = GridClaim::open(folders);
  ASSERT_FALSE(opened);
  EXPECT_TRUE(opened.fault().message.contains(u"保険申請2000_2.mdb"_s));
}

}  // namespace
}  // namespace records
