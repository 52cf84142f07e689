#pragma once

#include <QString>
#include <QStringList>
#include <array>

#include "claims/core/claim_record.h"
#include "claims/core/rule_dates.h"

namespace claims {

/// The day grid's codes of a month, index 1 to 31, read once for all checks.
using GridCodes = std::array<QString, 32>;
GridCodes gridCodes(const ClaimRecord& claim);

// The checks of the day grid. Each gives the message of its first failure, null where it passes.

/// No day has a code; needles and massage are mixed.
QString gridFilledMessage(const GridCodes& codes);
QString gridMixedMessage(const GridCodes& codes);
/// The rule of the claim's month on codes without numbers and on manipulation. Warnings, after which the
/// check goes on, are appended to `warnings`, one for each day.
QString gridCodesMessage(const GridCodes& codes, const ClaimRecord& claim, bool isAfter202012,
                         QStringList& warnings);
/// 特別地域 ticked without a visit in the month.
QString specialAreaMessage(const ClaimRecord& claim);
/// From 2024/10: too many different numbers of areas or limbs.
QString areaNumbersMessage(const ClaimRecord& claim);

/// The day grid as the visit ledger validates it before it hands the claim to the form: filled, not mixed,
/// the codes' rule of the month, and the numbers of areas under one form of visit. Warnings are left to the
/// form.
QString ledgerGridMessage(const ClaimRecord& claim, const MonthFlags& flags);

}  // namespace claims
