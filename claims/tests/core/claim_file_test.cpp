#include "claims/core/claim_file.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "claims/core/claim_store.h"
#include "claims/tests/core/claim_builder.h"
#include "platform/store/bulk.h"
#include "platform/store/catalogue.h"

namespace claims {
namespace {

class ClaimFiles : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const QString& name : {firstName, secondName})
      ASSERT_TRUE(store::createFresh(path(name), name).ok());
  }
  QString path(const QString& name) const { return folder.filePath(name); }
  ClaimFile open() { return std::move(ClaimFile::open(path(firstName), path(secondName)).value()); }

  QTemporaryDir folder;
  const QString firstName = QStringLiteral("保険申請2000_1.mdb");
  const QString secondName = QStringLiteral("保険申請2000_2.mdb");
};

TEST_F(ClaimFiles, AddReadStoreRemove) {
  ClaimFile file = open();
  auto claim =
      testing::makeClaim(u"令和6年10月", u"あマ", u"2割", u"1=g2/v1",
                         {{u"yn2", u"-1"}, {u"d12", u"自宅"}, {u"躯幹", u"-1"}, {u"氏名", u"見本 太郎"}});
  const auto id = file.add(claim);
  ASSERT_TRUE(id.ok());
  const ClaimRecord seen = file.read(*id).value();
  EXPECT_EQ(seen.named(QStringLiteral("ID")), QString::number(*id));
  EXPECT_EQ(seen.code(1), u"g2");
  EXPECT_EQ(seen.visit(1), u"v1");
  EXPECT_EQ(seen.named(QStringLiteral("d12")), u"自宅");
  EXPECT_TRUE(seen.ticked(claim::report));
  EXPECT_TRUE(seen.ticked(claim::trunk));
  EXPECT_EQ(seen.named(QStringLiteral("txt dummy1")), QString::number(*id));
  EXPECT_TRUE(seen.named(QStringLiteral("施術科目")).isNull());

  testing::CsvFees fees;
  const FeeFiles files(QStringLiteral("/p"), QStringLiteral("/p/料金設定2000.mdb"));
  const StoredClaim stored = storeClaim(seen, {testing::era(), files, fees});
  ASSERT_TRUE(file.store(*id, seen, stored.claim).ok());
  const ClaimRecord again = file.read(*id).value();
  for (const QString& column : stored.written)
    EXPECT_EQ(again.named(column), stored.claim.named(column)) << column.toStdString();
  EXPECT_EQ(again.named(QStringLiteral("合計")), u"3680");  // 3200 + 480
  EXPECT_EQ(again.named(QStringLiteral("m4")), u"2944");    // 3680 - 736

  ASSERT_TRUE(file.remove(*id).ok());
  EXPECT_TRUE(file.read(*id).value().named(QStringLiteral("ID")).isEmpty());
}

TEST_F(ClaimFiles, EveryColumnThatTheStoreWritesIsAColumnOfTheFiles) {
  ClaimFile file = open();
  testing::CsvFees fees;
  const FeeFiles files(QStringLiteral("/p"), QStringLiteral("/p/料金設定2000.mdb"));
  for (const char16_t* month : {u"令和6年10月", u"令和6年9月"}) {
    const auto claim = testing::makeClaim(month, u"鍼灸", u"3割", u"1=e 2=f", {{u"本人", u"-1"}});
    const auto stored = storeClaim(claim, {testing::era(), files, fees});
    const auto id = file.add(ClaimRecord());
    const ClaimRecord empty = file.read(id.value()).value();
    for (const QString& column : stored.written)
      EXPECT_TRUE(empty.columns().contains(column)) << column.toStdString();
  }
}

TEST_F(ClaimFiles, ABlankSubjectMeansThatTheClaimWasStored) {
  ClaimFile file = open();
  const qint64 id = file.add(ClaimRecord()).value();
  const ClaimRecord seen = file.read(id).value();
  ClaimRecord changed = seen;
  changed.setNamed(QStringLiteral("施術科目"), QStringLiteral(""));
  ASSERT_TRUE(file.store(id, seen, changed).ok());
  EXPECT_FALSE(file.read(id).value().named(QStringLiteral("施術科目")).isNull());
}

