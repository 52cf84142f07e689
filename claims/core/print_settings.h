#pragma once

#include <QString>
#include <cstddef>
#include <iterator>

#include "claims/core/claim_record.h"
#include "frame/core/clinic_profile.h"
#include "frame/core/settings_slots.h"
#include "platform/store/tables/claims.h"

namespace claims {

/// The switches of the claim form's page 印刷設定, in their order on the page.
enum class Setting {
  PeriodFrom,       ///< 施術期間（自）: 最初の治療日 / １日
  PeriodTo,         ///< 施術期間（至）: 月末日 / 最終の治療日
  LeftMargin,       ///< 左欄外保険者名の印字
  PublicExpense,    ///< 公費負担番号の印字
  Sex,              ///< 男女の印字
  Mandate,          ///< 委任欄（償還払い時）: 印刷する / すべて印刷しない
  ApplicantCircle,  ///< 申請欄（保険者の頭に○）
  MandateName,      ///< 委任欄の被保険者の氏名の印字
  Relation,         ///< 続柄の印字
  ApplicantName,    ///< 申請欄の氏名の印字
  ShareCircles,     ///< 右上の給付割合の○
  ProxyWords,       ///< 施術証明欄に代表者委任の印字
  ShareAsComputed,  ///< 一部負担金を: 標準計算 / 公費があるため０円にする
  Dates,            ///< 施術証明欄・申請欄・委任欄の年月日
  Attachment,       ///< 別添1（様式第6号）の印字
  Bank,             ///< 支払機関欄の口座: 施術者 / 代表者
  Proof,            ///< 施術証明欄の住所・氏名: 施術者 / 代表者
  Doctor,           ///< 同意医師欄の印字
  Amounts,          ///< 金額欄の印字
};
inline constexpr std::size_t kSettings = static_cast<std::size_t>(Setting::Amounts) + 1;

/// What printing takes where a column holds the text of neither button.
enum class Unset {
  AsOnForm,       ///< the button that the form sets
  BlankAsOnForm,  ///< a blank as the form sets it, any other text as a choice of neither
  Neither,        ///< a choice of neither
};

/// A switch: a column and a group of two option buttons.
struct PrintSetting {
  Setting setting;
  store::Column column;
  const char16_t* caption;     ///< of the group
  const char16_t* buttons[2];  ///< captions; all that is heard on a button, so it names what it switches
  const char16_t* stored[2];   ///< what the column holds for each button
  int whenUnset;               ///< index of the button that is set where the column holds neither text
  const char16_t* newClaim;    ///< what a new claim begins with; nullptr: NULL
  Unset unset = Unset::AsOnForm;
  int flag = -1;  ///< slot of the clinic's own flag ("1": the first button), which goes before whenUnset
};

// The columns of the period hold the link of the two halves in claims that were never stored, which is no
// choice, nor is a blank there. The last four hold "1" for the first button and "0" for the second,
// as the claims that carry them always did.
inline constexpr PrintSetting kPrintSettings[] = {
    {Setting::PeriodFrom,
     claim::periodFrom,
     u"施術期間（自）",
     {u"最初の治療日", u"１日"},
     {u"0", u"1"},
     1,
     u"1",
     Unset::Neither},
    {Setting::PeriodTo,
     claim::periodTo,
     u"施術期間（至）",
     {u"月末日", u"最終の治療日"},
     {u"0", u"1"},
     1,
     u"1",
     Unset::Neither},
    {Setting::LeftMargin,
     claim::printMargin,
     u"左欄外保険者名の印字",
     {u"左欄外保険者名を印刷する", u"左欄外保険者名を印刷しない"},
     {u"0", u"1"},
     1,
     u"1"},
    {Setting::PublicExpense,
     claim::printPublicAidNumber,
     u"公費負担番号の印字",
     {u"公費負担番号を印刷する", u"公費負担番号を印刷しない"},
     {u"0", u"1"},
     0,
     u"0"},
    {Setting::Sex,
     claim::printSex,
     u"男女の印字",
     {u"男女を印刷する", u"男女を印刷しない"},
     {u"0", u"1"},
     0,
     u"0"},
    {Setting::Mandate,
     claim::printMandate,
     u"委任欄（償還払い時）",
     {u"印刷する", u"すべて印刷しない"},
     {u"0", u"1"},
     0,
     nullptr},
    {Setting::ApplicantCircle,
     claim::printRequestMark,
     u"申請欄（保険者の頭に○）",
     {u"申請欄の○を印刷する", u"申請欄の○を印刷しない"},
     {u"0", u"1"},
     0,
     nullptr},
    {Setting::MandateName,
     claim::printMandateName,
     u"委任欄の被保険者の氏名の印字",
     {u"委任欄の被保険者の氏名を印刷する", u"委任欄の被保険者の氏名を印刷しない"},
     {u"0", u"1"},
     0,
     nullptr},
    {Setting::Relation,
     claim::printRelation,
     u"続柄の印字",
     {u"続柄を印刷する", u"続柄を印刷しない"},
     {u"0", u"1"},
     0,
     nullptr,
     Unset::AsOnForm,
     frame::slot::kRelationPrinted},
    {Setting::ApplicantName,
     claim::printApplicantName,
     u"申請欄の氏名の印字",
     {u"申請欄の氏名を印刷する", u"申請欄の氏名を印刷しない"},
     {u"0", u"1"},
     0,
     nullptr,
     Unset::AsOnForm,
     frame::slot::kPrintApplicantName},
    {Setting::ShareCircles,
     claim::printShareCircles,
     u"右上の給付割合の○",
     {u"給付割合の○を印刷する", u"給付割合の○を印刷しない"},
     {u"0", u"1"},
     0,
     nullptr},
    {Setting::ProxyWords,
     claim::printProxyWords,
     u"施術証明欄に代表者委任の印字",
     {u"代表者委任を印刷する", u"代表者委任を印刷しない"},
     {u"0", u"1"},
     1,
     nullptr},
    {Setting::ShareAsComputed,
     claim::shareAsComputed,
     u"一部負担金を",
     {u"標準計算", u"公費があるため０円にする"},
     {u"0", u"1"},
     0,
     nullptr},
    {Setting::Dates,
     claim::printDates,
     u"施術証明欄・申請欄・委任欄の年月日",
     {u"年月日を印刷する", u"年月日を印刷しない"},
     {u"0", u"1"},
     0,
     nullptr},
    {Setting::Attachment,
     claim::printAttachment,
     u"別添1（様式第6号）の印字",
     {u"別添1を印刷する", u"別添1を印刷しない"},
     {u"0", u"1"},
     1,
     nullptr},
    {Setting::Bank,
     claim::printBank,
     u"支払機関欄の口座",
     {u"施術者の口座", u"代表者の口座"},
     {u"1", u"0"},
     0,
     u"1",
     Unset::BlankAsOnForm},
    {Setting::Proof,
     claim::printProof,
     u"施術証明欄の住所・氏名",
     {u"施術者の住所・氏名", u"代表者の住所・氏名"},
     {u"1", u"0"},
     0,
     u"1",
     Unset::BlankAsOnForm},
    {Setting::Doctor,
     claim::printDoctor,
     u"同意医師欄の印字",
     {u"同意医師欄を印刷する", u"同意医師欄を印刷しない"},
     {u"1", u"0"},
     0,
     u"1",
     Unset::BlankAsOnForm},
    {Setting::Amounts,
     claim::printAmounts,
     u"金額欄の印字",
     {u"金額欄を印刷する", u"金額欄を印刷しない"},
     {u"1", u"0"},
     0,
     u"1",
     Unset::BlankAsOnForm},
};

/// Whether each setting has its row, in order, under a column of its own.
consteval bool settingsAreSound() {
  for (std::size_t i = 0; i < std::size(kPrintSettings); ++i) {
    if (kPrintSettings[i].setting != static_cast<Setting>(i)) return false;
    for (std::size_t j = 0; j < i; ++j)
      if (kPrintSettings[i].column == kPrintSettings[j].column) return false;
  }
  return std::size(kPrintSettings) == kSettings;
}
static_assert(settingsAreSound());

constexpr const PrintSetting& rowOf(Setting setting) {
  return kPrintSettings[static_cast<std::size_t>(setting)];
}

/// Index of the button whose text the column holds, -1 where it holds neither.
int stored(const ClaimRecord& claim, Setting setting);
/// Index of the button that the form sets: by the column or, where it holds neither text, by the clinic's own
/// flag or the setting's default. The clinic's 本人の続柄印刷 speaks of 本人 alone: a relative's 続柄 is
/// printed.
int chosen(const ClaimRecord& claim, Setting setting, const frame::ClinicProfile& profile);

}  // namespace claims
