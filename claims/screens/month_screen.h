#pragma once

#include "claims/core/claims_state.h"
#include "frame/core/routes_unbuilt.h"
#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace claims {

/// 年月: asks which month's claims are printed in one go, and on which paper, and opens the screen that
/// prints them. The month is not parsed: a claim must have it letter by letter as it was typed.
class MonthScreen : public screen::Screen {
 public:
  MonthScreen(screen::Services& services, frame::RunState& run, ClaimsState& state);

  void onLoad() override;

  void printMonth(int index);
  void printerOptions();
  void finish();

 private:
  /// Whether a claim has the month; reported where none has.
  bool monthExists();
  /// Opens the screen that prints the month, of one generation of forms.
  template <class MonthPrint>
  void openPrint(const routes::unbuilt::MonthRun& run) {
    navigator().show(MonthPrint{run});
  }

  frame::RunState& m_run;
  ClaimsState& m_state;
};

}  // namespace claims
