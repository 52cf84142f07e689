#include "claims/core/claim_store.h"
#include "claims/core/trim.h"
#include "claims/screens/claim_form_screen.h"
#include "claims/screens/claim_form_settings_rows.h"
#include "claims/screens/claim_form_texts.h"
#include "frame/core/routes.h"
#include "platform/screen/bound_values.h"
#include "platform/screen/control_book.h"
#include "platform/text/number.h"
#include "platform/text/utf16.h"

// 登録: checks, trimming, question, then both halves in one transaction.

namespace claims {

using namespace Qt::StringLiterals;
using ::text::utf16;

namespace {

constexpr screen::FamilyRef kSettingFrames = screen::family(form::kPrintPage, u"FrameSet");

}  // namespace

void ClaimFormScreen::storeRow() {
  if (m_id == 0) return;
  applyMonth();
  if (!checkedFull()) return;
  if (storeTrims(record().get(claim::insuranceKind))) {
    const ClaimRecord typed = record();
    putChanges(typed, trimInsurer(typed));
    trimTexts();
  }
  if (!messages().ask(utf16(says::kStoreQuestion), screen::Buttons::YesNo)) return;

  const frame::EraDates era = m_run.eraDates();
  const FeeFiles files(m_run.programFolder, m_run.folders);
  const StoredClaim stored = storeClaim(record(), {era, files, m_fees});
  if (!writeClaim(stored.claim)) return;

  if (const text::Done done = source(1).rows().refresh(); !done)
    messages().tellDataFault(done.fault().message);
  showClaim(m_id);
  if (stored.calculation) messages().tellDataFault(stored.calculation->message);
  sayStored(stored.amounts);
  if (m_opener == routes::VisitLedger::screen && navigator().loaded(*m_opener)) navigator().show(*m_opener);
}

void ClaimFormScreen::sayStored(const ClaimAmounts& amounts) {
  QStringList parts{utf16(says::kStored)};
  if (amounts.regime != Regime::None) {
    const std::pair<const char16_t*, qint64> sums[] = {
        {u"合計", amounts.total}, {u"一部負担金", amounts.share}, {u"請求額", amounts.claim}};
    for (const auto& [name, yen] : sums)
      parts << u"%1 %2円"_s.arg(utf16(name)).arg(yen == 0 ? u"0"_s : ::text::thousands(yen));
  }
  voice().speakText(parts.join(voice::kSpeechSeparator));
}

bool ClaimFormScreen::writeClaim(const ClaimRecord& stored) {
  const text::Done done = m_file->store(m_id, m_read, stored);
  if (!done) messages().tellDataFault(done.fault().message);
  return done.ok();
}

void ClaimFormScreen::trimTexts() {
  const ClaimRecord typed = record();
  const TrimResult result = trimForPrint(typed, TrimForm::Claim);
  putChanges(typed, result.claim);
  markCut(result.cut);
  if (!result.cut.isEmpty()) messages().tell(utf16(kTrimMessage));
}

void ClaimFormScreen::putChanges(const ClaimRecord& before, const ClaimRecord& after) {
  for (auto it = after.columns().cbegin(); it != after.columns().cend(); ++it) {
    if (it.value() == before.named(it.key())) continue;
    if (screen::Control* control = screen::controlOf(*this, it.key(), {1, 2})) control->putText(it.value());
  }
}

void ClaimFormScreen::markCut(const QStringList& cut) {
  for (const int half : {1, 2})
    for (screen::Control* control : controls().boundTo(half)) {
      const bool red = cut.contains(control->column());
      if (red != control->isRed()) control->setRed(red);
    }
}

void ClaimFormScreen::printSettingChosen(int index) {
  if (m_id == 0) return;
  const screen::Control* group = controls().find(kSettingFrames[index]);
  ClaimRecord changed = m_read;
  changed.setNamed(group->column(), group->stored());
  if (writeClaim(changed)) m_read = changed;
}

}  // namespace claims
