#pragma once

#include "platform/screen/rows.h"

namespace frame {

/// The declaration of the main menu 選択3.
extern const screen::ScreenRow kMainMenuDeclaration;

}  // namespace frame
