#pragma once

#include <QHash>
#include <QString>
#include <span>

#include "claims/core/claim_record.h"
#include "claims/core/kinds.h"
#include "frame/core/clinic_profile.h"

namespace claims {

/// Whose insurance card: 保険証の本人, 保険証の家族, 世帯主でない本人.
enum class CardHolder { Insured, Family, InsuredNotHead };

/// The answers of レセプト選択.
struct NewClaimChoice {
  QString insurance;  ///< one of the seven kinds
  Kind treatment = Kind::Acupuncture;
  CardHolder holder = CardHolder::Insured;
};

/// Columns of a new claim: the patient's data (columns of table 臨床QV), the choices, the practitioner copy
/// of the clinic profile and the defaults. The claim month stays blank: the user types it.
ClaimRecord newClaim(const QHash<QString, QString>& patient, const NewClaimChoice& choice,
                     const frame::ClinicProfile& profile);

/// The columns of the representative, which 代表者のデータのクリア blanks.
std::span<const char16_t* const> representativeColumns();

}  // namespace claims
