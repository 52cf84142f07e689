#pragma once

#include <QString>
#include <optional>

#include "claims/core/claim_record.h"
#include "claims/core/fee_edition.h"

namespace claims {

/// Counts of a claim before 2024/10.
struct TwoBandTally {
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
  bool digitMassage = false;  ///< a massage letter had a number: areaSum prices the claim
  bool digitLimb = false;
  std::optional<int> massageN;  ///< areas of every massage day alike; 0 where they differ
  std::optional<int> limbN;

  int nearVisits = 0;           ///< up to 4 km
  int farVisits = 0;            ///< 5 to 20 km
  std::optional<int> distance;  ///< the distance of every visit alike; 0 where they differ
};

TwoBandTally tallyTwoBand(const ClaimRecord& claim);

}  // namespace claims
