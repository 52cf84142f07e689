#include "records/core/visit_totals.h"

#include "platform/store/tables/visits.h"
#include "platform/text/number.h"

namespace records {

qint64 yenOf(QStringView amount) {
  constexpr qsizetype kMaxDigits = 15;
  // Nearly all amounts are plain digits; anything else goes the slower way below.
  qint64 yen = 0;
  bool digits = amount.size() <= kMaxDigits;
  for (qsizetype at = 0; digits && at < amount.size(); ++at) {
    digits = amount[at] >= u'0' && amount[at] <= u'9';
    yen = yen * 10 + (amount[at].unicode() - u'0');
  }
  if (digits) return yen;
  QString typed = amount.trimmed().toString();
  if (typed.startsWith(u'¥') || typed.startsWith(u'￥') || typed.startsWith(u'\\')) typed.remove(0, 1);
  return text::intOf(typed);
}

store::Result<VisitTotals> totalsOf(const store::RecordSet& rows) {
  VisitTotals sums;
  const store::Done walked =
      rows.forEach({visits::insurerPays, visits::share, visits::fee, visits::receiptDone, visits::isNew},
                   [&](store::RowViews row) {
                     ++sums.rows;
                     sums.insurer += yenOf(row[0]);
                     sums.share += yenOf(row[1]);
                     sums.treatment += yenOf(row[2]);
                     sums.receipts += row[3] == u"-1";
                     sums.newPatients += row[4] == u"-1";
                   });
  if (!walked) return walked.fault();
  return sums;
}

routes::Totals totalsRoute(const VisitTotals& totals, bool ofOnePatient) {
  return {.ofOnePatient = ofOnePatient,
          .rows = totals.rows,
          .insurer = totals.insurer,
          .share = totals.share,
          .treatment = totals.treatment,
          .receipts = totals.receipts,
          .newPatients = totals.newPatients};
}

}  // namespace records
