// An invented revision goes through the rules as rows of their tables.
#include <gtest/gtest.h>

#include "claims/core/amount_item_checks.h"
#include "claims/core/amount_record.h"
#include "claims/core/claim_store.h"
#include "claims/tests/core/invented_revision.h"

namespace claims {
namespace {

using testing::era;
using testing::InventedRevision;
using testing::makeClaim;

/// One plain day, one day at one patient's, one sudden visit.
ClaimRecord needleClaim(const char16_t* month, const char16_t* tick) {
  return makeClaim(month, u"鍼灸", u"3割", u"1=a 2=a/v1 3=a/t", {{InventedRevision::kTick.name(), tick}});
}

class Revision : public ::testing::Test {
 protected:
  StoredClaim store(const ClaimRecord& claim) {
    FeeFiles files(QStringLiteral("/p"), QStringLiteral("/p/料金設定2000.mdb"));
    files.national = revision.files();
    return storeClaim(claim, {era(), files, revision, revision.table()});
  }
  StoredClaim storeWithoutRevision(const ClaimRecord& claim) {
    const FeeFiles files(QStringLiteral("/p"), QStringLiteral("/p/料金設定2000.mdb"));
    return storeClaim(claim, {era(), files, revision});
  }
  QStringList read(const StoredClaim& stored) {
    return amountRecordFields(stored.claim.get(claim::hariRecord), revision.table());
  }
  InventedRevision revision;
};

TEST_F(Revision, ItsTablesAreSound) {
  const KindRules& rules = revision.acupuncture();
  EXPECT_TRUE(isSound(rules.items, rules.versions));
}

TEST_F(Revision, TheTickChargesTheSurchargeAtTheNewPrices) {
  const StoredClaim stored = store(needleClaim(u"令和60年6月", u"1"));
  ASSERT_FALSE(stored.calculation);
  // needles 2,000 x 2 (the sudden visit is a plain day too), one patient 4,000, sudden 2,500, 70 x 2 visits
  EXPECT_EQ(stored.amounts.total, 4000 + 4000 + 2500 + 140);
  EXPECT_EQ(stored.amounts.share, 3192);
  const AmountRow& row = stored.amounts.rows.back();
  EXPECT_EQ(row.label, u"見本加算");
  EXPECT_EQ(row.unit, 70);
  EXPECT_EQ(row.count, 2);
  EXPECT_EQ(row.amount, 140);
  EXPECT_EQ(previewScreen(stored.amounts.preview), u"施術料金2024H");
}

TEST_F(Revision, TheRecordHasThreeMoreFieldsUnderItsOwnMark) {
  const QStringList fields = read(store(needleClaim(u"令和60年6月", u"1")));
  const int first = revision.surcharge().field.first;
  ASSERT_EQ(fields.size(), first + 3);
  EXPECT_EQ(fields[0], QStringView(InventedRevision::kMark));
  EXPECT_EQ(fields.mid(4, 3), QStringList({"2000", "2", "4000"}));
  EXPECT_EQ(fields.mid(46, 3), QStringList({"10640", "3192", "7448"}));
  EXPECT_EQ(fields.mid(first), QStringList({"70", "2", "140"}));
}

TEST_F(Revision, WithoutTheTickTheFieldsAreZero) {
  for (const char16_t* tick : {u"", u"0"}) {
    const StoredClaim stored = store(needleClaim(u"令和60年6月", tick));
    EXPECT_EQ(stored.amounts.total, 10500);
    EXPECT_EQ(read(stored).mid(revision.surcharge().field.first), QStringList({"0", "0", "0"}));
  }
}

TEST_F(Revision, EarlierMonthsStayAsTheyWere) {
  for (const char16_t* month :
       {u"平成28年10月", u"平成30年9月", u"令和6年9月", u"令和6年10月", u"令和60年5月"}) {
    const ClaimRecord claim = needleClaim(month, u"1");
    const StoredClaim stored = store(claim), before = storeWithoutRevision(claim);
    EXPECT_GT(stored.amounts.total, 0);
    EXPECT_EQ(stored.claim.columns(), before.claim.columns()) << QString::fromUtf16(month).toStdString();
  }
}

TEST_F(Revision, MassageIsNotTouched) {
  const ClaimRecord claim =
      makeClaim(u"令和60年6月", u"あマ", u"1割", u"1=g2", {{InventedRevision::kTick.name(), u"1"}});
  const MonthFlags flags = monthFlags(QDate(2078, 6, 1));
  const FeeEdition fees = revision.load(pickFeeFile(*flags.month)).value();
  EXPECT_EQ(amountRecord(amounts(claim, fees, flags, Path::Store, revision.table()), {}),
            amountRecord(amounts(claim, fees, flags, Path::Store), {}));
}

TEST_F(Revision, ARecordIsReadByTheVersionOfItsMark) {
  const QString older = store(needleClaim(u"令和60年5月", u"1")).claim.get(claim::hariRecord);
  const QString newer = store(needleClaim(u"令和60年6月", u"1")).claim.get(claim::hariRecord);
  const auto readOlder = readAmountRecord(older, Kind::Acupuncture, revision.table());
  const auto readNewer = readAmountRecord(newer, Kind::Acupuncture, revision.table());
  ASSERT_TRUE(readOlder && readNewer);
  EXPECT_EQ(readOlder->version->mark, eras().back().acupuncture.versions.back().mark);
  EXPECT_EQ(readNewer->version->from, InventedRevision::kFrom);
  EXPECT_FALSE(readOlder->version->records(revision.surcharge()));
  EXPECT_TRUE(readNewer->version->records(revision.surcharge()));
  EXPECT_TRUE(amountRecordFields(newer).isEmpty()) << "a program without the revision does not know it";
  EXPECT_FALSE(readAmountRecord(older, Kind::Massage, revision.table()));
}

}  // namespace
}  // namespace claims
