#pragma once

#include "claims/core/claims_state.h"
#include "frame/core/run_state.h"
#include "platform/report/report_operations.h"
#include "platform/screen/screen.h"
#include "printing/core/print_source.h"

namespace printing {

/// レセプト印刷2024: prints the claim on display on the forms from 2024/10. The user tells which paper is in
/// the printer; the question before the job is the only pause.
class ClaimPrintScreen : public screen::Screen {
 public:
  ClaimPrintScreen(screen::Services& services, frame::RunState& run, claims::ClaimsState& state,
                   report::ReportOperations& engine);

  void onLoad() override;

  void print();
  void cancel();
  void printerOptions();

 private:
  PrintSource source() const;
  QSet<QString> ticks() const;
  bool claimStands(const claims::ClaimRecord& claim);
  void leave();

  frame::RunState& m_run;
  claims::ClaimsState& m_state;
  report::ReportOperations& m_engine;
};

}  // namespace printing
