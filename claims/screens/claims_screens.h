#pragma once

#include "claims/core/claims_state.h"
#include "frame/core/run_state.h"
#include "platform/screen/navigator_impl.h"

namespace claims {

/// Lists the screens of the claims: list, form, new claim, previews, help.
void registerScreens(screen::ScreenRegistry& registry, frame::RunState& run, ClaimsState& state);

}  // namespace claims
