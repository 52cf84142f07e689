#pragma once

#include <QString>
#include <array>
#include <optional>
#include <span>

namespace claims {

/// Columns of table 料金設定 in the order of the table. The 訪問施術 columns stand at the end, by form (①,
/// ②, ③ of 3 to 9, ③ of 10 and more) and by arts or areas, so that visitFee() can reckon them.
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
  HariVisit,
  MassageVisit = HariVisit + 8,
  Count = MassageVisit + 20
};

/// Column name of a fee.
const QString& feeColumn(Fee fee);
/// はり訪問施術 by form 0 to 3 and arts 1 or 2.
Fee hariVisitFee(int form, int arts);
/// マ訪問施術 by form 0 to 3 and areas 1 to 5.
Fee massageVisitFee(int form, int areas);

/// FeeEdition: the ruling row of one fee file, whole yen. An empty column has no value and counts as 0.
class FeeEdition {
 public:
  std::optional<int> value(Fee fee) const { return m_values[index(fee)]; }
  int yen(Fee fee) const { return value(fee).value_or(0); }
  void set(Fee fee, std::optional<int> yen) { m_values[index(fee)] = yen; }

  QString path;   ///< the file it was read from
  qint64 id = 0;  ///< ID of the row

 private:
  static size_t index(Fee fee) { return static_cast<size_t>(fee); }
  std::array<std::optional<int>, static_cast<size_t>(Fee::Count)> m_values;
};

}  // namespace claims
