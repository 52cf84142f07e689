#pragma once

#include "platform/store/column.h"

// 予約: the appointment book, one row a booking.

namespace bookings {

namespace detail {
using enum store::ColumnType;
inline constexpr store::ColumnsText kTableText[] = {
    {Text255, false,
     u"予約NO,患者NO,予約患者,予約時間,予約年,予約月,予約日,予約曜日,日時1,登録日時,メモ1,テキスト1"}};
inline constexpr auto kTableRows = store::columnRows<kTableText>();
}  // namespace detail

/// The appointment book.
inline constexpr store::Table table(u"予約", detail::kTableRows);

inline constexpr store::Column id = table[u"ID"];
inline constexpr store::Column number = table[u"予約NO"];
inline constexpr store::Column patientNumber =
    table[u"患者NO"];  ///< the patient's 患者ID; blank for somebody who is no patient yet
inline constexpr store::Column patientName = table[u"予約患者"];
inline constexpr store::Column time = table[u"予約時間"];  ///< as typed; sorts as text
inline constexpr store::Column year =
    table[u"予約年"];  ///< year, month and day as typed: they need not make a date
inline constexpr store::Column month = table[u"予約月"];
inline constexpr store::Column day = table[u"予約日"];
inline constexpr store::Column weekday = table[u"予約曜日"];
inline constexpr store::Column dateShadow = table[u"日時1"];  ///< date of the booking, "yyyy/m/d"
inline constexpr store::Column stamp = table[u"登録日時"];    ///< when the booking was stored last
inline constexpr store::Column memo = table[u"メモ1"];
inline constexpr store::Column patientSerial =
    table[u"テキスト1"];  ///< PatientSerial, a new one where there is none

}  // namespace bookings
