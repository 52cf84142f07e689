#include "platform/screen/prompt_list.h"

namespace screen {

void addPrompts(ScreenRegistry& registry, std::span<const ConfirmRow> prompts, PromptActions actions) {
  const auto shared = std::make_shared<const PromptActions>(std::move(actions));
  for (const ConfirmRow& row : prompts)
    registry.add(QString::fromUtf16(row.name.get()), [&row, shared](Services& services) {
      return std::make_unique<ConfirmPrompt>(row, *shared, services);
    });
}

}  // namespace screen
