#pragma once

#include "claims/core/claim_record.h"
#include "claims/core/print_settings.h"
#include "frame/core/clinic_profile.h"

namespace printing {

using claims::Setting;

/// A word of PrintSwitches: "on" is する or 施術者, "off" is しない or 代表者, Empty the third button of a
/// group.
enum class Switch { Empty, On, Off };

/// The print settings of a claim. Where its column holds neither button's text, the clinic's own flag rules
/// (続柄, 申請欄の氏名), else what the setting's row says.
class PrintSettings {
 public:
  PrintSettings(const claims::ClaimRecord& claim, const frame::ClinicProfile& profile)
      : m_claim(claim), m_profile(profile) {}

  Switch of(Setting setting) const;
  bool on(Setting setting) const { return of(setting) == Switch::On; }
  bool off(Setting setting) const { return of(setting) == Switch::Off; }

 private:
  const claims::ClaimRecord& m_claim;
  const frame::ClinicProfile& m_profile;
};

}  // namespace printing
