#pragma once

#include "platform/screen/rows.h"

namespace office {

extern const screen::ScreenRow kTakingsDeclaration;

}  // namespace office
