#include <QComboBox>
#include <QKeyEvent>

#include "records/tests/screens/patient_screen_fixture.h"

// Dates, age and sex on the patient screen.

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;
using test::PatientScreenTest;

struct AgeCase {
  QString birth, age;
};
class PatientAgeTest : public PatientScreenTest, public testing::WithParamInterface<AgeCase> {};

TEST_P(PatientAgeTest, IsComputedAtStore) {
  addPatient({{u"氏名"_s, u"見本"_s}, {u"年齢"_s, u"7"_s}});
  screen::Screen& screen = patients();
  screen.setText(u"txtF6"_s, GetParam().birth);
  answer({true});
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(screen.text(u"txtFields(7)"_s), GetParam().age) << GetParam().birth.toStdString();
}

// Today is 15 June 2024; a blank or unreadable birth date leaves the age as it was.
INSTANTIATE_TEST_SUITE_P(Rows, PatientAgeTest,
                         testing::Values(AgeCase{u"1950/6/15"_s, u"74"_s}, AgeCase{u"1950/7/20"_s, u"73"_s},
                                         AgeCase{u"昭和28年3月5日"_s, u"71"_s}, AgeCase{u""_s, u"7"_s},
                                         AgeCase{u"いつか"_s, u"7"_s}));

TEST_F(PatientScreenTest, EnterInTheBirthDateComputesTheAge) {
  addNamed({u"見本"_s});
  screen::Screen& screen = patients();
  screen.setText(u"txtF6"_s, u"2000/1/1"_s);
  screen.focusOn(u"txtF6"_s);
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QCoreApplication::sendEvent(screen.focusWidget(), &enter);
  EXPECT_EQ(screen.text(u"txtFields(7)"_s), u"24"_s);
  EXPECT_EQ(channel.lastSaid(), u"年齢:"_s + QChar(254) + u"24"_s);
}

TEST_F(PatientScreenTest, BothDatesChangeNotationTogether) {
  addPatient({{u"生年月日"_s, u"昭和28年3月5日"_s}, {u"初診日"_s, u"令和6年4月1日"_s}});
  screen::Screen& screen = patients();
  screen.trigger(u"Command3"_s);
  EXPECT_EQ(screen.text(u"txtF6"_s), u"1953/3/5"_s);
  EXPECT_EQ(screen.text(u"txtF24"_s), u"2024/4/1"_s);
  EXPECT_EQ(screen.text(u"txtFields(7)"_s), u"71"_s);
  screen.trigger(u"Command3"_s);
  EXPECT_EQ(screen.text(u"txtF6"_s), u"1953/3/5"_s);
  screen.trigger(u"Command9"_s);
  EXPECT_EQ(screen.text(u"txtF6"_s), u"昭和28年3月5日"_s);
  EXPECT_EQ(screen.text(u"txtF24"_s), u"令和6年4月1日"_s);
}

TEST_F(PatientScreenTest, TodayFillsABlankFirstVisitOnly) {
  addPatient({{u"氏名"_s, u"見本"_s}});
  screen::Screen& screen = patients();
  screen.trigger(u"Command8"_s);
  EXPECT_EQ(screen.text(u"txtF24"_s), u"令和6年6月15日"_s);
  clock.set(QDate(2024, 6, 20));
  screen.trigger(u"Command8"_s);
  EXPECT_EQ(screen.text(u"txtF24"_s), u"令和6年6月15日"_s);
  screen.trigger(u"Men_VF8"_s);
  EXPECT_EQ(desktop.copiedText(), u"令和6年6月20日"_s);
}

TEST_F(PatientScreenTest, ChosenSexGoesIntoTheField) {
  addNamed({u"見本"_s});
  screen::Screen& screen = patients();
  EXPECT_EQ(screen.items(u"Combo2"_s), (QStringList{u"男"_s, u"女"_s}));
  auto* combo = screen.findChild<QComboBox*>(u"Combo2"_s);
  ASSERT_NE(combo, nullptr);
  combo->setCurrentIndex(1);
  EXPECT_EQ(screen.text(u"txtFields(5)"_s), u"女"_s);
}

}  // namespace
}  // namespace records
