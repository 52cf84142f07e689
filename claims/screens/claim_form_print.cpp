#include "claims/core/amounts.h"
#include "claims/core/carry_forward.h"
#include "claims/screens/claim_form_screen.h"
#include "claims/screens/claim_form_texts.h"
#include "platform/store/tables/claims.h"

// Calculation, carry-forward and the print buttons.

namespace claims {

void ClaimFormScreen::closePreview() {
  for (const PreviewRow& preview : kPreviews)
    if (const QString name = columnName(preview.screen); navigator().loaded(name) != nullptr)
      navigator().unload(name);
  m_state.previewKind = 0;
}

void ClaimFormScreen::previewFees() {
  if (m_id == 0) return;
  applyMonth();
  if (!mayLeave()) return;
  closePreview();
  const Preview preview = previewOf(kindOf(m_read.get(claim::treatmentKind)), m_flags.month);
  if (preview == Preview::None) return;
  m_state.previewKind = static_cast<int>(preview);
  navigator().show(previewScreen(preview));
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

void ClaimFormScreen::printAcupuncture() { print(1); }
void ClaimFormScreen::printMassage() { print(2); }

void ClaimFormScreen::print(int kind) {
  if (m_id == 0) return;
  applyMonth();
  if (!mayLeave()) return;
  const QString insurance = record().get(claim::insuranceKind);
  if (insurance == u"国保" || insurance == u"社保") {
    if (!checkedFull()) return;
    trimTexts();
  }
  m_state.printKind = kind;
  const QString name = m_state.choosePrintScreen ? m_state.choosePrintScreen(record(), checks()) : QString();
  if (name.isEmpty()) return messages().tell(QString::fromUtf16(says::kNoPrintScreen));
  navigator().show(name);
}

void ClaimFormScreen::printRecord() {
  if (m_id == 0) return;
  applyMonth();
  if (!mayLeave()) return;
  navigator().show(m_flags.isAfter202410 ? QStringLiteral("施術録単体印刷2024")
                                         : QStringLiteral("施術録単体印刷"));
}

void ClaimFormScreen::printerOptions() {
  if (m_state.printerSetup) m_state.printerSetup(winId());
}

}  // namespace claims
