#pragma once

#include <array>

#include "claims/core/claim_record.h"

namespace claims {

/// Visits by the 2 km steps of the rule before 2018/06.
struct StepVisits {
  std::array<int, 8> count{};  ///< visits of 2, 4, ... 16 km
  bool differing = false;      ///< the month holds differing distances
  int total() const;
};

StepVisits tallySteps(const ClaimRecord& claim);

}  // namespace claims
