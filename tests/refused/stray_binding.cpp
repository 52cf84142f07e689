// a column of none of the screen
#include "platform/screen/declare.h"
#include "platform/store/tables/patients.h"
#include "platform/store/tables/visits.h"

using namespace screen;

constexpr Row kRows[] = {TextField{.name = u"Text1", .caption = u"治療日:", .bind = visits::date}};
constexpr ScreenRow kScreen =
    declare({.name = u"見本", .caption = u"見本", .rows = kRows, .sources = patients::table});
