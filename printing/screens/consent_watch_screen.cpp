#include "printing/screens/consent_watch_screen.h"

#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "printing/contract/hand_print.h"
#include "printing/contract/prompts.h"
#include "printing/core/consent_page.h"

namespace printing {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char16_t* kColumns[] = {u"氏名", u"保険の種類", u"同意期限", u"施術内容",
                                        u"その後の同意期限"};

constexpr Row kRows[] = {
    Note{.name = {u"Label1"}, .caption = u"同意期限が一ヶ月以内の患者はいません。", .spoken = true},
    Table{.name = {u"List1"}, .caption = u"同意期限が一ヶ月以内の患者", .columns = kColumns},
    Note{.name = {u"Label2"},
         .caption =
             u"※この一覧は、「要加療期間2」の日付から作成しています。表示されない患者がいる場合は、レセプ"
             u"トの一覧表を「要加療期間2」で並び替えるか、抽出してください。その際、日付は和暦か西暦のど"
             u"ちらかに統一して入力してください。",
         .spoken = true},
    Bar{},
    Command{.name = {u"Command1"}, .caption = u"印刷", .run = run<&ConsentWatchScreen::print>},
    Command{.name = {u"Command2"},
            .caption = u"プリンターオプション",
            .run = run<&ConsentWatchScreen::printerOptions>},
    Command{
        .name = {u"Command3"}, .caption = u"閉じる", .run = run<&ConsentWatchScreen::finish>, .key = u"Esc"},
    EndBar{},
};

constexpr ScreenRow kDeclaration = declare({.name = routes::ConsentWatch::screen,
                                            .caption = u"同意期限一ヶ月以内",
                                            .rows = kRows,
                                            .heading = u"同意期限一ヶ月以内"});

constexpr ControlRef kCount = ref(kRows, u"Label1"), kList = ref(kRows, u"List1"),
                     kAdvice = ref(kRows, u"Label2");

constexpr char16_t kNoRows[] = u"同意期限が一ヶ月以内の患者はいません。";
constexpr char16_t kNothingToPrint[] = u"印刷するデータがありません。";
constexpr char16_t kNotRead[] = u"同意期限を調べることができませんでした。";
constexpr char16_t kSent[] = u"印刷に送りました。";
constexpr char16_t kNotSent[] = u"印刷を開始できませんでした。プリンタを確認して下さい。";

}  // namespace

ConsentWatchScreen::ConsentWatchScreen(Services& services, frame::RunState& run,
                                       report::ReportOperations& engine)
    : Screen(kDeclaration, services), m_run(run), m_engine(engine) {}

void ConsentWatchScreen::opened(const Request&) {
  auto found = claims::consentsRunningOut(m_run.folders[frame::folder::kClaims1], m_run.eraDates());
  if (!found) m_whenActivated.set([this, fault = found.fault().message] { messages().tellDataFault(fault); });
  m_rows = found ? *found : QList<claims::ConsentEnd>();
  QList<QStringList> texts;
  for (const claims::ConsentEnd& row : m_rows)
    texts.append({row.name, row.insurance, claims::consentEndText(row.end), row.treatment,
                  row.later.isValid() ? claims::consentEndText(row.later) : QString()});
  setRows(kList, texts);
  QString count = u"同意期限が一ヶ月以内の患者は、%1名です。"_s.arg(m_rows.size());
  if (m_rows.isEmpty()) count = QString::fromUtf16(found ? kNoRows : kNotRead);
  setCaption(kCount, count);
  if (std::exchange(m_openedBefore, true)) voice().speakText(count);
}

void ConsentWatchScreen::onActivate() { m_whenActivated.run(*this); }

QStringList ConsentWatchScreen::openingTexts() const {
  return {QString::fromUtf16(kDeclaration.heading), caption(kCount), caption(kAdvice)};
}

void ConsentWatchScreen::print() {
  if (m_rows.isEmpty()) return messages().tell(QString::fromUtf16(kNothingToPrint));
  HandJob job;
  job.prompt = [this] { return messages().ask(promptOf(objectName())); };
  job.window = winId();
  job.title = u"同意期限一ヶ月以内"_s;
  job.pages = consentPages(m_rows.size());
  job.draw = [this](report::ReportOperations& engine, int page) {
    drawConsentPage(engine, m_rows, m_run.clock->today(), page);
  };
  const RunEnd end = runHandPrint(m_engine, job);
  if (end == RunEnd::NotTaken) return messages().tell(m_engine.lastDocument().fault().message);
  if (end != RunEnd::Cancelled)
    voice().speakText(QString::fromUtf16(end == RunEnd::Printed ? kSent : kNotSent));
}

void ConsentWatchScreen::printerOptions() { m_engine.PR_PrinterSetupDlg(winId()); }

void ConsentWatchScreen::finish() { close(); }

}  // namespace printing
