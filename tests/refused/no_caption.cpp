// a row needs a text here
#include "platform/screen/declare.h"
#include "platform/store/tables/patients.h"
#include "platform/store/tables/visits.h"

using namespace screen;

constexpr Row kRows[] = {TextField{.name = {u"txtFields", 4}, .caption = u"", .bind = patients::name}};
