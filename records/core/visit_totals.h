#pragma once

#include "frame/core/routes.h"
#include "platform/store/record_set.h"

namespace records {

/// The sums over a set of visits, of one patient in the ledger or of all patients in the takings. Amounts in
/// yen.
struct VisitTotals {
  qint64 rows = 0;
  qint64 insurer = 0;      ///< 保険者負担金
  qint64 share = 0;        ///< 保険の一部負担金
  qint64 treatment = 0;    ///< 治療金額
  qint64 receipts = 0;     ///< visits with 領収証チェック
  qint64 newPatients = 0;  ///< visits with 新患

  bool operator==(const VisitTotals&) const = default;
};

/// The whole yen of an amount as a user types it: "1,200", "１２００", "¥1,200" and "1200円" are 1200. A
/// blank text, or one that does not begin with a number, adds nothing.
qint64 yenOf(QStringView amount);

/// Adds up every row of a set of visits as the file has it now. The current row stays.
store::Result<VisitTotals> totalsOf(const store::RecordSet& rows);

/// The route to 集計総合金額 with the sums.
routes::Totals totalsRoute(const VisitTotals& totals, bool ofOnePatient);

}  // namespace records
