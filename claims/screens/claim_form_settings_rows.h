#pragma once

#include <array>
#include <utility>

#include "claims/core/print_settings.h"
#include "claims/screens/claim_form_rows.h"
#include "claims/screens/claim_form_screen.h"

namespace claims::form {

using namespace screen;
using Form = ClaimFormScreen;

/// The control family of a setting's two buttons. The frame around them is numbered by the setting's place.
struct SettingButtons {
  Setting setting;
  const char16_t* family;
};

inline constexpr SettingButtons kButtons[] = {
    {Setting::PeriodFrom, u"Option1"},
    {Setting::PeriodTo, u"Option2"},
    {Setting::LeftMargin, u"Option3"},
    {Setting::PublicExpense, u"Option4"},
    {Setting::Sex, u"Option5"},
    {Setting::Mandate, u"Option6"},
    {Setting::ApplicantCircle, u"Option7"},
    {Setting::MandateName, u"Option8"},
    {Setting::Relation, u"Option13"},
    {Setting::ApplicantName, u"Option9"},
    {Setting::ShareCircles, u"Option10"},
    {Setting::ProxyWords, u"Option11"},
    {Setting::ShareAsComputed, u"Option12"},
    {Setting::Dates, u"Option14"},
    {Setting::Attachment, u"Option16"},
    {Setting::Bank, u"Option17"},
    {Setting::Proof, u"Option18"},
    {Setting::Doctor, u"Option19"},
    {Setting::Amounts, u"Option20"},
};

consteval const char16_t* familyOf(Setting setting) {
  const char16_t* family = nullptr;
  for (const SettingButtons& row : kButtons) {
    if (row.setting != setting) continue;
    if (family != nullptr) throw "a setting has one family of buttons";
    family = row.family;
  }
  if (family == nullptr) throw "a setting has no buttons";
  return family;
}

/// The two buttons of every setting.
consteval std::array<std::array<Choice, 2>, kSettings> choices() {
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return std::array<std::array<Choice, 2>, kSettings>{
        {{{{{familyOf(Setting(I)), 0}, kPrintSettings[I].buttons[0], kPrintSettings[I].stored[0]},
           {{familyOf(Setting(I)), 1}, kPrintSettings[I].buttons[1], kPrintSettings[I].stored[1]}}}...}};
  }
  (std::make_index_sequence<kSettings>());
}
inline constexpr std::array kChoices = choices();

/// A switch of the print settings, written back at once when a button is pressed.
consteval Options setting(Setting setting) {
  const PrintSetting& row = rowOf(setting);
  const int place = static_cast<int>(setting);
  return {.name = {u"FrameSet", place + 1},
          .caption = row.caption,
          .bind = row.column,
          .choices = kChoices[static_cast<std::size_t>(place)],
          .marksDirty = true,
          .onChoose = call<&Form::printSettingChosen>};
}

/// Page 印刷設定.
inline constexpr Row kPrintPage[] = {
    Page{u"印刷設定"},
    Note{.name = {u"LabelSettings"},
         .caption =
             u"※印刷設定を変更した場合は、必ず「登録」を押してから「印刷」もしくは他の動作をしてください。"},
    Group{{u"FrameSettings", 1}, u"印刷の設定 １", 1},
    setting(Setting::PeriodFrom),
    setting(Setting::PeriodTo),
    setting(Setting::LeftMargin),
    setting(Setting::PublicExpense),
    setting(Setting::Sex),
    setting(Setting::Mandate),
    setting(Setting::ApplicantCircle),
    setting(Setting::MandateName),
    setting(Setting::Relation),
    setting(Setting::ApplicantName),
    EndGroup{},
    Group{{u"FrameSettings", 2}, u"印刷の設定 ２", 1},
    setting(Setting::ShareCircles),
    setting(Setting::ProxyWords),
    setting(Setting::ShareAsComputed),
    setting(Setting::Dates),
    setting(Setting::Attachment),
    setting(Setting::Bank),
    setting(Setting::Proof),
    setting(Setting::Doctor),
    setting(Setting::Amounts),
    EndGroup{},
    Group{{u"FrameSummary"}, u"総括表と受領委任", 2},
    TextField{.name = {u"Text50"}, .caption = u"総括表の種別:", .bind = claim::summaryKind, .width = 6},
    rows::flag({u"Check50"}, u"受領委任", claim::delegated),
    EndGroup{},
};

}  // namespace claims::form
