#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <memory>

#include "app/application.h"
#include "platform/screen/testing/screen_probe.h"
#include "platform/voice/recording_channel.h"
#include "tests/program/screen_roads.h"

namespace program {

/// The whole program in a fresh folder of its own, with a voice that is written down, answers that are queued
/// and a clock that stands on 5 November 2024.
class ProgramTest : public testing::Test {
 protected:
  static void SetUpTestSuite();
  static void TearDownTestSuite() { s_shipped.reset(); }
  void SetUp() override;
  void TearDown() override;

  /// Starts the program (the news of the version switched off).
  void start();
  screen::Screen& screen(const QString& name);
  bool isOpen(const QString& name) const { return m_application->navigator().isShown(name); }

  // What a user does with the keyboard.
  void goTo(const QString& screenName, const QString& control);
  void type(const QString& text);
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// Goes to the control and types; what stood there is replaced.
  void fill(const QString& screenName, const QString& control, const QString& text);
  /// Goes to the button and presses the space bar.
  void press(const QString& screenName, const QString& control);
  /// Goes the way to a screen. The voice holds what is heard from its last step on.
  void follow(const Road& road);
  void closeAllButTheMenu();
  /// Messages since the last call.
  QStringList told();
  void answer(const QList<bool>& answers) { m_application->messages().answerFromQueue(answers); }
  QString path(const QString& file) const { return m_folder.filePath(file); }

  static std::unique_ptr<QTemporaryDir> s_shipped;  ///< a laid out folder, copied for each test
  QTemporaryDir m_folder;
  voice::RecordingChannel m_voice;
  text::FixedClock m_clock{QDate(2024, 11, 5), QTime(10, 0)};
  std::unique_ptr<app::Application> m_application;
};

}  // namespace program
