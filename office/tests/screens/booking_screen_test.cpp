// 予約2: what a new booking begins with, what 登録 makes of it, and the helpers of date and time.

#include <QtWidgets/QtWidgets>

#include "office/tests/screens/booking_fixture.h"

namespace office::test {
namespace {

const QString kStored = u"更新しました。一旦、閉じるを押してください。"_s;

class BookingTest : public BookingFixture {
 protected:
  screen::Screen& fresh(const screen::Request& request = {}) { return open(u"予約2"_s, request); }
};

TEST_F(BookingTest, NewBookingStartsWithTodayAndNow) {
  screen::Screen& form = fresh();
  EXPECT_EQ(form.windowTitle(), u"予約"_s);
  EXPECT_EQ(dayOf(form), QStringList({u"2024"_s, u"6"_s, u"15"_s})) << "a year that the list lacks";
  EXPECT_EQ(form.text(u"Combo4"_s), u"土曜日"_s);
  EXPECT_EQ(form.text(u"txtFields(6)"_s), u"9 時 5 分"_s);
  EXPECT_EQ(form.text(u"txtFields(2)"_s), QString());
  EXPECT_EQ(form.text(u"txtFields(7)"_s), QString());
  EXPECT_EQ(form.focused(), u"txtFields(2)"_s);
  EXPECT_EQ(stored(u"ID"_s).size(), 0);
}

TEST_F(BookingTest, TakesThePatientHandedOver) {
  screen::Screen& form = fresh(newBookingOf(patient(u"見本　太郎"_s, u"17"_s, u"20240101003"_s)));
  EXPECT_EQ(form.text(u"txtFields(1)"_s), u"17"_s);
  EXPECT_EQ(form.text(u"txtFields(2)"_s), u"見本　太郎"_s);
  EXPECT_EQ(form.focused(), u"Combo1"_s);
  form.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"患者NO"_s), QStringList(u"17"_s));
  EXPECT_EQ(stored(u"テキスト1"_s), QStringList(u"20240101003"_s)) << "the patient's own serial";
}

TEST_F(BookingTest, ListsHaveTheirRanges) {
  screen::Screen& form = fresh();
  const auto ends = [&](const QString& list) {
    const QStringList items = form.items(list);
    return QStringList{items.first(), items.last(), QString::number(items.size())};
  };
  EXPECT_EQ(ends(u"Combo1"_s), QStringList({u"2000"_s, u"2020"_s, u"21"_s}));
  EXPECT_EQ(ends(u"Combo2"_s), QStringList({u"1"_s, u"12"_s, u"12"_s}));
  EXPECT_EQ(ends(u"Combo3"_s), QStringList({u"1"_s, u"31"_s, u"31"_s}));
  EXPECT_EQ(form.items(u"Combo4"_s), QStringList({u"月曜日"_s, u"火曜日"_s, u"水曜日"_s, u"木曜日"_s,
                                                  u"金曜日"_s, u"土曜日"_s, u"日曜日"_s}));
}

TEST_F(BookingTest, StoringFillsStampDateWeekdayAndSerial) {
  addPatient({{u"テキスト5"_s, u"20240615004"_s}});
  screen::Screen& form = fresh();
  form.setText(u"txtFields(2)"_s, u"例示　花子"_s);
  form.setText(u"txtFields(8)"_s, u"初めて"_s);
  type(form, u"2024"_s, u"6"_s, u"18"_s);
  form.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(takeMessages(), QStringList(kStored));
  const std::pair<QString, QString> columns[] = {{u"予約患者"_s, u"例示　花子"_s},
                                                 {u"予約年"_s, u"2024"_s},
                                                 {u"予約月"_s, u"6"_s},
                                                 {u"予約日"_s, u"18"_s},
                                                 {u"予約曜日"_s, u"火曜日"_s},
                                                 {u"予約時間"_s, u"9 時 5 分"_s},
                                                 {u"メモ1"_s, u"初めて"_s},
                                                 {u"日時1"_s, u"2024/6/18"_s},
                                                 {u"登録日時"_s, u"令和6年6月15日 9:5"_s},
                                                 {u"テキスト1"_s, u"20240615005"_s}};
  for (const auto& [column, value] : columns)
    EXPECT_EQ(stored(column), QStringList(value)) << column.toStdString();
  EXPECT_EQ(form.source().rows().absolutePosition(), 0) << "the row just stored is on view";
}

