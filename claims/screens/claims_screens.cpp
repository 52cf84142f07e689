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
#include "claims/screens/register_rows.h"
#include "claims/screens/register_screen.h"
#include "claims/screens/share_screen.h"
#include "platform/screen/sort_dialog.h"

namespace claims {

using namespace Qt::StringLiterals;

namespace {
constexpr auto kSortColumns = screen::ownNames(kListKeys);
constexpr screen::SortRow kSortDialogs[] = {
    {.name = u"ソート3", .list = u"レセプト一覧表", .columns = kSortColumns}};
}  // namespace

void registerScreens(screen::ScreenRegistry& registry, frame::RunState& run, ClaimsState& state) {
  registry.add<ClaimListScreen>(u"レセプト一覧表"_s, run, state);
  screen::addSortDialogs(registry, kSortDialogs);
  registry.add<ConsentExtractScreen>(u"抽出6"_s);
  registry.add<MonthScreen>(u"年月"_s, run, state);
  registry.add<NewClaimScreen>(u"新規レセプト"_s, state);
  registry.add<ClaimChoiceScreen>(u"レセプト選択"_s, run, state);
  registry.add<ClaimFormScreen>(u"frmレセプトフォーム"_s, run, state);
  registry.add<FillingHelpScreen>(u"記入の仕方"_s, run, state);
  registry.add<FillingHelp2018Screen>(u"記入の仕方2018"_s, run, state);
  registry.add<FillingHelp2024Screen>(u"記入の仕方2024"_s, run, state);
  for (const screen::ScreenRow& preview : previewScreens()) {
    registry.add(QString::fromUtf16(preview.name.get()),
                 [&preview, &run, &state](screen::Services& services) {
                   return std::make_unique<PreviewScreen>(preview, services, run, state);
                 });
  }
  registry.add<ShareScreen>(u"計算式確認"_s);
  const auto addRegister = [&](const screen::ScreenRow& row, const Register& list) {
    registry.add(QString::fromUtf16(row.name.get()), [&row, &list, &run, &state](screen::Services& services) {
      return std::make_unique<RegisterScreen>(row, list, services, run, state);
    });
  };
  addRegister(kDoctorRegisterScreen, kDoctorRegister);
  addRegister(kInsurerRegisterScreen, kInsurerRegister);
}

}  // namespace claims
