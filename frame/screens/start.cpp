#include "frame/screens/start.h"

#include <QDir>

#include "frame/core/routes.h"

namespace frame {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kSplashCount = 1'000'000;
constexpr int kTopicsShownUpTo = 14;

/// Leaves the splash screen in view for a moment.
void countOnSplash() {
  volatile int counted = 0;
  while (counted < kSplashCount) counted = counted + 1;
}

Started tellMissing(screen::Services& services, const text::Done& read) {
  services.messages.tell(read.fault().message, QString(), screen::Icon::Stop);
  services.navigator.unload(routes::Splash::screen);
  services.navigator.quit();
  return Started::SettingsMissing;
}

Started showMenu(RunState& run, screen::Services& services) {
  // Kept: without this entry of the folders the start ends with no window.
  if (run.folders[folder::kSpare9].isEmpty()) {
    services.navigator.unload(routes::Splash::screen);
    services.navigator.quit();
    return Started::NothingToShow;
  }
  services.navigator.show(routes::MainMenu{});
  if (topicsWanted(run.settings[slot::kTopics])) services.navigator.show(routes::Topics{});
  services.navigator.unload(routes::Splash::screen);
  return Started::Menu;
}

}  // namespace

bool topicsWanted(const QString& counter) {
  if (counter.isEmpty()) return true;
  for (int shown = 0; shown <= kTopicsShownUpTo; ++shown)
    if (counter == QString::number(shown)) return true;
  return false;
}

Started startProgram(RunState& run, screen::Services& services, const StartNeeds& needs) {
  QDir::setCurrent(run.programFolder);
  if (screen::Screen* splash = services.navigator.show(routes::Splash{})) splash->repaint();
  countOnSplash();
  if (const text::Done read = readRun(run.programFolder, run); !read) return tellMissing(services, read);
  if (!needs.fontInstalled())
    services.messages.tell(u"サポートＣＤより印刷用ＦＯＮＴをインストールしてください"_s);
  return showMenu(run, services);
}

Started showFirstScreen(RunState& run, screen::Services& services) {
  if (const text::Done read = readRun(run.programFolder, run); !read) return tellMissing(services, read);
  return showMenu(run, services);
}

}  // namespace frame
