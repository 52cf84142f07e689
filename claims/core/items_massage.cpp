#include "claims/core/amount_item_checks.h"
#include "claims/core/counters.h"
#include "claims/core/era_items.h"

// Massage from 2024/10. The number of a box is the number of its field.
namespace claims {
namespace {

using namespace counters;
using Fields = RecordFields;

/// The fees of a form of 訪問施術 by the number of areas.
constexpr FeeRule visitFees(int form) {
  return {massageVisitFee(form, 1), massageVisitFee(form, 2), massageVisitFee(form, 3),
          massageVisitFee(form, 4), massageVisitFee(form, 5)};
}

/// One of the boxes 施術回数 of the form.
constexpr AmountItem areaBox(int box, const char16_t* label) {
  return {.label = label,
          .figure = Figure::AreaBox,
          .areaBox = box,
          .field = {box + 1, Fields::Count},
          .boxes = {.count = box + 1}};
}

constexpr RecordVersion kVersions[] = {{u"あマデータ集結ver9.0", rule::kVisitTreatment}};

constexpr AmountItem kItems[] = {
    areaBox(0, u"施術回数 躯幹"),
    areaBox(1, u"施術回数 右上肢"),
    areaBox(2, u"施術回数 左上肢"),
    areaBox(3, u"施術回数 右下肢"),
    areaBox(4, u"施術回数 左下肢"),
    areaBox(5, u"施術回数 徒手右上肢"),
    areaBox(6, u"施術回数 徒手左上肢"),
    areaBox(7, u"施術回数 徒手右下肢"),
    areaBox(8, u"施術回数 徒手左下肢"),
    {.label = u"マッサージ %1局所",
     .counter = areaDays<0, 0>,
     .fee = FeeRule::timesNumber(Fee::MassageArea),
     .art = Art::Massage,
     .field = {10},
     .boxes = lineBoxes(10, 71)},
    {.label = u"マッサージ %1局所",
     .counter = areaDays<0, 1>,
     .fee = FeeRule::timesNumber(Fee::MassageArea),
     .art = Art::Massage,
     .field = {13},
     .boxes = lineBoxes(13, 71)},
    {.label = u"徒手矯正術 %1肢",
     .counter = limbDays<1>,
     .fee = FeeRule::timesNumber(Fee::Limb),
     .art = Art::Massage},
    {.label = u"徒手矯正術 %1肢",
     .counter = limbDays<2>,
     .fee = FeeRule::timesNumber(Fee::Limb),
     .art = Art::Massage},
    {.label = u"徒手矯正術 %1肢",
     .counter = limbDays<3>,
     .fee = FeeRule::timesNumber(Fee::Limb),
     .art = Art::Massage},
    {.label = u"徒手矯正術 %1肢",
     .counter = limbDays<4>,
     .fee = FeeRule::timesNumber(Fee::Limb),
     .art = Art::Massage},
    // One line on paper and in the record for the limbs of all days.
    {.label = u"変形徒手矯正術",
     .counter = limbs,
     .fee = Fee::Limb,
     .charged = false,
     .field = {46},
     .boxes = lineBoxes(46)},
    {.label = u"温罨法",
     .counter = warm,
     .fee = Fee::Warm,
     .art = Art::Massage,
     .field = {40},
     .boxes = lineBoxes(40)},
    {.label = u"電気光線器具併用",
     .counter = warmLight,
     .fee = Fee::WarmLight,
     .art = Art::Massage,
     .field = {43},
     .boxes = lineBoxes(43)},
    {.label = u"訪問施術①（1人） %1局所",
     .counter = areaDays<1, 0>,
     .fee = visitFees(0),
     .art = Art::Massage,
     .field = {16},
     .boxes = lineBoxes(16, 74)},
    {.label = u"訪問施術①（1人） %1局所",
     .counter = areaDays<1, 1>,
     .fee = visitFees(0),
     .art = Art::Massage,
     .field = {19},
     .boxes = lineBoxes(19, 74)},
    {.label = u"訪問施術②（2人） %1局所",
     .counter = areaDays<2, 0>,
     .fee = visitFees(1),
     .art = Art::Massage,
     .field = {22},
     .boxes = lineBoxes(22, 77)},
    {.label = u"訪問施術②（2人） %1局所",
     .counter = areaDays<2, 1>,
     .fee = visitFees(1),
     .art = Art::Massage,
     .field = {25},
     .boxes = lineBoxes(25, 77)},
    {.label = u"訪問施術③（3人～9人） %1局所",
     .counter = areaDays<3, 0>,
     .fee = visitFees(2),
     .art = Art::Massage,
     .field = {28},
     .boxes = lineBoxes(28, 80)},
    {.label = u"訪問施術③（3人～9人） %1局所",
     .counter = areaDays<3, 1>,
     .fee = visitFees(2),
     .art = Art::Massage,
     .field = {31},
     .boxes = lineBoxes(31, 80)},
    {.label = u"訪問施術③（10人以上） %1局所",
     .counter = areaDays<4, 0>,
     .fee = visitFees(3),
     .art = Art::Massage,
     .field = {34},
     .boxes = lineBoxes(34, 83)},
    {.label = u"訪問施術③（10人以上） %1局所",
     .counter = areaDays<4, 1>,
     .fee = visitFees(3),
     .art = Art::Massage,
     .field = {37},
     .boxes = lineBoxes(37, 83)},
    {.label = u"突発的な往療",
     .counter = suddenDays,
     .fee = Fee::Sudden,
     .field = {52},
     .boxes = lineBoxes(52)},
    {.label = u"特別地域の往療",
     .counter = visitDays,
     .fee = Fee::SpecialArea,
     .tick = claim::specialArea,
     .field = {49},
     .boxes = lineBoxes(49)},
    {.label = u"施術報告書交付料",
     .counter = reports,
     .fee = Fee::Report,
     .field = {55},
     .boxes = {.amount = 57}},
    {.label = u"合計", .figure = Figure::Total, .field = {58, Fields::Amount}, .boxes = {.amount = 58}},
    {.label = u"一部負担金", .figure = Figure::Share, .field = {59, Fields::Amount}, .boxes = {.amount = 59}},
    {.label = u"請求額", .figure = Figure::Claim, .field = {60, Fields::Amount}, .boxes = {.amount = 60}},
};

static_assert(itemsAreComplete(kItems));
static_assert(fieldsAreContiguous(kItems, kVersions));
static_assert(versionsAreInOrder(kItems, kVersions));
static_assert(boxesAreUnique(kItems));

}  // namespace

std::span<const AmountItem> massageItems() { return kItems; }
std::span<const RecordVersion> massageVersions() { return kVersions; }

}  // namespace claims
