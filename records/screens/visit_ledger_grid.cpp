#include "claims/core/day_codes.h"
#include "records/core/day_grid.h"
#include "records/screens/visit_ledger_rows.h"

// 療養費の日付の記入: which claim the day grid shows, its visible days, the checks of its cells.

namespace records {

using namespace Qt::Literals::StringLiterals;
using namespace visit_ledger_rows;

bool VisitLedgerScreen::gridShown() const { return isControlShown(kGridFrame); }

void VisitLedgerScreen::toggleGrid() {
  setChecked(kGridTick, !checked(kGridTick));
  gridToggled();
}

void VisitLedgerScreen::gridToggled() {
  if (checked(kGridTick)) return openGrid();
  const bool typed = claimPending();
  if (!leaveClaim()) return setChecked(kGridTick, true);  // reported; what was typed stays
  hideGrid();
  sayResult({caption(kGridFrame), typed ? u"登録しました"_s : u"表示なし"_s});
}

void VisitLedgerScreen::hideGrid() {
  setShown(kGridFrame, false);
  setChecked(kGridTick, false);
  m_claim.reset();
  m_flags = {};
  // The hidden list shows all first halves again.
  if (source(kFirstHalf).isOpen()) source(kFirstHalf).open(m_run.folders[frame::folder::kClaims1]);
}

void VisitLedgerScreen::openGrid() {
  setShown(kGridFrame, true);
  if (!putClaims()) return hideGrid();
  sayResult({caption(kGridFrame), text(kClaimMonth), text(kTreatmentKind)});
  // When the frame is laid out: before that the window cannot scroll to the cell.
  const auto goToFirstDay = [this, from = focused()] {
    if (gridShown() && focused() == from) focusOn(kCodes[0]);
  };
  QMetaObject::invokeMethod(this, goToFirstDay, Qt::QueuedConnection);
}

void VisitLedgerScreen::gridMonthEntered() {
  if (!gridShown()) {
    setChecked(kGridTick, true);
    return openGrid();
  }
  if (leaveClaim()) openGrid();
}

// A patient without any claim has nothing to write the days into, whether or not a month was asked for.
bool VisitLedgerScreen::putClaims() {
  auto opened = GridClaim::open(m_run.folders);
  if (!opened) {
    messages().tellDataFault(opened.fault().message);
    return false;
  }
  m_claim.emplace(std::move(*opened));
  const QString serial = text(kSerial).isEmpty() ? m_patient.serial : text(kSerial);
  auto claims = m_claim->of(serial, text(kMonthOfClaim));
  if (!claims) {
    messages().tellDataFault(claims.fault().message);
    return false;
  }
  if (claims->recordCount() == 0) {
    messages().tell(
        u"レセプトデータがありません。新規でレセプトを制作するか、「翌月へ継続」で、今月のデータを作ってから"
        u"クリックして下さい。"_s);
    return false;
  }
  source(kFirstHalf).assign(std::move(*claims));
  return true;
}

void VisitLedgerScreen::showClaim() {
  const store::RecordSet& rows = source(kFirstHalf).rows();
  auto half = m_claim->take(rows.recordCount() > 0 ? rows.bookmark() : 0);
  if (half)
    source(kSecondHalf).assign(std::move(*half));
  else
    messages().tellDataFault(half.fault().message);
  applyGridMonth();
}

void VisitLedgerScreen::applyGridMonth() {
  const std::optional<QDate> month = gridMonth(text(kClaimMonth), m_run.eraDates());
  m_flags = claims::monthFlags(month);
  const QString row = m_flags.isAfter202410 ? u"往療人数"_s : u"往療距離"_s;
  if (caption(kVisitCaptions[0]) != row) {
    for (const screen::ControlRef& label : kVisitCaptions) setCaption(label, row);
    for (int cell = 0; cell < kCells; ++cell)
      setCaption(kVisitCells[cell], u"%1日 %2"_s.arg(cell + 1).arg(row));
  }
  const int days = visibleDays(month);
  for (int cell = 0; cell < kCells; ++cell)
    for (const screen::ControlRef& control : {kCodes[cell], kVisitCells[cell]})
      setShown(control, cell < days);
}

void VisitLedgerScreen::codeLeft(int cell) {
  const QString message = gridCodeMessage(text(kCodes[cell]), text(kTreatmentKind));
  if (message.isNull()) return;
  keepFocus();
  messages().tell(message);
}

void VisitLedgerScreen::visitLeft(int cell) {
  const QString message = claims::visitEntryMessage(text(kVisitCells[cell]), m_flags.isAfter202410);
  if (message.isNull()) return;
  keepFocus();
  messages().tell(message);
}

}  // namespace records
