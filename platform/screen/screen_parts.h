#pragma once

#include <QPointer>

#include "platform/screen/control_book.h"
#include "platform/screen/focus_watch.h"
#include "platform/screen/opening_hold.h"
#include "platform/screen/screen.h"

namespace screen {

/// The private parts of a screen.
struct Screen::Parts {
  Parts(Screen& screen, Services& services) : opening(services.voice), focus(screen, book, opening) {}

  ControlBook book;
  OpeningHold opening;
  FocusWatch focus;
  QString running;               ///< objectName of the command whose action runs
  QPointer<QWidget> firstFocus;  ///< asked for before the first show
  bool openingSaid = false;
  bool closed = false;
};

/// Puts the focus on the widget as the Tab key does: the text of a list that is typed into is selected, so
/// that what is typed takes its place.
void giveFocus(QWidget& widget);

}  // namespace screen
