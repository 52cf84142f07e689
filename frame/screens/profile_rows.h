#pragma once

#include "platform/screen/rows.h"

namespace frame {

/// The declaration of the screen 登録 (初期設定).
extern const screen::ScreenRow kProfileDeclaration;

}  // namespace frame
