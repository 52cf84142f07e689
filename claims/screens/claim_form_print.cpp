#include "claims/core/amounts.h"
#include "claims/core/carry_forward.h"
#include "claims/screens/claim_form_screen.h"
#include "claims/screens/claim_form_texts.h"
#include "frame/core/routes_unbuilt.h"
#include "platform/text/utf16.h"

// Calculation, carry-forward and the print buttons.

namespace claims {

using text::utf16;

void ClaimFormScreen::closePreview() {
  for (const PreviewRow& row : kPreviews)
    if (navigator().loaded(row.screen) != nullptr) navigator().unload(row.screen);
}

void ClaimFormScreen::previewFees() {
  if (m_id == 0) return;
  applyMonth();
  if (!mayLeave()) return;
  closePreview();
  const Preview preview = previewOf(kindOf(m_read.get(claim::treatmentKind)), m_flags.month);
  if (preview != Preview::None) navigator().show(previewScreen(preview));
}

void ClaimFormScreen::carryForward() {
  if (m_id == 0) return;
  if (m_carried) {
    for (const QString& message : secondCarryMessages()) messages().tell(message);
    return;
  }
  if (!mayLeave()) return;
  const ClaimRecord claim = record();
  if (const QString refusal = carryForwardRefusal(claim); !refusal.isNull()) return messages().tell(refusal);
  if (!messages().ask(carryQuestion().join(u'\n'), screen::Buttons::YesNo)) return;
  const auto added = m_file->add(claims::carryForward(claim));
  if (!added) return messages().tellDataFault(added.fault().message);
  m_carried = true;
  if (showClaim(added.value())) announce();
}

void ClaimFormScreen::printAcupuncture() { print(PrintKind::Acupuncture); }
void ClaimFormScreen::printMassage() { print(PrintKind::Massage); }

void ClaimFormScreen::print(PrintKind kind) {
  if (m_id == 0) return;
  applyMonth();
  if (!mayLeave()) return;
  const QString insurance = record().get(claim::insuranceKind);
  if (insurance == u"国保" || insurance == u"社保") {
    if (!checkedFull()) return;
    trimTexts();
  }
  m_state.printKind = kind;
  const QString name =
      m_state.printing != nullptr ? m_state.printing->screenOf(record(), checks()) : QString();
  if (name.isEmpty()) return messages().tell(utf16(says::kNoPrintScreen));
  navigator().show(name);
}

void ClaimFormScreen::printRecord() {
  if (m_id == 0) return;
  applyMonth();
  if (!mayLeave()) return;
  navigator().show(m_flags.isAfter202410 ? routes::unbuilt::TreatmentRecord2024::screen
                                         : routes::unbuilt::TreatmentRecord::screen);
}

void ClaimFormScreen::printerOptions() {
  if (m_state.printing != nullptr) m_state.printing->setUpPrinter(winId());
}

}  // namespace claims
