#pragma once

#include <array>

#include "platform/store/tables/claims.h"

namespace claims {

/// The columns by which the claim list is searched and sorted, in the order in which they are offered.
inline constexpr std::array<store::Column, 20> kListKeys = {
    claim::month,           claim::name,          claim::birth,
    claim::insuranceKind,   claim::cardNumber1,   claim::insuredKana,
    claim::insuredName,     claim::insuredBirth,  claim::treatedKana,
    claim::treatedName,     claim::treatedBirth,  claim::employerName,
    claim::employerAddress, claim::insurerNumber, claim::firstTreatment,
    claim::doctorAddress,   claim::doctorName,    claim::consentDateKept,
    claim::monthNumber,     claim::consentUntil,
};

}  // namespace claims
