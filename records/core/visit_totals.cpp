#include "records/core/visit_totals.h"

#include "platform/text/number.h"

namespace records {

qint64 yenOf(QStringView amount) {
  constexpr qsizetype kMostDigits = 15;
  qint64 yen = 0;
  bool digits = amount.size() <= kMostDigits;
  for (qsizetype at = 0; digits && at < amount.size(); ++at) {
    digits = amount[at] >= u'0' && amount[at] <= u'9';
    yen = yen * 10 + (amount[at].unicode() - u'0');
  }
  if (digits) return yen;
  QString typed = amount.trimmed().toString();
  if (typed.startsWith(u'¥') || typed.startsWith(u'￥') || typed.startsWith(u'\\')) typed.remove(0, 1);
  return text::intOf(typed);
}

store::Result<VisitTotals> totalsOf(const store::RecordSet& visits) {
  VisitTotals sums;
  const store::Done walked =
      visits.forEach({QStringLiteral("保険者負担金"), QStringLiteral("保険の一部負担金"),
                      QStringLiteral("治療金額"), QStringLiteral("領収証チェック"), QStringLiteral("新患")},
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
