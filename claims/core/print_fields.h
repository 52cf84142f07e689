#pragma once

#include <QHash>
#include <QString>

#include "claims/core/claim_record.h"

namespace claims {

/// printFields: what the checks prepare for printing, by the name of the column: identifying numbers in full
/// width. A column that is blank, or that the claim's kind of insurance does not take, is not in it.
QHash<QString, QString> printFields(const ClaimRecord& claim);

}  // namespace claims
