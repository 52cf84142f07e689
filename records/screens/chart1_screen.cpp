#include "records/screens/chart1_screen.h"

#include "frame/core/routes.h"
#include "platform/screen/find_row.h"
#include "platform/shell/desktop.h"
#include "platform/store/criteria_text.h"
#include "platform/text/utf16.h"
#include "records/core/visit_dates.h"
#include "records/screens/chart1_rows.h"
#include "records/screens/date_fields.h"

namespace records {

using namespace Qt::Literals::StringLiterals;
using namespace chart1_rows;

namespace {

constexpr screen::ScreenName kDictionaryWindows[] = {routes::Phrases::screen, routes::PhrasePairs::screen,
                                                     routes::Acupoints::screen};

constexpr char16_t kUpdateQuestion[] = u"       　　    更新しますか？";
constexpr char16_t kUpdateWarning[] =
    u"但し、一旦書き込んであったデータを消すと更新しません。この場合は、スペースで１文字の空白を作って下さい。";
constexpr char16_t kCloseQuestion[] = u"　　　この方のカルテを閉じますか？";

constexpr screen::RecordWords kWords{
    .stored = u"更新しました",
    .discardQuestion = u"登録出来ませんでした。入力した内容を捨てて、閉じますか？"};

}  // namespace

Chart1Screen::Chart1Screen(screen::Services& services, frame::RunState& run)
    : RecordScreen(kDeclaration, services, kWords), m_run(run) {}

void Chart1Screen::onLoad() {
  applyOwnCaptions(*this, m_run.settings, kOwnCaptions);
  source().open(m_run.folders[frame::folder::kPatients]);
}

void Chart1Screen::opened(const screen::Request& request) {
  const auto* route = request.as<routes::PatientTexts>();
  m_called = route ? route->name : QString();
  if (route) find(route->serial);
  // An open window has no opening of its own when it is asked for another patient.
  if (isVisible()) sayResult(openingTexts());
}

void Chart1Screen::onActivate() { m_whenActivated.run(*this); }

QStringList Chart1Screen::openingTexts() const {
  QStringList texts{m_called, u"カルテ1を起動しました"_s};
  texts.removeAll(QString());
  return texts;
}

// Searches from the row on view to the end, then from the first row. What another window stored meanwhile is
// read first.
void Chart1Screen::find(const QString& serial) {
  if (serial.isEmpty() || !source().isOpen() || !screen::commitOrDiscardRow(source())) return;
  text::Result<bool> found = false;
  if (const text::Done read = source().rows().refresh(); !read)
    found = read.fault();
  else
    found = screen::seekRow(source(), store::likeCriterion(patients::serial, serial));
  if (found && *found) return;
  m_whenActivated.set([this, found] {
    if (found) return screen::tellNotFound(*this);
    messages().tellDataFault(found.fault().message);
  });
}

QStringList Chart1Screen::rowInWords() const {
  if (!source().isOpen()) return {};
  return {source().positionText(), text(kName)};
}

// ---- The row ----

void Chart1Screen::update() {
  if (messages().ask(text::utf16(kUpdateQuestion))) store();
}

void Chart1Screen::updateAfterWarning() {
  if (messages().ask(text::utf16(kUpdateQuestion)) && messages().ask(text::utf16(kUpdateWarning))) store();
}

void Chart1Screen::store() {
  if (!source().ensureOpen() || !source().write()) return;
  // The patient master reads the same table: it shows what is stored now, unless something is being typed
  // there.
  Screen* master = navigator().loaded(routes::PatientRegister::screen);
  if (master && master->source().isOpen() && !master->source().pending()) master->source().show();
  voice().speakText(text::utf16(words().stored) + voice::kSpeechSeparator + text(kName));
}

void Chart1Screen::toSeireki() {
  convertDates(*this, kDates, m_run.eraDates(), kToSeireki);
  sayDates(*this, kDates, kToSeireki);
}

void Chart1Screen::toWareki() {
  convertDates(*this, kDates, m_run.eraDates(), kToWareki);
  sayDates(*this, kDates, kToWareki);
}

void Chart1Screen::copyNow() {
  const QString now = todayText(m_run.eraDates()) + m_run.clock->now().toString(u"（hh:mm）"_s);
  services().desktop->copyText(now);
  voice().speakText(now + u"をコピーしました"_s);
}

// Said last, and to its end: the focus that moves from a closing window must not interrupt it.
void Chart1Screen::closeDictionaries() {
  for (const screen::ScreenName& window : kDictionaryWindows)
    if (Screen* dictionary = navigator().loaded(window)) dictionary->close();
  for (const screen::ScreenName& window : kDictionaryWindows)
    if (navigator().isShown(window)) {  // its file refused what was typed
      navigator().show(window);
      return;
    }
  sayResult({u"辞典の窓を閉じました"_s});
}

// ---- Leaving ----

// What was typed is stored before the question. A row that the file refuses every time must not lock
// the user in.
void Chart1Screen::finish() {
  if (!source().isOpen() || source().write()) {
    if (messages().ask(text::utf16(kCloseQuestion))) closeNow();
  } else if (messages().askToDrop(text::utf16(words().discardQuestion))) {
    closeNow();
  }
}

bool Chart1Screen::onCloseBox() {
  finish();
  return false;
}

}  // namespace records
