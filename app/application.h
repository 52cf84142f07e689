#pragma once

#include <QString>

#include "claims/core/claims_state.h"
#include "frame/core/run_state.h"
#include "frame/screens/start.h"
#include "platform/report/report_engine.h"
#include "platform/screen/navigator_impl.h"
#include "platform/shell/desktop.h"
#include "printing/screens/printing_screens.h"

namespace app {

/// The three speech channels that the application speaks through.
struct Channels {
  voice::VoiceControl& control;
  voice::SoundLibrary& sound;
  voice::FocusTalkLibrary& focusTalk;
};

/// The whole program, put together: voice, messages, screens, report engine and the values of one run. The
/// running program has one; journeys make their own with a recording voice and a clock that stands.
class Application {
 public:
  Application(const QString& programFolder, Channels channels, const text::Clock& clock);

  /// From the splash screen to the first working screen.
  frame::Started start();

  frame::RunState& run() { return m_run; }
  screen::MessageDoor& messages() { return m_messages; }
  screen::ScreenNavigator& navigator() { return m_navigator; }
  const screen::ScreenRegistry& registry() const { return m_registry; }

 private:
  void registerAllScreens();

  voice::VoiceGuide m_voice;
  screen::MessageDoor m_messages;
  shell::Desktop m_desktop;
  screen::ScreenRegistry m_registry;
  screen::ScreenNavigator m_navigator;
  screen::Services m_services;
  frame::RunState m_run;
  claims::ClaimsState m_claims;
  report::ReportEngine m_engine;
  printing::PrintingRoom m_printing;
};

}  // namespace app
