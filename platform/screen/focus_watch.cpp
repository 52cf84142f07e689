#include "platform/screen/focus_watch.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/control_book.h"
#include "platform/screen/control_frame.h"
#include "platform/screen/opening_hold.h"
#include "platform/screen/screen.h"
#include "platform/screen/scroll_pane.h"

namespace screen {
namespace {

/// Whether a window opened over the screen and no key was pressed since: the focus that the screen is handed
/// for a moment, before that window or between, is not heard.
bool coveredByOpening(Screen& screen) {
  const Screen* front = screen.navigator().front();
  return front && front != &screen && front->awaitsKeyboard();
}

}  // namespace

FocusWatch::FocusWatch(Screen& screen, ControlBook& book, const OpeningHold& opening)
    : m_screen(screen), m_book(book), m_opening(opening) {
  // After both focus events: a message that a leave handler shows finds the focus settled.
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* old, QWidget* now) { changed(old, now); });
}

void FocusWatch::watch(const Control& control) {
  for (QWidget* widget : control.focusWidgets()) widget->installEventFilter(this);
}

void FocusWatch::changed(QWidget* old, QWidget* now) {
  Control* to = m_book.of(now);
  if (m_ended || !to) return;
  Control* from = m_book.of(old);
  if (from && from != to && !m_returning && sendsBack(*from, old)) return;
  if (QApplication::focusWidget() != now) return;  // the leave handler moved it on
  bringIntoView(now);
  if (coveredByOpening(m_screen)) return;
  const bool fromOwnList = old && old->window() != &m_screen && old->window()->parentWidget() == now;
  // While the opening sentence is heard the window may be handed the focus twice; it speaks once.
  const bool again = m_opening.isHeld() && now == m_spokeLast;
  m_spokeLast = now;
  if (fromOwnList || again) return;
  if (qobject_cast<QMenuBar*>(old))
    speakAfterMenu(*to, now);
  else
    to->speak(m_screen.voice(), now);
}

// The toolkit hands the focus back before it runs the entry that was chosen: the control is heard only where
// the menu was left without a choice.
void FocusWatch::speakAfterMenu(const Control& control, QWidget* widget) {
  const auto speak = [this, &control, widget, before = m_commands] {
    if (m_ended || m_commands != before || QApplication::focusWidget() != widget) return;
    control.speak(m_screen.voice(), widget);
  };
  QMetaObject::invokeMethod(this, speak, Qt::QueuedConnection);
}

bool FocusWatch::sendsBack(Control& left, QWidget* widget) {
  m_keep = false;
  left.leave();
  if (!std::exchange(m_keep, false) || m_ended) return false;
  if (TabsControl* tabs = m_book.tabs()) tabs->showPageOf(widget);
  // The control that had the focus for a moment is not being left by the user.
  const bool before = std::exchange(m_returning, true);
  widget->setFocus(Qt::OtherFocusReason);
  m_returning = before;
  return true;
}

bool FocusWatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  Control* control = m_book.of(qobject_cast<QWidget*>(watched));
  if (!control || (key->modifiers() & ~Qt::KeypadModifier)) return false;
  if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) return control->key(key->key());
  return (key->isAutoRepeat() && !control->keepsEnter()) || enter(*control);
}

bool FocusWatch::enter(Control& control) {
  if (control.keepsEnter()) return false;
  if (control.enter()) return true;
  if (CommandControl* standard = m_book.standard())
    standard->run();
  else
    m_screen.focusNext();
  return true;
}

}  // namespace screen
