#include "platform/store/catalogue.h"

#include <gtest/gtest.h>

#include <QSet>
#include <QStringList>

namespace store {
namespace {

QString name(const char16_t* text) { return QString::fromUtf16(text); }

const TableRow& table(const char* file) {
  const TableRow* row = tableOfFile(QString::fromUtf8(file));
  if (!row) throw std::runtime_error(file);
  return *row;
}

void expectColumns(const TableRow& row, ColumnType type, std::initializer_list<const char*> columns) {
  for (const char* column : columns) {
    const ColumnRow* found = findColumn(row, QString::fromUtf8(column));
    ASSERT_NE(found, nullptr) << column;
    EXPECT_EQ(found->type, type) << column;
    EXPECT_EQ(name(found->name), QString::fromUtf8(column)) << "byte for byte";
  }
}

TEST(Catalogue, HoldsEveryFileWithItsEntryOfTheDataFolders) {
  const std::pair<const char*, int> files[] = {
      {"臨床QV2000N.mdb", 0},     {"予約2000.mdb", 1},          {"保険申請2000_1.mdb", 2},
      {"保険申請2000_2.mdb", 14}, {"Keiraku2000.mdb", 3},       {"CLmoji2000.mdb", 4},
      {"CL2moji2000.mdb", 5},     {"カルテ2データ2000.mdb", 6}, {"同意医師2000.mdb", 11},
      {"保険者2000.mdb", 12},     {"料金設定2000.mdb", 13},     {"料金設定2010.mdb", -1},
      {"料金設定2013.mdb", -1},   {"料金設定2016.mdb", -1},     {"料金設定2018.mdb", -1},
      {"料金設定2019.mdb", -1},   {"料金設定2020.mdb", -1},     {"料金設定2022.mdb", -1},
      {"料金設定2024.mdb", -1},   {"料金設定o2000.mdb", -1},    {"料金設定o2016.mdb", -1},
      {"料金設定o2018.mdb", -1}};
  for (const auto& [file, entry] : files) EXPECT_EQ(table(file).folderEntry, entry) << file;
  QSet<QString> known;
  for (const TableRow& row : catalogue()) known += name(row.file);
  EXPECT_EQ(known.size(), static_cast<qsizetype>(std::size(files)));
  EXPECT_EQ(tableOfFile(QStringLiteral("臨床QV2000.mdb")), nullptr);
}

TEST(Catalogue, EveryTableBeginsWithItsIdAndNamesAColumnOnce) {
  for (const TableRow& row : catalogue()) {
    EXPECT_EQ(name(row.columns.front().name), QStringLiteral("ID"));
    EXPECT_EQ(row.columns.front().type, ColumnType::Counter);
    QSet<QString> seen;
    for (const ColumnRow& column : row.columns) {
      EXPECT_FALSE(seen.contains(name(column.name).toLower()))
          << name(row.file).toStdString() << " " << name(column.name).toStdString();
      seen += name(column.name).toLower();
    }
  }
}

// The claim's two halves are one record: a name in both would be two values of one thing.
TEST(Catalogue, NoColumnButTheIdStandsInBothHalvesOfAClaim) {
  for (const ColumnRow& column : table("保険申請2000_1.mdb").columns.subspan(1))
    EXPECT_EQ(findColumn(table("保険申請2000_2.mdb"), name(column.name)), nullptr)
        << name(column.name).toStdString();
}

TEST(Catalogue, TheGrowthRunsAddTheirColumnsInTheirOrder) {
  const auto added = [](const char* file) {
    QStringList names;
    for (const ColumnRow& column : table(file).columns)
      if (column.added) names += name(column.name);
    return names;
  };
  const QStringList patients = added("臨床QV2000N.mdb");
  EXPECT_EQ(patients.size(), 88);
  EXPECT_EQ(patients.front(), QStringLiteral("個人番号1"));
  EXPECT_TRUE(patients.contains(QStringLiteral("t31")));
  EXPECT_FALSE(patients.contains(QStringLiteral("t32"))) << "the series stops at 31 and starts again at 41";
  EXPECT_TRUE(patients.contains(QStringLiteral("t41")));
  const QStringList visits = added("カルテ2データ2000.mdb");
  EXPECT_EQ(visits.size(), 123);
  EXPECT_EQ(visits.front(), QStringLiteral("d1"));
  EXPECT_LT(visits.indexOf(QStringLiteral("yn12")), visits.indexOf(QStringLiteral("yn11")));
  const QStringList claims = added("保険申請2000_2.mdb");
  EXPECT_EQ(claims.front(), QStringLiteral("d1"));
  EXPECT_LT(claims.indexOf(QStringLiteral("yn10")), claims.indexOf(QStringLiteral("yn6")));
  for (const char* column :
       {"h1", "h2", "h3", "h4", "m1", "m2", "m3", "m4", "e31", "txtdummy40", "numdummy20"})
    EXPECT_TRUE(claims.contains(QString::fromLatin1(column))) << column;
}

TEST(Catalogue, TheFirstHalfHoldsWhatTheClaimFormAndTheCalculationWrite) {
  const TableRow& half = table("保険申請2000_1.mdb");
  expectColumns(half, ColumnType::Text255,
                {"施術科目",
                 "施術内容",
                 "申請年月",
                 "申請月",
                 "保険順位",
                 "保険証番号1",
                 "一部負担金",
                 "一部負担金2",
                 "合計",
                 "請求額",
                 "治療内容1",
                 "治療内容31",
                 "往療距離1",
                 "往療距離31",
                 "往療距離",
                 "往療回数",
                 "往療金額1",
                 "往療金額2",
                 "はり合計金額",
                 "はり灸電療合計回数",
                 "灸電療合計金額",
                 "マッサージ局所合計金額",
                 "徒手矯正術合計回数",
                 "温罨法合計金額",
                 "電気光線器具併用合計回数",
                 "治療日数",
                 "初回費用",
                 "初回",
                 "施術者Flag1",
                 "施術者Flag7",
                 "施術者Flag12",
                 "Flag4",
                 "Flag5",
                 "傷病名7",
                 "傷病名8",
                 "摘要6",
                 "代表者口座名義カタカナ",
                 "保険の種類3",
                 "負担割合"});
  expectColumns(
      half, ColumnType::YesNo,
      {"躯幹", "右上肢", "左上肢", "右下肢", "左下肢", "初回有無", "同意_施術者", "同意_患者", "本人", "家族",
       "就学前", "高齢7", "高齢8", "高齢9", "公費負担", "傷病名1", "傷病名6", "温あん法", "電気光線器具"});
  expectColumns(half, ColumnType::Integer, {"総括表"});
}

TEST(Catalogue, TheSecondHalfKeepsBothFamiliesOfGenericNames) {
  const TableRow& half = table("保険申請2000_2.mdb");
  expectColumns(half, ColumnType::Text255,
                {"a1",         "a31",         "b1",         "b31",        "c1",         "c8",  "c9",
                 "c10",        "c11",         "c13",        "c16",        "c17",        "c18", "c21",
                 "c22",        "c23",         "c30",        "d1",         "d2",         "d31", "e31",
                 "txt dummy1", "txt dummy20", "txtdummy21", "txtdummy26", "txtdummy40", "h2",  "m4"});
  expectColumns(half, ColumnType::LongText,
                {"memo dummy1", "memo dummy6", "memodummy11", "memodummy14", "memodummy16", "h1", "m1"});
  expectColumns(half, ColumnType::YesNo, {"yn1", "yn5", "yn10", "徒手右上肢", "徒手左下肢"});
  EXPECT_EQ(findColumn(half, QStringLiteral("txtdummy14")), nullptr) << "the space belongs to the name";
  EXPECT_EQ(findColumn(half, QStringLiteral("txt dummy21")), nullptr);
  EXPECT_NE(findColumn(half, QStringLiteral("Txt dummy1")), nullptr);
}

TEST(Catalogue, TheFeeFilesHoldTheFeesOfAllRules) {
  for (const char* file : {"料金設定2000.mdb", "料金設定2010.mdb", "料金設定o2018.mdb"})
    expectColumns(
        table(file), ColumnType::Text255,
        {"はり", "はり灸電療初回", "マッサージ1局所", "温罨法", "電気光線器具併用", "徒手矯正術",
         "突発的な往療", "加算往診料16K", "往診料2Kまで", "特別地域", "施術報告書交付料", "はり訪問施術11",
         "はり訪問施術322", "マ訪問施術11", "マ訪問施術25", "マ訪問施術311", "マ訪問施術325"});
}

}  // namespace
}  // namespace store
