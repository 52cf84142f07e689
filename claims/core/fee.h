#pragma once

#include <QString>
#include <array>

#include "claims/core/claim_record.h"
#include "platform/store/tables/fees.h"
#include "platform/text/utf16.h"

namespace claims {

/// A fee: a column of table 料金設定, in the order of the table behind ID. These are the fees that rules
/// name; a further column of the table is a fee too, see feeOf().
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
  Count = MassageVisit + 20      ///< of the fees with names
};

/// はり訪問施術 by form 0 to 3 (①, ②, ③ of 3 to 9 patients, ③ of 10 and more) and arts 1 or 2.
constexpr Fee hariVisitFee(int form, int arts) {
  return static_cast<Fee>(static_cast<int>(Fee::HariVisit) + form * 2 + arts - 1);
}
/// マ訪問施術 by form 0 to 3 and areas 1 to 5.
constexpr Fee massageVisitFee(int form, int areas) {
  return static_cast<Fee>(static_cast<int>(Fee::MassageVisit) + form * 5 + areas - 1);
}

/// The fee of a column of table 料金設定; a column of another table does not compile.
constexpr Fee feeOf(const store::Column& column) {
  const auto columns = fees::table.columns();
  for (size_t i = 1; i < columns.size(); ++i)
    if (columns[i].name == column.name()) return static_cast<Fee>(i - 1);
  throw "no fee";
}

/// A fee and the name of its column.
struct FeeRow {
  Fee fee;
  const char16_t* column;
};

/// All fees: the columns of the table but ID.
inline constexpr auto kFees = [] {
  std::array<FeeRow, fees::table.columns().size() - 1> rows{};
  for (size_t i = 0; i < rows.size(); ++i) rows[i] = {static_cast<Fee>(i), fees::table.columns()[i + 1].name};
  return rows;
}();

namespace detail {

/// The fees with names and their columns, which have to agree with the order of the table.
struct NamedFee {
  Fee fee;
  store::Column column;
};
inline constexpr auto kNamedFees = std::to_array<NamedFee>({
    {Fee::Hari, fees::hari},
    {Fee::HariFirst, fees::hariFirst},
    {Fee::HariElectric, fees::hariElectric},
    {Fee::HariElectricFirst, fees::hariElectricFirst},
    {Fee::Kyu, fees::kyu},
    {Fee::KyuFirst, fees::kyuFirst},
    {Fee::KyuElectric, fees::kyuElectric},
    {Fee::KyuElectricFirst, fees::kyuElectricFirst},
    {Fee::HariKyu, fees::hariKyu},
    {Fee::HariKyuFirst, fees::hariKyuFirst},
    {Fee::HariKyuElectric, fees::hariKyuElectric},
    {Fee::HariKyuElectricFirst, fees::hariKyuElectricFirst},
    {Fee::MassageArea, fees::massageArea},
    {Fee::Warm, fees::warm},
    {Fee::WarmLight, fees::warmLight},
    {Fee::Limb, fees::limb},
    {Fee::Sudden, fees::sudden},
    {Fee::Add2K, fees::add2K},
    {Fee::Add4K, fees::add4K},
    {Fee::SpecialArea, fees::specialArea},
    {Fee::Add6K, fees::add6K},
    {Fee::Add8K, fees::add8K},
    {Fee::Add10K, fees::add10K},
    {Fee::Add12K, fees::add12K},
    {Fee::Add16K, fees::add16K},
    {Fee::Base2K, fees::base2K},
    {Fee::Add14K, fees::add14K},
    {Fee::Report, fees::report},
    {hariVisitFee(0, 1), fees::hariVisit1[1]},
    {hariVisitFee(0, 2), fees::hariVisit1[2]},
    {hariVisitFee(1, 1), fees::hariVisit2[1]},
    {hariVisitFee(1, 2), fees::hariVisit2[2]},
    {hariVisitFee(2, 1), fees::hariVisit3[1]},
    {hariVisitFee(2, 2), fees::hariVisit3[2]},
    {hariVisitFee(3, 1), fees::hariVisit10[1]},
    {hariVisitFee(3, 2), fees::hariVisit10[2]},
    {massageVisitFee(0, 1), fees::massageVisit1[1]},
    {massageVisitFee(0, 2), fees::massageVisit1[2]},
    {massageVisitFee(0, 3), fees::massageVisit1[3]},
    {massageVisitFee(0, 4), fees::massageVisit1[4]},
    {massageVisitFee(0, 5), fees::massageVisit1[5]},
    {massageVisitFee(1, 1), fees::massageVisit2[1]},
    {massageVisitFee(1, 2), fees::massageVisit2[2]},
    {massageVisitFee(1, 3), fees::massageVisit2[3]},
    {massageVisitFee(1, 4), fees::massageVisit2[4]},
    {massageVisitFee(1, 5), fees::massageVisit2[5]},
    {massageVisitFee(2, 1), fees::massageVisit3[1]},
    {massageVisitFee(2, 2), fees::massageVisit3[2]},
    {massageVisitFee(2, 3), fees::massageVisit3[3]},
    {massageVisitFee(2, 4), fees::massageVisit3[4]},
    {massageVisitFee(2, 5), fees::massageVisit3[5]},
    {massageVisitFee(3, 1), fees::massageVisit10[1]},
    {massageVisitFee(3, 2), fees::massageVisit10[2]},
    {massageVisitFee(3, 3), fees::massageVisit10[3]},
    {massageVisitFee(3, 4), fees::massageVisit10[4]},
    {massageVisitFee(3, 5), fees::massageVisit10[5]},
});

consteval bool namesAreInOrder() {
  for (size_t i = 0; i < kNamedFees.size(); ++i)
    if (kNamedFees[i].fee != static_cast<Fee>(i) || feeOf(kNamedFees[i].column) != kNamedFees[i].fee)
      return false;
  return kNamedFees.size() == static_cast<size_t>(Fee::Count);
}
static_assert(namesAreInOrder());

}  // namespace detail

/// Column name of a fee.
inline QString feeColumn(Fee fee) { return text::utf16(kFees[static_cast<size_t>(fee)].column); }

}  // namespace claims
