#include "claims/core/print_fields.h"

#include "platform/store/tables/claims.h"
#include "platform/text/width.h"

namespace claims {
namespace {

/// Who takes a column: all claims, or only those of employees' insurance.
enum class Taken { Always, EmployeesOnly };
struct FieldRow {
  const char16_t* column;
  Taken taken;
};

// 保険証記号1 was the symbol of employees' insurance cards; cards of local insurance never had one there.
constexpr FieldRow kFields[] = {
    {u"保険証番号", Taken::Always},         {u"保険証記号1", Taken::EmployeesOnly},
    {u"保険証記号2", Taken::Always},        {u"区市町村番号", Taken::Always},
    {u"受給者番号", Taken::Always},         {u"被保険者の生年月日", Taken::Always},
    {u"被保険者の郵便番号", Taken::Always},
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
    const QString column = columnName(row.column);
    if (claim.blank(column) || (isLocal && row.taken == Taken::EmployeesOnly)) continue;
    fields.insert(column, text::toFullWidth(claim.get(column)));
  }
  return fields;
}

}  // namespace claims
