#include "printing/core/day_marks.h"

#include "claims/core/day_codes.h"

namespace printing {

QString dayMark(const claims::ClaimRecord& claim, int day, bool freeVisits) {
  if (claim.code(day).isEmpty()) return QString();
  switch (claims::visitForm(claim.visit(day))) {
    case claims::VisitForm::One:
      return QStringLiteral("①");
    case claims::VisitForm::Two:
      return QStringLiteral("②");
    case claims::VisitForm::Small:
    case claims::VisitForm::Large:
      return QStringLiteral("③");
    case claims::VisitForm::Sudden:
      return QStringLiteral("◎");
    case claims::VisitForm::None:
    case claims::VisitForm::Unknown:
      break;
  }
  return freeVisits ? QStringLiteral("◎") : QStringLiteral("○");
}

}  // namespace printing
