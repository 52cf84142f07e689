#include "claims/core/amount_item_checks.h"
#include "claims/core/counters.h"
#include "claims/core/era_items.h"

// Acupuncture from 2024/10. Fields and boxes differ in the first line of 訪問施術 alone, where the boxes of
// the unit fees have always been crossed in their names.
namespace claims {
namespace {

using namespace counters;
using Fields = RecordFields;

constexpr RecordVersion kVersions[] = {{u"鍼データ集結ver9.0", rule::kVisitTreatment}};

constexpr AmountItem kItems[] = {
    {.label = u"初回施術",
     .counter = firstTreatment,
     .fee = {Fee::HariFirst, Fee::HariKyuFirst},
     .tick = claim::hasFirst,
     .field = {1, Fields::Amount},
     .boxes = {.amount = 1}},
    {.label = u"1術の施術日数",
     .counter = allArtDays<1>,
     .charged = false,
     .field = {2, Fields::Count},
     .boxes = {.count = 2}},
    {.label = u"2術の施術日数",
     .counter = allArtDays<2>,
     .charged = false,
     .field = {3, Fields::Count},
     .boxes = {.count = 3}},
    {.label = u"はり・きゅう 1術",
     .counter = artDays<1, 0>,
     .fee = Fee::Hari,
     .field = {4},
     .boxes = lineBoxes(4, 51)},
    {.label = u"はり・きゅう 2術",
     .counter = artDays<2, 0>,
     .fee = Fee::HariKyu,
     .field = {7},
     .boxes = lineBoxes(7, 51)},
    {.label = u"電気鍼・電気温灸器・電気光線器具",
     .counter = electric,
     .fee = Fee::HariElectric,
     .field = {34},
     .boxes = lineBoxes(34)},
    {.label = u"訪問施術①（1人） 1術",
     .counter = artDays<1, 1>,
     .fee = hariVisitFee(0, 1),
     .field = {10},
     .boxes = {.unit = 13, .count = 11, .amount = 12, .alone = 54}},
    {.label = u"訪問施術①（1人） 2術",
     .counter = artDays<2, 1>,
     .fee = hariVisitFee(0, 2),
     .field = {13},
     .boxes = {.unit = 10, .count = 14, .amount = 15, .alone = 54}},
    {.label = u"訪問施術②（2人） 1術",
     .counter = artDays<1, 2>,
     .fee = hariVisitFee(1, 1),
     .field = {16},
     .boxes = lineBoxes(16, 57)},
    {.label = u"訪問施術②（2人） 2術",
     .counter = artDays<2, 2>,
     .fee = hariVisitFee(1, 2),
     .field = {19},
     .boxes = lineBoxes(19, 57)},
    {.label = u"訪問施術③（3人～9人） 1術",
     .counter = artDays<1, 3>,
     .fee = hariVisitFee(2, 1),
     .field = {22},
     .boxes = lineBoxes(22, 60)},
    {.label = u"訪問施術③（3人～9人） 2術",
     .counter = artDays<2, 3>,
     .fee = hariVisitFee(2, 2),
     .field = {25},
     .boxes = lineBoxes(25, 60)},
    {.label = u"訪問施術③（10人以上） 1術",
     .counter = artDays<1, 4>,
     .fee = hariVisitFee(3, 1),
     .field = {28},
     .boxes = lineBoxes(28, 63)},
    {.label = u"訪問施術③（10人以上） 2術",
     .counter = artDays<2, 4>,
     .fee = hariVisitFee(3, 2),
     .field = {31},
     .boxes = lineBoxes(31, 63)},
    {.label = u"突発的な往療",
     .counter = suddenDays,
     .fee = Fee::Sudden,
     .field = {40},
     .boxes = lineBoxes(40)},
    {.label = u"特別地域の往療",
     .counter = visitDays,
     .fee = Fee::SpecialArea,
     .tick = claim::specialArea,
     .field = {37},
     .boxes = lineBoxes(37)},
    {.label = u"施術報告書交付料",
     .counter = reports,
     .fee = Fee::Report,
     .field = {43},
     .boxes = {.amount = 45}},
    {.label = u"合計", .figure = Figure::Total, .field = {46, Fields::Amount}, .boxes = {.amount = 46}},
    {.label = u"一部負担金", .figure = Figure::Share, .field = {47, Fields::Amount}, .boxes = {.amount = 47}},
    {.label = u"請求額", .figure = Figure::Claim, .field = {48, Fields::Amount}, .boxes = {.amount = 48}},
};

static_assert(itemsAreComplete(kItems));
static_assert(fieldsAreContiguous(kItems, kVersions));
static_assert(versionsAreInOrder(kItems, kVersions));
static_assert(boxesAreUnique(kItems));

}  // namespace

std::span<const AmountItem> acupunctureItems() { return kItems; }
std::span<const RecordVersion> acupunctureVersions() { return kVersions; }

}  // namespace claims
