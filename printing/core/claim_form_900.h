#pragma once

#include "claims/core/era.h"
#include "frame/core/era_date.h"
#include "printing/contract/report_fields.h"
#include "printing/core/print_source.h"

namespace printing {

/// Hides what a form keeps hidden on paper that is printed already, behind the loop over its frame.
void hideClaim900(ReportFields& fields, const PrintSource& source);

/// Fills the claim form of the editions from 2024/10, acupuncture and massage, from the source. Amounts are
/// those of the stored record; nothing is computed here.
void fillClaim900(ReportFields& fields, const PrintSource& source, const frame::EraDates& dates,
                  claims::EraTable eras = claims::eras());

}  // namespace printing
