#pragma once

#include <QString>
#include <QVariantMap>

namespace screen {

class Screen;

/// What the opener hands to the opened screen, by field name ("テキスト5": a serial, "ID": a claim ...).
using Request = QVariantMap;

/// Opens screens by their names. Each screen is one instance, re-entered by showing it.
class Navigator {
 public:
  virtual ~Navigator() = default;

  /// Shows the screen, loading it first where it is not loaded; Screen::opened() gets the request. A
  /// screen that this build does not have says so by name, spoken.
  virtual Screen* show(const QString& screenName, const Request& request = {}) = 0;
  /// Loads without showing.
  virtual Screen* load(const QString& screenName) = 0;
  /// The loaded screen, nullptr where it is not loaded.
  virtual Screen* loaded(const QString& screenName) const = 0;
  virtual bool isShown(const QString& screenName) const = 0;
  /// The screen that was shown last, nullptr where it has closed since.
  virtual Screen* front() const { return nullptr; }
  /// Closes and forgets the screen (deleted when control returns to the event loop).
  virtual void unload(const QString& screenName) = 0;
  /// Ends the program.
  virtual void quit() = 0;
};

}  // namespace screen
