#pragma once

#include "claims/core/claim_record.h"
#include "claims/core/fee_edition.h"
#include "claims/core/rule_dates.h"

namespace claims::testing {

/// The total of a claim by a model as plain as the rules read: every day is looked at for every token,
/// nothing is shared with the program's own tallies.
qint64 plainTotal(const ClaimRecord& claim, const FeeEdition& fees, const MonthFlags& flags, bool preview);

/// Tenths rounded up, in whole numbers.
qint64 plainShare(qint64 total, const QString& share);

}  // namespace claims::testing
