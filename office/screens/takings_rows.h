#pragma once

#include "frame/core/routes.h"
#include "frame/core/routes_unbuilt.h"
#include "office/screens/day_lists.h"
#include "office/screens/takings_screen.h"
#include "platform/screen/declare.h"
#include "platform/screen/opens.h"
#include "platform/store/tables/visits.h"

namespace office::takings_rows {

using namespace screen;

inline constexpr auto kColumns =
    gridOf(visits::date, visits::name, visits::summary, visits::insurerPays, visits::share, visits::fee,
           visits::receiptDone, visits::isNew, visits::birth);

inline constexpr Row kRows[] = {
    Grid{.name = {u"DBGrid1"},
         .caption = u"集計の一覧表",
         .columns = kColumns,
         .onActivate = call<&TakingsScreen::openPatient>},
    TextField{.name = {u"Label4"},
              .caption = u"治療総数:",
              .bind = Unbound{u"counts the rows on view"},
              .width = 8,
              .readOnly = true},
    TextField{.name = {u"Text2"}, .caption = u"ETC1:", .bind = visits::patientSerial, .readOnly = true},

    Group{.name = {u"FrameDay"}, .caption = u"日付", .columns = 4},
    Combo{.name = {u"Combo1"}, .caption = u"年:", .bind = Unbound{u"the day asked for"}, .width = 6},
    Combo{.name = {u"Combo2"},
          .caption = u"月:",
          .bind = Unbound{u"the day asked for"},
          .items = kMonths,
          .width = 4},
    Combo{.name = {u"Combo3"},
          .caption = u"日:",
          .bind = Unbound{u"the day asked for"},
          .items = kDays,
          .width = 4},
    Command{.name = {u"Command1"}, .caption = u"日付で抽出", .run = run<&TakingsScreen::showDay>},
    TextField{.name = {u"Text1"},
              .caption = u"指定月:",
              .bind = Unbound{u"the month asked for"},
              .width = 16,
              .onEnter = call<&TakingsScreen::showMonth>},
    Command{.name = {u"Command6"}, .caption = u"指定月のみ表示", .run = run<&TakingsScreen::showMonth>},
    EndGroup{},

    Bar{},
    Command{.name = {u"Command4"}, .caption = u"カレンダー表示", .run = run<&TakingsScreen::openCalendar>},
    Command{.name = {u"Command3"}, .caption = u"全般抽出", .run = opens<routes::SearchTakings>},
    Command{.name = {u"Command7"}, .caption = u"並び替え", .run = run<&TakingsScreen::askSort>},
    Command{.name = {u"cmdRefresh"}, .caption = u"全患者表示及び再表示", .run = run<&TakingsScreen::showAll>},
    Command{.name = {u"Command2"}, .caption = u"総合金額の表示", .run = run<&TakingsScreen::showTotals>},
    EndBar{},
    Bar{},
    Command{
        .name = {u"Command8"}, .caption = u"選択した患者のカルテへ", .run = run<&TakingsScreen::openPatient>},
    Command{.name = {u"Command5"}, .caption = u"集計印刷", .run = opens<routes::unbuilt::TakingsMonth>},
    Command{.name = {u"cmdDelete"}, .caption = u"削除", .run = run<&TakingsScreen::removeVisit>},
    Command{.name = {u"cmdClose"}, .caption = u"閉じる", .run = run<&TakingsScreen::finish>},
    EndBar{},
};

inline constexpr ScreenRow kDeclaration = declare({.name = routes::Takings::screen,
                                                   .caption = u"集計",
                                                   .rows = kRows,
                                                   .sources = visits::table,
                                                   .functionKeys = true});

inline constexpr ControlRef kCount = ref(kRows, u"Label4");
inline constexpr ControlRef kSerial = ref(kRows, u"Text2");
inline constexpr DayLists kDay = dayLists(kRows);
inline constexpr ControlRef kMonth = ref(kRows, u"Text1");

}  // namespace office::takings_rows
