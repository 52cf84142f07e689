#include "claims/core/fee_files.h"

#include <gtest/gtest.h>

#include <set>

#include "claims/tests/core/claim_builder.h"
#include "platform/store/catalogue.h"

namespace claims {
namespace {

struct FileRow {
  int year, month;
  const char16_t* file;
};

TEST(FeeFiles, LastAndFirstMonthOfEachEdition) {
  const FileRow rows[] = {
      {1990, 1, u"料金設定2010.mdb"},  {2010, 5, u"料金設定2010.mdb"},  {2010, 6, u"料金設定2013.mdb"},
      {2013, 4, u"料金設定2013.mdb"},  {2013, 5, u"料金設定2016.mdb"},  {2016, 9, u"料金設定2016.mdb"},
      {2016, 10, u"料金設定2018.mdb"}, {2018, 5, u"料金設定2018.mdb"},  {2018, 6, u"料金設定2020.mdb"},
      {2018, 12, u"料金設定2020.mdb"}, {2019, 1, u"料金設定2020.mdb"},  {2019, 6, u"料金設定2020.mdb"},
      {2019, 10, u"料金設定2020.mdb"}, {2020, 11, u"料金設定2020.mdb"}, {2020, 12, u"料金設定2022.mdb"},
      {2022, 5, u"料金設定2022.mdb"},  {2022, 6, u"料金設定2024.mdb"},  {2024, 5, u"料金設定2024.mdb"},
      {2024, 6, u"料金設定2000.mdb"},  {2024, 10, u"料金設定2000.mdb"}, {2038, 12, u"料金設定2000.mdb"}};
  for (const FileRow& row : rows)
    EXPECT_EQ(pickFeeFile(QDate(row.year, row.month, 1)), row.file) << row.year << '/' << row.month;
}

TEST(FeeFiles, TheFileOf2019IsNeverPicked) {
  for (QDate month(2005, 1, 1); month < QDate(2039, 1, 1); month = month.addMonths(1))
    EXPECT_NE(pickFeeFile(month), u"料金設定2019.mdb");
}

TEST(FeeFiles, OsakaSet) {
  const FileRow rows[] = {{2005, 1, u"料金設定o2016.mdb"},  {2016, 9, u"料金設定o2016.mdb"},
                          {2016, 10, u"料金設定o2018.mdb"}, {2018, 5, u"料金設定o2018.mdb"},
                          {2018, 6, u"料金設定o2000.mdb"},  {2025, 1, u"料金設定o2000.mdb"}};
  for (const FileRow& row : rows)
    EXPECT_EQ(pickFeeFile(QDate(row.year, row.month, 1), FeeSet::Osaka), row.file);
}

// A file that the catalogue lacks is never made, and its months could not be computed.
TEST(FeeFiles, EveryFileThatIsPickedIsInTheCatalogue) {
  for (const FeeSet set : {FeeSet::National, FeeSet::Osaka})
    for (QDate month(2005, 1, 1); month < QDate(2039, 1, 1); month = month.addMonths(1)) {
      const QString file = pickFeeFile(month, set);
      const store::TableRow* row = store::tableOfFile(file);
      ASSERT_NE(row, nullptr) << file.toStdString();
      EXPECT_EQ(QStringView(row->table), u"料金設定") << file.toStdString();
    }
}

TEST(FeeFiles, OnlyTheCurrentNationalEditionLiesInTheDataFolder) {
  const FeeFiles files(QStringLiteral("/program"), QStringLiteral("/shared/fees.mdb"));
  EXPECT_EQ(files.path(QDate(2024, 6, 1)), u"/shared/fees.mdb");
  EXPECT_EQ(files.path(QDate(2024, 5, 1)), u"/program/料金設定2024.mdb");
  EXPECT_EQ(files.path(QDate(2024, 6, 1), FeeSet::Osaka), u"/program/料金設定o2000.mdb");
}

TEST(FeeEdition, VisitFeesStandByFormAndNumber) {
  EXPECT_EQ(feeColumn(hariVisitFee(0, 1)), u"はり訪問施術11");
  EXPECT_EQ(feeColumn(hariVisitFee(1, 2)), u"はり訪問施術22");
  EXPECT_EQ(feeColumn(hariVisitFee(2, 1)), u"はり訪問施術311");
  EXPECT_EQ(feeColumn(hariVisitFee(3, 2)), u"はり訪問施術322");
  EXPECT_EQ(feeColumn(massageVisitFee(0, 1)), u"マ訪問施術11");
  EXPECT_EQ(feeColumn(massageVisitFee(1, 5)), u"マ訪問施術25");
  EXPECT_EQ(feeColumn(massageVisitFee(2, 3)), u"マ訪問施術313");
  EXPECT_EQ(feeColumn(massageVisitFee(3, 5)), u"マ訪問施術325");
  EXPECT_EQ(feeColumn(Fee::Hari), u"はり");
  EXPECT_EQ(feeColumn(Fee::Add16K), u"加算往診料16K");
  EXPECT_EQ(feeColumn(Fee::Report), u"施術報告書交付料");
  std::set<QString> names;
  for (int fee = 0; fee < static_cast<int>(Fee::Count); ++fee) names.insert(feeColumn(static_cast<Fee>(fee)));
  EXPECT_EQ(names.size(), 56U);  // 28 fees, 8 and 20 visit fees
}

}  // namespace
}  // namespace claims
