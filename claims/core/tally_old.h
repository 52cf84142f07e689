#pragma once

#include <QString>
#include <array>
#include <optional>

#include "claims/core/claim_record.h"
#include "claims/core/fee_edition.h"

namespace claims {

/// Counts of a claim before 2024/10.
struct OldTally {
  int hari = 0;         ///< count 1: a, b
  int kyu = 0;          ///< count 2: c, d
  int hariKyu = 0;      ///< count 3: e, f
  int electric = 0;     ///< count 4: b, d, f
  int massageDays = 0;  ///< count 7
  int limbDays = 0;     ///< count 8
  int warm = 0;         ///< count 9: i
  int warmLight = 0;    ///< count 10: j, whose column prices 温罨法 and 電気光線器具 as a pair
  int treatmentDays = 0;

  char16_t first = 0;           ///< letter of the first treatment, 初回; 0: not ticked or no day
  std::optional<Fee> firstFee;  ///< the column charged for it

  int areaSum = 0;  ///< areas of all days
  int limbSum = 0;
  bool digitMassage = false;  ///< a number stood behind a massage letter: areaSum prices the claim
  bool digitLimb = false;
  std::optional<int> massageN;  ///< areas of every massage day alike; 0 where they differ
  std::optional<int> limbN;

  int nearVisits = 0;           ///< up to 4 km
  int farVisits = 0;            ///< 5 to 20 km
  std::optional<int> distance;  ///< the distance of every visit alike; 0 where they differ

  /// massageN as the forms show it: blank where it is 0.
  QString localCountText() const;
};

OldTally tallyOld(const ClaimRecord& claim);

/// Visits by the 2 km steps of the rule before 2018/06.
struct StepVisits {
  std::array<int, 8> count{};  ///< visits of 2, 4, ... 16 km
  bool differing = false;      ///< the month holds differing distances
  int total() const;
};

StepVisits tallySteps(const ClaimRecord& claim);

}  // namespace claims
