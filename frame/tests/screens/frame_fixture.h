#pragma once

#include "frame/screens/frame_screens.h"
#include "frame/tests/screens/screen_fixture.h"

namespace frame::test {

/// A program folder with the screens of the frame.
class FrameFixture : public ScreenFixture {
 protected:
  FrameFixture() { registerScreens(registry, services, run); }
};

}  // namespace frame::test
