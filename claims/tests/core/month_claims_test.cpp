#include "claims/core/month_claims.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/store/bulk.h"
#include "platform/store/database.h"

namespace claims {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(MonthClaims, AreFoundLetterByLetter) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(u"保険申請2000_1.mdb"_s);
  EXPECT_FALSE(holdsMonth(path, u"令和6年10月"_s).ok()) << "no file";
  ASSERT_TRUE(store::createFresh(path, u"保険申請2000_1.mdb"_s).ok());
  ASSERT_TRUE(store::addRows(path, u"保険申請"_s,
                             {{{u"申請年月"_s, u"令和６年9月"_s}},
                              {{u"申請年月"_s, u"令和6年10月"_s}},
                              {{u"氏名"_s, u"見本"_s}}})
                  .ok());
  for (const QString& month : {u"令和6年10月"_s, u"令和６年9月"_s}) EXPECT_TRUE(*holdsMonth(path, month));
  for (const QString& month : {u""_s, u"令和6年"_s, u"令和6年1月"_s, u"令和6年10月 "_s, u"令和6年１０月"_s,
                               u"令和6年9月"_s, u"2024/10"_s, u"*"_s, u"令和6年10月' or '1'='1"_s})
    EXPECT_FALSE(*holdsMonth(path, month)) << month.toStdString();
}

}  // namespace
}  // namespace claims
