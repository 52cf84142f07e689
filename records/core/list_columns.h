#pragma once

#include <array>

#include "platform/store/tables/patients.h"

namespace records {

/// The columns of the patient table that the list of patients is narrowed and sorted by, in the order in
/// which its dialogs offer them. Unlike the search row of the patient screen they go by the names of the
/// table (ふりがな) and leave out ID, 治療 and メモ1.
inline constexpr std::array<store::Column, 30> kListColumns = {
    patients::patientNumber, patients::chartNumber,  patients::kana,         patients::name,
    patients::sex,           patients::birth,        patients::age,          patients::occupation,
    patients::company,       patients::zip,          patients::address[1],   patients::address[2],
    patients::address[3],    patients::telephone[1], patients::telephone[2], patients::mobile,
    patients::fax,           patients::keyword[1],   patients::keyword[2],   patients::group,
    patients::referredBy,    patients::referred,     patients::practitioner, patients::allotted,
    patients::history,       patients::date1,        patients::ownText[1],   patients::ownText[2],
    patients::ownText[3],    patients::symptoms};

}  // namespace records
