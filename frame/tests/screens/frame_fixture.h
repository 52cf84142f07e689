#pragma once

#include "frame/screens/frame_screens.h"
#include "frame/tests/screens/desk_fixture.h"

namespace frame::test {

/// The fixture with the screens of the frame.
class FrameFixture : public DeskFixture {
 protected:
  FrameFixture() { registerScreens(registry, services, run); }
};

}  // namespace frame::test
