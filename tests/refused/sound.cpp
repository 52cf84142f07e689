// compiles
#include "platform/screen/declare.h"
#include "platform/store/tables/patients.h"
#include "platform/store/tables/visits.h"

using namespace screen;

constexpr GridColumn kColumns[] = {{patients::name, u"氏名"}, {patients::kana, u"ふりがな"}};
constexpr Row kRows[] = {
    TextField{.name = {u"txtFields", 4}, .caption = u"氏名:", .bind = patients::name},
    TextRun{.name = {u"txtRun", 1}, .count = 3, .caption = u"%1:", .bind = patients::address},
    Grid{.name = u"DBGrid1", .caption = u"一覧", .columns = kColumns},
};
constexpr ScreenRow kScreen =
    declare({.name = u"見本", .caption = u"見本", .rows = kRows, .sources = patients::table});
constexpr ControlRef kName = ref(kRows, u"txtFields", 4);
constexpr FamilyRef kRun = family(kRows, u"txtRun");
