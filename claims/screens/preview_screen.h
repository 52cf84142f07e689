#pragma once

#include "claims/core/amounts.h"
#include "claims/core/claims_state.h"
#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace claims {

/// The six fee previews of 施術料金計算, one class under six names: each line of the claim's money is a field
/// that Tab speaks, with a caption of its own; lines of no use are hidden. Then the total, the share with its
/// rate and the amount claimed. Nothing is written.
class PreviewScreen : public screen::Screen {
 public:
  PreviewScreen(const screen::ScreenRow& declaration, screen::Services& services, frame::RunState& run,
                ClaimsState& state, EraTable eraTable = eras());

  void opened(const screen::Request& request) override;
  void finish();

 private:
  void widen(const QString& control);
  void showMoney(const ClaimAmounts& money, const QString& rate);

  frame::RunState& m_run;
  ClaimsState& m_state;
  const EraTable m_eras;
};

/// The declared screens in the order of kPreviews: oldest fees first, acupuncture before massage.
std::span<const screen::ScreenRow> previewScreens();

}  // namespace claims
