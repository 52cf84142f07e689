#pragma once

#include "frame/core/routes.h"
#include "office/screens/booking_rows.h"
#include "office/screens/booking_screen.h"
#include "platform/screen/declare.h"
#include "platform/store/tables/bookings.h"

namespace office::booking_form {

using namespace screen;

inline constexpr int kNameLimit = 50;
inline constexpr const char16_t* kWeekdays[] = {u"月曜日", u"火曜日", u"水曜日", u"木曜日",
                                                u"金曜日", u"土曜日", u"日曜日"};

consteval TextField field(int index, const char16_t* caption, store::Column column, int width) {
  return TextField{.name = {u"txtFields", index}, .caption = caption, .bind = column, .width = width};
}

consteval TextField hidden(ControlName name, const char16_t* caption, store::Column column) {
  return TextField{.name = name, .caption = caption, .bind = column, .readOnly = true};
}

consteval TextField patientName() {
  TextField row = field(2, u"予約患者:", bookings::patientName, 24);
  row.limit = kNameLimit;
  return row;
}

consteval TextField memo() {
  TextField row = field(8, u"メモ1:", bookings::memo, 40);
  row.lines = 3;
  return row;
}

// The lists of year, month and day are bound to the columns, digits may be typed too.
inline constexpr Row kRows[] = {
    Group{.name = {u"Frame1"}, .caption = u"患者", .columns = 3},
    field(0, u"予約NO:", bookings::number, 10),
    field(1, u"患者ID:", bookings::patientNumber, 10),
    patientName(),
    EndGroup{},
    Group{.name = {u"Frame2"}, .caption = u"予約の日", .columns = 4},
    dateList(u"Combo1", u"予約年:", bookings::year, kBookYears.items),
    dateList(u"Combo2", u"予約月:", bookings::month, kMonths),
    dateList(u"Combo3", u"予約日:", bookings::day, kDays),
    Combo{.name = {u"Combo4"},
          .caption = u"予約曜日:",
          .bind = bookings::weekday,
          .items = kWeekdays,
          .width = 6},
    EndGroup{},
    Group{.name = {u"Frame3"}, .caption = u"予約の時間", .columns = 2},
    field(6, u"予約時間:", bookings::time, 14),
    field(7, u"登録日時:", bookings::stamp, 22),
    EndGroup{},
    memo(),
    hidden({u"Text1"}, u"ID:", bookings::id),
    // The columns of the day once more.
    hidden({u"txtFields", 3}, u"予約年の値:", bookings::year),
    hidden({u"txtFields", 4}, u"予約月の値:", bookings::month),
    hidden({u"txtFields", 5}, u"予約日の値:", bookings::day),
    hidden({u"Text2"}, u"日時1:", bookings::dateShadow),
    hidden({u"Text3"}, u"テキスト1:", bookings::patientSerial),
    Bar{},
    Command{.name = {u"Command1"}, .caption = u"今日の日付", .run = run<&BookingScreen::fillToday>},
    Command{.name = {u"Command2"}, .caption = u"今の時間", .run = run<&BookingScreen::fillNow>},
    Command{.name = {u"Command3"}, .caption = u"時刻変換", .run = run<&BookingScreen::rewriteTimes>},
    Command{.name = {u"Command4"}, .caption = u"曜日の表示", .run = run<&BookingScreen::showWeekday>},
    Command{.name = {u"Command5"}, .caption = u"一覧へ", .run = run<&BookingScreen::openList>},
    EndBar{},
    Bar{},
    Command{.name = {u"cmdAdd"}, .caption = u"新規追加", .run = run<&BookingScreen::addBooking>},
    Command{.name = {u"cmdUpdate"}, .caption = u"登録", .run = run<&BookingScreen::storeRow>},
    Command{.name = {u"cmdDelete"}, .caption = u"中止", .run = run<&RecordScreen::removeRow>},
    Command{.name = {u"cmdClose"}, .caption = u"閉じる", .run = run<&BookingScreen::finish>},
    EndBar{},
};

inline constexpr ScreenRow kDeclaration = declare({.name = routes::Booking::screen,
                                                   .caption = u"予約",
                                                   .rows = kRows,
                                                   .sources = bookings::table,
                                                   .functionKeys = true});

inline constexpr ControlRef kNumber = ref(kRows, u"txtFields", 0);
inline constexpr ControlRef kPatientNumber = ref(kRows, u"txtFields", 1);
inline constexpr ControlRef kName = ref(kRows, u"txtFields", 2);
inline constexpr ControlRef kTime = ref(kRows, u"txtFields", 6);
inline constexpr ControlRef kStamp = ref(kRows, u"txtFields", 7);
inline constexpr ControlRef kMemo = ref(kRows, u"txtFields", 8);
inline constexpr DayLists kDay = dayLists(kRows);
inline constexpr ControlRef kWeekday = ref(kRows, u"Combo4");
inline constexpr ControlRef kId = ref(kRows, u"Text1");
inline constexpr ControlRef kShadow = ref(kRows, u"Text2");
inline constexpr ControlRef kSerial = ref(kRows, u"Text3");

}  // namespace office::booking_form
