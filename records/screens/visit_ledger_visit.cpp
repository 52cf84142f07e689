#include "platform/screen/hourglass.h"
#include "platform/shell/desktop.h"
#include "records/core/visit_dates.h"
#include "records/screens/date_fields.h"
#include "records/screens/visit_ledger_rows.h"

// One visit: adding, storing with the date pass, copying of the previous visit, dates.

namespace records {

using namespace Qt::Literals::StringLiterals;
using namespace visit_ledger_rows;

namespace {

constexpr std::pair<PreviousVisit::Slot, screen::ControlRef> kAmounts[] = {
    {PreviousVisit::Insurer, kInsurerPays}, {PreviousVisit::Share, kShare}, {PreviousVisit::Amount, kFee}};

}  // namespace

bool VisitLedgerScreen::noVisit() {
  if (onVisit()) return false;
  messages().tell(noRowsText());
  return true;
}

void VisitLedgerScreen::addVisit() {
  if (!source().isOpen() && !openWhole()) return;
  if (!settleVisit()) return;
  Visit visit;
  if (text(kName).isEmpty()) {
    // On purpose: without a name on view each value lands one place early, the serial as the name and the
    // name as the birth date. Only カルテ2の新規 writes the right fields.
    visit.name = m_patient.serial;
    visit.birth = m_patient.name;
    visit.serial = m_patient.serial;
    startVisit(visit);
  } else {
    if (!source().ensureRead()) return;
    m_previous.take([this](const store::Column& column) { return source().rows().value(column); });
    visit.name = m_previous.value(PreviousVisit::Name);
    visit.birth = m_previous.value(PreviousVisit::Birth);
    visit.serial = m_previous.value(PreviousVisit::Patient);
    startVisit(visit);
    if (!source().rows().adding()) return;
    for (const int slot : PreviousVisit::carriedAtOnce())
      if (const QString value = m_previous.value(slot); !value.isEmpty())
        // A file that never grew lacks the column: there is nothing to carry then.
        (void)source().rows().setValue(PreviousVisit::column(slot), value);
  }
  m_newRowPending = m_newRowPending || source().rows().adding();
}

void VisitLedgerScreen::startVisit(const Visit& visit) {
  if (!source().isOpen() || !source().addNew()) return;
  if (const text::Done put = store::writeRecord(source().rows(), visit); !put)
    messages().tellDataFault(put.fault().message);
  source().show();
  sayResult({u"新規追加"_s, caption(kCountLabel), caption(kCount)});
  focusOn(kDate);
}

bool VisitLedgerScreen::writeVisit() {
  // A new row that a move wrote may have been deleted since: without any row, none waits to be stored.
  m_newRowPending = m_newRowPending && onVisit();
  if (noVisit() || !settleVisit()) return false;
  m_newRowPending = false;
  const text::Done passed = [this] {
    const screen::Hourglass passing;
    return passVisitDates(source().rows(), m_run.eraDates());
  }();
  if (!passed) messages().tellDataFault(passed.fault().message);
  source().show();
  return true;
}

void VisitLedgerScreen::storeVisit() {
  if (writeVisit()) messages().tell(u"「登録」しました。"_s);
}

void VisitLedgerScreen::storeVisitQuietly() {
  if (writeVisit()) voice().speakText(u"「登録」しました。"_s);
}

void VisitLedgerScreen::deleteVisit() {
  if (noVisit() || !messages().ask(u"　現在の表示の患者のカルテを削除しますか？"_s)) return;
  // A visit that was never stored only leaves the screen.
  if (source().rows().adding()) {
    source().drop();
    m_newRowPending = false;
  } else if (!source().remove()) {
    return;
  }
  sayResult(QStringList{u"削除しました"_s} + rowOnView());
}

void VisitLedgerScreen::fillToday() {
  if (noVisit()) return;
  if (!text(kDate).isEmpty())
    return messages().tell(u"治療日の項目に日付が入っています。削除してから実行して下さい。"_s);
  setText(kDate, todayText(m_run.eraDates()));
  sayResult({caption(kDate), text(kDate)});
}

void VisitLedgerScreen::copyToday() {
  const QString today = m_run.eraDates().formatEra(m_run.clock->today());
  services().desktop->copyText(today);
  sayResult({today, u"コピーしました"_s});
}

void VisitLedgerScreen::copySummary() {
  if (noVisit()) return;
  if (!text(kSummary).isEmpty())
    return messages().tell(u"治療概略の項目に文字が入っています。削除してから実行して下さい。"_s);
  setText(kSummary, m_previous.value(PreviousVisit::Summary));
  sayResult({caption(kSummary), text(kSummary)});
}

void VisitLedgerScreen::copyAmounts() {
  if (noVisit()) return;
  for (const auto& [slot, field] : kAmounts)
    if (!text(field).isEmpty())
      return messages().tell(u"金額の項目に文字が入っています。削除してから実行して下さい。"_s);
  QStringList parts;
  for (const auto& [slot, field] : kAmounts) {
    setText(field, m_previous.value(slot));
    parts << caption(field) << text(field);
  }
  sayResult(parts);
}

void VisitLedgerScreen::convert(const DateConversion& conversion) {
  if (noVisit()) return;
  std::vector<screen::ControlRef> dates{kBirth, kDate};
  if (onClaim()) dates.push_back(kFirstTreatment);
  convertDates(*this, dates, m_run.eraDates(), conversion);
  QStringList parts;
  for (const screen::ControlRef& date : dates)
    if (const QString converted = text(date); !converted.isEmpty()) parts << caption(date) << converted;
  if (!parts.isEmpty()) sayResult(parts);
}

void VisitLedgerScreen::toSeireki() { convert(kToSeireki); }
void VisitLedgerScreen::toWareki() { convert(kToWareki); }

}  // namespace records
