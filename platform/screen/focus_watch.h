#pragma once

#include <QObject>

class QWidget;

namespace screen {

class Control;
class ControlBook;
class OpeningHold;
class Screen;

/// What follows the focus of one screen: a control that is left runs its leave handler, one that is reached
/// comes into view and speaks, and Enter does what the kind of control does with it.
class FocusWatch : public QObject {
 public:
  FocusWatch(Screen& screen, ControlBook& book, const OpeningHold& opening);
  /// Watches the keys of the control's widgets.
  void watch(const Control& control);
  /// Called in a leave handler: the focus goes back.
  void keepFocus() { m_keep = true; }
  /// A command runs: what it says replaces the control that the focus came back to from the menu.
  void commandRuns() { ++m_commands; }
  /// The screen is closing: nothing is left any more.
  void end() { m_ended = true; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void changed(QWidget* old, QWidget* now);
  bool sendsBack(Control& left, QWidget* widget);
  bool enter(Control& control);
  void speakAfterMenu(const Control& control, QWidget* widget);
  Screen& m_screen;
  ControlBook& m_book;
  const OpeningHold& m_opening;
  const QWidget* m_spokeLast = nullptr;
  int m_commands = 0;  ///< how many ran, to know whether one ran meanwhile
  bool m_keep = false, m_returning = false, m_ended = false;
};

}  // namespace screen
