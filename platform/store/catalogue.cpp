#include "platform/store/catalogue.h"

#include "platform/store/tables/bookings.h"
#include "platform/store/tables/claims.h"
#include "platform/store/tables/dictionaries.h"
#include "platform/store/tables/fees.h"
#include "platform/store/tables/patients.h"
#include "platform/store/tables/registers.h"
#include "platform/store/tables/visits.h"

namespace store {
namespace {

constexpr TableRow row(const char16_t* file, int folderEntry, const Table& table) {
  return {file, folderEntry, table.name(), table.columns()};
}

constexpr TableRow kTables[] = {
    row(u"臨床QV2000N.mdb", 0, patients::table),      row(u"予約2000.mdb", 1, bookings::table),
    row(u"保険申請2000_1.mdb", 2, claim::firstHalf),  row(u"保険申請2000_2.mdb", 14, claim::secondHalf),
    row(u"保険申請2000_2.mdb", 14, claim::routeWork), row(u"Keiraku2000.mdb", 3, acupoints::table),
    row(u"CLmoji2000.mdb", 4, phrases::table),        row(u"CL2moji2000.mdb", 5, phrasePairs::table),
    row(u"カルテ2データ2000.mdb", 6, visits::table),  row(u"同意医師2000.mdb", 11, doctors::table),
    row(u"保険者2000.mdb", 12, insurers::table),      row(u"料金設定2000.mdb", 13, fees::table),
    row(u"料金設定2010.mdb", -1, fees::table),        row(u"料金設定2013.mdb", -1, fees::table),
    row(u"料金設定2016.mdb", -1, fees::table),        row(u"料金設定2018.mdb", -1, fees::table),
    row(u"料金設定2019.mdb", -1, fees::table),        row(u"料金設定2020.mdb", -1, fees::table),
    row(u"料金設定2022.mdb", -1, fees::table),        row(u"料金設定2024.mdb", -1, fees::table),
    row(u"料金設定o2000.mdb", -1, fees::table),       row(u"料金設定o2016.mdb", -1, fees::table),
    row(u"料金設定o2018.mdb", -1, fees::table),
};

}  // namespace

std::span<const TableRow> catalogue() { return kTables; }

const TableRow* tableOfFile(const QString& fileName) {
  for (const TableRow& row : catalogue())
    if (fileName == QStringView(row.file)) return &row;
  return nullptr;
}

bool sortsAsDate(const QString& column) { return column == visits::dateShadow.text(); }

const ColumnRow* findColumn(const TableRow& table, const QString& column) {
  for (const ColumnRow& row : table.columns)
    if (column.compare(QStringView(row.name), Qt::CaseInsensitive) == 0) return &row;
  return nullptr;
}

}  // namespace store
