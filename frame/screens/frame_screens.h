#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/navigator_impl.h"

namespace frame {

/// Lists the screens of the frame: start, main menu, settings, notices.
void registerScreens(screen::ScreenRegistry& registry, screen::Services& services, RunState& run);

}  // namespace frame
