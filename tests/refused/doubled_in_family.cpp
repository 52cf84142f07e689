// two controls of one name
#include "platform/screen/declare.h"
#include "platform/store/tables/patients.h"
#include "platform/store/tables/visits.h"

using namespace screen;

constexpr Row kRows[] = {
    TextRun{.name = {u"txtFields", 1}, .count = 3, .caption = u"%1:", .bind = patients::address},
    TextField{.name = {u"txtFields", 3}, .caption = u"氏名:", .bind = patients::name},
};
constexpr ScreenRow kScreen =
    declare({.name = u"見本", .caption = u"見本", .rows = kRows, .sources = patients::table});
