#pragma once

#include "claims/core/amount_item.h"

// Counters of the eras' items.
namespace claims::counters {

/// Report fees by the ticks 施術報告書交付, ２通, ３通.
Counted reports(const ClaimCounts& counts);

// From 2024/10. Row 0 holds the plain days, rows 1 to 4 the forms of 訪問施術: ①, ②, ③ of 3 to 9 patients,
// ③ of 10 and more.

/// Once, where a day was treated by needles; the number is 1 for one art, 2 for two arts.
Counted firstTreatment(const ClaimCounts& counts);
Counted electric(const ClaimCounts& counts);
Counted warm(const ClaimCounts& counts);
Counted warmLight(const ClaimCounts& counts);
Counted suddenDays(const ClaimCounts& counts);
/// Days with any visit, sudden ones too.
Counted visitDays(const ClaimCounts& counts);
/// Limbs of the month.
Counted limbs(const ClaimCounts& counts);

Counted artDaysOf(const VisitsTally& tally, int arts, int row);
Counted areaDaysOf(const VisitsTally& tally, int row, int place);

/// Days by one art (1) or two arts (2).
template <int Arts, int Row>
Counted artDays(const ClaimCounts& counts) {
  return artDaysOf(counts.visits, Arts, Row);
}
/// The same of all rows.
template <int Arts>
Counted allArtDays(const ClaimCounts& counts) {
  int days = 0;
  for (int row = 0; row <= 4; ++row) days += artDaysOf(counts.visits, Arts, row).count;
  return {days};
}
/// Days of the lowest number of areas (place 0) or of the next (1). Only these two are charged and shown: the
/// forms have two lines each.
template <int Row, int Place>
Counted areaDays(const ClaimCounts& counts) {
  return areaDaysOf(counts.visits, Row, Place);
}
/// Days of so many limbs.
template <int Limbs>
Counted limbDays(const ClaimCounts& counts) {
  return {counts.visits.count(u'h', Limbs), Limbs};
}

}  // namespace claims::counters
