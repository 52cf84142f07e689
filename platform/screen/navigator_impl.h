#pragma once

#include <QPointer>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "platform/screen/screen.h"

namespace screen {

/// All screens of the program, in one explicit list.
class ScreenRegistry {
 public:
  using Factory = std::function<std::unique_ptr<Screen>(Services&)>;

  void add(const QString& screenName, Factory factory) { m_factories[screenName] = std::move(factory); }
  template <class S, class... State>
  requires(!Route<S>) void add(const QString& screenName, State&... state) {
    add(screenName,
        Factory([&state...](Services& services) { return std::make_unique<S>(services, state...); }));
  }
  /// The screen that a route leads to; its constructor takes the services and further references:
  /// registry.add<routes::PatientRegister, PatientScreen>(runState).
  template <Route R, class S, class... State>
  void add(State&... state) {
    add(R::screen,
        Factory([&state...](Services& services) { return std::make_unique<S>(services, state...); }));
  }
  /// nullptr if no such screen is registered.
  const Factory* find(const QString& screenName) const;
  QStringList names() const;

 private:
  std::map<QString, Factory> m_factories;
};

/// The navigator of the running program.
class ScreenNavigator : public Navigator {
 public:
  explicit ScreenNavigator(const ScreenRegistry& registry);
  ~ScreenNavigator() override;
  /// The services name the navigator, so they come second.
  void setServices(Services& services) { m_services = &services; }

  using Navigator::show;
  Screen* show(const QString& screenName, const Request& request = {}) override;
  Screen* load(const QString& screenName) override;
  Screen* loaded(const QString& screenName) const override;
  bool isShown(const QString& screenName) const override;
  Screen* front() const override { return m_front; }
  void unload(const QString& screenName) override;
  void quit() override;

 private:
  Screen* make(const QString& screenName);
  const ScreenRegistry& m_registry;
  Services* m_services = nullptr;
  std::map<QString, Screen*> m_loaded;
  QPointer<Screen> m_front;
  bool m_quitting = false;
};

}  // namespace screen
