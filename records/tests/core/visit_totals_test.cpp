#include "records/core/visit_totals.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/store/bulk.h"
#include "platform/store/database.h"

namespace records {
namespace {

struct Amount {
  const char* typed;
  qint64 yen;
};

TEST(YenOf, TakesTheNumberOfWhatIsTyped) {
  constexpr Amount kAmounts[] = {{"", 0},
                                 {"0", 0},
                                 {"1610", 1610},
                                 {"1,200", 1200},
                                 {"１２００", 1200},
                                 {"１，２００円", 1200},
                                 {"¥1,200", 1200},
                                 {"￥1200", 1200},
                                 {" 980 ", 980},
                                 {"-500", -500},
                                 {"1200.9", 1200},
                                 {"円", 0},
                                 {"なし", 0},
                                 {"後日", 0},
                                 {"　", 0},
                                 {"123456789012345", 123456789012345},
                                 {"99999999999999999999999", 0}};
  for (const Amount& one : kAmounts) EXPECT_EQ(yenOf(QString::fromUtf8(one.typed)), one.yen) << one.typed;
}

class TotalsOf : public testing::Test {
 protected:
  using Row = QHash<QString, QString>;

  void SetUp() override {
    ASSERT_TRUE(store::createFresh(m_path, QStringLiteral("カルテ2データ2000.mdb")).ok());
  }
  static Row visit(const char* date, const char* insurer, const char* share, const char* treatment,
                   const char* receipt = "0", const char* newPatient = "0") {
    const auto text = [](const char* utf8) { return QString::fromUtf8(utf8); };
    return {
        {QStringLiteral("治療日時"), text(date)},          {QStringLiteral("保険者負担金"), text(insurer)},
        {QStringLiteral("保険の一部負担金"), text(share)}, {QStringLiteral("治療金額"), text(treatment)},
        {QStringLiteral("領収証チェック"), text(receipt)}, {QStringLiteral("新患"), text(newPatient)}};
  }
  void put(const QList<Row>& rows) const { ASSERT_TRUE(store::addRows(m_path, kTable, rows).ok()); }
  store::RecordSet open() const {
    return std::move(*store::RecordSet::open(*store::Database::open(m_path), kTable));
  }

  const QString kTable = QStringLiteral("カルテ");
  QTemporaryDir m_folder;
  QString m_path = m_folder.filePath(QStringLiteral("カルテ2データ2000.mdb"));
};

TEST_F(TotalsOf, NoRowsGiveEmptyTotals) {
  const auto sums = totalsOf(open());
  ASSERT_TRUE(sums.ok());
  EXPECT_EQ(*sums, VisitTotals());
}

TEST_F(TotalsOf, EmptyAmountsAreSkippedAndMarksAreCounted) {
  put({visit("令和6年10月1日", "1127", "483", "1610", "-1", "-1"),
       visit("令和6年10月2日", "", "", "1,610", "-1"), visit("令和6年10月3日", "なし", "４８３", "1610円"),
       Row{}});
  const auto sums = totalsOf(open());
  ASSERT_TRUE(sums.ok());
  EXPECT_EQ(*sums, (VisitTotals{4, 1127, 966, 4830, 2, 1}));
}

TEST_F(TotalsOf, OnlyTheRowsOfTheViewCountAndTheCurrentRowStays) {
  QList<Row> rows;
  for (int number = 0; number < 300; ++number)
    rows += visit(number % 3 ? "令和6年9月30日" : "令和6年10月1日", "100", "30", "130");
  put(rows);
  store::RecordSet all = open();
  all.setFilter(QStringLiteral("治療日時 like '令和6年10月*'"));
  all.setSort(QStringLiteral("治療金額 DESC"));
  auto month = all.openRecordset();
  ASSERT_TRUE(month.ok());
  month->setAbsolutePosition(7);
  const auto sums = totalsOf(*month);
  ASSERT_TRUE(sums.ok());
  EXPECT_EQ(*sums, (VisitTotals{100, 10000, 3000, 13000, 0, 0}));
  EXPECT_EQ(month->absolutePosition(), 7);
}

TEST_F(TotalsOf, AnotherTableIsAFault) {
  const QString path = m_folder.filePath(QStringLiteral("保険者2000.mdb"));
  ASSERT_TRUE(store::createFresh(path, QStringLiteral("保険者2000.mdb")).ok());
  const auto set = store::RecordSet::open(*store::Database::open(path), QStringLiteral("保険者"));
  const auto sums = totalsOf(*set);
  ASSERT_FALSE(sums.ok());
  EXPECT_TRUE(sums.fault().message.contains(QStringLiteral("保険者負担金")));
}

TEST(TotalsRoute, HandsEverySumOver) {
  const routes::Totals route = totalsRoute({1, 2, 3, 4, 5, 6}, true);
  EXPECT_TRUE(route.ofOnePatient);
  EXPECT_EQ(route.rows, 1);
  EXPECT_EQ(route.insurer, 2);
  EXPECT_EQ(route.share, 3);
  EXPECT_EQ(route.treatment, 4);
  EXPECT_EQ(route.receipts, 5);
  EXPECT_EQ(route.newPatients, 6);
  EXPECT_FALSE(totalsRoute({}, false).ofOnePatient);
}

}  // namespace
}  // namespace records
