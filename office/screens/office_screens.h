#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/navigator_impl.h"

namespace office {

/// Lists the screens of the appointment book and of the takings.
void registerScreens(screen::ScreenRegistry& registry, frame::RunState& run);

}  // namespace office
