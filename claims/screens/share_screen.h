#pragma once

#include "platform/screen/screen.h"

namespace claims {

/// 計算式確認: a side calculator for shares. It changes no claim.
class ShareScreen : public screen::Screen {
 public:
  explicit ShareScreen(screen::Services& services);

  void calculate();
  void doubleUp();
  void finish();
};

}  // namespace claims
