#pragma once

#include "platform/store/column.h"

// カルテ: the visit ledger, one row a visit.

namespace visits {

namespace detail {
using enum store::ColumnType;
inline constexpr store::ColumnsText kTableText[] = {
    {Text255, false,
     u"氏名,生年月日,治療日時,治療概略,治療金額,保険の一部負担金,保険者負担金,治療日チェック,ETC1"},
    {YesNo, false, u"新患,領収証チェック"},
    {Text255, true, u"d1..d31,e1..e31,f1..f31,txtdummy41..txtdummy50"},
    {Integer, true, u"numdummy21..numdummy25"},
    {YesNo, true, u"yn12,yn11,yn13..yn15"},
    {LongText, true, u"memodummy21..memodummy30"},
};
inline constexpr auto kTableRows = store::columnRows<kTableText>();
}  // namespace detail

/// The visit ledger.
inline constexpr store::Table table(u"カルテ", detail::kTableRows);

inline constexpr store::Column id = table[u"ID"];
inline constexpr store::Column name = table[u"氏名"];       ///< of the patient
inline constexpr store::Column birth = table[u"生年月日"];  ///< of the patient, as typed
inline constexpr store::Column date = table[u"治療日時"];   ///< as typed
inline constexpr store::Column summary = table[u"治療概略"];
inline constexpr store::Column fee = table[u"治療金額"];              ///< yen as typed
inline constexpr store::Column share = table[u"保険の一部負担金"];    ///< yen as typed
inline constexpr store::Column insurerPays = table[u"保険者負担金"];  ///< yen as typed
inline constexpr store::Column dateShadow =
    table[u"治療日チェック"];  ///< western date of `date`, "yyyy/m/d": sorts as a date
inline constexpr store::Column patientSerial = table[u"ETC1"];  ///< the patient's PatientSerial
inline constexpr store::Column isNew = table[u"新患"];
inline constexpr store::Column receiptDone = table[u"領収証チェック"];

// Columns of the growth run: the detail chart.
inline constexpr store::Series detailText = table.series(u"d", 1, 31);           ///< detail chart: d1 to d28
inline constexpr store::Series spareE = table.series(u"e", 1, 31);               ///< reserve
inline constexpr store::Series spareF = table.series(u"f", 1, 31);               ///< reserve
inline constexpr store::Series spareText = table.series(u"txtdummy", 41, 50);    ///< reserve
inline constexpr store::Series spareNumber = table.series(u"numdummy", 21, 25);  ///< reserve
inline constexpr store::Series detailMemo =
    table.series(u"memodummy", 21, 30);  ///< detail chart: 21 to 24, 30
inline constexpr store::Column spareMark11 =
    table[u"yn11"];  ///< reserve; the series was made in the order 12, 11, 13
inline constexpr store::Column spareMark12 = table[u"yn12"];             ///< reserve
inline constexpr store::Series spareMark = table.series(u"yn", 13, 15);  ///< reserve

}  // namespace visits
