#pragma once

#include "claims/core/claims_state.h"
#include "platform/screen/screen.h"

namespace claims {

/// 新規レセプト: asks whether a claim is made of the patient that it was opened with.
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
