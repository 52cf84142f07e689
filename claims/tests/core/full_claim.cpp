#include "claims/tests/core/full_claim.h"

#include "claims/core/claim_store.h"

namespace claims::testing {
namespace {

QString numberText(qint64 number) { return number == 0 ? QString() : QString::number(number); }

}  // namespace

void expectStored(const FullClaim& row) {
  const FeeFiles files(QStringLiteral("/program"), QStringLiteral("/data/料金設定2000.mdb"));
  CsvFees fees;
  const StoredClaim stored = storeClaim(row.claim, {era(), files, fees});
  ASSERT_FALSE(stored.calculation) << stored.calculation->message.toStdString();
  EXPECT_EQ(stored.amounts.total, row.total);
  EXPECT_EQ(stored.amounts.share, row.share);
  EXPECT_EQ(stored.amounts.claim, row.total - row.share);
  qint64 sum = 0;
  for (const AmountRow& line : stored.amounts.rows) {
    EXPECT_EQ(line.amount, qint64{line.unit} * line.count) << line.label.toStdString();
    EXPECT_NE(line.count, 0) << line.label.toStdString();
    sum += line.amount;
  }
  EXPECT_EQ(sum, row.total);

  const ClaimRecord& claim = stored.claim;
  const bool massage = stored.amounts.kind == Kind::Massage;
  const QString own = massage ? QStringLiteral("m") : QStringLiteral("h");
  const QString other = massage ? QStringLiteral("h") : QStringLiteral("m");
  const qint64 sums[] = {row.total, row.share, row.total - row.share};
  const char16_t* columns[] = {u"合計", u"一部負担金2", u"請求額"};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(claim.named(QString::fromUtf16(columns[i])), numberText(sums[i]));
    EXPECT_EQ(claim.named(own + QString::number(i + 2)), numberText(sums[i]));
    EXPECT_TRUE(claim.named(other + QString::number(i + 2)).isNull());
  }
  EXPECT_EQ(claim.get(claim::subject), QString::fromUtf16(row.subject));
  EXPECT_FALSE(claim.get(claim::subject).isNull());
}

std::string nameOf(const ::testing::TestParamInfo<FullClaim>& info) { return info.param.name; }

}  // namespace claims::testing
