#pragma once

#include "platform/store/column.h"

// 料金設定: the fees of an edition in whole yen, one row an edition; the newest row of a file rules.

namespace fees {

namespace detail {
using enum store::ColumnType;
inline constexpr store::ColumnsText kTableText[] = {
    {Text255, false,
     u"はり,はり初回,はり電療,はり電療初回,灸,灸初回,灸電療,灸電療初回,はり灸,はり灸初回,はり灸電療,"
     u"はり灸電療初回,マッサージ1局所,温罨法,電気光線器具併用,徒手矯正術,突発的な往療,加算往診料2K,"
     u"加算往診料4K,特別地域,加算往診料6K,加算往診料8K,加算往診料10K,加算往診料12K,加算往診料16K,"
     u"往診料2Kまで,加算往診料14K,施術報告書交付料,はり訪問施術11,はり訪問施術12,はり訪問施術21,"
     u"はり訪問施術22,はり訪問施術311,はり訪問施術312,はり訪問施術321,はり訪問施術322,"
     u"マ訪問施術11..マ訪問施術15,マ訪問施術21..マ訪問施術25,マ訪問施術311..マ訪問施術315,"
     u"マ訪問施術321..マ訪問施術325"}};
inline constexpr auto kTableRows = store::columnRows<kTableText>();
}  // namespace detail

/// Fees of all eras.
inline constexpr store::Table table(u"料金設定", detail::kTableRows);

inline constexpr store::Column id = table[u"ID"];
inline constexpr store::Column hari = table[u"はり"];
inline constexpr store::Column hariFirst = table[u"はり初回"];
inline constexpr store::Column hariElectric = table[u"はり電療"];
inline constexpr store::Column hariElectricFirst = table[u"はり電療初回"];
inline constexpr store::Column kyu = table[u"灸"];
inline constexpr store::Column kyuFirst = table[u"灸初回"];
inline constexpr store::Column kyuElectric = table[u"灸電療"];
inline constexpr store::Column kyuElectricFirst = table[u"灸電療初回"];
inline constexpr store::Column hariKyu = table[u"はり灸"];
inline constexpr store::Column hariKyuFirst = table[u"はり灸初回"];
inline constexpr store::Column hariKyuElectric = table[u"はり灸電療"];
inline constexpr store::Column hariKyuElectricFirst = table[u"はり灸電療初回"];
inline constexpr store::Column massageArea = table[u"マッサージ1局所"];
inline constexpr store::Column warm = table[u"温罨法"];
inline constexpr store::Column warmLight = table[u"電気光線器具併用"];
inline constexpr store::Column limb = table[u"徒手矯正術"];
inline constexpr store::Column sudden = table[u"突発的な往療"];
inline constexpr store::Column add2K = table[u"加算往診料2K"];
inline constexpr store::Column add4K = table[u"加算往診料4K"];
inline constexpr store::Column specialArea = table[u"特別地域"];
inline constexpr store::Column add6K = table[u"加算往診料6K"];
inline constexpr store::Column add8K = table[u"加算往診料8K"];
inline constexpr store::Column add10K = table[u"加算往診料10K"];
inline constexpr store::Column add12K = table[u"加算往診料12K"];
inline constexpr store::Column add16K = table[u"加算往診料16K"];
inline constexpr store::Column base2K = table[u"往診料2Kまで"];
inline constexpr store::Column add14K = table[u"加算往診料14K"];
inline constexpr store::Column report = table[u"施術報告書交付料"];

// 訪問施術, from 2024/10: by form (①, ②, ③ of 3 to 9 patients, ③ of 10 and more) and by arts or areas.
inline constexpr store::Series hariVisit1 = table.series(u"はり訪問施術1", 1, 2);
inline constexpr store::Series hariVisit2 = table.series(u"はり訪問施術2", 1, 2);
inline constexpr store::Series hariVisit3 = table.series(u"はり訪問施術31", 1, 2);
inline constexpr store::Series hariVisit10 = table.series(u"はり訪問施術32", 1, 2);
inline constexpr store::Series massageVisit1 = table.series(u"マ訪問施術1", 1, 5);
inline constexpr store::Series massageVisit2 = table.series(u"マ訪問施術2", 1, 5);
inline constexpr store::Series massageVisit3 = table.series(u"マ訪問施術31", 1, 5);
inline constexpr store::Series massageVisit10 = table.series(u"マ訪問施術32", 1, 5);

/// A file of the table and the first claim month that it holds for.
struct File {
  const char16_t* name;
  int year, month;
};

/// The national fees, newest first. The first file lies at its data-folder path, all others in the program
/// folder; the last holds for all earlier months too. The year in a name is that in which the edition ended.
inline constexpr File nationalFiles[] = {
    {u"料金設定2000.mdb", 2024, 6}, {u"料金設定2024.mdb", 2022, 6},  {u"料金設定2022.mdb", 2020, 12},
    {u"料金設定2020.mdb", 2018, 6}, {u"料金設定2018.mdb", 2016, 10}, {u"料金設定2016.mdb", 2013, 5},
    {u"料金設定2013.mdb", 2010, 6}, {u"料金設定2010.mdb", 1, 1},
};
/// The fees of one association in Osaka, newest first.
inline constexpr File osakaFiles[] = {
    {u"料金設定o2000.mdb", 2018, 6},
    {u"料金設定o2018.mdb", 2016, 10},
    {u"料金設定o2016.mdb", 1, 1},
};
/// Kept: shipped, but no claim month picks it. It was tested with the same date as that of 2018 and so never
/// stayed chosen.
inline constexpr File unpickedFile = {u"料金設定2019.mdb", 0, 0};

}  // namespace fees
