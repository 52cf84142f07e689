#include <QKeyEvent>

#include "records/tests/screens/patient_screen_fixture.h"

// The search row of the patient screen.

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;
using test::PatientScreenTest;

TEST_F(PatientScreenTest, SearchGoesFromHitToHitAndRoundTheEnd) {
  addNamed({u"サトウ 一"_s, u"例示 二"_s, u"佐藤さとう"_s});
  screen::Screen& screen = patients();
  screen.setText(u"Combo1"_s, u"氏名"_s);
  screen.setText(u"Combo3"_s, u"ｻﾄｳ"_s);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(name(screen), u"佐藤さとう"_s);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(name(screen), u"サトウ 一"_s);
  EXPECT_TRUE(messages.texts().isEmpty());
}

TEST_F(PatientScreenTest, NoHitIsReportedAndTheRowStays) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s});
  screen::Screen& screen = patients();
  screen.trigger(u"Command18"_s);
  screen.setText(u"Combo3"_s, u"ない名前"_s);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(lastMessage(), u"該当がありません。"_s);
  EXPECT_EQ(messages.titles().last(), u"Not found"_s);
  EXPECT_EQ(name(screen), u"見本 二郎"_s);
}

TEST_F(PatientScreenTest, BlankWordSearchesNothingAndIsAskedFor) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s});
  screen::Screen& screen = patients();
  screen.setText(u"Combo3"_s, u""_s);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(screen.focused(), u"Combo3"_s);
  EXPECT_EQ(channel.lastSaid(), u"検索文字:"_s);
  EXPECT_EQ(name(screen), u"見本 一郎"_s);
  EXPECT_TRUE(messages.texts().isEmpty());
}

TEST_F(PatientScreenTest, QuoteInTheWordGivesTheDatabasesText) {
  addNamed({u"見本 一郎"_s, u"見本 二郎"_s});
  screen::Screen& screen = patients();
  screen.trigger(u"Command18"_s);
  screen.setText(u"Combo3"_s, u"O'x"_s);
  screen.trigger(u"Command1"_s);
  const QString label = QString::fromUtf16(screen::kDataControlText);
  EXPECT_TRUE(lastMessage().startsWith(label));
  EXPECT_GT(lastMessage().size(), label.size());
  EXPECT_EQ(name(screen), u"見本 二郎"_s);
}

TEST_F(PatientScreenTest, SearchBySexAndOtherColumns) {
  addPatient({{u"氏名"_s, u"見本 一郎"_s}, {u"性別"_s, u"男"_s}, {u"ふりがな"_s, u"ﾐﾎﾝ ｲﾁﾛｳ"_s}});
  addPatient({{u"氏名"_s, u"架空 花子"_s}, {u"性別"_s, u"女"_s}, {u"ふりがな"_s, u"ｶｸｳ ﾊﾅｺ"_s}});
  screen::Screen& screen = patients();
  screen.setText(u"Combo1"_s, u"フリガナ"_s);
  screen.setText(u"Combo3"_s, u"ハナコ"_s);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(name(screen), u"架空 花子"_s);
}

TEST_F(PatientScreenTest, EnterInTheSearchWordSearches) {
  addNamed({u"見本 一郎"_s, u"架空 二郎"_s});
  screen::Screen& screen = patients();
  screen.setText(u"Combo3"_s, u"架空"_s);
  screen.focusOn(u"Combo3"_s);
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QCoreApplication::sendEvent(screen.focusWidget(), &enter);
  EXPECT_EQ(name(screen), u"架空 二郎"_s);
}

}  // namespace
}  // namespace records
