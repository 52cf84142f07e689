#pragma once

#include "platform/screen/confirm_prompt.h"
#include "platform/screen/navigator_impl.h"

namespace screen {

/// Lists the prompts of a table among the screens. The actions live as long as the list.
void addPrompts(ScreenRegistry& registry, std::span<const ConfirmRow> prompts, PromptActions actions);

}  // namespace screen
