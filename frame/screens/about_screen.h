#pragma once

#include "platform/screen/screen.h"

namespace frame {

/// Version information.
class AboutScreen : public screen::Screen {
 public:
  explicit AboutScreen(screen::Services& services);

  void showSystemInformation();
  void finish();
};

}  // namespace frame
