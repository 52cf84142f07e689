// two controls of one name
#include "platform/screen/declare.h"
#include "platform/store/tables/patients.h"
#include "platform/store/tables/visits.h"

using namespace screen;

constexpr Row kRows[] = {
    TextField{.name = {u"txtFields", 4}, .caption = u"氏名:", .bind = patients::name},
    TextField{.name = {u"txtFields", 4}, .caption = u"ふりがな:", .bind = patients::kana},
};
constexpr ScreenRow kScreen =
    declare({.name = u"見本", .caption = u"見本", .rows = kRows, .sources = patients::table});
