#include <QAction>
#include <QPushButton>

#include "frame/tests/screens/frame_fixture.h"
#include "platform/screen/testing/screen_probe.h"

namespace frame {
namespace {

using namespace Qt::Literals::StringLiterals;

/// Every screen that the frame registers, by name.
QStringList registeredNames() {
  screen::ScreenRegistry registry;
  voice::RecordingChannel channel;
  voice::VoiceGuide guide(channel, channel, channel);
  screen::MessageDoor messages(guide);
  screen::ScreenNavigator navigator(registry);
  screen::Services services{guide, messages, navigator};
  RunState run;
  registerScreens(registry, services, run);
  return registry.names();
}

class FrameCatalogueTest : public test::FrameFixture, public testing::WithParamInterface<QString> {
 protected:
  void SetUp() override {
    FrameFixture::SetUp();
    makeFile(u"料金設定2000.mdb"_s);
  }
};

TEST_P(FrameCatalogueTest, EveryControlIsNamedSpokenAndReached) {
  for (const QString& prefecture : {u"13"_s, u"23"_s}) {
    run.prefectureCode = prefecture;
    screen::Screen* screen = navigator.show(GetParam());
    ASSERT_NE(screen, nullptr);
    EXPECT_TRUE(messages.texts().isEmpty()) << lastMessage().toStdString();
    screen::testing::ScreenProbe probe(*screen, channel);
    probe.open();
    // The only tab stop of a notice keeps the focus: it is heard when the notice opens.
    const QString heard = channel.said().join(u' ');
    QStringList faults = probe.faults();
    if (const QList<screen::testing::Stop> stops = probe.stops(); stops.size() == 1) {
      EXPECT_TRUE(heard.contains(screen->caption(stops.first().control))) << heard.toStdString();
      faults.removeAll(stops.first().control + u": says nothing"_s);
    }
    EXPECT_TRUE(faults.isEmpty()) << faults.join(u'\n').toStdString();
    navigator.unload(GetParam());
    settle();
  }
}

TEST_P(FrameCatalogueTest, ObjectNameIsTheScreensNameAndTwinsBothExist) {
  screen::Screen* screen = navigator.show(GetParam());
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(screen->objectName(), GetParam());
  EXPECT_FALSE(screen->windowTitle().isEmpty());
  for (const screen::Row& row : screen->declaration().rows) {
    const auto* command = std::get_if<screen::Command>(&row);
    if (!command || !command->menu) continue;
    EXPECT_NE(screen->findChild<QPushButton*>(QString::fromUtf16(command->name.family())), nullptr);
    EXPECT_NE(screen->findChild<QAction*>(QString::fromUtf16(command->menu)), nullptr)
        << QString::fromUtf16(command->menu).toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(AllScreens, FrameCatalogueTest, testing::ValuesIn(registeredNames()));

}  // namespace
}  // namespace frame
