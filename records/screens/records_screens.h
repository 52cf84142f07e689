#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/navigator_impl.h"

namespace records {

/// Lists the screens of the patient rooms.
void registerScreens(screen::ScreenRegistry& registry, screen::Services& services, frame::RunState& run);

}  // namespace records
