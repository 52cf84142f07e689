#pragma once

#include "platform/screen/confirm_prompt.h"

namespace office {

/// The small notice screens of the appointment book.
std::span<const screen::ConfirmRow> prompts();
/// What their buttons do.
screen::PromptActions promptActions();

}  // namespace office
