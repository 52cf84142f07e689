#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace frame {

/// 免許番号: the three licence numbers, and whether they are printed in place of the registration number.
class LicenceScreen : public screen::Screen {
 public:
  LicenceScreen(screen::Services& services, RunState& run);

  void onLoad() override;

  void save();
  void cancel();

 private:
  RunState& m_run;
};

}  // namespace frame
