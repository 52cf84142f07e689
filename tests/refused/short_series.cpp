// a column of none of the screen
#include "platform/screen/declare.h"
#include "platform/store/tables/patients.h"
#include "platform/store/tables/visits.h"

using namespace screen;

constexpr Row kRows[] = {
    TextRun{.name = {u"txtRun", 1}, .count = 4, .caption = u"%1:", .bind = patients::address}};
constexpr ScreenRow kScreen =
    declare({.name = u"見本", .caption = u"見本", .rows = kRows, .sources = patients::table});
