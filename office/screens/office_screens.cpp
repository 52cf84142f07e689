#include "office/screens/office_screens.h"

namespace office {

void registerScreens(screen::ScreenRegistry&, frame::RunState&) {}

}  // namespace office
