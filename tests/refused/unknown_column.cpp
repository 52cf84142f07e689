// the table has no such column
#include "platform/screen/declare.h"
#include "platform/store/tables/patients.h"
#include "platform/store/tables/visits.h"

using namespace screen;

constexpr store::Column kColumn = patients::table[u"氏各"];
