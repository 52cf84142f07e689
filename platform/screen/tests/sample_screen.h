#pragma once

#include <QTemporaryDir>

#include "platform/screen/message_door.h"
#include "platform/screen/navigator_impl.h"
#include "platform/screen/screen.h"
#include "platform/screen/testing/screen_probe.h"
#include "platform/voice/recording_channel.h"

namespace screen::testing {

/// A screen with every kind of row, for the tests of the kit.
class SampleScreen : public Screen {
 public:
  explicit SampleScreen(Services& services);

  void note(const QString& what) { log += what; }
  void storeRow() { note(QStringLiteral("store")); }
  void closeIt() { note(QStringLiteral("close")); }
  void entered(int index) { note(QStringLiteral("enter %1").arg(index)); }
  void left(int index);
  void edited(int index) { note(QStringLiteral("edit %1").arg(index)); }
  void toggled() { note(QStringLiteral("toggle")); }
  void chose() { note(QStringLiteral("choose")); }
  void picked() { note(QStringLiteral("pick")); }
  void activated() { note(QStringLiteral("activate")); }
  void rowMoved() { note(QStringLiteral("row")); }
  void onClosed() override { note(QStringLiteral("closed")); }

  QStringList log;
  bool refuseToLeave = false;
};

/// What every test of the kit needs: a recorded voice, messages answered from a queue, a navigator.
struct Harness {
  Harness();
  /// The patients' file, fresh, with rows named by `names` in column 氏名.
  QString patientsFile(const QStringList& names);

  voice::RecordingChannel spy;
  voice::VoiceGuide voice{spy, spy, spy};
  MessageDoor messages{voice};
  ScreenRegistry registry;
  ScreenNavigator navigator{registry};
  Services services{voice, messages, navigator};
  QTemporaryDir folder;
};

}  // namespace screen::testing
