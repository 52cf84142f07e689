#include "platform/screen/hourglass.h"
#include "platform/shell/desktop.h"
#include "records/core/visit_dates.h"
#include "records/screens/visit_ledger_screen.h"

// One visit: adding, storing with the date pass, copying of the previous visit, dates.

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kDate = u"txtFields(2)"_s;
const QString kSummary = u"txtFields(3)"_s;
/// 保険者負担金, 保険の一部負担金, 治療金額, in the order of their slots.
const std::pair<PreviousVisit::Slot, QString> kAmounts[] = {{PreviousVisit::Insurer, u"txtFields(4)"_s},
                                                            {PreviousVisit::Share, u"txtFields(5)"_s},
                                                            {PreviousVisit::Amount, u"txtFields(6)"_s}};

}  // namespace

bool VisitLedgerScreen::noVisit() {
  if (onVisit()) return false;
  messages().tell(noRowsText());
  return true;
}

void VisitLedgerScreen::addVisit() {
  if (!source().isOpen() && !openWhole()) return;
  if (!settleVisit()) return;
  if (text(u"txtFields(0)"_s).isEmpty()) {
    // Kept: without a name on view each value lands one place early, the serial as the name and the name as
    // the birth date. Only カルテ2の新規 writes the right fields.
    startVisit(m_key, m_name, m_key);
  } else {
    if (!source().ensureRead()) return;
    m_previous.take([this](const QString& column) { return source().rows().value(column); });
    startVisit(m_previous.value(PreviousVisit::Name), m_previous.value(PreviousVisit::Birth),
               m_previous.value(PreviousVisit::Patient));
    if (!source().rows().adding()) return;
    for (const int slot : PreviousVisit::carriedAtOnce())
      if (const QString value = m_previous.value(slot); !value.isEmpty())
        // A file that never grew lacks the column: there is nothing to carry then.
        (void)source().rows().setValue(PreviousVisit::column(slot), value);
  }
  m_newRowPending = m_newRowPending || source().rows().adding();
}

void VisitLedgerScreen::startVisit(const QString& name, const QString& birth, const QString& patient) {
  if (!source().isOpen() || !source().addNew()) return;
  store::RecordSet& rows = source().rows();
  for (const auto& [column, value] :
       {std::pair(u"氏名"_s, name), std::pair(u"生年月日"_s, birth), std::pair(u"ETC1"_s, patient)})
    if (const text::Done set = rows.setValue(column, value); !set)
      messages().tellDataFault(set.fault().message);
  source().show();
  sayResult({u"新規追加"_s, caption(u"LabelCount"_s), caption(u"Label14"_s)});
  focusOn(kDate);
}

bool VisitLedgerScreen::writeVisit() {
  // A new row that a move has written may be deleted since: where none is left, none waits to be stored.
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

void VisitLedgerScreen::convertDates(QString (frame::EraDates::*conversion)(const QString&) const) {
  if (noVisit()) return;
  const frame::EraDates dates = m_run.eraDates();
  QStringList parts;
  for (const QString& field : {u"txtFields(1)"_s, kDate, u"txtFields(32)"_s}) {
    const QString before = text(field);
    if (before.isEmpty() || (field == u"txtFields(32)" && !onClaim())) continue;
    if (const QString after = (dates.*conversion)(before); after != before) setText(field, after);
    parts << caption(field) << text(field);
  }
  if (!parts.isEmpty()) sayResult(parts);
}

void VisitLedgerScreen::toSeireki() { convertDates(&frame::EraDates::seireki); }
void VisitLedgerScreen::toWareki() { convertDates(&frame::EraDates::wareki); }

}  // namespace records
