#include <array>

#include "claims/core/amount_item_checks.h"
#include "claims/core/counters.h"
#include "claims/core/era_items.h"
#include "platform/text/number.h"

// Claims before 2024/10: both kinds of treatment in one table, for either rule of visits.
namespace claims {
namespace {

/// By the fee column of the first day's letter.
Counted firstTreatment(const ClaimCounts& counts) {
  const std::optional<Fee> fee = counts.twoBand.firstFee;
  if (!fee) return {};
  return {1, *fee == Fee::HariFirst ? 1 : *fee == Fee::KyuFirst ? 2 : 3};
}

/// A number of the tally.
template <int TwoBandTally::*Number>
Counted days(const ClaimCounts& counts) {
  return {counts.twoBand.*Number};
}

/// Units of massage or manipulation: the sum of the numbers in the grid, or, if the grid has no number, the
/// claim-wide number times the days; a text that is no number gives none.
Counted unitsOf(bool digits, int sum, const QString& claimWide, int days) {
  if (digits) return {sum};
  return {text::isNumeric(claimWide) ? static_cast<int>(text::intOf(claimWide)) * days : 0};
}

Counted areas(const ClaimCounts& counts) {
  const TwoBandTally& tally = counts.twoBand;
  return unitsOf(tally.digitMassage, tally.areaSum, counts.claim.get(claim::areaCount), tally.massageDays);
}

Counted limbs(const ClaimCounts& counts) {
  const TwoBandTally& tally = counts.twoBand;
  return unitsOf(tally.digitLimb, tally.limbSum, counts.claim.get(claim::limbCount), tally.limbDays);
}

Counted allStepVisits(const ClaimCounts& counts) { return {counts.steps.total()}; }

/// Visits of so many kilometres; the number is 2 in a month of differing distances.
template <int Kilometres>
Counted stepVisits(const ClaimCounts& counts) {
  return {counts.steps.count[Kilometres / 2 - 1], counts.steps.differing ? 2 : 1};
}

using Tally = TwoBandTally;

constexpr auto kTreatments = std::to_array<AmountItem>({
    {.label = u"初回費用",
     .counter = firstTreatment,
     .fee = {Fee::HariFirst, Fee::KyuFirst, Fee::HariKyuFirst},
     .columns = {.amount = claim::firstFee}},
    {.label = u"はり",
     .counter = days<&Tally::hari>,
     .fee = Fee::Hari,
     .art = Art::Hari,
     .columns = {claim::hariSum, claim::hariTimes}},
    {.label = u"灸",
     .counter = days<&Tally::kyu>,
     .fee = Fee::Kyu,
     .art = Art::Kyu,
     .columns = {claim::kyuSum, claim::kyuTimes}},
    {.label = u"はり灸",
     .counter = days<&Tally::hariKyu>,
     .fee = Fee::HariKyu,
     .art = Art::HariKyu,
     .columns = {claim::hariKyuSum, claim::hariKyuTimes}},
    {.label = u"電療",
     .counter = days<&Tally::electric>,
     .fee = Fee::HariElectric,
     .columns = {claim::hariElectricSum, claim::hariElectricTimes}},
    {.label = u"マッサージ",
     .counter = areas,
     .fee = Fee::MassageArea,
     .art = Art::Massage,
     .columns = {claim::massageSum, claim::massageTimes, days<&Tally::massageDays>}},
    {.label = u"徒手矯正術",
     .counter = limbs,
     .fee = Fee::Limb,
     .art = Art::Massage,
     .columns = {claim::limbSum, claim::limbTimes, days<&Tally::limbDays>}},
    {.label = u"温罨法",
     .counter = days<&Tally::warm>,
     .fee = Fee::Warm,
     .art = Art::Massage,
     .columns = {claim::warmSum, claim::warmTimes}},
    {.label = u"電気光線器具",
     .counter = days<&Tally::warmLight>,
     .fee = Fee::WarmLight,
     .art = Art::Massage,
     .columns = {claim::warmLightSum, claim::warmLightTimes}},
});

// The fee of the column 加算往診料4K is the whole fee beyond 4 km, not an add-on.
constexpr auto kBands = std::to_array<AmountItem>({
    {.label = u"往療料（4kmまで）",
     .counter = days<&Tally::nearVisits>,
     .fee = Fee::Base2K,
     .columns = {.amount = claim::visitSum1}},
    {.label = u"往療料（4km超）",
     .counter = days<&Tally::farVisits>,
     .fee = Fee::Add4K,
     .columns = {.amount = claim::visitSum2}},
});

// What each distance adds to the base fee. Kept: in a month of differing distances 12 km takes the column of
// 10 km.
constexpr auto kSteps = std::to_array<AmountItem>({
    {.label = u"往療料（2kmまで）", .counter = allStepVisits, .fee = Fee::Base2K},
    {.label = u"往療料加算（4km）", .counter = stepVisits<4>, .fee = Fee::Add2K},
    {.label = u"往療料加算（6km）", .counter = stepVisits<6>, .fee = Fee::Add4K},
    {.label = u"往療料加算（8km）", .counter = stepVisits<8>, .fee = Fee::Add6K},
    {.label = u"往療料加算（10km）", .counter = stepVisits<10>, .fee = Fee::Add8K},
    {.label = u"往療料加算（12km）", .counter = stepVisits<12>, .fee = {Fee::Add10K, Fee::Add8K}},
    {.label = u"往療料加算（14km）", .counter = stepVisits<14>, .fee = Fee::Add12K},
    {.label = u"往療料加算（16km）", .counter = stepVisits<16>, .fee = Fee::Add14K},
});

// The report's fee was put into the column of the 16 km step when the reports began.
constexpr auto kReport = std::to_array<AmountItem>({
    {.label = u"施術報告書交付料", .counter = counters::reports, .fee = Fee::Add16K, .from = rule::kReports},
});

template <size_t A, size_t B>
constexpr auto joined(const std::array<AmountItem, A>& head, const std::array<AmountItem, B>& tail) {
  std::array<AmountItem, A + B> all;
  std::ranges::copy(tail, std::ranges::copy(head, all.begin()).out);
  return all;
}

constexpr auto kTwoBandItems = joined(joined(kTreatments, kBands), kReport);
constexpr auto kStepsItems = joined(joined(kTreatments, kSteps), kReport);

static_assert(isSound(kTwoBandItems, {}));
static_assert(isSound(kStepsItems, {}));

}  // namespace

std::span<const AmountItem> twoBandItems() { return kTwoBandItems; }
std::span<const AmountItem> stepsItems() { return kStepsItems; }

}  // namespace claims
