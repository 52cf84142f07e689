#include "frame/core/routes_unbuilt.h"
#include "platform/screen/hourglass.h"
#include "platform/screen/shown_record.h"
#include "platform/store/criteria_text.h"
#include "platform/text/utf16.h"
#include "records/core/visit_totals.h"
#include "records/screens/visit_ledger_rows.h"

// What the list of visits shows, its sums, and the ways to other screens.

namespace records {

using namespace Qt::Literals::StringLiterals;
using namespace visit_ledger_rows;

QString VisitLedgerScreen::noRowsToSortText() const { return text::utf16(screen::kNoRowsOfMembersText); }

// What was typed belongs to a row of the set on view: it is written before another set takes its place.
bool VisitLedgerScreen::narrowBy(const QString& criteria) {
  return settleVisit() && ListScreen::narrowBy(criteria);
}

bool VisitLedgerScreen::sortBy(const QString& order) { return settleVisit() && ListScreen::sortBy(order); }

void VisitLedgerScreen::setChanged(const QString& /*done*/) { sayView(); }

void VisitLedgerScreen::sayView() {
  sayResult(QStringList{caption(kCountLabel), caption(kCount)} + rowOnView());
  focusOn(kList);
}

// A patient without a serial has the visits without one: the contained-in pattern would show everybody's.
bool VisitLedgerScreen::putPatient() {
  const QString& serial = m_patient.serial;
  return put(serial.isEmpty() ? store::equalCriterion(visits::patientSerial, QString())
                              : store::likeCriterion(visits::patientSerial, serial),
             visits::dateShadow.text() + u" ASC"_s);
}

void VisitLedgerScreen::narrowToMonth() {
  if (const QString month = text(kMonthOnView); !month.isEmpty())
    narrowBy(store::prefixCriterion(visits::date, month));
}

void VisitLedgerScreen::showPatient() {
  if (!settleVisit() || !openWhole()) return;
  if (!holdsRows()) return offerFirstVisit();
  if (!putPatient()) return;
  if (holdsRows()) return sayView();
  messages().tell(u"該当がありません。追加ボタンを押し新規登録してください。"_s);
}

void VisitLedgerScreen::showAll() {
  if (!settleVisit() || !openWhole()) return;
  sayView();
}

void VisitLedgerScreen::showTotals() {
  if (!settleVisit() || emptySet()) return;
  const auto summed = [this] {
    const screen::Hourglass summing;
    return totalsOf(source().rows());
  }();
  if (!summed) return messages().tellDataFault(summed.fault().message);
  navigator().show(totalsRoute(*summed, true));
}

void VisitLedgerScreen::openDetail() {
  if (m_newRowPending) return messages().tell(u"一度「登録」ボタンを押してから終了して下さい"_s);
  if (!messages().ask(u"カルテ２詳細データを表示します。尚、新規登録の場合は、既往症・初診時の主要症状は"
                      u"前回分を自動で代入しています。"_s))
    return;
  if (navigator().isShown(routes::unbuilt::DetailChart::screen))
    return messages().tell(
        u"すでにカルテ２詳細データ(治療台帳detail)の窓が開いています。"
        u"開いているカルテ２詳細データ(治療台帳detail)を閉じて下さい。"_s);
  if (!settleVisit()) return;
  routes::unbuilt::DetailChart chart{.serial = text(kSerial), .visit = {}};
  if (const QString id = text(kId); !id.isEmpty()) chart.visit = id.toLongLong();
  navigator().show(chart);
}

frame::Patient VisitLedgerScreen::patientOnView() const {
  return patientOf(screen::shownRecord<Visit>(*this));
}

void VisitLedgerScreen::openReceipt() {
  navigator().show(routes::unbuilt::ReceiptChoice{
      .day = {}, .patient = patientOnView(), .opener = routes::VisitLedger::screen});
}

void VisitLedgerScreen::openDetailedReceipt() {
  navigator().show(
      routes::unbuilt::DetailedReceipt{.patient = patientOnView(), .opener = routes::VisitLedger::screen});
}

}  // namespace records
