#include "claims/screens/claims_screens.h"

#include "claims/core/list_keys.h"
#include "claims/screens/claim_choice_screen.h"
#include "claims/screens/claim_form_screen.h"
#include "claims/screens/claim_list_screen.h"
#include "claims/screens/consent_extract_screen.h"
#include "claims/screens/help_screens.h"
#include "claims/screens/month_screen.h"
#include "claims/screens/new_claim_screen.h"
#include "claims/screens/preview_screen.h"
#include "claims/screens/register_screen.h"
#include "claims/screens/share_screen.h"
#include "frame/core/routes.h"
#include "platform/screen/sort_dialog.h"
#include "platform/text/utf16.h"

namespace claims {

namespace {
constexpr auto kSortColumns = screen::choicesOf(kListKeys);
constexpr screen::SortRow kSortDialogs[] = {
    {.name = routes::SortClaims::screen, .list = routes::ClaimList::screen, .columns = kSortColumns}};
}  // namespace

void registerScreens(screen::ScreenRegistry& registry, frame::RunState& run, ClaimsState& state) {
  registry.add<routes::ClaimList, ClaimListScreen>(run, state);
  screen::addSortDialogs(registry, kSortDialogs);
  registry.add<routes::ExtractConsents, ConsentExtractScreen>();
  registry.add<routes::ClaimMonth, MonthScreen>(run, state);
  registry.add<routes::NewClaim, NewClaimScreen>(state);
  registry.add<routes::ClaimChoice, ClaimChoiceScreen>(run, state);
  registry.add<routes::ClaimForm, ClaimFormScreen>(run, state);
  registry.add<routes::FillingHelp, FillingHelpScreen>(run, state);
  registry.add<routes::FillingHelp2018, FillingHelp2018Screen>(run, state);
  registry.add<routes::FillingHelp2024, FillingHelp2024Screen>(run, state);
  for (const screen::ScreenRow& preview : previewScreens()) {
    registry.add(text::utf16(preview.name.get()), [&preview, &run, &state](screen::Services& services) {
      return std::make_unique<PreviewScreen>(preview, services, run, state);
    });
  }
  registry.add<routes::ShareFormula, ShareScreen>();
  const auto addRegister = [&](screen::ScreenName name, const RegisterForm& form) {
    registry.add(name, [&form, &run, &state](screen::Services& services) {
      return std::make_unique<RegisterScreen>(form, services, run, state);
    });
  };
  addRegister(routes::DoctorRegister::screen, kDoctorRegisterForm);
  addRegister(routes::InsurerRegister::screen, kInsurerRegisterForm);
}

}  // namespace claims
