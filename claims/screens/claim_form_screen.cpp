#include "claims/screens/claim_form_screen.h"

#include <algorithm>

#include "claims/screens/claim_form_head_rows.h"
#include "claims/screens/claim_form_insurance_rows.h"
#include "claims/screens/claim_form_texts.h"
#include "frame/core/routes.h"
#include "platform/text/utf16.h"

// Opening, moving, deleting and closing, with the checks that stop them.

namespace claims {

using text::utf16;

namespace {

constexpr screen::RecordWords kWords{.stored = says::kStored, .deleteQuestion = says::kDeleteQuestion};

}  // namespace

ClaimFormScreen::ClaimFormScreen(screen::Services& services, frame::RunState& run, ClaimsState& state)
    : RecordScreen(kClaimFormScreen, services, kWords), m_run(run), m_state(state), m_display(*this) {}

ClaimFormScreen::~ClaimFormScreen() {
  if (m_state.display == &m_display) m_state.display = nullptr;
}

void ClaimFormScreen::onLoad() {
  setShown(form::on(form::kInsurance, claim::shareTicks), false);
  if (!openSources()) return;
  fillLists();
}

void ClaimFormScreen::opened(const screen::Request& request) {
  const auto* route = request.as<routes::ClaimForm>();
  if (route == nullptr) return;
  if (m_id == route->id) {
    messages().tell(utf16(says::kAlreadyOpen));
    return;
  }
  if (m_id != 0 && !mayLeave()) return;
  m_opener = route->opener;
  showClaim(route->id);
}

bool ClaimFormScreen::onCloseBox() {
  messages().tell(utf16(says::kUseCloseButton));
  return false;
}

void ClaimFormScreen::closeForm() {
  if (m_id == 0) return leaveTo(m_opener);
  if (dirty()) return;
  if (const QString open = openWindowMessage(openWindows()); !open.isNull()) return messages().tell(open);
  // NULL, not blank: a claim whose days fit no kind is blank there once it is stored.
  if (m_read.get(claim::subject).isNull()) return messages().tell(utf16(says::kNeverStored));
  if (checkedFast()) leaveTo(m_opener);
}

void ClaimFormScreen::leaveTo(std::optional<screen::ScreenName> next) {
  const QString opener = next.value_or(routes::ClaimList::screen);
  closePreview();
  m_state.display = nullptr;
  if (navigator().loaded(opener) != nullptr) navigator().show(opener);
  navigator().unload(routes::ClaimForm::screen);
}

void ClaimFormScreen::removeRow() {
  if (m_id == 0 || !confirmRemoval()) return;
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
  if (!showPair()) return showNothing();
  announce();
}

// The rows alone are moved: at the end of the list the pair, and what was typed, stays as it is.
void ClaimFormScreen::moveRow(const screen::RowMove& move) {
  store::RecordSet& rows = source(1).rows();
  const text::Done read = rows.moveAndRead([&move](store::RecordSet& set) {
    (set.*move.byRows)();
    if (set.bof()) set.moveFirst();
    if (set.eof()) set.moveLast();
  });
  if (!read) messages().tellDataFault(read.fault().message);
  // The same claim: at its end already, the pair stays as it is. One that cannot be read: so does the form.
  if (rows.bookmark() != m_id && !showPair()) rows.setBookmark(m_id);
}

QStringList ClaimFormScreen::rowInWords() const {
  QStringList parts;
  for (const screen::ControlRef& field :
       {form::on(form::kHead, claim::name), form::on(form::kHead, claim::month)})
    parts << caption(field) << text(field);
  return parts;
}

bool ClaimFormScreen::dirty() {
  if (!checkChanged() && !m_treatmentChanged) return false;
  messages().tell(utf16(checkChanged() ? says::kCheckChanged : says::kTreatmentChanged));
  return true;
}

QStringList ClaimFormScreen::openWindows() {
  QStringList open;
  for (const SingleWindow& window : singleWindows())
    if (const QString name = utf16(window.screen); navigator().isShown(name)) open << name;
  return open;
}

bool ClaimFormScreen::checkedFast() {
  return passed(checkClaimFast(record(), m_run.eraDates(), openWindows()));
}

bool ClaimFormScreen::checkedFull() { return passed(checkClaimFull(record(), m_run.eraDates())); }

bool ClaimFormScreen::passed(const CheckResult& result) {
  for (const QString& message : result.messages) messages().tell(message);
  return !result.stop;
}

}  // namespace claims
