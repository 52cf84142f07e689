#include "claims/core/tally_steps.h"

#include <numeric>

#include "claims/core/day_codes.h"

namespace claims {

int StepVisits::total() const { return std::accumulate(count.begin(), count.end(), 0); }

StepVisits tallySteps(const ClaimRecord& claim) {
  StepVisits visits;
  int seen = 0;
  for (int day = 1; day <= 31; ++day) {
    if (claim.code(day).isEmpty()) continue;
    const int distance = visitDistance(claim.visit(day));
    if (distance < 2 || distance > 16 || distance % 2 != 0) continue;  // no other number is a step
    ++visits.count[static_cast<size_t>(distance / 2 - 1)];
    if (seen != 0 && seen != distance) visits.differing = true;
    seen = distance;
  }
  return visits;
}

}  // namespace claims
