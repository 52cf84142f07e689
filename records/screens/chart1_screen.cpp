#include "records/screens/chart1_screen.h"

#include "platform/screen/find_row.h"
#include "platform/shell/desktop.h"
#include "platform/store/criteria_text.h"
#include "records/core/visit_dates.h"
#include "records/screens/chart1_rows.h"
#include "records/screens/patient_parts.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kMaster = u"治療台帳4"_s;
const QString kName = u"txtFields(4)"_s;
const QString kDictionaries[] = {u"frmCLmoji"_s, u"frmCl2moji"_s, u"frm経穴"_s};

const QString kUpdateQuestion = u"       　　    更新しますか？"_s;
const QString kUpdateWarning =
    u"但し、一旦書き込んであったデータを消すと更新しません。この場合は、スペースで１文字の空白を作って下さい。"_s;
const QString kCloseQuestion = u"　　　この方のカルテを閉じますか？"_s;
const QString kDropQuestion = u"登録出来ませんでした。入力した内容を捨てて、閉じますか？"_s;

}  // namespace

Chart1Screen::Chart1Screen(screen::Services& services, frame::RunState& run)
    : Screen(kChart1Declaration, services), m_run(run) {}

void Chart1Screen::onLoad() {
  applyOwnCaptions(*this, m_run.settings);
  source().open(m_run.folders[frame::folder::kPatients]);
}

void Chart1Screen::opened(const screen::Request& request) {
  m_called = request.value(u"氏名"_s).toString();
  find(request.value(u"テキスト5"_s).toString());
  // Called for another patient while it is open, it has no opening of its own.
  if (isVisible()) sayResult(openingTexts());
}

void Chart1Screen::onActivate() { m_onceActive.run(*this); }

QStringList Chart1Screen::openingTexts() const {
  QStringList texts{m_called, u"カルテ1を起動しました"_s};
  texts.removeAll(QString());
  return texts;
}

// From the row on view to the end, then from the first row. What another window stored since is read first.
void Chart1Screen::find(const QString& serial) {
  if (serial.isEmpty() || !source().isOpen() || !screen::settleRow(source())) return;
  text::Result<bool> found = false;
  if (const text::Done read = source().rows().refresh(); !read)
    found = read.fault();
  else
    found = screen::seekRow(source(), store::likeCriterion(u"テキスト5"_s, serial));
  if (found && *found) return;
  m_onceActive.set([this, found] {
    if (found) return screen::tellNotFound(*this);
    messages().tellDataFault(found.fault().message);
  });
}

void Chart1Screen::step(void (screen::DataSource::*move)()) {
  (source().*move)();
  if (source().isOpen()) voice().speakHeading({source().positionText(), text(kName)});
}

// ---- The row ----

bool Chart1Screen::ask(const QString& question) {
  const bool yes = messages().ask(question);
  m_run.lastAnswer = yes ? 1 : 0;
  return yes;
}

void Chart1Screen::update() {
  if (ask(kUpdateQuestion)) store();
}

void Chart1Screen::updateAfterWarning() {
  if (ask(kUpdateQuestion) && ask(kUpdateWarning)) store();
}

void Chart1Screen::store() {
  if (!source().ready() || !source().write()) return;
  // The master stands on the same table: it shows what is stored now, unless something is being typed there.
  Screen* master = navigator().loaded(kMaster);
  if (master && master->source().isOpen() && !master->source().pending()) master->source().show();
  voice().speakText(u"更新しました"_s + voice::kSpeechSeparator + text(kName));
}

void Chart1Screen::toSeireki() {
  convertDates(*this, m_run.eraDates(), kToSeireki);
  sayDates(*this, kToSeireki);
}

void Chart1Screen::toWareki() {
  convertDates(*this, m_run.eraDates(), kToWareki);
  sayDates(*this, kToWareki);
}

void Chart1Screen::copyNow() {
  const QString now = todayText(m_run.eraDates()) + m_run.clock->now().toString(u"（hh:mm）"_s);
  services().desktop->copyText(now);
  voice().speakText(now + u"をコピーしました"_s);
}

// Said last, and held: a window that goes must not let the focus cut it.
void Chart1Screen::closeDictionaries() {
  for (const QString& window : kDictionaries)
    if (Screen* dictionary = navigator().loaded(window)) dictionary->close();
  for (const QString& window : kDictionaries)
    if (navigator().isShown(window)) {  // it holds a text that its file refuses
      navigator().show(window);
      return;
    }
  sayResult({u"辞典の窓を閉じました"_s});
}

// ---- Leaving ----

// What was typed is stored before the question. A row that the file keeps refusing must not lock the user in.
void Chart1Screen::finish() {
  if (!source().isOpen() || source().write()) {
    if (ask(kCloseQuestion)) closeNow();
  } else if (messages().askToDrop(kDropQuestion)) {
    closeNow();
  }
}

bool Chart1Screen::onCloseBox() {
  finish();
  return false;
}

}  // namespace records
