#include "platform/screen/prompt_list.h"

namespace screen {

void addPrompts(ScreenRegistry& registry, std::span<const ConfirmRow> prompts, PromptActions actions) {
  const auto shared = std::make_shared<const PromptActions>(std::move(actions));
  for (const ConfirmRow& row : prompts) {
    for (const PromptButton& button : row.buttons)
      if (const QString action = QString::fromUtf16(button.action.get());
          action != QStringView(kClosePrompt) && !shared->contains(action))
        qCritical("no action %s for a prompt", qUtf8Printable(action));
    registry.add(QString::fromUtf16(row.name.get()), [&row, shared](Services& services) {
      return std::make_unique<ConfirmPrompt>(row, *shared, services);
    });
  }
}

}  // namespace screen
