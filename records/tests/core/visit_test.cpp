#include "records/core/visit.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/store/database.h"
#include "platform/store/tables/visits.h"

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(VisitRow, EveryMemberTravelsToItsColumnAndBack) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(u"カルテ2データ2000.mdb"_s);
  ASSERT_TRUE(store::createFresh(path, u"カルテ2データ2000.mdb"_s));
  auto rows = store::RecordSet::open(store::Database::open(path).value(), u"カルテ"_s);
  ASSERT_TRUE(rows);
  ASSERT_TRUE(rows->addNew());
  ASSERT_TRUE(store::writeRecord(*rows, Visit{u"P1"_s, u"見本"_s, u"昭和28年3月5日"_s, u"令和6年6月1日"_s,
                                              u"2024/6/1"_s, u"腰"_s, u"70"_s, u"30"_s, u"100"_s}));
  ASSERT_TRUE(rows->update());
  const std::pair<QString, QString> stored[] = {
      {u"ETC1"_s, u"P1"_s},
      {u"氏名"_s, u"見本"_s},
      {u"生年月日"_s, u"昭和28年3月5日"_s},
      {u"治療日時"_s, u"令和6年6月1日"_s},
      {u"治療日チェック"_s, u"2024/6/1"_s},
      {u"治療概略"_s, u"腰"_s},
      {u"保険者負担金"_s, u"70"_s},
      {u"保険の一部負担金"_s, u"30"_s},
      {u"治療金額"_s, u"100"_s},
  };
  for (const auto& [column, value] : stored)
    EXPECT_EQ(rows->valueAt(0, column), value) << column.toStdString();
  rows->moveFirst();
  const Visit visit = store::readRecord<Visit>(*rows);
  EXPECT_EQ(visit.serial, u"P1"_s);
  EXPECT_EQ(visit.share, u"30"_s);
  EXPECT_EQ(visit.fee, u"100"_s);
  const frame::Patient patient = patientOf(visit);
  EXPECT_EQ(patient.serial, u"P1"_s);
  EXPECT_EQ(patient.name, u"見本"_s);
  EXPECT_EQ(patient.birth, u"昭和28年3月5日"_s);
}

}  // namespace
}  // namespace records
