#include "claims/core/claim_store.h"
#include "claims/core/trim.h"
#include "claims/screens/claim_form_screen.h"
#include "claims/screens/claim_form_texts.h"
#include "platform/store/tables/claims.h"
#include "platform/text/number.h"

// 登録: checks, trimming, question, then both halves in one transaction.

namespace claims {

void ClaimFormScreen::store() {
  if (m_id == 0) return;
  applyMonth();
  if (!checkedFull()) return;
  if (storeTrims(record().get(claim::insuranceKind))) {
    showRecord(*this, m_controls, trimInsurer(record()));
    trimTexts();
  }
  if (!messages().ask(QString::fromUtf16(says::kStoreQuestion), screen::Buttons::YesNo)) return;

  const frame::EraDates era = m_run.eraDates();
  const FeeFiles files(m_run.programFolder, m_run.folders);
  const StoredClaim stored = storeClaim(record(), {era, files, m_fees});
  if (!writeClaim(stored.claim)) return;

  if (const text::Done done = source(1).rows().refresh(); !done)
    messages().tellDataFault(done.fault().message);
  showClaim(m_id);
  if (stored.calculation) messages().tellDataFault(stored.calculation->message);
  sayStored(stored.amounts);
  if (m_opener == u"治療台帳3" && navigator().loaded(m_opener)) navigator().show(m_opener);
}

void ClaimFormScreen::sayStored(const ClaimAmounts& amounts) {
  QStringList parts{QString::fromUtf16(says::kStored)};
  if (amounts.regime != Regime::None) {
    const std::pair<const char16_t*, qint64> sums[] = {
        {u"合計", amounts.total}, {u"一部負担金", amounts.share}, {u"請求額", amounts.claim}};
    for (const auto& [name, yen] : sums)
      parts << QStringLiteral("%1 %2円")
                   .arg(QString::fromUtf16(name))
                   .arg(yen == 0 ? QStringLiteral("0") : ::text::thousands(yen));
  }
  voice().speakText(parts.join(voice::kSpeechSeparator));
}

bool ClaimFormScreen::writeClaim(const ClaimRecord& stored) {
  const text::Done done = m_file->store(m_id, m_read, stored);
  if (!done) messages().tellDataFault(done.fault().message);
  return done.ok();
}

void ClaimFormScreen::trimTexts() {
  const TrimResult result = trimForPrint(record(), TrimForm::Claim);
  showRecord(*this, m_controls, result.claim, QSet<QString>(result.cut.begin(), result.cut.end()));
  markCut(result.cut);
  if (!result.cut.isEmpty()) messages().tell(QString::fromUtf16(kTrimMessage));
}

void ClaimFormScreen::markCut(const QStringList& cut) {
  for (const BoundControl& bound : m_controls)
    if (bound.kind == BoundControl::Kind::Text) {
      const bool red = cut.contains(bound.column);
      if (red != isCaptionRed(bound.control)) setCaptionRed(bound.control, red);
    }
}

void ClaimFormScreen::printSettingChosen(int index) {
  if (m_id == 0) return;
  const QString control = QStringLiteral("FrameSet(%1)").arg(index);
  for (const BoundControl& bound : m_controls) {
    if (bound.control != control) continue;
    ClaimRecord changed = m_read;
    changed.set(bound.column, chosen(control));
    if (writeClaim(changed)) m_read = changed;
    return;
  }
}

}  // namespace claims