TEST_F(BookingTest, SecondSerialOfADayFollowsTheFirst) {
  addBooking({{u"テキスト1"_s, u"20240614009"_s}});
  screen::Screen& form = fresh();
  form.setText(u"txtFields(2)"_s, u"見本"_s);
  form.trigger(u"cmdUpdate"_s);
  form.trigger(u"cmdAdd"_s);
  form.setText(u"txtFields(2)"_s, u"例示"_s);
  form.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"テキスト1"_s), QStringList({u"20240614009"_s, u"20240615001"_s, u"20240615002"_s}));
}

TEST_F(BookingTest, SerialIsReadFromTheFileAtTheTimeOfStoring) {
  screen::Screen& form = fresh();
  addPatient({{u"テキスト5"_s, u"20240615011"_s}});  // another computer, meanwhile
  form.setText(u"txtFields(2)"_s, u"見本"_s);
  form.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"テキスト1"_s), QStringList(u"20240615012"_s));
}

TEST_F(BookingTest, ImpossibleDateRollsOverInItsShadowOnly) {
  screen::Screen& form = fresh();
  form.setText(u"txtFields(2)"_s, u"見本"_s);
  type(form, u"2024"_s, u"02"_s, u"３１"_s);
  form.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"日時1"_s), QStringList(u"2024/3/2"_s));
  EXPECT_EQ(stored(u"予約曜日"_s), QStringList(u"土曜日"_s));
  EXPECT_EQ(stored(u"予約月"_s), QStringList(u"2"_s));
  EXPECT_EQ(stored(u"予約日"_s), QStringList(u"31"_s));
}

TEST_F(BookingTest, TwoBookingsAtOneTimeAreTwoRows) {
  for (const QString& name : {u"見本"_s, u"例示"_s}) {
    screen::Screen& form = fresh();
    form.setText(u"txtFields(2)"_s, name);
    form.trigger(u"cmdUpdate"_s);
  }
  EXPECT_EQ(stored(u"予約時間"_s), QStringList({u"9 時 5 分"_s, u"9 時 5 分"_s}));
  EXPECT_EQ(stored(u"予約患者"_s), QStringList({u"見本"_s, u"例示"_s}));
}

TEST_F(BookingTest, NoDateInTheListsStoresNothing) {
  screen::Screen& form = fresh();
  form.setText(u"txtFields(2)"_s, u"見本"_s);
  type(form, u"令和6"_s, u"6"_s, u"15"_s);
  form.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(takeMessages(), QStringList(kNoDate));
  EXPECT_EQ(stored(u"ID"_s).size(), 0);
  EXPECT_EQ(form.text(u"txtFields(2)"_s), u"見本"_s);
  EXPECT_EQ(form.text(u"txtFields(7)"_s), QString()) << "not stamped as stored";
}

