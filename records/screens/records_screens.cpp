#include "records/screens/records_screens.h"

#include "records/screens/patient_screen.h"
#include "records/screens/prompts.h"
#include "records/screens/search_screen.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

void registerScreens(screen::ScreenRegistry& registry, screen::Services&, frame::RunState& run) {
  registry.add<SearchScreen>(u"選択4"_s, run);
  registry.add<PatientScreen>(u"治療台帳4"_s, run);

  const auto actions = std::make_shared<screen::PromptActions>(promptActions(run));
  for (const screen::ConfirmRow& row : prompts())
    registry.add(QString::fromUtf16(row.name.get()), [&row, actions](screen::Services& services) {
      return std::make_unique<screen::ConfirmPrompt>(row, *actions, services);
    });
}

}  // namespace records
