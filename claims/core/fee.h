#pragma once

#include <QString>
#include <array>

#include "claims/core/claim_record.h"

namespace claims {

/// A fee: a column of table 料金設定, in the order of the table.
enum class Fee {
  Hari,
  HariFirst,
  HariElectric,
  HariElectricFirst,
  Kyu,
  KyuFirst,
  KyuElectric,
  KyuElectricFirst,
  HariKyu,
  HariKyuFirst,
  HariKyuElectric,
  HariKyuElectricFirst,
  MassageArea,
  Warm,
  WarmLight,
  Limb,
  Sudden,
  Add2K,
  Add4K,
  SpecialArea,
  Add6K,
  Add8K,
  Add10K,
  Add12K,
  Add16K,
  Base2K,
  Add14K,
  Report,
  HariVisit,                     ///< the first of eight, see hariVisitFee
  MassageVisit = HariVisit + 8,  ///< the first of twenty, see massageVisitFee
  Count = MassageVisit + 20
};

/// はり訪問施術 by form 0 to 3 (①, ②, ③ of 3 to 9 patients, ③ of 10 and more) and arts 1 or 2.
constexpr Fee hariVisitFee(int form, int arts) {
  return static_cast<Fee>(static_cast<int>(Fee::HariVisit) + form * 2 + arts - 1);
}
/// マ訪問施術 by form 0 to 3 and areas 1 to 5.
constexpr Fee massageVisitFee(int form, int areas) {
  return static_cast<Fee>(static_cast<int>(Fee::MassageVisit) + form * 5 + areas - 1);
}

/// A fee and the name of its column.
struct FeeRow {
  Fee fee;
  const char16_t* column;
};

/// All fees, in the order of the enumeration.
inline constexpr auto kFees = std::to_array<FeeRow>({
    {Fee::Hari, u"はり"},
    {Fee::HariFirst, u"はり初回"},
    {Fee::HariElectric, u"はり電療"},
    {Fee::HariElectricFirst, u"はり電療初回"},
    {Fee::Kyu, u"灸"},
    {Fee::KyuFirst, u"灸初回"},
    {Fee::KyuElectric, u"灸電療"},
    {Fee::KyuElectricFirst, u"灸電療初回"},
    {Fee::HariKyu, u"はり灸"},
    {Fee::HariKyuFirst, u"はり灸初回"},
    {Fee::HariKyuElectric, u"はり灸電療"},
    {Fee::HariKyuElectricFirst, u"はり灸電療初回"},
    {Fee::MassageArea, u"マッサージ1局所"},
    {Fee::Warm, u"温罨法"},
    {Fee::WarmLight, u"電気光線器具併用"},
    {Fee::Limb, u"徒手矯正術"},
    {Fee::Sudden, u"突発的な往療"},
    {Fee::Add2K, u"加算往診料2K"},
    {Fee::Add4K, u"加算往診料4K"},
    {Fee::SpecialArea, u"特別地域"},
    {Fee::Add6K, u"加算往診料6K"},
    {Fee::Add8K, u"加算往診料8K"},
    {Fee::Add10K, u"加算往診料10K"},
    {Fee::Add12K, u"加算往診料12K"},
    {Fee::Add16K, u"加算往診料16K"},
    {Fee::Base2K, u"往診料2Kまで"},
    {Fee::Add14K, u"加算往診料14K"},
    {Fee::Report, u"施術報告書交付料"},
    {hariVisitFee(0, 1), u"はり訪問施術11"},
    {hariVisitFee(0, 2), u"はり訪問施術12"},
    {hariVisitFee(1, 1), u"はり訪問施術21"},
    {hariVisitFee(1, 2), u"はり訪問施術22"},
    {hariVisitFee(2, 1), u"はり訪問施術311"},
    {hariVisitFee(2, 2), u"はり訪問施術312"},
    {hariVisitFee(3, 1), u"はり訪問施術321"},
    {hariVisitFee(3, 2), u"はり訪問施術322"},
    {massageVisitFee(0, 1), u"マ訪問施術11"},
    {massageVisitFee(0, 2), u"マ訪問施術12"},
    {massageVisitFee(0, 3), u"マ訪問施術13"},
    {massageVisitFee(0, 4), u"マ訪問施術14"},
    {massageVisitFee(0, 5), u"マ訪問施術15"},
    {massageVisitFee(1, 1), u"マ訪問施術21"},
    {massageVisitFee(1, 2), u"マ訪問施術22"},
    {massageVisitFee(1, 3), u"マ訪問施術23"},
    {massageVisitFee(1, 4), u"マ訪問施術24"},
    {massageVisitFee(1, 5), u"マ訪問施術25"},
    {massageVisitFee(2, 1), u"マ訪問施術311"},
    {massageVisitFee(2, 2), u"マ訪問施術312"},
    {massageVisitFee(2, 3), u"マ訪問施術313"},
    {massageVisitFee(2, 4), u"マ訪問施術314"},
    {massageVisitFee(2, 5), u"マ訪問施術315"},
    {massageVisitFee(3, 1), u"マ訪問施術321"},
    {massageVisitFee(3, 2), u"マ訪問施術322"},
    {massageVisitFee(3, 3), u"マ訪問施術323"},
    {massageVisitFee(3, 4), u"マ訪問施術324"},
    {massageVisitFee(3, 5), u"マ訪問施術325"},
});

/// Whether row n is the row of fee n, so that a fee is the index of its row.
consteval bool feesAreInOrder() {
  for (size_t i = 0; i < kFees.size(); ++i)
    if (kFees[i].fee != static_cast<Fee>(i)) return false;
  return kFees.size() == static_cast<size_t>(Fee::Count);
}
static_assert(feesAreInOrder());

/// Column name of a fee.
inline QString feeColumn(Fee fee) { return columnName(kFees[static_cast<size_t>(fee)].column); }

}  // namespace claims
