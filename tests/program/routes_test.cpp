// The routes are the only place with names of screens: each leads to a registered screen, or is listed as not
// built yet.

#include <QFile>
#include <QRegularExpression>

#include "frame/core/routes_unbuilt.h"
#include "tests/program/program_fixture.h"

namespace program {
namespace {

/// Names of the screens that a header's routes lead to.
QStringList routesOf(const char* header) {
  QFile file(QStringLiteral(SOURCE_FOLDER) + QLatin1String(header));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << header;
  static const QRegularExpression name(QStringLiteral("ScreenName screen\\{u\"([^\"]+)\"\\}"));
  QStringList names;
  for (auto found = name.globalMatch(QString::fromUtf8(file.readAll())); found.hasNext();)
    names += found.next().captured(1);
  EXPECT_FALSE(names.isEmpty()) << header;
  EXPECT_EQ(names.removeDuplicates(), 0) << header;
  return names;
}

using RoutesTest = ProgramTest;

TEST_F(RoutesTest, LeadToRegisteredScreensAndNoScreenIsWithoutARoute) {
  QStringList routes = routesOf("/frame/core/routes.h");
  QStringList screens = m_application->registry().names();
  routes.sort();
  screens.sort();
  EXPECT_EQ(routes, screens);
}

TEST_F(RoutesTest, NotBuiltYetAreListedAndNotRegistered) {
  QStringList listed;
  for (const screen::ScreenName& name : routes::unbuilt::kAll) listed += name;
  EXPECT_EQ(listed, routesOf("/frame/core/routes_unbuilt.h"));
  for (const QString& name : listed)
    EXPECT_FALSE(m_application->registry().names().contains(name)) << name.toStdString();
}

}  // namespace
}  // namespace program
