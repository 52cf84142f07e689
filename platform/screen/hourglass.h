#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace screen {

/// The hourglass over the program while a pass over many rows runs.
class Hourglass {
 public:
  Hourglass() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~Hourglass() { QGuiApplication::restoreOverrideCursor(); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
};

}  // namespace screen
