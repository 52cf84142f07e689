#pragma once

#include <QString>
#include <span>

#include "claims/core/claim_record.h"
#include "frame/core/clinic_profile.h"

namespace claims {

/// One switch of the page 印刷設定: a group of two option buttons and its column. The stored text is the
/// index of the chosen button, "0" the first, "1" the second.
struct PrintSetting {
  const char16_t* column;
  const char16_t* family;  ///< control family: Option9(0), Option9(1)
  const char16_t* caption;
  const char16_t* choices[2];
  const char16_t* newClaim;  ///< what a new claim begins with (nullptr: NULL)
  int whenBlank;             ///< the button that is set where the column is NULL
  int flag = -1;             ///< slot of the practice's own flag ("1": the first button), which goes before
};

/// All switches in the order of the page.
std::span<const PrintSetting> printSettings();
const PrintSetting* printSetting(const QString& column);
/// Index of the chosen button, by the column or, where it is blank, by the practice's own flag or the
/// setting's default. The practice's 本人の続柄印刷 speaks of 本人 alone: a relative's 続柄 is printed.
int chosen(const ClaimRecord& claim, const PrintSetting& setting, const frame::ClinicProfile& profile);

/// A column that a new claim begins with although no switch shows it, beside the settings' own.
struct NewClaimDefault {
  const char16_t* column;
  const char16_t* value;
};
std::span<const NewClaimDefault> hiddenPrintDefaults();

}  // namespace claims
