// The program 治療台帳.

#include <QApplication>
#include <csignal>

#include "app/application.h"
#include "platform/screen/accessibility.h"
#include "platform/voice/silent_library.h"
#include "platform/voice/speech_dispatcher_channel.h"

int main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN);  // a speech service that goes away must not end the program
  screen::enableAccessibility();
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("治療台帳"));

  const text::SystemClock clock;
  voice::SpeechDispatcherChannel speech;
  voice::SilentSoundLibrary sound;
  voice::SilentFocusTalkLibrary focusTalk;
  app::Application program(QCoreApplication::applicationDirPath(), {speech, sound, focusTalk}, clock);
  if (program.start() != frame::Started::Menu) return 1;
  return QApplication::exec();
}
