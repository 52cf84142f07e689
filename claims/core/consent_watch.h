#pragma once

#include <QDate>
#include <QList>
#include <QString>

#include "frame/core/era_date.h"
#include "platform/text/result.h"

namespace claims {

/// A patient whose consent runs out within a month, as the list shows it.
struct ConsentEnd {
  QString name;       ///< 氏名
  QString insurance;  ///< 保険の種類
  QDate end;          ///< the consent's last day, 要加療期間2
  QString treatment;  ///< 施術内容
  QDate later;  ///< a later end of the patient's consent for this treatment, beyond the month; else invalid

  bool operator==(const ConsentEnd&) const = default;
};

/// 同意期限 as the list shows it: "2024年11月5日".
QString consentEndText(QDate end);

/// The claims whose 要加療期間2 lies from today up to one month ahead, both days included; of each 氏名 the
/// newest such claim, so that a patient is listed once. The nearest end comes first. The 31st of January
/// reaches to the last day of February.
///
/// Dates of any form are read; what cannot be read is left out. A later consent does not take the warning
/// back, as a year typed wrong would silence it; it is returned in `later`. Acupuncture and massage have
/// separate consents.
text::Result<QList<ConsentEnd>> consentsRunningOut(const QString& claimsPath, const frame::EraDates& dates);

}  // namespace claims
