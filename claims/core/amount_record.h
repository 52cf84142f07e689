#pragma once

#include <QString>
#include <QStringList>

#include "claims/core/amounts.h"

namespace claims {

inline constexpr char16_t kAcupunctureMark[] = u"鍼データ集結ver9.0";
inline constexpr char16_t kMassageMark[] = u"あマデータ集結ver9.0";

/// The comma-joined record of a claim from 2024/10, column h1 (acupuncture) or m1 (massage): field 0 is the
/// mark, the others are whole numbers. Field n goes to the amount box of the forms that has the number n
/// (docs/amount-record.md). Null for other claims.
QString amountRecord(const ClaimAmounts& amounts, const AreaBoxes& boxes);

/// The fields of a stored record by their number; empty where the text is no such record. `fields[0]` is
/// the mark.
QStringList amountRecordFields(const QString& record);

/// Numbers of the fields that are no triple.
namespace acupuncture_field {
inline constexpr int kFirst = 1, kOneArtDays = 2, kTwoArtDays = 3, kPlain = 4, kVisits = 10, kElectric = 34,
                     kSpecial = 37, kSudden = 40, kReport = 43, kTotal = 46, kShare = 47, kClaim = 48,
                     kLast = 48;
}
namespace massage_field {
inline constexpr int kAreaBoxes = 1, kLimbBoxes = 6, kPlain = 10, kVisits = 16, kWarm = 40, kWarmLight = 43,
                     kLimb = 46, kSpecial = 49, kSudden = 52, kReport = 55, kTotal = 58, kShare = 59,
                     kClaim = 60, kLast = 60;
}

}  // namespace claims
