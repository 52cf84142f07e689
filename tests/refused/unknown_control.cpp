// no such control
#include "platform/screen/declare.h"
#include "platform/store/tables/patients.h"
#include "platform/store/tables/visits.h"

using namespace screen;

constexpr Row kRows[] = {TextField{.name = {u"txtFields", 4}, .caption = u"氏名:", .bind = patients::name}};
constexpr ControlRef kName = ref(kRows, u"txtFields", 5);
