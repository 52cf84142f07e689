#pragma once

#include "frame/core/run_state.h"
#include "platform/report/report_operations.h"
#include "platform/screen/navigator_impl.h"

namespace records {

/// Lists the screens of the patient rooms. Lists and labels are printed through the engine.
void registerScreens(screen::ScreenRegistry& registry, frame::RunState& run,
                     report::ReportOperations& engine);

}  // namespace records