TEST_F(ClaimFiles, APrintSettingTakesTheLinkColumnOver) {
  ClaimFile file = open();
  ClaimRecord claim;
  claim.setNamed(QStringLiteral("txt dummy1"), QStringLiteral("1"));
  const qint64 id = file.add(claim).value();
  EXPECT_EQ(file.read(id).value().named(QStringLiteral("txt dummy1")), u"1");
}

TEST_F(ClaimFiles, AClaimChangedMeanwhileIsRefused) {
  ClaimFile mine = open(), other = open();
  const qint64 id = mine.add(testing::makeClaim(u"令和6年10月", u"鍼", u"1割", u"1=a")).value();
  const ClaimRecord seen = mine.read(id).value();
  ClaimRecord theirs = seen, ours = seen;
  theirs.setNamed(QStringLiteral("備考"), QStringLiteral("x"));
  ours.setNamed(QStringLiteral("d12"), QStringLiteral("y"));
  ASSERT_TRUE(other.store(id, seen, theirs).ok());
  EXPECT_FALSE(mine.store(id, seen, ours).ok());
  EXPECT_EQ(mine.read(id).value().named(QStringLiteral("備考")), u"x");
  EXPECT_TRUE(mine.read(id).value().named(QStringLiteral("d12")).isNull());
  ClaimRecord anew = mine.read(id).value();
  anew.setNamed(QStringLiteral("d12"), QStringLiteral("y"));
  EXPECT_TRUE(mine.store(id, mine.read(id).value(), anew).ok());
}

TEST_F(ClaimFiles, AMissingSecondHalfIsMade) {
  ASSERT_TRUE(store::addRows(path(firstName), QStringLiteral("保険申請"),
                             {{{QStringLiteral("ID"), QStringLiteral("5")},
                               {QStringLiteral("氏名"), QStringLiteral("見本")}}})
                  .ok());
  ClaimFile file = open();
  EXPECT_FALSE(file.read(5).value().has(claim::treatmentPlace));
  ASSERT_TRUE(file.repairSecond(5).ok());
  const ClaimRecord claim = file.read(5).value();
  EXPECT_EQ(claim.named(QStringLiteral("txt dummy1")), u"5");
  for (int n = 1; n <= 4; ++n) EXPECT_EQ(claim.named(QStringLiteral("memo dummy%1").arg(n)), u" ");
  EXPECT_EQ(claim.named(QStringLiteral("氏名")), u"見本");
}

TEST_F(ClaimFiles, AMissingFileIsReportedByName) {
  const auto none = ClaimFile::open(path(QStringLiteral("none.mdb")), path(secondName));
  ASSERT_FALSE(none.ok());
  EXPECT_TRUE(none.fault().message.contains(u"none.mdb"));
}

TEST_F(ClaimFiles, FeesAreReadFromTheNewestRow) {
  const QString fees = path(QStringLiteral("料金設定2024.mdb"));
  ASSERT_TRUE(store::createFresh(fees, QStringLiteral("料金設定2024.mdb")).ok());
  ASSERT_TRUE(store::addRows(fees, QStringLiteral("料金設定"),
                             {{{QStringLiteral("ID"), QStringLiteral("1")},
                               {QStringLiteral("はり"), QStringLiteral("1000")}},
                              {{QStringLiteral("ID"), QStringLiteral("7")},
                               {QStringLiteral("はり"), QStringLiteral("1550.9")},
                               {QStringLiteral("マ訪問施術325"), QStringLiteral("2400")}}})
                  .ok());
  StoredFees source;
  const auto edition = source.load(fees);
  ASSERT_TRUE(edition.ok());
  EXPECT_EQ(edition->id, 7);
  EXPECT_EQ(edition->yen(Fee::Hari), 1550);  // the fraction is dropped
  EXPECT_EQ(edition->yen(massageVisitFee(3, 5)), 2400);
  EXPECT_FALSE(edition->value(Fee::Kyu));
  EXPECT_EQ(edition->yen(Fee::Kyu), 0);
  EXPECT_FALSE(source.load(path(QStringLiteral("none.mdb"))).ok());
}

}  // namespace
}  // namespace claims
