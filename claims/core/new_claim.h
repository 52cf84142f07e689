#pragma once

#include <QString>
#include <span>

#include "claims/core/claim_record.h"
#include "claims/core/kinds.h"
#include "frame/core/clinic_profile.h"
#include "frame/core/patient.h"

namespace claims {

/// Whose insurance card: 保険証の本人, 保険証の家族, 世帯主でない本人.
enum class CardHolder { Insured, Family, InsuredNotHead };

/// The answers of レセプト選択.
struct NewClaimChoice {
  QString insurance;  ///< one of the seven kinds
  Kind treatment = Kind::Acupuncture;
  CardHolder holder = CardHolder::Insured;
};

/// A new claim: the patient's data, the choices, the practitioner copy of the clinic profile and the
/// defaults. The claim month stays blank: the user types it.
ClaimRecord newClaim(const frame::Patient& patient, const NewClaimChoice& choice,
                     const frame::ClinicProfile& profile);

/// The columns of the representative, which 代表者のデータのクリア blanks.
std::span<const store::Column> representativeColumns();

}  // namespace claims
