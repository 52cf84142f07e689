#pragma once

#include <QString>
#include <array>
#include <span>

namespace claims {

/// One kind of insurance, as the claim stores it in 保険の種類.
struct InsuranceRow {
  const char16_t* name;
  int order;                      ///< 保険順位, the first key of every claim list
  const char16_t* codeOfInsured;  ///< code for the summary sheets where 続柄 is 本人 (nullptr: none)
  const char16_t* codeOfFamily;   ///< the same for everybody else
  const char16_t* addressee;      ///< 官職宛名 that a blank c6 is set to (nullptr: none)
};

/// All kinds, 老人 (before the law of 2008) among them.
std::span<const InsuranceRow> insuranceRows();
/// The row of a kind's name, nullptr for a name that is none of them.
const InsuranceRow* insuranceRow(const QString& kind);

/// 保険順位 as stored text; null for an unknown kind.
QString insuranceOrder(const QString& kind);
/// The derived code of the summary sheets: "111"/"222", "11"/"22", "1"/"2"; null for a kind without one.
QString summaryCode(const QString& kind, const QString& relation);
/// 官職宛名 that the form sets where c6 is blank; null: none.
QString defaultAddressee(const QString& kind);

/// The kinds that a new claim is made with, in the order of レセプト選択.
inline constexpr std::array kNewClaimInsurance = {u"全国健康保険協会", u"共済",     u"組合",    u"国保",
                                                  u"退職国保",         u"特別国保", u"後期高齢"};

}  // namespace claims
