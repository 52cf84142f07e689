#pragma once

#include "claims/core/claims_state.h"
#include "platform/screen/screen.h"

namespace claims {

/// 新規レセプト: asks whether a claim is made of the patient on display. The opener hands the patient's
/// columns in the request.
class NewClaimScreen : public screen::Screen {
 public:
  NewClaimScreen(screen::Services& services, ClaimsState& state);

  void opened(const screen::Request& request) override;
  void accept();
  void cancel();

 private:
  ClaimsState& m_state;
};

}  // namespace claims
