#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/confirm_prompt.h"

namespace frame {

/// The small confirmation and notice screens of the frame.
std::span<const screen::ConfirmRow> prompts();
/// What their buttons do.
screen::PromptActions promptActions(RunState& run);

}  // namespace frame
