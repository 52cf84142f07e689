#pragma once

#include <QString>
#include <optional>

#include "claims/core/claim_record.h"
#include "claims/core/rule_dates.h"

namespace claims {

/// 施術期間 as the forms print it, and the first and last treated day.
struct TreatmentPeriod {
  /// 初療年月日 as typed where the period begins with it (請求区分 新規), else null: day 1 of the month.
  QString startText;
  /// Day of the month that the period begins with; 0: startText gives it.
  int startDay = 1;
  /// The month's last day for 転帰 継続; the last treated day for 治癒, 転医, 中止; 0 where 転帰 is none.
  int endDay = 0;
  int firstTreated = 0;  ///< 0: no day has a code
  int lastTreated = 0;
};

TreatmentPeriod treatmentPeriod(const ClaimRecord& claim, const MonthFlags& flags);

}  // namespace claims
