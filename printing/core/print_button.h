#pragma once

#include <optional>

#include "claims/core/claim_printing.h"
#include "frame/core/run_state.h"
#include "platform/report/report_operations.h"
#include "printing/core/print_screens.h"

namespace printing {

/// The printing screen of a claim by its month, the prefecture, the association and the tick 公費の印刷.
/// Nothing for a claim whose month cannot be read.
std::optional<PrintScreen> printScreenOf(const claims::ClaimRecord& claim, const claims::FormTicks& ticks,
                                         const frame::RunState& run);

/// The print buttons of the claim screens. Run and engine must outlive it.
class PrintButtons final : public claims::ClaimPrinting {
 public:
  PrintButtons(const frame::RunState& run, report::ReportOperations& engine) : m_run(run), m_engine(engine) {}

  QString screenOf(const claims::ClaimRecord& claim, const claims::FormTicks& ticks) const override;
  void setUpPrinter(quintptr window) override { m_engine.PR_PrinterSetupDlg(window); }

 private:
  const frame::RunState& m_run;
  report::ReportOperations& m_engine;
};

}  // namespace printing
