#include <random>

#include "platform/store/integrity.h"
#include "platform/store/tests/store_fixture.h"

namespace store {
namespace {

const QString kFile = QStringLiteral("CLmoji2000.mdb");
const QString kTable = QStringLiteral("CLmoji");
const QString kColumn = QStringLiteral("moji");

/// Pieces that queries are made of, right and wrong.
const QStringList kPieces = {QStringLiteral("moji"),
                             QStringLiteral("ID"),
                             QStringLiteral(" like "),
                             QStringLiteral(" = "),
                             QStringLiteral("'"),
                             QStringLiteral("'*腰*'"),
                             QStringLiteral("*"),
                             QStringLiteral("%"),
                             QStringLiteral(" or "),
                             QStringLiteral(" and "),
                             QStringLiteral("("),
                             QStringLiteral(")"),
                             QStringLiteral(";"),
                             QStringLiteral("--"),
                             QStringLiteral(" order by "),
                             QStringLiteral("1"),
                             QStringLiteral(">="),
                             QStringLiteral("["),
                             QStringLiteral("]"),
                             QStringLiteral(","),
                             QStringLiteral(" SELECT * FROM CLmoji "),
                             QStringLiteral(" WHERE "),
                             QStringLiteral("UPDATE CLmoji SET "),
                             QStringLiteral("DROP TABLE CLmoji"),
                             QStringLiteral("DELETE FROM CLmoji"),
                             QStringLiteral("\\"),
                             QStringLiteral("\""),
                             QString(QChar(u'\0')),
                             QString(QChar(0xD800)),
                             QStringLiteral("ﾞ"),
                             QStringLiteral("desc")};

QString someQuery(std::mt19937& random) {
  QString query;
  for (unsigned count = random() % 9; count > 0; --count)
    query += kPieces[static_cast<int>(random() % kPieces.size())];
  return query;
}

class FuzzTest : public StoreTest {
 protected:
  void SetUp() override {
    fresh(kFile);
    set = openSet(kFile, kTable);
    for (const char* phrase : {"腰の重だるさ", "首", "1"}) add(set, {{kColumn, QString::fromUtf8(phrase)}});
    before = column(set, kColumn);
  }
  RecordSet set;
  QStringList before;
  std::mt19937 random{77};
};

TEST_F(FuzzTest, NoCriteriaAndNoSelectChangesAnything) {
  Connection connection;
  ASSERT_TRUE(connection.open(connectionString(path(kFile))).ok());
  int right = 0;
  for (int round = 0; round < 3000; ++round) {
    const QString query = someQuery(random);
    set.setFilter(query);
    set.setSort(round % 3 ? QString() : someQuery(random));
    right += set.openRecordset().ok();
    (void)set.findFirst(query);
    (void)set.findNext(query);
    (void)Cursor::open(connection, query);
    (void)Cursor::open(connection, QStringLiteral("SELECT * FROM CLmoji WHERE ") + query);
  }
  EXPECT_GT(right, 0) << "some of them are right";
  ASSERT_TRUE(set.refresh().ok());
  EXPECT_EQ(column(set, kColumn), before);
  EXPECT_TRUE(checkIntegrity(path(kFile)).ok());
}

TEST_F(FuzzTest, NoStatementTouchesMoreThanItsColumn) {
  Connection connection;
  ASSERT_TRUE(connection.open(connectionString(path(kFile))).ok());
  for (int round = 0; round < 1000; ++round) {
    const QString tail = someQuery(random);
    for (const QString& statement :
         {tail, QStringLiteral("UPDATE CLmoji SET moji = '") + tail + QStringLiteral("' WHERE ID = 99")})
      (void)connection.execute(statement);
  }
  ASSERT_TRUE(set.refresh().ok());
  EXPECT_EQ(set.recordCount(), 3);
  EXPECT_EQ(column(set, QStringLiteral("ID")),
            QStringList({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")}));
  EXPECT_TRUE(checkIntegrity(path(kFile)).ok());
}

}  // namespace
}  // namespace store
