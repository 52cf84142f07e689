// a column of none of the screen
#include "platform/screen/declare.h"
#include "platform/store/tables/patients.h"
#include "platform/store/tables/visits.h"

using namespace screen;

constexpr GridColumn kColumns[] = {{patients::name, u"氏名"}, {visits::date, u"治療日"}};
constexpr Row kRows[] = {Grid{.name = u"DBGrid1", .caption = u"一覧", .columns = kColumns}};
constexpr ScreenRow kScreen = declare(
    {.name = u"見本", .caption = u"見本", .rows = kRows, .sources = {patients::table, visits::table}});
