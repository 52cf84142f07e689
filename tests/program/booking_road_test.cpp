// The road of a booking: from the main menu to the book, through its views, to the chart of the booked
// person.

#include <QCoreApplication>
#include <QEvent>

#include "frame/core/routes.h"
#include "platform/store/database.h"
#include "tests/program/program_fixture.h"

namespace program {
namespace {

using namespace Qt::Literals::StringLiterals;

class BookingRoad : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    start();
  }
  void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  /// A new booking from the list, stored and closed.
  void book(const QString& name, const QString& time) {
    screen(u"今日の予約"_s).trigger(u"Men_YY"_s);
    fill(u"予約2"_s, u"txtFields(2)"_s, name);
    fill(u"予約2"_s, u"txtFields(6)"_s, time);
    press(u"予約2"_s, u"Command3"_s);
    press(u"予約2"_s, u"cmdUpdate"_s);
    EXPECT_EQ(told(), QStringList(u"更新しました。一旦、閉じるを押してください。"_s));
    press(u"予約2"_s, u"cmdClose"_s);
    settle();
    EXPECT_FALSE(isOpen(u"予約2"_s));
  }
  QStringList listed(const QString& list) {
    const store::RecordSet& rows = screen(list).source().rows();
    QStringList names;
    for (int i = 0; i < rows.recordCount(); ++i) names += rows.valueAt(i, u"予約患者"_s);
    return names;
  }
  QStringList stored(const QString& file, const QString& table, const QString& column) {
    const auto rows = store::RecordSet::open(store::Database::open(path(file)).value(), table);
    QStringList values;
    for (int i = 0; i < rows->recordCount(); ++i) values += rows->valueAt(i, column);
    return values;
  }
};

TEST_F(BookingRoad, FromTheMenuToTheChart) {
  press(u"選択3"_s, u"Command5"_s);
  ASSERT_TRUE(isOpen(u"今日の予約"_s));
  book(u"見本　太郎"_s, u"9:30"_s);
  book(u"例示　花子"_s, u"午後2時"_s);
  EXPECT_EQ(stored(u"予約2000.mdb"_s, u"予約"_s, u"テキスト1"_s),
            QStringList({u"20241105001"_s, u"20241105002"_s}));

  press(u"今日の予約"_s, u"Command1"_s);
  EXPECT_EQ(listed(u"今日の予約"_s), QStringList({u"例示　花子"_s, u"見本　太郎"_s})) << "14 stands before 9";

  press(u"今日の予約"_s, u"Command5"_s);
  goTo(u"予約週間表"_s, u"SSTab1"_s);
  settle();
  EXPECT_EQ(screen(u"予約週間表"_s).text(u"Text1"_s), u"令和6年11月5日火曜日"_s);
  EXPECT_EQ(listed(u"予約週間表"_s).size(), 2);
  m_application->navigator().unload(u"予約週間表"_s);

  press(u"今日の予約"_s, u"cmdRefresh"_s);
  press(u"今日の予約"_s, u"Command4"_s);
  goTo(u"予約カレンダー"_s, u"Calendar1"_s);
  key(Qt::Key_Right);
  EXPECT_EQ(m_voice.lastSaid(), u"令和6年11月6日水曜日"_s);
  key(Qt::Key_Left);
  press(u"予約カレンダー"_s, u"Command1"_s);
  goTo(u"今日の予約"_s, u"DBGrid1"_s);
  settle();
  EXPECT_EQ(listed(u"今日の予約"_s).size(), 2);
  EXPECT_EQ(told(), QStringList());

  // The first of the list is no patient yet: the chart takes the name, with a serial of its own.
  press(u"今日の予約"_s, u"Command8"_s);
  settle();
  ASSERT_TRUE(isOpen(u"治療台帳4"_s));
  EXPECT_EQ(screen(u"治療台帳4"_s).text(u"txtFields(4)"_s), u"例示　花子"_s);
  EXPECT_EQ(screen(u"治療台帳4"_s).text(u"Text2"_s), u"20241105001"_s);
}

// A patient's booking carries the patient's serial, and closing leads back to the chart.
TEST_F(BookingRoad, FromTheChartAndBack) {
  m_application->navigator().show(routes::PatientRegister{routes::PatientRegister::NewPatient{}});
  fill(u"治療台帳4"_s, u"txtFields(1)"_s, u"17"_s);
  fill(u"治療台帳4"_s, u"txtFields(4)"_s, u"見本　太郎"_s);
  answer({true});
  press(u"治療台帳4"_s, u"cmdUpdate"_s);
  told();
  screen(u"治療台帳4"_s).trigger(u"Men_YD"_s);
  ASSERT_TRUE(isOpen(u"予約2"_s));
  press(u"予約2"_s, u"cmdUpdate"_s);
  press(u"予約2"_s, u"cmdClose"_s);
  settle();
  EXPECT_FALSE(isOpen(u"予約2"_s));
  EXPECT_TRUE(isOpen(u"治療台帳4"_s));
  EXPECT_FALSE(isOpen(u"今日の予約"_s));
  EXPECT_EQ(stored(u"予約2000.mdb"_s, u"予約"_s, u"患者NO"_s), QStringList(u"17"_s));
  EXPECT_EQ(stored(u"予約2000.mdb"_s, u"予約"_s, u"テキスト1"_s),
            stored(u"臨床QV2000N.mdb"_s, u"臨床QV"_s, u"テキスト5"_s));

  screen(u"治療台帳4"_s).trigger(u"Men_YK"_s);
  ASSERT_TRUE(isOpen(u"今日の予約"_s));
  press(u"今日の予約"_s, u"cmdClose"_s);
  settle();
  EXPECT_FALSE(isOpen(u"今日の予約"_s));
  EXPECT_TRUE(isOpen(u"治療台帳4"_s));
}

}  // namespace
}  // namespace program
