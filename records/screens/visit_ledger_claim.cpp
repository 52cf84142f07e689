#include "claims/core/check_grid.h"
#include "platform/screen/control_book.h"
#include "platform/screen/hourglass.h"
#include "records/screens/visit_ledger_screen.h"

// The typed days of a claim: validated, written to both halves, handed over to the claim form.

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kForm = u"frmレセプトフォーム"_s;

}  // namespace

bool VisitLedgerScreen::claimPending() const {
  return onClaim() && (source(2).pending() || source(3).pending());
}

claims::ClaimRecord VisitLedgerScreen::typedClaim() const {
  claims::ClaimRecord typed;
  for (const int half : {2, 3})
    for (const screen::Control* control : controls().boundTo(half))
      if (control->changed()) typed.set(control->column(), control->stored());
  return typed;
}

bool VisitLedgerScreen::writeClaim() {
  if (const text::Done done = m_claim->write(typedClaim()); !done) {
    messages().tellDataFault(done.fault().message);
    return false;
  }
  readClaimAgain();
  return true;
}

bool VisitLedgerScreen::leaveClaim() { return !claimPending() || writeClaim(); }

void VisitLedgerScreen::readClaimAgain() {
  if (const text::Done read = source(3).rows().refresh(); !read)
    return messages().tellDataFault(read.fault().message);
  source(3).show();
}

void VisitLedgerScreen::storeGrid() {
  if (!onClaim()) return;
  const QString message = claims::ledgerGridMessage(m_claim->with(typedClaim()), m_flags);
  if (!message.isNull()) return messages().tell(message);
  // The form holds the claim as it read it: it must not stay beside a claim that changes under it.
  if (navigator().loaded(kForm)) {
    navigator().show(kForm);
    return messages().tell(u"既にレセプトフォームは開かれています"_s);
  }
  if (writeClaim()) handOver();
}

// The form is loaded without being shown, as long as the question stands.
void VisitLedgerScreen::handOver() {
  screen::Screen* form = nullptr;
  {
    const screen::Hourglass loading;
    form = navigator().load(kForm);
    if (form) form->opened({{u"ID"_s, m_claim->id()}, {u"opener"_s, u"治療台帳3"_s}});
  }
  if (!form) return;
  if (!messages().ask(u"レセプトデータの登録を押してください。"_s)) return navigator().unload(kForm);
  form->focusOn(u"cmdUpdate"_s);
  navigator().show(kForm);
}

}  // namespace records
