#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace frame {

/// 料金確認: the fees of the current fee file, box by box. The button that would change them stays hidden;
/// what it does remains in case it is shown again.
class FeeScreen : public screen::Screen {
 public:
  FeeScreen(screen::Services& services, RunState& run);

  void onLoad() override;

  void explain();
  void save();
  void finish();

 private:
  bool checkBoxes();
  RunState& m_run;
};

}  // namespace frame
