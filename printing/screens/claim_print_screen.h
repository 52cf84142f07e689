#pragma once

#include <vector>

#include "claims/core/claims_state.h"
#include "frame/core/run_state.h"
#include "platform/report/report_operations.h"
#include "platform/screen/screen.h"
#include "printing/core/print_source.h"
#include "printing/screens/print_forms.h"

namespace printing {

/// Prints the claim on display on the edition that the user chooses: the paper that is in the printer. The
/// question before the job is the only pause.
class ClaimPrintScreen : public screen::Screen {
 public:
  ClaimPrintScreen(screen::Services& services, const PrintForm& form, frame::RunState& run,
                   claims::ClaimsState& state, report::ReportOperations& engine);

  void onLoad() override;

  void print();
  void cancel();
  void printerOptions();

 private:
  PrintSource source() const;
  PrintTicks ticks() const;
  bool claimPassesChecks(const claims::ClaimRecord& claim);
  void leave();

  const PrintScreen m_screen;
  const std::vector<claims::TickName<PrintTicks>> m_ticks;  ///< those that the screen offers
  frame::RunState& m_run;
  claims::ClaimsState& m_state;
  report::ReportOperations& m_engine;
};

}  // namespace printing
