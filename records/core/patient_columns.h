#pragma once

#include <array>

#include "platform/store/tables/patients.h"

namespace records {

/// The columns of the patient table that patients are searched, narrowed and sorted by, in the order in which
/// the dialogs of the patient list offer them.
inline constexpr std::array<store::Column, 30> kPatientColumns = {
    patients::patientNumber, patients::chartNumber,  patients::kana,         patients::name,
    patients::sex,           patients::birth,        patients::age,          patients::occupation,
    patients::company,       patients::zip,          patients::address[1],   patients::address[2],
    patients::address[3],    patients::telephone[1], patients::telephone[2], patients::mobile,
    patients::fax,           patients::keyword[1],   patients::keyword[2],   patients::group,
    patients::referredBy,    patients::referred,     patients::practitioner, patients::allotted,
    patients::history,       patients::date1,        patients::ownText[1],   patients::ownText[2],
    patients::ownText[3],    patients::symptoms};

}  // namespace records
