// docs/glossary.md against the program: its screens, the screens to come and the columns whose names say
// nothing.

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <typeinfo>

#include "frame/core/routes_unbuilt.h"
#include "platform/store/catalogue.h"
#include "tests/program/glossary_tables.h"
#include "tests/program/program_fixture.h"

namespace program {
namespace {

using namespace Qt::StringLiterals;

class GlossaryTest : public ProgramTest {
 protected:
  const QList<QStringList> m_screens = glossaryRows(u"## Screens"_s);
};

/// Whether the object is of the class, whatever its namespace: the name of its type ends in it, with its
/// length.
bool isOfClass(const screen::Screen& object, const QString& name) {
  return QString::fromLatin1(typeid(object).name()).endsWith(QString::number(name.size()) + name + u'E');
}

QString sourceText(const QString& path) {
  QFile file(QStringLiteral(SOURCE_FOLDER "/") + path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The route to a screen as sources write it: "routes::TodaysBookings"; null for an unknown screen.
QString routeTo(const QString& screenName) {
  static const QString routes = sourceText(u"frame/core/routes.h"_s);
  const QRegularExpression declared(
      u"struct (\\w+) \\{\\s+static constexpr ScreenName screen\\{u\"%1\"\\}"_s.arg(
          QRegularExpression::escape(screenName)));
  const QRegularExpressionMatch route = declared.match(routes);
  return route.hasMatch() ? u"routes::"_s + route.captured(1) : QString();
}

/// Whether the file declares the class or the rows of the screen.
bool fileDeclares(const QString& path, const QString& className, const QString& screenName) {
  const QString text = sourceText(path), route = routeTo(screenName);
  if (text.contains(u"class "_s + className) || text.contains(u"u\""_s + screenName + u'"')) return true;
  return !route.isNull() && text.contains(QRegularExpression(route + u"\\b"_s));
}

QStringList without(QStringList list, const QStringList& others) {
  list.removeIf([&](const QString& each) { return others.contains(each); });
  return list;
}

TEST_F(GlossaryTest, EveryRegisteredScreenHasOneLine) {
  QStringList named;
  for (const QStringList& row : m_screens) named += row.value(0);
  named.sort();
  QStringList registered = m_application->registry().names();
  registered.sort();
  ASSERT_FALSE(registered.isEmpty());
  EXPECT_EQ(named, registered);
}

TEST_F(GlossaryTest, ScreenLinesGiveClassFileAndMeaning) {
  start();
  ASSERT_FALSE(m_screens.isEmpty());
  for (const QStringList& row : m_screens) {
    SCOPED_TRACE(row.value(0).toStdString());
    ASSERT_EQ(row.size(), 4);
    const screen::Screen* loaded = m_application->navigator().load(row[0]);
    ASSERT_NE(loaded, nullptr);
    EXPECT_TRUE(isOfClass(*loaded, row[1])) << row[1].toStdString() << " but " << typeid(*loaded).name();
    EXPECT_TRUE(fileDeclares(row[2], row[1], row[0])) << row[2].toStdString();
    EXPECT_FALSE(row[3].isEmpty());
  }
}

TEST_F(GlossaryTest, ScreensToComeAreTheRoutesThatAreNotBuilt) {
  QStringList named, routes;
  for (const QStringList& row : glossaryRows(u"### Screens not built yet"_s)) {
    ASSERT_EQ(row.size(), 2);
    EXPECT_FALSE(row[1].isEmpty()) << row[0].toStdString();
    named += row[0];
  }
  for (const screen::ScreenName& name : routes::unbuilt::kAll) routes += name;
  named.sort();
  routes.sort();
  EXPECT_EQ(without(routes, named), QStringList()) << "without a line";
  EXPECT_EQ(without(named, routes), QStringList()) << "not among the routes";
  EXPECT_EQ(named.removeDuplicates(), 0);
}

// "t1", "txt dummy14", "memodummy30": Latin small letters and a number. The first table of a file is meant.
TEST_F(GlossaryTest, EveryColumnOfASeriesHasOneMeaning) {
  const QRegularExpression series(u"^[a-z ]+[0-9]+$"_s);
  QStringList columns, described;
  for (const store::TableRow& table : store::catalogue()) {
    const QString file = QString::fromUtf16(table.file);
    if (store::tableOfFile(file) != &table) continue;
    for (const store::ColumnRow& column : table.columns)
      if (const QString name = QString::fromUtf16(column.name); series.match(name).hasMatch())
        columns += file + u' ' + name;
  }
  for (const QStringList& row : glossaryRows(u"## Columns whose names say nothing"_s)) {
    ASSERT_EQ(row.size(), 3) << row.join(u'|').toStdString();
    EXPECT_FALSE(row[2].isEmpty());
    for (const QString& column : listedColumns(row[1])) described += row[0] + u' ' + column;
  }
  ASSERT_FALSE(columns.isEmpty());
  EXPECT_EQ(without(columns, described), QStringList()) << "without a line";
  EXPECT_EQ(without(described, columns), QStringList()) << "in no file";
  EXPECT_EQ(described.removeDuplicates(), 0);
}

TEST_F(GlossaryTest, NoWordIsExplainedTwice) {
  for (const QString& heading : {u"## The trade"_s, u"## Words of this program"_s}) {
    QSet<QString> words;
    const QList<QStringList> rows = glossaryRows(heading);
    ASSERT_FALSE(rows.isEmpty()) << heading.toStdString();
    for (const QStringList& row : rows)
      for (const QString& word : row.value(0).split(u", "_s)) {
        EXPECT_FALSE(words.contains(word)) << word.toStdString();
        EXPECT_FALSE(row.last().isEmpty()) << word.toStdString();
        words.insert(word);
      }
  }
}

TEST(GlossaryTables, ASeriesIsListedByItsEnds) {
  EXPECT_EQ(listedColumns(u"d1..d3, e1, txt dummy9..txt dummy10"_s),
            QStringList({u"d1"_s, u"d2"_s, u"d3"_s, u"e1"_s, u"txt dummy9"_s, u"txt dummy10"_s}));
}

}  // namespace
}  // namespace program
