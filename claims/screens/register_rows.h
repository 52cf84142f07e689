#pragma once

#include "platform/screen/rows.h"

namespace claims {

extern const screen::ScreenRow kDoctorRegisterScreen;   ///< 登録2
extern const screen::ScreenRow kInsurerRegisterScreen;  ///< 登録3

}  // namespace claims
