#include "claims/core/insurance.h"

#include <array>

namespace claims {
namespace {

// 退職国保 and 国保 go to the same authority; 老人 was replaced by 後期高齢 and stays for old claims.
constexpr std::array<InsuranceRow, 9> kInsurance = {{
    {u"共済", 1, u"11", u"22", u"共済組合長"},
    {u"組合", 2, u"11", u"22", u"健康保険組合長"},
    {u"社保", 3, u"111", u"222", nullptr},
    {u"全国健康保険協会", 3, u"111", u"222", u"全国健康保険協会支部長"},
    {u"国保", 4, u"1", u"2", u"市町村長"},
    {u"退職国保", 5, u"1", u"2", u"市町村長"},
    {u"特別国保", 6, u"1", u"2", u"国民健康保険組合長"},
    {u"老人", 7, nullptr, nullptr, nullptr},
    {u"後期高齢", 7, u"1", u"1", u"後期高齢者医療広域連合長"},
}};

QString textOrNull(const char16_t* text) { return text ? QString::fromUtf16(text) : QString(); }

}  // namespace

std::span<const InsuranceRow> insuranceRows() { return kInsurance; }

const InsuranceRow* insuranceRow(const QString& kind) {
  for (const InsuranceRow& row : kInsurance)
    if (kind == row.name) return &row;
  return nullptr;
}

QString insuranceOrder(const QString& kind) {
  const InsuranceRow* row = insuranceRow(kind);
  return row ? QString::number(row->order) : QString();
}

QString summaryCode(const QString& kind, const QString& relation) {
  const InsuranceRow* row = insuranceRow(kind);
  if (!row) return {};
  return textOrNull(relation == u"本人" ? row->codeOfInsured : row->codeOfFamily);
}

QString defaultAddressee(const QString& kind) {
  const InsuranceRow* row = insuranceRow(kind);
  return row ? textOrNull(row->addressee) : QString();
}

}  // namespace claims
