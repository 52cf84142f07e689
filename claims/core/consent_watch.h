#pragma once

#include <QDate>
#include <QList>
#include <QString>

#include "frame/core/era_date.h"
#include "platform/text/result.h"

namespace claims {

/// A patient whose consent runs out within a month, as the list tells it.
struct ConsentEnd {
  QString name;       ///< 氏名
  QString insurance;  ///< 保険の種類
  QDate end;          ///< the consent's last day, 要加療期間2
  QString treatment;  ///< 施術内容

  bool operator==(const ConsentEnd&) const = default;
};

/// 同意期限 as the list shows it: "2024年11月5日".
QString consentEndText(QDate end);

/// The patients whose consent ends from today up to one month ahead, both days included, the nearest end
/// first. The 31st of January reaches to the last day of February.
///
/// The end of a consent is the latest readable 要加療期間2 among the claims of the patient's 氏名 and kind of
/// treatment, so that an older claim does not warn once its consent was renewed; acupuncture and massage have
/// a consent each. The newest claim with that end gives the row. A patient is told once: where both consents
/// run out, by the nearer end. Dates of any form are read; what cannot be read is left out.
text::Result<QList<ConsentEnd>> consentsRunningOut(const QString& claimsPath, const frame::EraDates& dates);

}  // namespace claims
