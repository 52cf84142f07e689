#include "platform/screen/hourglass.h"
#include "platform/store/criteria_text.h"
#include "records/core/visit_totals.h"
#include "records/screens/visit_ledger_screen.h"

// What the list of visits shows, its sums, and the ways to other rooms.

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kByDate = u"治療日チェック ASC"_s;
const QString kDetail = u"治療台帳detail"_s;

}  // namespace

QString VisitLedgerScreen::noRowsToSortText() const {
  return QString::fromUtf16(screen::kNoRowsOfMembersText);
}

// What was typed belongs to a row of the set on view: it is written before another set takes its place.
bool VisitLedgerScreen::narrowBy(const QString& criteria) {
  return settleVisit() && ListScreen::narrowBy(criteria);
}

bool VisitLedgerScreen::sortBy(const QString& order) { return settleVisit() && ListScreen::sortBy(order); }

void VisitLedgerScreen::setChanged(const QString& /*done*/) { tellView(); }

void VisitLedgerScreen::tellView() {
  sayResult(QStringList{caption(u"LabelCount"_s), caption(u"Label14"_s)} + rowOnView());
  focusOn(u"DBGrid1"_s);
}

// A patient without a serial has the visits without one: the contained-in pattern would show everybody's.
bool VisitLedgerScreen::putPatient() {
  return put(
      m_key.isEmpty() ? store::equalCriterion(u"ETC1"_s, QString()) : store::likeCriterion(u"ETC1"_s, m_key),
      kByDate);
}

void VisitLedgerScreen::narrowToMonth() {
  if (const QString month = text(u"Text1"_s); !month.isEmpty())
    narrowBy(store::prefixCriterion(u"治療日時"_s, month));
}

void VisitLedgerScreen::showPatient() {
  if (!settleVisit() || !openWhole()) return;
  if (!holdsRows()) return offerFirstVisit();
  if (!putPatient()) return;
  if (holdsRows()) return tellView();
  messages().tell(u"該当がありません。追加ボタンを押し新規登録してください。"_s);
}

void VisitLedgerScreen::showAll() {
  if (!settleVisit() || !openWhole()) return;
  tellView();
}

void VisitLedgerScreen::showTotals() {
  if (!settleVisit() || emptySet()) return;
  const auto summed = [this] {
    const screen::Hourglass summing;
    return totalsOf(source().rows());
  }();
  if (!summed) return messages().tellDataFault(summed.fault().message);
  navigator().show(u"集計総合金額"_s, totalsRequest(*summed, objectName()));
}

void VisitLedgerScreen::openDetail() {
  if (m_newRowPending) return messages().tell(u"一度「登録」ボタンを押してから終了して下さい"_s);
  if (!messages().ask(u"カルテ２詳細データを表示します。尚、新規登録の場合は、既往症・初診時の主要症状は"
                      u"前回分を自動で代入しています。"_s))
    return;
  if (navigator().isShown(kDetail))
    return messages().tell(
        u"すでにカルテ２詳細データ(治療台帳detail)の窓が開いています。"
        u"開いているカルテ２詳細データ(治療台帳detail)を閉じて下さい。"_s);
  if (!settleVisit()) return;
  screen::Request request{{u"ETC1"_s, text(u"Text2"_s)}};
  if (const QString id = text(u"Text3"_s); !id.isEmpty()) request[u"ID"_s] = id.toLongLong();
  navigator().show(kDetail, request);
}

screen::Request VisitLedgerScreen::patient() const {
  return {{u"テキスト5"_s, text(u"Text2"_s)},
          {u"氏名"_s, text(u"txtFields(0)"_s)},
          {u"生年月日"_s, text(u"txtFields(1)"_s)},
          {u"opener"_s, u"治療台帳3"_s}};
}

void VisitLedgerScreen::openReceipt() { navigator().show(u"領収証選択"_s, patient()); }
void VisitLedgerScreen::openDetailedReceipt() { navigator().show(u"明細領収"_s, patient()); }

}  // namespace records
