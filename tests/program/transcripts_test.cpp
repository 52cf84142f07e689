// What is heard of every registered screen, compared with the files in tests/speech: in a fresh program, and
// with rows in the files that the user fills.

#include <QSet>

#include "tests/program/demo_rows.h"
#include "tests/program/program_fixture.h"
#include "tests/program/screen_files.h"
#include "tests/program/speech_files.h"
#include "tests/program/speech_transcript.h"

namespace program {
namespace {

using namespace Qt::StringLiterals;

class TranscriptsTest : public ProgramTest {
 protected:
  /// Compares what is heard of a screen that was shown since the recording was cleared, and closes it.
  void compare(SpeechFiles& files, const QString& screenName, const QString& way = {});
};

void TranscriptsTest::compare(SpeechFiles& files, const QString& screenName, const QString& way) {
  ASSERT_TRUE(isOpen(screenName)) << told().join(u'\n').toStdString();
  const QString file = transcriptFile(screenName, way);
  ASSERT_FALSE(file.isEmpty()) << "no row in screen_files.cpp";
  QStringList lines = SpeechTranscript(screen(screenName), m_voice).lines();
  for (QString& line : lines) line.replace(m_folder.path(), u"<program folder>"_s);
  const QString difference = files.compare(file, lines);
  EXPECT_TRUE(difference.isEmpty()) << difference.toStdString();
}

TEST_F(TranscriptsTest, EveryScreenOfAFreshProgramIsHeardAsWritten) {
  start();
  SpeechFiles files(u"empty"_s);
  const QStringList names = m_application->registry().names();
  ASSERT_FALSE(names.isEmpty());
  for (const QString& name : names) {
    SCOPED_TRACE(name.toStdString());
    m_voice.clear();
    m_application->navigator().show(name);
    compare(files, name);
    closeAllButTheMenu();
  }
  EXPECT_EQ(files.leftOver(), QStringList());
}

TEST_F(TranscriptsTest, ScreensWithRowsAreHeardAsWritten) {
  ASSERT_TRUE(addDemoRows(m_folder.path()).ok());
  ASSERT_TRUE(addDemoSettings(m_folder.path()).ok());
  start();
  SpeechFiles files(u"filled"_s);
  ASSERT_FALSE(screenRoads().empty());
  for (const Road& road : screenRoads()) {
    const QString name = QString::fromUtf16(road.screen);
    SCOPED_TRACE(name.toStdString());
    follow(road);
    compare(files, name, QString::fromUtf16(road.way));
    closeAllButTheMenu();
  }
  EXPECT_EQ(files.leftOver(), QStringList());
}

TEST_F(TranscriptsTest, EveryScreenWithASourceIsHeardWithRows) {
  start();
  QSet<QString> heard;
  for (const Road& road : screenRoads()) heard.insert(QString::fromUtf16(road.screen));
  int bound = 0;
  for (const QString& name : m_application->registry().names()) {
    const screen::Screen* loaded = m_application->navigator().load(name);
    ASSERT_NE(loaded, nullptr) << name.toStdString();
    if (loaded->declaration().sources.count() == 0) continue;
    ++bound;
    EXPECT_TRUE(heard.contains(name)) << name.toStdString() << " has no road in screen_roads.cpp";
  }
  EXPECT_GT(bound, 0);
}

TEST_F(TranscriptsTest, EveryRowNamesARegisteredScreenAndAFileOfItsOwn) {
  const QStringList names = m_application->registry().names();
  QSet<QString> screens, files;
  for (const ScreenFile& row : screenFiles()) {
    const QString name = QString::fromUtf16(row.screen);
    EXPECT_TRUE(names.contains(name)) << name.toStdString();
    screens.insert(name);
    files.insert(transcriptFile(name));
  }
  EXPECT_EQ(screens.size(), names.size());
  EXPECT_EQ(static_cast<size_t>(screens.size()), screenFiles().size());
  EXPECT_EQ(static_cast<size_t>(files.size()), screenFiles().size());
}

TEST(SpeechFilesTest, DifferencesAreTheLinesThatChangedWithTheirNumbers) {
  EXPECT_EQ(firstDifferences({u"a"_s, u"b"_s, u"c"_s}, {u"a"_s, u"x"_s, u"c"_s, u"d"_s}),
            u"  2 - b\n  2 + x\n  4 + d"_s);
  EXPECT_EQ(firstDifferences({u"a"_s, u"b"_s}, {}, 1), u"  1 - a"_s);
}

TEST(SpeechTranscriptTest, ASpokenTextIsOneReadableLine) {
  EXPECT_EQ(readableSpeech(u"氏名:\u00FE見本\r\n太郎\t男"_s), u"氏名: | 見本 ⏎ 太郎 男"_s);
}

}  // namespace
}  // namespace program
