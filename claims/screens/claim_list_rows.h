#pragma once

#include "platform/screen/rows.h"

namespace claims {

/// The declared screen レセプト一覧表.
extern const screen::ScreenRow kClaimListScreen;

}  // namespace claims
