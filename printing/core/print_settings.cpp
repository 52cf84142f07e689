#include "printing/core/print_settings.h"

namespace printing {

namespace {

/// Whether a column that holds neither button's text is a choice of neither.
bool neither(const claims::PrintSetting& row, const claims::ClaimRecord& claim) {
  switch (row.unset) {
    case claims::Unset::AsOnForm:
      return false;
    case claims::Unset::BlankAsOnForm:
      return !claim.blank(row.column);
    case claims::Unset::Neither:
      return true;
  }
  return false;
}

}  // namespace

Switch PrintSettings::of(Setting setting) const {
  if (claims::stored(m_claim, setting) < 0 && neither(claims::rowOf(setting), m_claim)) return Switch::Empty;
  return claims::chosen(m_claim, setting, m_profile) == 0 ? Switch::On : Switch::Off;
}

}  // namespace printing
