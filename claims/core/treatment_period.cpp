#include "claims/core/treatment_period.h"

#include "platform/store/tables/claims.h"

namespace claims {

TreatmentPeriod treatmentPeriod(const ClaimRecord& claim, const MonthFlags& flags) {
  TreatmentPeriod period;
  for (int day = 1; day <= 31; ++day) {
    if (claim.code(day).isEmpty()) continue;
    if (period.firstTreated == 0) period.firstTreated = day;
    period.lastTreated = day;
  }
  if (claim.get(claim::requestKind) == u"新規") {
    period.startText = claim.get(claim::firstTreatment);
    period.startDay = 0;
  }
  const QString outcome = claim.get(claim::outcome);
  if (outcome == u"継続") {
    if (flags.month) period.endDay = lastDayOfMonth(flags.month->year(), flags.month->month());
  } else if (outcome == u"治癒" || outcome == u"転医" || outcome == u"中止") {
    period.endDay = period.lastTreated;
  }
  return period;
}

}  // namespace claims
