#pragma once

#include <functional>

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace frame {

/// How the start ended.
enum class Started {
  Menu,             ///< the main menu is shown
  NothingToShow,    ///< an entry of the folders that must not be blank is blank: no window, the program ends
  SettingsMissing,  ///< qv.dat is missing: reported by its name, the program ends
};

/// What the start asks of the platform.
struct StartNeeds {
  std::function<bool()> fontInstalled;  ///< whether the print font is there
};

/// The start from the splash screen to the first working screen. `run.programFolder` and `run.clock` are set
/// by the caller. If the program has nothing to show it quits.
Started startProgram(RunState& run, screen::Services& services, const StartNeeds& needs);

/// Reads qv.dat into the run and shows the main menu, and the news of the version if they are wanted: the
/// second half of the start, which a key on the splash screen runs too.
Started showFirstScreen(RunState& run, screen::Services& services);

/// Whether the news are shown at the start: the counter is blank or one of 0 to 14.
bool topicsWanted(const QString& counter);

}  // namespace frame
