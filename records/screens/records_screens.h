#pragma once

#include "frame/core/run_state.h"
#include "platform/report/report_operations.h"
#include "platform/screen/navigator_impl.h"

namespace records {

/// Registers the screens of patients and visits. Lists and labels are printed through the report engine.
void registerScreens(screen::ScreenRegistry& registry, frame::RunState& run,
                     report::ReportOperations& engine);

}  // namespace records
