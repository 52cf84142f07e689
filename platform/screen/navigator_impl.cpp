#include "platform/screen/navigator_impl.h"

#include <QtWidgets/QtWidgets>

namespace screen {
namespace {

/// The program ends when its last window has gone. Asked from the event loop: a screen that closes itself
/// and shows another is not the end.
void quitWhenNothingShows() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  if (std::none_of(windows.begin(), windows.end(), [](const QWidget* w) { return w->isVisible(); }))
    QCoreApplication::quit();
}

}  // namespace

const ScreenRegistry::Factory* ScreenRegistry::find(const QString& screenName) const {
  const auto found = m_factories.find(screenName);
  return found == m_factories.end() ? nullptr : &found->second;
}

QStringList ScreenRegistry::names() const {
  QStringList names;
  for (const auto& [name, factory] : m_factories) names += name;
  return names;
}

ScreenNavigator::ScreenNavigator(const ScreenRegistry& registry) : m_registry(registry) {
  QGuiApplication::setQuitOnLastWindowClosed(false);
}

ScreenNavigator::~ScreenNavigator() {
  m_quitting = true;
  const auto screens = std::exchange(m_loaded, {});
  for (const auto& [name, screen] : screens) delete screen;
}

Screen* ScreenNavigator::make(const QString& screenName) {
  const ScreenRegistry::Factory* factory = m_registry.find(screenName);
  if (!factory) {
    m_services->messages.tell(QStringLiteral("「%1」の画面は、まだこの版にはありません。").arg(screenName));
    return nullptr;
  }
  Screen* screen = (*factory)(*m_services).release();
  m_loaded[screenName] = screen;
  return screen;
}

Screen* ScreenNavigator::load(const QString& screenName) {
  if (Screen* screen = loaded(screenName)) return screen;
  if (Screen* screen = make(screenName)) screen->onLoad();
  return loaded(screenName);
}

Screen* ScreenNavigator::show(const QString& screenName, const Request& request) {
  Screen* screen = loaded(screenName);
  const bool fresh = !screen;
  if (fresh) screen = make(screenName);
  if (!screen) return nullptr;
  screen->prepareOpening();
  if (fresh) screen->onLoad();
  // A screen may refuse to open by unloading itself in its own handlers.
  if (loaded(screenName) == screen) screen->opened(request);
  if (loaded(screenName) != screen) return nullptr;
  m_front = screen;
  if (screen->isMinimized()) screen->showNormal();
  screen->show();
  screen->raise();
  screen->activateWindow();
  return screen;
}

Screen* ScreenNavigator::loaded(const QString& screenName) const {
  const auto found = m_loaded.find(screenName);
  return found == m_loaded.end() ? nullptr : found->second;
}

bool ScreenNavigator::isShown(const QString& screenName) const {
  const Screen* screen = loaded(screenName);
  return screen && screen->isVisible();
}

void ScreenNavigator::unload(const QString& screenName) {
  const auto found = m_loaded.find(screenName);
  if (found == m_loaded.end()) return;
  Screen* screen = found->second;
  m_loaded.erase(found);
  screen->closeNow();
  screen->deleteLater();
  if (!m_quitting) QMetaObject::invokeMethod(qApp, quitWhenNothingShows, Qt::QueuedConnection);
}

void ScreenNavigator::quit() {
  if (std::exchange(m_quitting, true)) return;
  while (!m_loaded.empty()) unload(QString(m_loaded.begin()->first));
  QCoreApplication::quit();
}

}  // namespace screen
