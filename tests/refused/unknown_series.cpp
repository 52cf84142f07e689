// the table lacks a column of the series
#include "platform/screen/declare.h"
#include "platform/store/tables/patients.h"
#include "platform/store/tables/visits.h"

using namespace screen;

constexpr store::Series kSeries = patients::table.series(u"住所", 1, 4);
