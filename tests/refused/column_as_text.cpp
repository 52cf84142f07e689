// conversion|could not convert|no matching
#include "platform/screen/declare.h"
#include "platform/store/tables/patients.h"
#include "platform/store/tables/visits.h"

using namespace screen;

constexpr Row kRows[] = {TextField{.name = {u"txtFields", 4}, .caption = u"氏名:", .bind = u"氏名"}};
