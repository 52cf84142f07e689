#include "claims/core/counters.h"

namespace claims::counters {

Counted reports(const ClaimCounts& counts) {
  const ClaimRecord& claim = counts.claim;
  if (!claim.ticked(claim::report)) return {0};
  if (claim.ticked(claim::reportThrice)) return {3};
  return {claim.ticked(claim::reportTwice) ? 2 : 1};
}

Counted firstTreatment(const ClaimCounts& counts) {
  const char16_t first = counts.visits.first;
  return {first == 0 ? 0 : 1, first <= u'd' ? 1 : 2};
}

Counted electric(const ClaimCounts& counts) { return {counts.visits.electric}; }
Counted warm(const ClaimCounts& counts) { return {counts.visits.warm}; }
Counted warmLight(const ClaimCounts& counts) { return {counts.visits.warmLight}; }
Counted suddenDays(const ClaimCounts& counts) { return {counts.visits.suddenDays}; }
Counted visitDays(const ClaimCounts& counts) { return {counts.visits.visitDays}; }

Counted limbs(const ClaimCounts& counts) {
  int limbs = 0;
  for (int number = 1; number <= 4; ++number) limbs += number * counts.visits.count(u'h', number);
  return {limbs};
}

Counted artDaysOf(const VisitsTally& tally, int arts, int row) {
  if (row > 0) return {tally.artVisits(arts, row - 1)};
  return {arts == 1 ? tally.oneArt : tally.twoArts};
}

Counted areaDaysOf(const VisitsTally& tally, int row, int place) {
  for (int areas = 1; areas <= 5; ++areas) {
    const int days = row == 0 ? tally.areaDays(areas) : tally.areaVisits(areas, row - 1);
    if (days != 0 && place-- == 0) return {days, areas};
  }
  return {};
}

}  // namespace claims::counters
