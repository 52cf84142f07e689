#include "claims/core/print_settings.h"

#include <array>

#include "frame/core/settings_slots.h"
#include "platform/store/tables/claims.h"

namespace claims {
namespace {

constexpr const char16_t* kPrint = u"印刷する";
constexpr const char16_t* kNoPrint = u"印刷しない";

// The families are those of the form's option buttons; printing names some of them by number.
constexpr std::array<PrintSetting, 15> kSettings = {{
    {u"txt dummy1", u"Option1", u"施術期間（自）", {u"最初の治療日", u"１日"}, u"1", 1},
    {u"txt dummy2", u"Option2", u"施術期間（至）", {u"月末日", u"最終の治療日"}, u"1", 1},
    {u"txt dummy3", u"Option3", u"左欄外保険者名の印字", {kPrint, kNoPrint}, u"1", 1},
    {u"txt dummy4", u"Option4", u"公費負担番号の印字", {kPrint, kNoPrint}, u"0", 0},
    {u"txt dummy9", u"Option5", u"男女の印字", {kPrint, kNoPrint}, u"0", 0},
    {u"txt dummy10", u"Option6", u"委任欄（償還払い時）", {kPrint, u"すべて印刷しない"}, nullptr, 0},
    {u"txt dummy11", u"Option7", u"申請欄（保険者の頭に○）", {kPrint, kNoPrint}, nullptr, 0},
    {u"txt dummy13", u"Option8", u"委任欄の被保険者の氏名の印字", {kPrint, kNoPrint}, nullptr, 0},
    {u"txtdummy26",
     u"Option13",
     u"続柄の印字",
     {kPrint, kNoPrint},
     nullptr,
     0,
     frame::profile::kRelationPrinted},
    {u"c8",
     u"Option9",
     u"申請欄の氏名の印字",
     {kPrint, kNoPrint},
     nullptr,
     0,
     frame::slot::kPrintApplicantName},
    {u"c9", u"Option10", u"右上の給付割合の○", {kPrint, kNoPrint}, nullptr, 0},
    {u"c10", u"Option11", u"施術証明欄に代表者委任の印字", {kPrint, kNoPrint}, nullptr, 1},
    {u"c11", u"Option12", u"一部負担金を", {u"標準計算", u"公費があるため０円にする"}, nullptr, 0},
    {u"c13", u"Option14", u"施術証明欄・申請欄・委任欄の年月日", {kPrint, kNoPrint}, nullptr, 0},
    {u"c16", u"Option16", u"別添1（様式第6号）の印字", {kPrint, kNoPrint}, nullptr, 1},
}};

// Columns of switches of older pages: no button shows them, a new claim keeps writing them.
constexpr std::array<NewClaimDefault, 4> kHidden = {
    {{u"txt dummy5", u"1"}, {u"txt dummy6", u"1"}, {u"txt dummy7", u"1"}, {u"txt dummy8", u"1"}}};

bool flagRules(const PrintSetting& setting, const ClaimRecord& claim) {
  if (setting.flag != frame::profile::kRelationPrinted) return setting.flag >= 0;
  return claim.get(claim::relation) == u"本人" || claim.ticked(claim::notHead);
}

}  // namespace

std::span<const PrintSetting> printSettings() { return kSettings; }

const PrintSetting* printSetting(const QString& column) {
  for (const PrintSetting& setting : kSettings)
    if (column == setting.column) return &setting;
  return nullptr;
}

int chosen(const ClaimRecord& claim, const PrintSetting& setting, const frame::ClinicProfile& profile) {
  const QString value = claim.get(columnName(setting.column));
  if (value == u"0") return 0;
  if (value == u"1") return 1;
  if (flagRules(setting, claim) && !profile[setting.flag].isEmpty())
    return profile[setting.flag] == u"1" ? 0 : 1;
  return setting.whenBlank;
}

std::span<const NewClaimDefault> hiddenPrintDefaults() { return kHidden; }

}  // namespace claims
