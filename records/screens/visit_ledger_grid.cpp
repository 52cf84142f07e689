#include "claims/core/day_codes.h"
#include "records/core/day_grid.h"
#include "records/screens/visit_ledger_screen.h"

// 療養費の日付の記入: which claim the day grid shows, its visible days, the checks of its cells.

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kCells = 31;
const QString kTick = u"Check1"_s;
const QString kFrame = u"Frame1"_s;

QString code(int cell) { return u"Text5(%1)"_s.arg(cell); }
QString visit(int cell) { return u"Text6(%1)"_s.arg(cell); }

}  // namespace

bool VisitLedgerScreen::gridShown() const { return isControlShown(kFrame); }

void VisitLedgerScreen::toggleGrid() {
  setChecked(kTick, !checked(kTick));
  gridToggled();
}

void VisitLedgerScreen::gridToggled() {
  if (checked(kTick)) return openGrid();
  const bool typed = claimPending();
  if (!leaveClaim()) return setChecked(kTick, true);  // told; what was typed stays
  hideGrid();
  sayResult({caption(kFrame), typed ? u"登録しました"_s : u"表示なし"_s});
}

void VisitLedgerScreen::hideGrid() {
  setShown(kFrame, false);
  setChecked(kTick, false);
  m_claim.reset();
  m_flags = {};
  // The first halves stand whole again behind the hidden frame.
  if (source(3).isOpen()) source(3).open(m_run.folders[frame::folder::kClaims1]);
}

void VisitLedgerScreen::openGrid() {
  setShown(kFrame, true);
  if (!putClaims()) return hideGrid();
  sayResult({caption(kFrame), text(u"txtFields(114)"_s), text(u"txtFields(67)"_s)});
  // Once the frame has its place: before that the window cannot scroll to the cell.
  const auto goToFirstDay = [this, from = focused()] {
    if (gridShown() && focused() == from) focusOn(code(0));
  };
  QMetaObject::invokeMethod(this, goToFirstDay, Qt::QueuedConnection);
}

void VisitLedgerScreen::gridMonthEntered() {
  if (!gridShown()) {
    setChecked(kTick, true);
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
  const QString patient = text(u"Text2"_s).isEmpty() ? m_key : text(u"Text2"_s);
  auto claims = m_claim->of(patient, text(u"txtFields(115)"_s));
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
  source(3).assign(std::move(*claims));
  return true;
}

void VisitLedgerScreen::showClaim() {
  const store::RecordSet& rows = source(3).rows();
  auto half = m_claim->take(rows.recordCount() > 0 ? rows.value(u"ID"_s).toLongLong() : 0);
  if (half)
    source(2).assign(std::move(*half));
  else
    messages().tellDataFault(half.fault().message);
  applyGridMonth();
}

void VisitLedgerScreen::applyGridMonth() {
  const std::optional<QDate> month = gridMonth(text(u"txtFields(114)"_s), m_run.eraDates());
  m_flags = claims::monthFlags(month);
  const QString row = m_flags.isAfter202410 ? u"往療人数"_s : u"往療距離"_s;
  if (caption(u"Label9"_s) != row) {
    for (const QString& label : {u"Label9"_s, u"Label16"_s}) setCaption(label, row);
    for (int cell = 0; cell < kCells; ++cell) setCaption(visit(cell), u"%1日 %2"_s.arg(cell + 1).arg(row));
  }
  const int days = visibleDays(month);
  for (int cell = 0; cell < kCells; ++cell)
    for (const QString& control : {code(cell), visit(cell)}) setShown(control, cell < days);
}

void VisitLedgerScreen::codeLeft(int cell) {
  const QString message = gridCodeMessage(text(code(cell)), text(u"txtFields(67)"_s));
  if (message.isNull()) return;
  keepFocus();
  messages().tell(message);
}

void VisitLedgerScreen::visitLeft(int cell) {
  const QString message = claims::visitEntryMessage(text(visit(cell)), m_flags.isAfter202410);
  if (message.isNull()) return;
  keepFocus();
  messages().tell(message);
}

}  // namespace records
