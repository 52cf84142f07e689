#include "platform/store/catalogue.h"

#include <algorithm>
#include <array>

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
    row(u"保険者2000.mdb", 12, insurers::table),
};

/// All tables: those above, then the fee files, of which the first has an entry among the data folders.
constexpr auto kCatalogue = [] {
  constexpr size_t kFeeFiles = std::size(fees::nationalFiles) + std::size(fees::osakaFiles) + 1;
  std::array<TableRow, std::size(kTables) + kFeeFiles> all{};
  auto end = std::ranges::copy(kTables, all.begin()).out;
  for (const fees::File& file : fees::nationalFiles)
    *end++ = row(file.name, &file == fees::nationalFiles ? 13 : -1, fees::table);
  *end++ = row(fees::unpickedFile.name, -1, fees::table);
  for (const fees::File& file : fees::osakaFiles) *end++ = row(file.name, -1, fees::table);
  return all;
}();

}  // namespace

std::span<const TableRow> catalogue() { return kCatalogue; }

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
