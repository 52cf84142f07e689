#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/confirm_prompt.h"

namespace records {

/// The small notice screens of the patient screens.
std::span<const screen::ConfirmRow> prompts();
/// What their buttons do.
screen::PromptActions promptActions(frame::RunState& run);

}  // namespace records
