#include "claims/screens/list_sort_screen.h"

#include "claims/core/list_keys.h"

namespace claims {
namespace {

using namespace screen;

constexpr Row kRows[] = {
    Combo{.name = u"Combo1",
          .caption = u"並び替える項目:",
          .bind = Unbound{u"the column to sort by"},
          .items = kListKeys,
          .say = u"カーソルで並び替える項目を選択して下さい"},
    Bar{},
    Command{
        .name = u"Command1", .caption = u"昇順", .run = run<&ListSortScreen::ascending>, .standard = true},
    Command{.name = u"Command3", .caption = u"降順", .run = run<&ListSortScreen::descending>},
    Command{
        .name = u"Command2", .caption = u"キャンセル", .run = run<&ListSortScreen::cancel>, .key = u"Esc"},
    EndBar{},
};

constexpr ScreenRow kScreen{.name = u"ソート3", .caption = u"ソート", .rows = kRows, .heading = u"ソート"};

}  // namespace

ListSortScreen::ListSortScreen(screen::Services& services) : Screen(kScreen, services) {}

void ListSortScreen::onLoad() { setText("Combo1", QString::fromUtf16(kListKeys.front())); }

void ListSortScreen::ascending() { sort(QStringLiteral("ASC")); }
void ListSortScreen::descending() { sort(QStringLiteral("DESC")); }
void ListSortScreen::cancel() { close(); }

void ListSortScreen::sort(const QString& direction) {
  navigator().show(QStringLiteral("レセプト一覧表"), {{"sort", text("Combo1") + ' ' + direction}});
  close();
}

}  // namespace claims
