#pragma once

#include <QKeySequence>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <functional>

#include "platform/screen/screen.h"
#include "platform/screen/testing/print_text.h"
#include "platform/voice/recording_channel.h"

namespace screen {
class Control;
}

namespace screen::testing {

/// A tab stop as the user meets it.
struct Stop {
  QString control;         ///< objectName of the row: "txtFields(4)"
  QString accessibleName;  ///< what a screen reader hears
  QString spoken;          ///< what the voice control was given when the focus came
};

/// Works a screen as a user with a keyboard does, and lists what a user without sight would stumble over.
class ScreenProbe {
 public:
  ScreenProbe(Screen& screen, voice::RecordingChannel& voice) : m_screen(screen), m_voice(voice) {}

  /// Shows the screen and waits until it has the keyboard.
  void open();
  /// Presses a key where the focus is.
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// Types a text where the focus is, Japanese too.
  void type(const QString& text);

  /// What a walk does at a tab stop: the control, its widget that has the focus, and what was heard of it.
  using Visit = std::function<void(const Control& control, QWidget& focus, const QStringList& heard)>;
  /// Walks every page by the Tab key and visits each control once, the strip of pages once a page.
  void walk(const Visit& visit);
  /// Every tab stop of every page, in the order in which Tab finds them.
  QList<Stop> stops();
  /// Controls without a name, caption, speech or tab stop, and names that two controls share; empty for a
  /// sound screen.
  QStringList faults();
  /// Bound columns that the catalogue's table does not have: "2: a99" for column a99 of source 2. `files`
  /// are the catalogue's file names of the sources, in their order.
  QStringList unknownColumns(const QStringList& files) const;

 private:
  void walkPage(QSet<QString>& visited, const Visit& visit);
  Screen& m_screen;
  voice::RecordingChannel& m_voice;
};

}  // namespace screen::testing
