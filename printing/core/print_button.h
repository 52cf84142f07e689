#pragma once

#include "claims/core/print_chooser.h"
#include "frame/core/run_state.h"

namespace printing {

/// The rule behind 鍼灸印刷 and あマ印刷: the printing screen of a claim by its month, the prefecture, the
/// association and the tick 公費の印刷. Blank for a claim whose month cannot be read.
QString printScreenOf(const claims::ClaimRecord& claim, const QSet<QString>& checks,
                      const frame::RunState& run);

/// The same for the claim form, which knows no printing. `run` must outlive it.
claims::PrintScreenChooser printScreenChooser(const frame::RunState& run);

}  // namespace printing
