#pragma once

#include "claims/core/claims_state.h"
#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace claims {

/// 年月: asks which month's claims are printed in one go, and on which paper, and opens the screen that
/// prints them. The month is not parsed: it must stand in the claims as it was typed.
///
/// Hands on: "申請年月"; "PrintKind" ("5" acupuncture, "6" massage; "7" and "8" of the oldest generation);
/// "局所別計算用紙" and "元号" (bool).
class MonthScreen : public screen::Screen {
 public:
  MonthScreen(screen::Services& services, frame::RunState& run, ClaimsState& state);

  void onLoad() override;

  void printMonth(int index);
  void printerOptions();
  void finish();

 private:
  bool monthStands();
  /// The screen that prints the month in the generation that the tick tells.
  QString batchScreen() const;

  frame::RunState& m_run;
  ClaimsState& m_state;
};

}  // namespace claims
