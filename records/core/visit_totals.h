#pragma once

#include "frame/core/routes.h"
#include "platform/store/record_set.h"

namespace records {

/// The sums over a set of visits, of the ledger of one patient as of the takings of all. Amounts in yen.
struct VisitTotals {
  qint64 rows = 0;
  qint64 insurer = 0;      ///< 保険者負担金
  qint64 share = 0;        ///< 保険の一部負担金
  qint64 treatment = 0;    ///< 治療金額
  qint64 receipts = 0;     ///< visits with 領収証チェック
  qint64 newPatients = 0;  ///< visits with 新患

  bool operator==(const VisitTotals&) const = default;
};

/// The whole yen of an amount as a user types it: "1,200", "１２００", "¥1,200" and "1200円" are 1200. A text
/// that begins with no number, and a blank one, adds nothing.
qint64 yenOf(QStringView amount);

/// Adds up every row of a set of カルテ as the file holds it now. The current row stays.
store::Result<VisitTotals> totalsOf(const store::RecordSet& visits);

/// The way to 集計総合金額 with the sums, of the visits of one patient or of all.
routes::Totals totalsRoute(const VisitTotals& totals, bool ofOnePatient);

}  // namespace records
