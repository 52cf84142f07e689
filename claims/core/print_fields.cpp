#include "claims/core/print_fields.h"

#include "platform/store/tables/claims.h"
#include "platform/text/width.h"

namespace claims {
namespace {

/// Who takes a column: all claims, or only those of employees' insurance.
enum class Taken { Always, EmployeesOnly };
struct FieldRow {
  store::Column column;
  Taken taken;
};

// 保険証記号1 was the symbol of employees' insurance cards; cards of local insurance never had one there.
constexpr FieldRow kFields[] = {
    {claim::cardNumber, Taken::Always},      {claim::cardSymbol1, Taken::EmployeesOnly},
    {claim::cardSymbol2, Taken::Always},     {claim::municipalityNumber, Taken::Always},
    {claim::recipientNumber, Taken::Always}, {claim::insuredBirth, Taken::Always},
    {claim::insuredZip, Taken::Always},
};

bool local(const QString& insurance) {
  return insurance == u"老人" || insurance == u"後期高齢" || insurance == u"国保" ||
         insurance == u"退職国保" || insurance == u"特別国保";
}

}  // namespace

QHash<QString, QString> printFields(const ClaimRecord& claim) {
  QHash<QString, QString> fields;
  const bool isLocal = local(claim.get(claim::insuranceKind));
  for (const FieldRow& row : kFields) {
    if (claim.blank(row.column) || (isLocal && row.taken == Taken::EmployeesOnly)) continue;
    fields.insert(row.column, text::toFullWidth(claim.get(row.column)));
  }
  return fields;
}

}  // namespace claims
