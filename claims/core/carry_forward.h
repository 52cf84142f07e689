#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <span>

#include "claims/core/claim_record.h"

namespace claims {

struct NextMonth {
  QString month;   ///< 申請年月 of the next claim
  QString number;  ///< 申請月
};

/// The era month after a claim month: month 12 goes to month 1 of the next year, and a month past its
/// era's end is written in the new era (平成31年4月 to 令和1年5月). 元 counts as 1. nullopt: no era month.
std::optional<NextMonth> nextMonth(const QString& claimMonth);

/// Why a claim cannot be carried forward: 請求回数 or 申請年月 blank. Null: it can.
QString carryForwardRefusal(const ClaimRecord& claim);

/// Columns that 翌月へ継続 carries: the pages 保険証, 同意書, 申請者の確認, the print settings, and 既往症 to
/// 備考. The day grid, the calculated columns, 初回有無 and the ticks of the report stay blank.
std::span<const store::Column> carriedColumns();

/// The next month's claim.
ClaimRecord carryForward(const ClaimRecord& claim);

/// What the box 施術所 shows: 施術所 and the clinic's name in round brackets.
QString clinicBoxText(const QString& clinicName);

/// What 翌月へ継続 says on a second press from the same opening, one message after the other, and its
/// question.
QStringList secondCarryMessages();
QStringList carryQuestion();

}  // namespace claims
