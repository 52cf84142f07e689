#include "records/screens/acupoint_rows.h"

#include "records/screens/acupoint_screen.h"

namespace records {

using namespace screen;

namespace {

constexpr int kLongestName = 10;

// Two columns before the name: the opening sentence sends the user two columns to the right.
constexpr GridColumn kListed[] = {
    {u"経絡コード", u"経絡コード"}, {u"部位", u"部位"},         {u"経穴名漢字", u"経穴名漢字"},
    {u"経穴名かな", u"経穴名かな"}, {u"取穴位置", u"取穴位置"}, {u"筋肉", u"筋肉"},
    {u"運動神経", u"運動神経"},     {u"知覚神経", u"知覚神経"}, {u"血管", u"血管"},
    {u"刺入方法", u"刺入方法"},     {u"主適応", u"主適応"},
};

consteval TextField field(int index, const char16_t* caption, const char16_t* column, int width = 30) {
  return TextField{.name = {u"txtFields", index}, .caption = caption, .bind = Column{column}, .width = width};
}

consteval TextField name() {
  TextField row = field(0, u"経穴名漢字:", u"経穴名漢字", kLongestName);
  row.limit = kLongestName;
  return row;
}

constexpr Row kRows[] = {
    Note{.name = {u"Label1"},
         .caption = u"まず、→を２回押し、その後↓↑でつぼの名前を呼び出します。",
         .spoken = true},
    Grid{.name = {u"DBGrid1"}, .caption = u"つぼの一覧", .source = 1, .columns = kListed},

    Group{.name = {u"Frame1"}, .caption = u"検索", .columns = 3},
    Combo{.name = {u"Combo1"},
          .caption = u"検索項目:",
          .bind = Unbound{u"the column to search"},
          .items = kAcupointKeys},
    TextField{.name = {u"Text1"},
              .caption = u"検索文字:",
              .bind = Unbound{u"the text to search"},
              .onEnter = call<&AcupointScreen::search>},
    Command{.name = {u"Command2"}, .caption = u"検索", .run = run<&AcupointScreen::search>},
    EndGroup{},

    Group{.name = {u"Frame2"}, .caption = u"経穴", .columns = 3},
    name(),
    field(1, u"経穴名かな:", u"経穴名かな"),
    field(9, u"部位:", u"部位"),
    field(2, u"取穴位置:", u"取穴位置", 60),
    field(3, u"筋肉:", u"筋肉"),
    field(4, u"運動神経:", u"運動神経"),
    field(5, u"知覚神経:", u"知覚神経"),
    field(6, u"血管:", u"血管"),
    field(7, u"刺入方法:", u"刺入方法"),
    field(8, u"主適応:", u"主適応"),
    Check{.name = {u"Check1"}, .caption = u"禁鍼:", .bind = Column{u"禁鍼フラグ"}},
    Check{.name = {u"Check2"}, .caption = u"禁灸:", .bind = Column{u"禁灸フラグ"}},
    EndGroup{},

    Bar{},
    Command{.name = {u"cmdAdd"}, .caption = u"追加", .run = run<&AcupointScreen::add>},
    Command{.name = {u"cmdDelete"}, .caption = u"削除", .run = run<&AcupointScreen::remove>},
    Command{.name = {u"cmdUpdate"}, .caption = u"更新", .run = run<&AcupointScreen::store>},
    Command{.name = {u"Command1"},
            .caption = u"クリップボードへコピー",
            .run = run<&AcupointScreen::copy>,
            .tip = u"経穴名漢字をクリップボードにコピーします"},
    Command{.name = {u"cmdClose"}, .caption = u"閉じる", .run = run<&AcupointScreen::finish>},
    EndBar{},
};

}  // namespace

constinit const ScreenRow kAcupointScreen{
    .name = u"frm経穴", .caption = u"経穴", .rows = kRows, .sources = 1, .functionKeys = true};

}  // namespace records
