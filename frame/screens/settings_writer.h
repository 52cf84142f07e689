#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace frame {

/// Writes qv.dat from the run-wide values. False: the fault was reported through the screen's message door.
inline bool writeSettings(screen::Screen& screen, RunState& run, SettingsWriter writer) {
  const text::Done done = saveRun(run, writer);
  if (!done) screen.messages().tell(done.fault().message);
  return done.ok();
}

}  // namespace frame
