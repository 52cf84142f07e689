#include "app/application.h"

#include "claims/screens/claims_screens.h"
#include "frame/core/routes.h"
#include "frame/screens/frame_screens.h"
#include "office/screens/office_screens.h"
#include "platform/report/font_store.h"
#include "platform/screen/dialog_speech.h"
#include "records/screens/records_screens.h"

namespace app {

Application::Application(const QString& programFolder, Channels channels, const text::Clock& clock)
    : m_voice(channels.control, channels.sound, channels.focusTalk),
      m_messages(m_voice),
      m_navigator(m_registry),
      m_services{m_voice, m_messages, m_navigator, &m_desktop},
      m_engine(programFolder),
      m_printing{m_run, m_claims, m_engine, m_engine.printerChoice()} {
  m_run.programFolder = programFolder;
  m_run.clock = &clock;
  m_navigator.setServices(m_services);
  m_desktop.setDialogGuide([this](QDialog& picker) { screen::letSpeak(picker, m_voice); });
  registerAllScreens();
}

void Application::registerAllScreens() {
  frame::registerScreens(m_registry, m_services, m_run);
  records::registerScreens(m_registry, m_run, m_engine);
  office::registerScreens(m_registry, m_run);
  claims::registerScreens(m_registry, m_run, m_claims);
  printing::registerScreens(m_registry, m_printing);
  m_engine.setPrinterDialog(
      [this](quintptr, report::PrinterChoice&) { m_navigator.show(routes::PrinterOptions{}); });
}

frame::Started Application::start() {
  return frame::startProgram(m_run, m_services, {.fontInstalled = [] { return report::fontInstalled(); }});
}

}  // namespace app
