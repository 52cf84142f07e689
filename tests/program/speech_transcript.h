#pragma once

#include <QStringList>

#include "platform/screen/testing/screen_probe.h"

namespace program {

/// Writes down what a user without sight hears of a screen: the opening, every Tab stop of every page in the
/// order of Tab, the choices that the arrow keys reach, and the menu.
///
/// Each line is a name, a tab and the spoken text. Lines of the screen itself have a word in brackets as
/// their name: [title] (the window's), [opens], [focus] (the control that has it at first), [menu]. Indented
/// lines are what the arrow keys reach from the line above: cells of the row, options, items of a list,
/// entries of the menu. A third column, after "= ", is the accessible name where the speech does not begin
/// with it.
class SpeechTranscript {
 public:
  SpeechTranscript(screen::Screen& screen, voice::RecordingChannel& voice)
      : m_screen(screen), m_voice(voice), m_probe(screen, voice) {}

  /// The lines of a screen that has just been shown; walks it by keyboard. The recording holds the calls
  /// since the screen was asked for.
  QStringList lines();

 private:
  QStringList opening();
  QStringList stops();
  QStringList choices(const screen::Control& control, QWidget& focus);
  QStringList cells(QWidget& focus);
  QStringList menus();

  screen::Screen& m_screen;
  voice::RecordingChannel& m_voice;
  screen::testing::ScreenProbe m_probe;
};

/// A spoken text as one readable line: the separator of the speech becomes " | ", a new line " ⏎ ".
QString readableSpeech(const QString& spoken);

}  // namespace program
