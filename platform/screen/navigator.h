#pragma once

#include <QString>

#include "platform/route/route.h"

namespace screen {

class Screen;

/// Opens screens. Each screen is one instance, re-entered by showing it.
class Navigator {
 public:
  virtual ~Navigator() = default;

  /// Takes a route: shows its screen, loading it first if it is not loaded, and hands the route over.
  template <Route R>
  Screen* show(const R& route) {
    return show(R::screen.text(), Request(route));
  }
  /// Shows a screen by its name, with nothing handed over: the way back to an opener. A screen that this
  /// build does not have is reported by name, spoken.
  virtual Screen* show(const QString& screenName, const Request& request = {}) = 0;
  /// Loads without showing.
  virtual Screen* load(const QString& screenName) = 0;
  /// The loaded screen, nullptr if it is not loaded.
  virtual Screen* loaded(const QString& screenName) const = 0;
  virtual bool isShown(const QString& screenName) const = 0;
  /// The screen that was shown last, nullptr if it has closed since.
  virtual Screen* front() const { return nullptr; }
  /// Closes and forgets the screen (deleted when control returns to the event loop).
  virtual void unload(const QString& screenName) = 0;
  /// Ends the program.
  virtual void quit() = 0;
};

}  // namespace screen