TEST_F(BookingTest, MissingPatientFileIsReportedAndNothingIsStored) {
  ASSERT_TRUE(QFile::remove(path(kPatients)));
  screen::Screen& form = fresh();
  form.setText(u"txtFields(2)"_s, u"見本"_s);
  form.trigger(u"cmdUpdate"_s);
  const QStringList texts = takeMessages();
  ASSERT_EQ(texts.size(), 1);
  EXPECT_TRUE(texts[0].startsWith(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :"_s)) << texts[0].toStdString();
  EXPECT_TRUE(texts[0].contains(kPatients));
  EXPECT_EQ(stored(u"ID"_s).size(), 0);
  EXPECT_EQ(form.text(u"txtFields(2)"_s), u"見本"_s);
  EXPECT_EQ(form.text(u"txtFields(7)"_s), QString());
}

TEST_F(BookingTest, MissingBookIsReportedByNameAndTypedTextStays) {
  const QString away = path(kBookings) + u".away"_s;
  ASSERT_TRUE(QFile::rename(path(kBookings), away));
  screen::Screen& form = fresh();
  EXPECT_TRUE(takeMessages().join(u' ').contains(kBookings));
  type(form, u"2024"_s, u"6"_s, u"15"_s);
  form.setText(u"txtFields(2)"_s, u"見本"_s);
  ASSERT_TRUE(QFile::rename(away, path(kBookings)));
  book(u"2024/6/1"_s, u"9 時 0 分"_s, u"架空"_s);
  form.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(takeMessages(), QStringList(kStored));
  EXPECT_EQ(stored(u"予約患者"_s), QStringList({u"架空"_s, u"見本"_s})) << "a row of its own";
}

TEST_F(BookingTest, RowChangedElsewhereIsRefusedAndTypedTextStays) {
  book(u"2024/6/15"_s, u"9 時 0 分"_s, u"見本"_s);
  screen::Screen& form = fresh(storedBooking(1));
  form.setText(u"txtFields(6)"_s, u"14 時 0 分"_s);
  elsewhere("UPDATE \"予約\" SET \"メモ1\"='電話あり'");
  form.trigger(u"cmdUpdate"_s);
  const QStringList texts = takeMessages();
  ASSERT_EQ(texts.size(), 1);
  EXPECT_TRUE(texts[0].startsWith(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :"_s)) << texts[0].toStdString();
  EXPECT_EQ(form.text(u"txtFields(6)"_s), u"14 時 0 分"_s);
  EXPECT_EQ(form.text(u"txtFields(7)"_s), u"令和6年6月1日 9:0"_s) << "not stamped as stored";
  EXPECT_EQ(stored(u"予約時間"_s), QStringList(u"9 時 0 分"_s));
  EXPECT_EQ(stored(u"メモ1"_s), QStringList(u"電話あり"_s));
}

TEST_F(BookingTest, ShowsTheBookingAskedFor) {
  book(u"2024/6/15"_s, u"9 時 0 分"_s, u"見本"_s);
  book(u"2031/1/2"_s, u"朝"_s, u"例示"_s);
  screen::Screen& form = fresh(storedBooking(2));
  EXPECT_EQ(dayOf(form), QStringList({u"2031"_s, u"1"_s, u"2"_s}));
  EXPECT_EQ(form.text(u"txtFields(2)"_s), u"例示"_s);
  EXPECT_EQ(form.text(u"txtFields(6)"_s), u"朝"_s);
  EXPECT_EQ(takeMessages(), QStringList());
}

TEST_F(BookingTest, SaysWhatCameOnView) {
  book(u"2024/6/15"_s, u"9 時 0 分"_s, u"見本"_s);
  book(u"2024/2/31"_s, u"朝"_s, u"例示"_s);
  screen::Screen& form = fresh();
  EXPECT_EQ(channel.said().value(0),
            spoken({u"予約"_s, u"新規予約"_s, u"2024年6月15日"_s, u"土曜日"_s, u"9 時 5 分"_s}));
  form.focusOn(u"Command5"_s);
  channel.clear();
  fresh(storedBooking(2));
  EXPECT_EQ(channel.heardWhole(), QStringList({spoken({u"予約"_s, u"2024年2月31日"_s, u"朝"_s, u"例示"_s}),
                                               spoken({u"予約NO:"_s, u""_s})}))
      << channel.said().join(u'\n').toStdString();
  EXPECT_EQ(form.focused(), u"txtFields(0)"_s);
}

TEST_F(BookingTest, HiddenFieldsHaveTheDayToo) {
  const QStringList hidden{u"txtFields(3)"_s, u"txtFields(4)"_s, u"txtFields(5)"_s};
  const auto shown = [&](const screen::Screen& form) {
    QStringList texts;
    for (const QString& field : hidden) texts += form.text(field);
    return texts;
  };
  screen::Screen& form = fresh();
  EXPECT_EQ(shown(form), QStringList({u"2024"_s, u"6"_s, u"15"_s}));
  form.setText(u"txtFields(2)"_s, u"見本"_s);
  type(form, u"2025"_s, u"02"_s, u"３１"_s);
  form.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(shown(form), QStringList({u"2025"_s, u"2"_s, u"31"_s}));
  type(form, u"2025"_s, u"7"_s, u"8"_s);
  form.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"予約月"_s), QStringList(u"7"_s))
      << "the field of the same column does not undo the list";
  fresh(storedBooking(1));
  EXPECT_EQ(shown(form), QStringList({u"2025"_s, u"7"_s, u"8"_s}));
  for (const QString& field : hidden) EXPECT_FALSE(form.isControlShown(field)) << field.toStdString();
}

TEST_F(BookingTest, ABookingDeletedMeanwhileIsNotFound) {
  fresh(storedBooking(7));
  EXPECT_EQ(messages.titles(), QStringList(u"Not found"_s));
  EXPECT_EQ(takeMessages(), QStringList(kNotFound));
}

// ---- Date and time

TEST_F(BookingTest, TodayAndNowAreFilledInAndSaid) {
  book(u"2020/1/2"_s, u"8 時 0 分"_s, u"見本"_s);
  screen::Screen& form = fresh(storedBooking(1));
  form.trigger(u"Command1"_s);
  EXPECT_EQ(dayOf(form), QStringList({u"2024"_s, u"6"_s, u"15"_s}));
  EXPECT_EQ(form.text(u"Combo4"_s), u"土曜日"_s);
  EXPECT_EQ(channel.lastSaid(), u"令和6年6月15日土曜日"_s);
  form.trigger(u"Command2"_s);
  EXPECT_EQ(form.text(u"txtFields(6)"_s), u"9 時 5 分"_s);
  EXPECT_EQ(channel.lastSaid(), spoken({u"予約時間:"_s, u"9 時 5 分"_s}));
}

TEST_F(BookingTest, WeekdayIsShownAndSaid) {
  screen::Screen& form = fresh();
  type(form, u"2024"_s, u"2"_s, u"30"_s);
  form.trigger(u"Command4"_s);
  EXPECT_EQ(form.text(u"Combo4"_s), u"金曜日"_s);  // 1 March 2024
  EXPECT_EQ(channel.lastSaid(), u"令和6年3月1日金曜日"_s);
  EXPECT_EQ(form.text(u"Combo3"_s), u"30"_s);
  type(form, u""_s, u"2"_s, u"30"_s);
  form.trigger(u"Command4"_s);
  EXPECT_EQ(takeMessages(), QStringList(kNoDate));
}

TEST_F(BookingTest, TimeAndStampAreRewritten) {
  screen::Screen& form = fresh();
  form.setText(u"txtFields(6)"_s, u"午後2時"_s);
  form.setText(u"txtFields(7)"_s, u"2024/6/5 9:05"_s);
  form.trigger(u"Command3"_s);
  EXPECT_EQ(form.text(u"txtFields(6)"_s), u"14 時 0 分"_s);
  EXPECT_EQ(form.text(u"txtFields(7)"_s), u"令和6年6月5日 9:5"_s);
  EXPECT_EQ(channel.lastSaid(),
            spoken({u"予約時間:"_s, u"14 時 0 分"_s, u"登録日時:"_s, u"令和6年6月5日 9:5"_s}));
}

TEST_F(BookingTest, BlankTimesStayBlank) {
  screen::Screen& form = fresh();
  form.setText(u"txtFields(6)"_s, u""_s);
  form.trigger(u"Command3"_s);
  EXPECT_EQ(form.text(u"txtFields(6)"_s), QString());
  EXPECT_EQ(form.text(u"txtFields(7)"_s), QString());
  EXPECT_EQ(takeMessages(), QStringList());
}

TEST_F(BookingTest, UnreadableTimeIsReportedAndStays) {
  screen::Screen& form = fresh();
  form.setText(u"txtFields(6)"_s, u"朝いちばん"_s);
  form.setText(u"txtFields(7)"_s, u"2024/6/5 9:05"_s);
  form.trigger(u"Command3"_s);
  EXPECT_EQ(takeMessages(),
            QStringList(u"予約時間を時刻として読めません。9:30 または 14時30分 のように入力して下さい。"_s));
  EXPECT_EQ(form.text(u"txtFields(6)"_s), u"朝いちばん"_s);
  EXPECT_EQ(form.text(u"txtFields(7)"_s), u"2024/6/5 9:05"_s) << "all or nothing";
  EXPECT_EQ(form.focused(), u"txtFields(6)"_s);
  form.setText(u"txtFields(6)"_s, u"9時"_s);
  form.setText(u"txtFields(7)"_s, u"きのう"_s);
  form.trigger(u"Command3"_s);
  EXPECT_EQ(takeMessages().size(), 1);
  EXPECT_EQ(form.text(u"txtFields(6)"_s), u"9時"_s);
  EXPECT_EQ(form.focused(), u"txtFields(7)"_s);
}

TEST_F(BookingTest, IsNamedSpokenAndReachable) {
  screen::Screen& form = fresh();
  screen::testing::ScreenProbe probe(form, channel);
  probe.open();
  EXPECT_EQ(probe.faults(), QStringList());
  EXPECT_EQ(probe.unknownColumns({kBookings}), QStringList());
  for (const QString& hidden : {u"Text1"_s, u"Text2"_s, u"Text3"_s})
    EXPECT_FALSE(form.isControlShown(hidden)) << hidden.toStdString();
}

TEST_F(BookingTest, ANameHasFiftyCharacters) {
  screen::Screen& form = fresh();
  screen::testing::ScreenProbe probe(form, channel);
  probe.open();
  form.focusOn(u"txtFields(2)"_s);
  probe.type(QString(51, u'あ'));
  EXPECT_EQ(form.text(u"txtFields(2)"_s), QString(50, u'あ'));
}

}  // namespace
}  // namespace office::test
