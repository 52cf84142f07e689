#pragma once

#include <QObject>
#include <functional>
#include <utility>

namespace screen {

/// What a window has to do once it has the keyboard. A message that is shown while the window opens, inside
/// opened(), gives the keyboard to the window below, which would be heard.
class RunWhenActivated {
 public:
  void set(std::function<void()> work) { m_work = std::move(work); }
  /// Called by the window's onActivate(): the work runs once, from the event loop.
  void run(QObject& window) {
    if (auto work = std::exchange(m_work, nullptr))
      QMetaObject::invokeMethod(&window, std::move(work), Qt::QueuedConnection);
  }

 private:
  std::function<void()> m_work;
};

}  // namespace screen
