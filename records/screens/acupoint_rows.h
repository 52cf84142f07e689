#pragma once

#include <array>

#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/screen/list_screen.h"
#include "platform/store/tables/dictionaries.h"
#include "records/screens/acupoint_screen.h"

// The rows of frm経穴, and its controls that the handlers use.

namespace records::acupoint_rows {

using namespace screen;

/// The columns that a search may look in, in the order of their list.
inline constexpr std::array<store::Column, 11> kKeys = {
    acupoints::name,        acupoints::kana,         acupoints::location, acupoints::muscle,
    acupoints::motorNerve,  acupoints::sensoryNerve, acupoints::vessel,   acupoints::needling,
    acupoints::indications, acupoints::region,       acupoints::meridian};
inline constexpr auto kKeyNames = namesOf(kKeys);

inline constexpr int kMaxNameLength = 10;

// Two columns before the name: the opening sentence sends the user two columns to the right.
inline constexpr GridColumn kListed[] = {
    {acupoints::meridian, u"経絡コード"}, {acupoints::region, u"部位"},
    {acupoints::name, u"経穴名漢字"},     {acupoints::kana, u"経穴名かな"},
    {acupoints::location, u"取穴位置"},   {acupoints::muscle, u"筋肉"},
    {acupoints::motorNerve, u"運動神経"}, {acupoints::sensoryNerve, u"知覚神経"},
    {acupoints::vessel, u"血管"},         {acupoints::needling, u"刺入方法"},
    {acupoints::indications, u"主適応"},
};

consteval TextField field(int index, const char16_t* caption, store::Column column, int width = 30) {
  return TextField{.name = {u"txtFields", index}, .caption = caption, .bind = column, .width = width};
}

consteval TextField name() {
  TextField row = field(0, u"経穴名漢字:", acupoints::name, kMaxNameLength);
  row.limit = kMaxNameLength;
  return row;
}

inline constexpr Row kRows[] = {
    Note{.name = {u"Label1"},
         .caption = u"まず、→を２回押し、その後↓↑でつぼの名前を呼び出します。",
         .spoken = true},
    Grid{.name = {u"DBGrid1"}, .caption = u"つぼの一覧", .columns = kListed},

    Group{.name = {u"Frame1"}, .caption = u"検索", .columns = 3},
    Combo{.name = {u"Combo1"},
          .caption = u"検索項目:",
          .bind = Unbound{u"the column to search"},
          .items = kKeyNames},
    TextField{.name = {u"Text1"},
              .caption = u"検索文字:",
              .bind = Unbound{u"the text to search"},
              .onEnter = call<&AcupointScreen::search>},
    Command{.name = {u"Command2"}, .caption = u"検索", .run = run<&AcupointScreen::search>},
    EndGroup{},

    Group{.name = {u"Frame2"}, .caption = u"経穴", .columns = 3},
    name(),
    field(1, u"経穴名かな:", acupoints::kana),
    field(9, u"部位:", acupoints::region),
    field(2, u"取穴位置:", acupoints::location, 60),
    field(3, u"筋肉:", acupoints::muscle),
    field(4, u"運動神経:", acupoints::motorNerve),
    field(5, u"知覚神経:", acupoints::sensoryNerve),
    field(6, u"血管:", acupoints::vessel),
    field(7, u"刺入方法:", acupoints::needling),
    field(8, u"主適応:", acupoints::indications),
    Check{.name = {u"Check1"}, .caption = u"禁鍼:", .bind = acupoints::noNeedle},
    Check{.name = {u"Check2"}, .caption = u"禁灸:", .bind = acupoints::noMoxa},
    EndGroup{},

    Bar{},
    Command{.name = {u"cmdAdd"}, .caption = u"追加", .run = run<&AcupointScreen::add>},
    Command{.name = {u"cmdDelete"}, .caption = u"削除", .run = run<&AcupointScreen::removeRow>},
    Command{.name = {u"cmdUpdate"}, .caption = u"更新", .run = run<&AcupointScreen::storeRow>},
    Command{.name = {u"Command1"},
            .caption = u"クリップボードへコピー",
            .run = run<&AcupointScreen::copy>,
            .tip = u"経穴名漢字をクリップボードにコピーします"},
    Command{.name = {u"cmdClose"}, .caption = u"閉じる", .run = run<&AcupointScreen::finish>},
    EndBar{},
};

inline constexpr ScreenRow kDeclaration = declare({.name = routes::Acupoints::screen,
                                                   .caption = u"経穴",
                                                   .rows = kRows,
                                                   .sources = acupoints::table,
                                                   .functionKeys = true});

inline constexpr ControlRef kKey = ref(kRows, u"Combo1");
inline constexpr ControlRef kWord = ref(kRows, u"Text1");
inline constexpr ControlRef kName = ref(kRows, u"txtFields", 0);
inline constexpr ControlRef kKana = ref(kRows, u"txtFields", 1);

}  // namespace records::acupoint_rows
