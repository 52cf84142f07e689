#include "printing/screens/claim_print_screen.h"

#include "claims/core/checks.h"
#include "platform/store/tables/claims.h"
#include "printing/contract/prompts.h"
#include "printing/core/claim_job.h"
#include "printing/core/screen_choice.h"
#include "printing/core/template_choice.h"

namespace printing {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char16_t kNoClaim[] = u"印刷するレセプトが開かれていません。";
constexpr char16_t kNoPaper[] = u"印刷する用紙を選択してください。";
constexpr char16_t kSent[] = u"印刷に送りました。";
constexpr char16_t kNotBuilt[] =
    u"選択された用紙の印刷は、まだ用意されていません。他の用紙を選択してください。";
// A work value of the prefecture's code that one print sets.
constexpr char16_t kWorkValueOfHiroshima[] = u"100";
constexpr char16_t kHiroshima[] = u"34";

QString editionGroup() { return QString::fromUtf16(kEditionGroup); }

/// The ticks that have a check box among the rows.
std::vector<claims::TickName<PrintTicks>> ticksAmong(Rows rows) {
  std::vector<claims::TickName<PrintTicks>> ticks;
  for (const Row& row : rows)
    if (const auto* check = std::get_if<Check>(&row))
      for (const claims::TickName<PrintTicks>& tick : kPrintTicks)
        if (QStringView(check->name.family()) == QStringView(tick.control)) ticks.push_back(tick);
  return ticks;
}

}  // namespace

ClaimPrintScreen::ClaimPrintScreen(Services& services, const PrintForm& form, frame::RunState& run,
                                   claims::ClaimsState& state, report::ReportOperations& engine)
    : Screen(form.declaration, services),
      m_screen(form.screen),
      m_ticks(ticksAmong(form.declaration.rows)),
      m_run(run),
      m_state(state),
      m_engine(engine) {}

void ClaimPrintScreen::onLoad() {
  const claims::ClaimRecord claim =
      m_state.display == nullptr ? claims::ClaimRecord() : m_state.display->record();
  const Edition preset =
      presetEdition(m_screen, m_run.eraDates(), claim.get(claim::month), claim.get(claim::summaryKind));
  if (const char16_t* option = rowOf(m_screen).controlOf(preset))
    choose(editionGroup(), QString::fromUtf16(option));
  const PrintTicks set = presetTicks(frame::prefectureOf(m_run.prefectureCode));
  for (const claims::TickName<PrintTicks>& row : m_ticks)
    setChecked(QString::fromUtf16(row.control), set.*row.tick);
}

PrintTicks ClaimPrintScreen::ticks() const {
  PrintTicks set;
  for (const claims::TickName<PrintTicks>& row : m_ticks)
    set.*row.tick = checked(QString::fromUtf16(row.control));
  return set;
}

PrintSource ClaimPrintScreen::source() const {
  PrintSource source;
  addClinicData(source, m_run);
  source.claim = m_state.display->record();
  source.kind = m_state.printKind;
  source.edition = editionNamed(m_screen, chosen(editionGroup()));
  source.ticks = ticks();
  source.form = m_state.display->checks();
  return source;
}

bool ClaimPrintScreen::claimPassesChecks(const claims::ClaimRecord& claim) {
  QStringList open;
  for (const claims::SingleWindow& window : claims::singleWindows())
    if (const QString name = QString::fromUtf16(window.screen); navigator().isShown(name)) open << name;
  const claims::CheckResult result = claims::checkClaimFast(claim, m_run.eraDates(), open);
  for (const QString& message : result.messages) messages().tell(message);
  return !result.stop;
}

void ClaimPrintScreen::print() {
  if (m_state.display == nullptr) return messages().tell(QString::fromUtf16(kNoClaim));
  const PrintSource claim = source();
  const auto paper = chooseTemplate(m_screen, claim);
  if (!paper) return messages().tell(QString::fromUtf16(kNoPaper));
  if (!paper->built) return messages().tell(QString::fromUtf16(kNotBuilt));

  const frame::EraDates dates = m_run.eraDates();
  PrintJob job = claimJob(claim, m_screen, dates);
  job.programFolder = m_run.programFolder;
  job.window = m_state.display->window();
  job.prompt = [this] { return messages().ask(promptOf(objectName())); };
  job.prepare = [this, &claim] { return claimPassesChecks(claim.claim); };
  job.cleanUp = [this] { leave(); };
  voice::VoiceGuide& guide = voice();  // the screen is gone when the print has ended
  const RunEnd end = runPrint(m_engine, job);
  if (end == RunEnd::Printed) guide.speakText(QString::fromUtf16(kSent));
  // The screen is still open then: the next ＯＫ tries again.
  if (end == RunEnd::NotTaken) messages().tell(m_engine.lastDocument().fault().message);
}

void ClaimPrintScreen::leave() {
  if (m_run.prefectureCode == kWorkValueOfHiroshima) m_run.prefectureCode = QString::fromUtf16(kHiroshima);
  cancel();
}

void ClaimPrintScreen::cancel() { navigator().unload(objectName()); }

void ClaimPrintScreen::printerOptions() { m_engine.PR_PrinterSetupDlg(winId()); }

}  // namespace printing
