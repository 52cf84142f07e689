#pragma once

#include "frame/core/run_state.h"
#include "printing/contract/print_run.h"
#include "printing/core/print_screens.h"
#include "printing/core/print_source.h"

namespace printing {

/// Title of a single claim's document: 申請書鍼, 申請書マ.
QString claimTitle(PrintKind kind);

/// Adds the clinic's data of this run: profile, licence numbers, prefecture, submissions.
void addClinicData(PrintSource& source, const frame::RunState& run);

/// The print job of one claim on an edition from 2024/10: title, template, hides and mapping. The caller
/// adds prompt, checks, window and cleaning up. `source` and `dates` must outlive the run.
PrintJob claimJob(const PrintSource& source, PrintScreen screen, const frame::EraDates& dates);

}  // namespace printing
