#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace frame {

/// Version information.
class AboutScreen : public screen::Screen {
 public:
  AboutScreen(screen::Services& services, RunState& run);

  void showSystemInformation();
  void finish();
};

}  // namespace frame
