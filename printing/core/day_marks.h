#pragma once

#include <QString>

#include "claims/core/claim_record.h"

namespace printing {

/// Mark of a day on the forms from 2024/10: ○ for a treated day, ◎ where the visit is free of charge
/// (FormTicks) or came of a sudden (t), ①, ②, ③ for a visit of one, of two, of three and more persons. Blank
/// for a day without a code.
QString dayMark(const claims::ClaimRecord& claim, int day, bool freeVisits);

}  // namespace printing
