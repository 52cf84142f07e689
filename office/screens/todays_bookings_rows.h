#pragma once

#include "frame/core/routes.h"
#include "office/screens/booking_rows.h"
#include "office/screens/todays_bookings_screen.h"
#include "platform/screen/declare.h"
#include "platform/screen/opens.h"
#include "platform/store/tables/bookings.h"

namespace office::todays_rows {

using namespace screen;

inline constexpr char16_t kMenu[] = u"メニュー(&M)";

inline constexpr ColumnChoice kSearched[] = {
    bookings::patientName,   bookings::time,
    bookings::month,         bookings::day,
    bookings::year,          bookings::weekday,
    bookings::patientNumber, ColumnChoice::missing(u"予約日時"),  // kept: the database refuses it
    bookings::number,        bookings::memo};
inline constexpr auto kSearchedNames = captionsOf(kSearched);

inline constexpr Handler kShowDay = call<&TodaysBookingsScreen::showDay>;

inline constexpr Row kRows[] = {
    Grid{.name = {u"DBGrid1"},
         .caption = u"予約の一覧",
         .columns = kBookingColumns,
         .onActivate = call<&TodaysBookingsScreen::editBooking>},
    Group{.name = {u"Frame1"}, .caption = u"予約日の指定", .columns = 6},
    dateList(u"Combo1", u"年:", Unbound{u"the day to look for"}, kListYears.items, kShowDay),
    dateList(u"Combo2", u"月:", Unbound{u"the day to look for"}, kMonths, kShowDay),
    dateList(u"Combo3", u"日:", Unbound{u"the day to look for"}, kDays, kShowDay),
    TextField{.name = {u"Text1"},
              .caption = u"曜日:",
              .bind = Unbound{u"weekday of the day to look for"},
              .width = 8,
              .readOnly = true},
    Command{.name = {u"Command1"},
            .caption = u"上記の指定日の予約の表示",
            .run = run<&TodaysBookingsScreen::showDay>},
    Command{.name = {u"Command2"}, .caption = u"曜日の表示", .run = run<&TodaysBookingsScreen::showWeekday>},
    EndGroup{},
    Group{.name = {u"Frame2"}, .caption = u"抽出", .columns = 3},
    Combo{.name = {u"Combo4"},
          .caption = u"抽出する項目:",
          .bind = Unbound{u"the column to search"},
          .items = kSearchedNames,
          .say = u"検索の文字選択と文字入力"},
    TextField{.name = {u"txtFields", 0},
              .caption = u"抽出する文字:",
              .bind = Unbound{u"the text to search"},
              .onEnter = call<&TodaysBookingsScreen::extract>},
    Command{.name = {u"Command3"}, .caption = u"抽出", .run = run<&TodaysBookingsScreen::extract>},
    EndGroup{},
    Bar{},
    Note{.name = {u"Data1"}, .caption = u"ﾚｺｰﾄﾞ: "},
    Command{
        .name = {u"Command4"}, .caption = u"カレンダー表示", .run = run<&TodaysBookingsScreen::openCalendar>},
    Command{.name = {u"Command5"},
            .caption = u"週間表",
            .run = run<&TodaysBookingsScreen::openWeek>,
            .menu = u"Men_YI",
            .under = kMenu},
    Command{.name = {u"Command8"},
            .caption = u"治療台帳へ代入",
            .run = run<&BookingList::handOver>,
            .menu = u"Men_YD",
            .under = kMenu,
            .menuCaption = u"表示患者を治療台帳へ代入",
            .tip = kHandOverTip},
    Command{.name = {u"cmdRefresh"},
            .caption = u"全表示に戻す",
            .run = run<&TodaysBookingsScreen::showAll>,
            .menu = u"Men_YR",
            .under = kMenu},
    Command{.name = {u"cmdDelete"},
            .caption = u"削除",
            .run = run<&TodaysBookingsScreen::removeBooking>,
            .menu = u"Men_YX",
            .under = kMenu},
    Command{.name = {u"cmdClose"},
            .caption = u"閉じる",
            .run = run<&BookingList::finish>,
            .menu = u"Men_YEnd",
            .under = kMenu,
            .menuCaption = u"今日の予約の終了（閉じる）"},
    EndBar{},

    // Kept: the buttons of these two captions act at once, their entries ask first.
    Entry{.name = {u"Men_YS"},
          .under = kMenu,
          .caption = u"予約日を指定して検索",
          .run = opens<routes::PickDayOfBookings>},
    Entry{.name = {u"Men_YC"},
          .under = kMenu,
          .caption = u"カレンダー表示",
          .run = run<&TodaysBookingsScreen::askCalendar>},
    Entry{.name = {u"Men_YY"},
          .under = kMenu,
          .caption = u"新規予約",
          .run = run<&TodaysBookingsScreen::newBooking>,
          .key = u"Ctrl+N"},
    Entry{.name = {u"Men_YE"},
          .under = kMenu,
          .caption = u"表示患者の予約編集",
          .run = run<&TodaysBookingsScreen::editBooking>},
};

inline constexpr ScreenRow kDeclaration = declare({.name = routes::TodaysBookings::screen,
                                                   .caption = u"今日の予約",
                                                   .rows = kRows,
                                                   .sources = bookings::table,
                                                   .functionKeys = true});

inline constexpr ControlRef kList = ref(kRows, u"DBGrid1");
inline constexpr DayLists kDay = dayLists(kRows);
inline constexpr ControlRef kWeekday = ref(kRows, u"Text1");
inline constexpr ControlRef kColumn = ref(kRows, u"Combo4");
inline constexpr ControlRef kWord = ref(kRows, u"txtFields", 0);
inline constexpr ControlRef kPosition = ref(kRows, u"Data1");
inline constexpr ControlRef kCalendarButton = ref(kRows, u"Command4");
inline constexpr ControlRef kCalendarEntry = ref(kRows, u"Men_YC");

}  // namespace office::todays_rows
