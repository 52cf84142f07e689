#include "printing/screens/claim_print_screen.h"

#include "claims/core/checks.h"
#include "printing/contract/prompts.h"
#include "printing/core/claim_job.h"
#include "printing/core/screen_choice.h"
#include "printing/core/template_choice.h"

namespace printing {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char16_t kScreen[] = u"レセプト印刷2024";
constexpr char16_t kForm2024[] = u"令和６年１０月からの新用紙";
constexpr char16_t kForm2021[] = u"令和3年4月からの新用紙（丸印無の印刷）";

constexpr Choice kEditions[] = {{{u"Option9"}, kForm2024, u"Option9"}, {{u"Option8"}, kForm2021, u"Option8"}};

/// One tick for each paper, told apart by the paper's name.
constexpr Check eraTick(ControlName name, const char16_t* paper) {
  return {.name = name,
          .caption = u"申請年月に元号を追加",
          .bind = Unbound{u"chosen for this print"},
          .group = paper};
}

constexpr Row kRows[] = {
    Note{.name = {u"Label1"}, .caption = u"印刷する用紙を選択して、ＯＫを押してください。", .spoken = true},
    Options{.name = {u"Frame1"},
            .caption = u"印刷用紙",
            .bind = Unbound{u"chosen for this print"},
            .choices = kEditions},
    Group{.name = {u"Frame2"}, .caption = kForm2024, .columns = 1},
    eraTick({u"Check6"}, kForm2024),
    EndGroup{},
    Group{.name = {u"Frame3"}, .caption = kForm2021, .columns = 1},
    eraTick({u"Check4"}, kForm2021),
    EndGroup{},
    Check{.name = {u"Check2"},
          .caption = u"右上部の高齢９・高齢８→高齢ー・高齢７にした印刷",
          .bind = Unbound{u"chosen for this print"}},
    Bar{},
    Command{
        .name = {u"Command1"}, .caption = u"ＯＫ", .run = run<&ClaimPrintScreen::print>, .standard = true},
    Command{.name = {u"Command2"},
            .caption = u"キャンセル",
            .run = run<&ClaimPrintScreen::cancel>,
            .key = u"Esc"},
    Command{.name = {u"Command3"},
            .caption = u"プリンターオプション",
            .run = run<&ClaimPrintScreen::printerOptions>},
    EndBar{},
};

constexpr ScreenRow kDeclaration{
    .name = kScreen, .caption = u"レセプト印刷", .rows = kRows, .heading = u"レセプト印刷"};

constexpr char16_t kNoClaim[] = u"印刷するレセプトが開かれていません。";
constexpr char16_t kNoPaper[] = u"印刷する用紙を選択してください。";
constexpr char16_t kSent[] = u"印刷に送りました。";
constexpr char16_t kNotBuilt[] =
    u"選択された用紙の印刷は、まだ用意されていません。他の用紙を選択してください。";

QString screenName() { return QString::fromUtf16(kScreen); }

}  // namespace

ClaimPrintScreen::ClaimPrintScreen(Services& services, frame::RunState& run, claims::ClaimsState& state,
                                   report::ReportOperations& engine)
    : Screen(kDeclaration, services), m_run(run), m_state(state), m_engine(engine) {}

void ClaimPrintScreen::onLoad() {
  choose(u"Frame1"_s, presetOption(screenName(), m_run.eraDates(), QString(), QString()));
  for (const QString& check : presetChecks(m_run.prefectureCode)) setChecked(check, true);
}

QSet<QString> ClaimPrintScreen::ticks() const {
  QSet<QString> set;
  for (const QString& name : {u"Check2"_s, u"Check4"_s, u"Check6"_s})
    if (checked(name)) set.insert(name);
  return set;
}

PrintSource ClaimPrintScreen::source() const {
  PrintSource source;
  takePractice(source, m_run);
  source.claim = m_state.display->record();
  source.kind = m_state.printKind == 2 ? PrintKind::Massage : PrintKind::Acupuncture;
  source.option = chosen(u"Frame1"_s);
  source.screenChecks = ticks();
  source.claimChecks = m_state.display->checks();
  source.itemsOnly = source.claimChecks.contains(u"Check13"_s);
  return source;
}

bool ClaimPrintScreen::claimStands(const claims::ClaimRecord& claim) {
  QStringList open;
  for (const claims::SingleWindow& window : claims::singleWindows())
    if (const QString name = QString::fromUtf16(window.screen); navigator().isShown(name)) open << name;
  const claims::CheckResult result = claims::checkClaimFast(claim, m_run.eraDates(), open);
  m_state.claimCheck = result.claimCheck();
  for (const QString& message : result.messages) messages().tell(message);
  return !result.stop;
}

void ClaimPrintScreen::print() {
  if (m_state.display == nullptr) return messages().tell(QString::fromUtf16(kNoClaim));
  const PrintSource claim = source();
  const auto paper = chooseTemplate(templateQuery(screenName(), claim));
  if (!paper) return messages().tell(QString::fromUtf16(kNoPaper));
  if (!paper->built) return messages().tell(QString::fromUtf16(kNotBuilt));

  const frame::EraDates dates = m_run.eraDates();
  PrintJob job = claimJob(claim, screenName(), dates);
  job.programFolder = m_run.programFolder;
  job.window = m_state.display->window();
  job.prompt = [this] {
    const bool go = messages().ask(promptOf(screenName()));
    m_run.lastAnswer = go ? 1 : 2;
    return go;
  };
  job.prepare = [this, &claim] { return claimStands(claim.claim); };
  job.cleanUp = [this] { leave(); };
  voice::VoiceGuide& guide = voice();  // the screen is gone when the print has ended
  const RunEnd end = runPrint(m_engine, job);
  if (end == RunEnd::Printed) guide.speakText(QString::fromUtf16(kSent));
  // The screen is still open then: the next ＯＫ tries again.
  if (end == RunEnd::NotTaken) messages().tell(m_engine.lastDocument().fault().message);
}

void ClaimPrintScreen::leave() {
  // Kept: 100 is a work value of one prefecture's print and falls back to its code after each job.
  if (m_run.prefectureCode == u"100") m_run.prefectureCode = u"34"_s;
  cancel();
}

void ClaimPrintScreen::cancel() { navigator().unload(screenName()); }

void ClaimPrintScreen::printerOptions() { m_engine.PR_PrinterSetupDlg(winId()); }

}  // namespace printing
