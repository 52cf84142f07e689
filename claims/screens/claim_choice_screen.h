#pragma once

#include <optional>

#include "claims/core/claims_state.h"
#include "claims/core/new_claim.h"
#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace claims {

/// レセプト選択: kind of insurance, treatment and card holder of a new claim; OK makes the claim and opens
/// it.
class ClaimChoiceScreen : public screen::Screen {
 public:
  ClaimChoiceScreen(screen::Services& services, frame::RunState& run, ClaimsState& state);

  void opened(const screen::Request& request) override;
  void accept();
  void cancel();

 private:
  std::optional<NewClaimChoice> choice() const;
  void tellUnanswered();

  frame::RunState& m_run;
  ClaimsState& m_state;
};

}  // namespace claims
