#pragma once

#include "platform/screen/rows.h"

namespace records {

/// The declaration of the patient screen 治療台帳4.
extern const screen::ScreenRow kPatientDeclaration;

}  // namespace records
