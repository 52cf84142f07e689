#include "printing/core/print_settings.h"

#include "claims/core/print_settings.h"

namespace printing {

namespace {

/// What a column says that holds neither "0" nor "1".
enum class Blank { Default, Unchosen };

struct SettingRow {
  Setting setting;
  const char16_t* column;
  Blank blank = Blank::Default;
};

// The two ends of the period have a rule of their own where nobody chose; the first one's column also keeps
// the link of the two halves in claims that were never stored, which is no choice either.
constexpr SettingRow kSettings[] = {
    {Setting::PeriodFrom, u"txt dummy1", Blank::Unchosen},
    {Setting::PeriodTo, u"txt dummy2", Blank::Unchosen},
    {Setting::LeftMargin, u"txt dummy3"},
    {Setting::PublicExpense, u"txt dummy4"},
    {Setting::Bank, u"txt dummy5"},
    {Setting::Proof, u"txt dummy6"},
    {Setting::Doctor, u"txt dummy7"},
    {Setting::Amounts, u"txt dummy8"},
    {Setting::Sex, u"txt dummy9"},
    {Setting::Mandate, u"txt dummy10"},
    {Setting::MandateName, u"txt dummy13"},
    {Setting::Relation, u"txtdummy26"},
    {Setting::ApplicantName, u"c8"},
    {Setting::ShareCircles, u"c9"},
    {Setting::ProxyWords, u"c10"},
    {Setting::ShareAsComputed, u"c11"},
    {Setting::Dates, u"c13"},
    {Setting::Attachment, u"c16"},
};

/// Columns without option buttons of their own on the page keep the word itself: "1" on, "0" off.
Switch wordOf(const QString& value) {
  if (value.isEmpty() || value == u"1") return Switch::On;
  return value == u"0" ? Switch::Off : Switch::Empty;
}

}  // namespace

Switch PrintSettings::of(Setting setting) const {
  const SettingRow& row = kSettings[static_cast<size_t>(setting)];
  const QString column = QString::fromUtf16(row.column);
  const QString value = m_claim.get(column);
  if (row.blank == Blank::Unchosen && value != u"0" && value != u"1") return Switch::Empty;
  const claims::PrintSetting* buttons = claims::printSetting(column);
  if (buttons == nullptr) return wordOf(value);
  return claims::chosen(m_claim, *buttons, m_profile) == 0 ? Switch::On : Switch::Off;
}

}  // namespace printing
