#pragma once

#include "claims/core/amount_record.h"
#include "printing/contract/report_fields.h"
#include "printing/core/print_source.h"

namespace printing {

/// The kind of treatment whose record is printed.
claims::Kind recordKind(PrintKind kind);

/// Fills the amount boxes of a form from a record: each field goes to the box of its item. A zero prints
/// nothing, nor does a line without a count.
void printRecord(ReportFields& fields, const claims::AmountRecord& record);

/// Shows a text in the box of 一部負担金.
void showShare(ReportFields& fields, const claims::KindRules& rules, const QString& text);

}  // namespace printing
