#pragma once

#include "claims/core/amounts.h"

// 施術科目 by era and kind: 鍼, 灸, 鍼灸, マ術, or null where nothing was treated.
namespace claims {

/// By the letter of the first treatment, else by what has an amount.
QString twoBandSubject(const ClaimAmounts& amounts);
QString visitsAcupunctureSubject(const ClaimAmounts& amounts);
QString visitsMassageSubject(const ClaimAmounts& amounts);

}  // namespace claims
