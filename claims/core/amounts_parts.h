#pragma once

#include "claims/core/amounts.h"

// The two ways of reckoning a claim, for amounts.cpp alone.
namespace claims {

/// Claims before 2024/10: fills tallies, amounts by kind, rows, 施術科目.
void computeTwoBand(const ClaimRecord& claim, const MonthFlags& flags, ClaimAmounts& result);
/// Claims from 2024/10: fills tally, lines, rows, 施術科目.
void computeVisits(const ClaimRecord& claim, ClaimAmounts& result);

}  // namespace claims
