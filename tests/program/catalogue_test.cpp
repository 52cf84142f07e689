// Every registered screen, walked as a user without sight meets it.

#include <QFileInfo>
#include <QSet>

#include "platform/store/database.h"
#include "tests/program/demo_rows.h"
#include "tests/program/program_fixture.h"

namespace program {
namespace {

class CatalogueTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    start();
  }
};

TEST_F(CatalogueTest, EveryScreenOpensAndIsNamedSpokenAndReachable) {
  ASSERT_FALSE(m_application->registry().names().isEmpty());
  for (const QString& name : m_application->registry().names()) {
    SCOPED_TRACE(name.toStdString());
    screen::Screen* window = m_application->navigator().show(name);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->objectName(), name);
    EXPECT_FALSE(window->windowTitle().isEmpty());
    screen::testing::ScreenProbe probe(*window, m_voice);
    probe.open();
    const QStringList faults = probe.faults();
    EXPECT_TRUE(faults.isEmpty()) << faults.join('\n').toStdString();
    m_application->navigator().unload(name);
    told();
  }
}

/// The catalogue's file names of a screen's sources in their order; blank for one that is not open.
QStringList filesOf(const screen::Screen& screen) {
  QStringList files;
  for (int number = 1; number <= screen.declaration().sources.count(); ++number) {
    const screen::DataSource& source = screen.source(number);
    files += source.isOpen() ? QFileInfo(source.rows().database()->path()).fileName() : QString();
  }
  return files;
}

/// A source of a screen, as a key: "治療台帳3 2".
QString sourceKey(const QString& screen, int number) {
  return QStringLiteral("%1 %2").arg(screen).arg(number);
}

using FilledCatalogueTest = ProgramTest;

// The files are those that the screen itself opens, so that no bound screen can be left out.
TEST_F(FilledCatalogueTest, BoundColumnsExist) {
  ASSERT_TRUE(addDemoRows(m_folder.path()).ok());
  start();
  QSet<QString> checked;
  for (const Road& road : screenRoads()) {
    const QString name = QString::fromUtf16(road.screen);
    SCOPED_TRACE(name.toStdString());
    follow(road);
    ASSERT_TRUE(isOpen(name));
    screen::testing::ScreenProbe probe(screen(name), m_voice);
    probe.open();  // some open their source only when they have the keyboard
    const QStringList files = filesOf(screen(name));
    for (const QString& unknown : probe.unknownColumns(files)) {
      const bool fileOpen = !files.value(unknown.section(u':', 0, 0).toInt() - 1).isEmpty();
      EXPECT_FALSE(fileOpen) << unknown.toStdString();
    }
    for (int number = 1; number <= files.size(); ++number)
      if (!files[number - 1].isEmpty()) checked.insert(sourceKey(name, number));
    closeAllButTheMenu();
  }
  QSet<QString> declared;
  for (const QString& name : m_application->registry().names())
    for (int number = 1; number <= m_application->navigator().load(name)->declaration().sources.count();
         ++number)
      declared.insert(sourceKey(name, number));
  EXPECT_FALSE(declared.isEmpty());
  EXPECT_EQ((declared - checked).values(), QStringList()) << "sources that no road of screen_roads.cpp opens";
}

// A command of a room that is not built says so by name, spoken, and opens nothing.
TEST_F(CatalogueTest, AMissingRoomIsToldByName) {
  EXPECT_EQ(m_application->navigator().show(QStringLiteral("領収証選択")), nullptr);
  const QStringList texts = told();
  ASSERT_EQ(texts.size(), 1);
  EXPECT_TRUE(texts[0].contains(QStringLiteral("領収証選択")));
  EXPECT_TRUE(m_voice.said().contains(texts[0]));
}

}  // namespace
}  // namespace program
