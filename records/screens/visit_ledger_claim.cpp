#include "claims/core/check_grid.h"
#include "platform/screen/bound_values.h"
#include "platform/screen/hourglass.h"
#include "platform/text/utf16.h"
#include "records/screens/visit_ledger_rows.h"

// The typed days of a claim: validated, written to both halves, handed over to the claim form.

namespace records {

using namespace Qt::Literals::StringLiterals;
using namespace visit_ledger_rows;

bool VisitLedgerScreen::claimPending() const {
  return onClaim() && (source(kSecondHalf).pending() || source(kFirstHalf).pending());
}

claims::ClaimRecord VisitLedgerScreen::typedClaim() const {
  return {screen::changedValues(*this, {kSecondHalf, kFirstHalf}), {}};
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
  if (const text::Done read = source(kFirstHalf).rows().refresh(); !read)
    return messages().tellDataFault(read.fault().message);
  source(kFirstHalf).show();
}

void VisitLedgerScreen::storeGrid() {
  if (!onClaim()) return;
  const QString message = claims::ledgerGridMessage(m_claim->with(typedClaim()), m_flags);
  if (!message.isNull()) return messages().tell(message);
  // An open form shows the claim as it read it, perhaps this one: the claim must not change meanwhile.
  if (navigator().loaded(routes::ClaimForm::screen)) {
    navigator().show(routes::ClaimForm::screen);
    return messages().tell(u"既にレセプトフォームは開かれています"_s);
  }
  if (writeClaim()) handOver();
}

// The form is loaded without being shown while the question is open.
void VisitLedgerScreen::handOver() {
  screen::Screen* form = nullptr;
  {
    const screen::Hourglass loading;
    form = navigator().load(routes::ClaimForm::screen);
    if (form) form->opened(routes::ClaimForm{.id = m_claim->id(), .opener = routes::VisitLedger::screen});
  }
  if (!form) return;
  if (!messages().ask(u"レセプトデータの登録を押してください。"_s))
    return navigator().unload(routes::ClaimForm::screen);
  form->focusOn(text::utf16(routes::ClaimForm::storeCommand));
  navigator().show(routes::ClaimForm::screen);
}

}  // namespace records
