#include "claims/screens/claim_form_screen.h"

#include <algorithm>

#include "claims/screens/claim_form_rows.h"
#include "claims/screens/claim_form_texts.h"
#include "platform/store/tables/claims.h"

namespace claims {

ClaimFormScreen::ClaimFormScreen(screen::Services& services, frame::RunState& run, ClaimsState& state)
    : Screen(claimFormDeclaration(), services),
      m_run(run),
      m_state(state),
      m_display(*this),
      m_controls(boundControls(claimFormDeclaration().rows)) {}

ClaimFormScreen::~ClaimFormScreen() {
  if (m_state.display == &m_display) m_state.display = nullptr;
}

void ClaimFormScreen::onLoad() {
  setShown(QStringLiteral("Text10"), false);
  if (!openSources()) return;
  fillLists();
}

void ClaimFormScreen::opened(const screen::Request& request) {
  if (!request.contains(QStringLiteral("ID"))) return;
  const qint64 id = request.value(QStringLiteral("ID")).toLongLong();
  if (m_id == id) {
    messages().tell(QString::fromUtf16(says::kAlreadyOpen));
    return;
  }
  if (m_id != 0 && !mayLeave()) return;
  m_opener = request.value(QStringLiteral("opener")).toString();
  showClaim(id);
}

bool ClaimFormScreen::onCloseBox() {
  messages().tell(QString::fromUtf16(says::kUseCloseButton));
  return false;
}

void ClaimFormScreen::closeForm() {
  if (m_id == 0) return leaveTo(m_opener);
  if (dirty()) return;
  if (const QString open = openWindowMessage(openWindows()); !open.isNull()) {
    m_state.claimCheck = QStringLiteral("break");
    messages().tell(open);
    return;
  }
  // NULL, not blank: a claim whose days fit no kind is blank there once it is stored.
  if (m_read.get(claim::subject).isNull()) {
    messages().tell(QString::fromUtf16(says::kNeverStored));
    return;
  }
  if (!checkedFast()) return;
  leaveTo(m_opener);
}

void ClaimFormScreen::leaveTo(const QString& screenName) {
  const QString next = screenName.isEmpty() ? QStringLiteral("レセプト一覧表") : screenName;
  closePreview();
  m_state.display = nullptr;
  if (navigator().loaded(next) != nullptr) navigator().show(next);
  navigator().unload(QString::fromUtf16(declaration().name.get()));
}

void ClaimFormScreen::removeClaim() {
  if (m_id == 0 || !messages().ask(QString::fromUtf16(says::kDeleteQuestion))) return;
  store::RecordSet& rows = source(1).rows();
  const int position = rows.absolutePosition();
  text::Done done = m_file->remove(m_id);
  if (done) done = rows.refresh();
  if (!done) return messages().tellDataFault(done.fault().message);
  if (rows.recordCount() == 0) {
    showNothing();
    return leaveTo(m_opener);
  }
  rows.setAbsolutePosition(std::min(position, rows.recordCount() - 1));
  showPair();
  announce();
}

void ClaimFormScreen::goFirst() { step(&store::RecordSet::moveFirst); }
void ClaimFormScreen::goPrevious() { step(&store::RecordSet::movePrevious); }
void ClaimFormScreen::goNext() { step(&store::RecordSet::moveNext); }
void ClaimFormScreen::goLast() { step(&store::RecordSet::moveLast); }

void ClaimFormScreen::step(void (store::RecordSet::*move)()) {
  if (m_id == 0 || !mayLeave()) return;
  store::RecordSet& rows = source(1).rows();
  (rows.*move)();
  if (rows.bof()) rows.moveFirst();
  if (rows.eof()) rows.moveLast();
  if (rows.bookmark() != m_id) showPair();  // else at its end already: the pair stays as it is
  announce();
}

void ClaimFormScreen::announce() {
  QStringList parts;
  for (const char16_t* field : {u"txtFields(0)", u"txtFields(1)"})
    parts << caption(QString::fromUtf16(field)) << text(QString::fromUtf16(field));
  voice().speakHeading(parts);
}

bool ClaimFormScreen::dirty() {
  if (!checkChanged() && !m_treatmentChanged) return false;
  messages().tell(QString::fromUtf16(checkChanged() ? says::kCheckChanged : says::kTreatmentChanged));
  return true;
}

QStringList ClaimFormScreen::openWindows() {
  QStringList open;
  for (const SingleWindow& window : singleWindows()) {
    const QString name = QString::fromUtf16(window.screen);
    if (navigator().isShown(name)) open << name;
  }
  return open;
}

bool ClaimFormScreen::checkedFast() {
  return passed(checkClaimFast(record(), m_run.eraDates(), openWindows()));
}

bool ClaimFormScreen::checkedFull() { return passed(checkClaimFull(record(), m_run.eraDates())); }

bool ClaimFormScreen::passed(const CheckResult& result) {
  m_state.claimCheck = result.claimCheck();
  for (const QString& message : result.messages) messages().tell(message);
  return !result.stop;
}

}  // namespace claims
