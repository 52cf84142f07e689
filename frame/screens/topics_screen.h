#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace frame {

/// News of this version, shown at the start until the user ticks them away.
class TopicsScreen : public screen::Screen {
 public:
  TopicsScreen(screen::Services& services, RunState& run);

  void onLoad() override;

  void rememberTick();
  void speakAll();
  void finish();

 private:
  RunState& m_run;
};

}  // namespace frame
