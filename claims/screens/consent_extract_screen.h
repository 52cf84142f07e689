#pragma once

#include "platform/screen/screen.h"

namespace claims {

/// 抽出6: narrows the claim list to claims whose 要加療期間2 lies from one date up to another. The dates are
/// compared as the texts that they are, so all must be of one calendar. The second date may stay blank.
class ConsentExtractScreen : public screen::Screen {
 public:
  explicit ConsentExtractScreen(screen::Services& services);

  void extract();
  void cancel();
};

}  // namespace claims
