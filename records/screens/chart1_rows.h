#pragma once

#include "platform/screen/rows.h"

namespace records {

extern const screen::ScreenRow kChart1Declaration;

}  // namespace records
