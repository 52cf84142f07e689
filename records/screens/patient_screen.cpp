#include "records/screens/patient_screen.h"

#include "frame/core/routes.h"
#include "platform/screen/find_row.h"
#include "platform/shell/desktop.h"
#include "platform/store/criteria_text.h"
#include "platform/store/growth.h"
#include "records/core/patient_serial.h"
#include "records/core/search_columns.h"
#include "records/core/search_history.h"
#include "records/screens/patient_fields.h"
#include "records/screens/patient_parts.h"
#include "records/screens/patient_rows.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Results, spoken when the work is done.
constexpr char16_t kStored[] = u"登録しました";
constexpr char16_t kDeleted[] = u"削除しました";

constexpr char16_t kStoreFirst[] =
    u"記入後には、登録ボタンを押してからカルテへ移動してください。登録ボタンをおさないとカルテは開きません。";

}  // namespace

PatientScreen::PatientScreen(screen::Services& services, frame::RunState& run)
    : Screen(kPatientDeclaration, services), m_run(run) {}

void PatientScreen::onLoad() {
  applyOwnCaptions(*this, m_run.settings);
  QStringList captions;
  for (const SearchColumn& row : searchColumns()) captions << row.caption.toString();
  setItems(u"Combo1"_s, captions);
  setText(u"Combo1"_s, u"氏名"_s);
  setItems(u"Combo3"_s, SearchHistory(m_run.programFolder).words());
  if (!source().open(file())) return;
  const text::Result<bool> older = store::needsGrowth(file(), store::GrowthRun::Patient);
  m_asksGrowth = older && *older;
  // The patient who was on view when the screen was left comes back.
  if (m_run.patientOnView >= 0) source().rows().setBookmark(m_run.patientOnView);
  source().show();
}

QString PatientScreen::file() const { return m_run.folders[frame::folder::kPatients]; }

void PatientScreen::rowShown(int) {
  const bool open = source().isOpen();
  setCaption(u"Data1"_s, open ? source().positionText() : u"ﾚｺｰﾄﾞ: "_s);
  setCaption(u"Label14"_s, QString::number(open ? source().rows().recordCount() : 0));
}

// A new row that was not stored is lost by moving away: that is why adding tells so beforehand.
void PatientScreen::move(void (screen::DataSource::*step)()) {
  if (source().isOpen() && source().rows().adding()) source().drop();
  (source().*step)();
}

void PatientScreen::step(void (screen::DataSource::*step)()) {
  move(step);
  voice().speakHeading(onView());
}

void PatientScreen::goFirst() { step(&screen::DataSource::moveFirst); }
void PatientScreen::goPrevious() { step(&screen::DataSource::movePrevious); }
void PatientScreen::goNext() { step(&screen::DataSource::moveNext); }
void PatientScreen::goLast() { step(&screen::DataSource::moveLast); }

QStringList PatientScreen::onView() const {
  if (source().isOpen() && source().rows().adding()) return {u"新規追加"_s, text(name(kName))};
  if (!source().isOpen() || source().rows().recordCount() == 0)
    return {caption(u"LabelCount"_s), caption(u"Label14"_s)};
  return {caption(u"Data1"_s), text(name(kName))};
}

// ---- The record ----

bool PatientScreen::isEmpty() const {
  return source().isOpen() && source().rows().recordCount() == 0 && !source().rows().adding();
}

bool PatientScreen::noPatient() {
  if (!isEmpty()) return false;
  navigator().show(routes::AskFirstPatient{});
  return true;
}

void PatientScreen::askNewPatient() {
  const bool yes = messages().ask(u"　　　新しい患者を追加しますか？"_s);
  m_run.lastAnswer = yes ? 1 : 0;
  if (!yes) return;
  messages().tell(name(kStoreFirst));
  startNewPatient();
}

void PatientScreen::startNewPatient() {
  if (source().isOpen() && (isEmpty() || screen::settleRow(source()))) startRow();
}

// What was typed on the screen of an empty register becomes the first patient's.
bool PatientScreen::startRow(const QString& patientName) {
  const bool first = isEmpty();
  // Read again first: a patient whom another computer entered meanwhile must not get the same serial.
  if (const text::Done read = source().rows().refresh(); !read) {
    messages().tellDataFault(read.fault().message);
    return false;
  }
  QString last;
  if (source().rows().recordCount() > 0) {
    if (first)
      source().rows().moveLast();  // of another computer, entered meanwhile: the typed text is not its own
    else
      move(&screen::DataSource::moveLast);
    last = source().rows().value(u"テキスト5"_s);
  }
  if (!(first ? source().addNewAsShown() : source().addNew())) return false;
  setText(name(kSerial), nextSerial(last, m_run.clock->today()));
  if (!patientName.isEmpty()) setText(name(kName), patientName);
  focusOn(u"txtFields(1)"_s);
  return true;
}

// The row just stored stays on view.
void PatientScreen::storePatient() {
  if (!source().isOpen() || noPatient() || !messages().ask(u"       　　    登録しますか？"_s)) return;
  refreshAge();
  if (source().write()) say({name(kStored)});
}

void PatientScreen::deletePatient() {
  if (!source().isOpen()) return;
  if (isEmpty()) return say(onView());
  if (!messages().ask(u"　現在の表示の患者を削除しますか？"_s)) return;
  // A row that was never stored only leaves the screen: the patient before it must not go instead.
  if (source().rows().adding())
    source().drop();
  else if (!source().remove())
    return;
  say(QStringList{name(kDeleted)} + onView());
}

void PatientScreen::search() {
  const QString word = text(u"Combo3"_s);
  if (word.isEmpty()) return askFor(u"Combo3"_s);
  if (!source().isOpen() || !screen::settleRow(source())) return;
  const SearchHistory history(m_run.programFolder);
  // A history that cannot be written costs nothing: the search itself goes on.
  (void)history.remember(word, SearchHistory::kWholeListKept);
  setItems(u"Combo3"_s, history.words());
  setText(u"Combo3"_s, word);
  if (screen::findRow(*this, store::likeCriterion(columnOfCaption(text(u"Combo1"_s)), word)))
    voice().speakHeading(onView());
}

void PatientScreen::chooseSex() { setText(u"txtFields(5)"_s, text(u"Combo2"_s)); }

// ---- Dates ----

void PatientScreen::refreshAge() {
  if (const std::optional<int> age = m_run.eraDates().ageFromBirthDate(text(name(kBirth))))
    setText(name(kAge), QString::number(*age));
}

void PatientScreen::enterBirth() {
  refreshAge();
  say({caption(name(kAge)), text(name(kAge))});
}

void PatientScreen::convert(const DateConversion& conversion) {
  convertDates(*this, m_run.eraDates(), conversion);
  refreshAge();
}

void PatientScreen::toSeireki() {
  convert(kToSeireki);
  sayDates(*this, kToSeireki);
}

void PatientScreen::toWareki() {
  convert(kToWareki);
  sayDates(*this, kToWareki);
}

void PatientScreen::fillFirstVisit() {
  if (text(name(kFirstVisit)).isEmpty())
    setText(name(kFirstVisit), m_run.eraDates().formatEra(m_run.clock->today()));
  copyToday();
  say({caption(name(kFirstVisit)), text(name(kFirstVisit))});
}

void PatientScreen::copyToday() {
  services().desktop->copyText(m_run.eraDates().formatEra(m_run.clock->today()));
}

void PatientScreen::focusSymptom() { focusOn(u"txtFields(26)"_s); }
void PatientScreen::focusTreatment() { focusOn(u"txtFields(27)"_s); }

// ---- Leaving ----

// A row that the file keeps refusing (read only, or deleted by another computer) must not lock the user in.
bool PatientScreen::mayLeave() {
  if (screen::settleRow(source())) return true;
  const bool yes =
      messages().askToDrop(u"登録出来ませんでした。入力した内容を捨てて、メインメニューへ戻りますか？"_s);
  m_run.lastAnswer = yes ? 1 : 0;
  if (yes) source().drop();
  return yes;
}

void PatientScreen::leave() {
  if (source().isOpen()) {
    if (!mayLeave()) return;
    m_run.patientOnView = source().rows().recordCount() > 0 ? source().rows().bookmark() : -1;
  }
  navigator().show(routes::MainMenu{});
  navigator().unload(routes::PatientRegister::screen);
}

// The close box converts the dates to era notation first, then leaves like the button.
bool PatientScreen::onCloseBox() {
  if (source().isOpen() && source().rows().recordCount() > 0) convert(kToWareki);
  leave();
  return false;
}

// ---- Other rooms ----

bool PatientScreen::readyForChart() {
  if (!source().isOpen() || noPatient()) return false;
  if (source().rows().adding()) {
    messages().tell(name(kStoreFirst));
    return false;
  }
  if (!source().write()) return false;
  if (!text(name(kSerial)).isEmpty()) return true;
  say({u"この患者には、カルテの番号（テキスト5）がありません"_s});
  return false;
}

void PatientScreen::openChart1() {
  if (readyForChart())
    navigator().show(u"治療台帳2"_s, {{u"テキスト5"_s, text(name(kSerial))}, {u"氏名"_s, text(name(kName))}});
}

void PatientScreen::openChart2() {
  if (readyForChart())
    navigator().show(u"治療台帳3"_s, {{u"テキスト5"_s, text(name(kSerial))},
                                      {u"氏名"_s, text(name(kName))},
                                      {u"生年月日"_s, text(name(kBirth))},
                                      {u"opener"_s, objectName()}});
}

void PatientScreen::openChart3() {
  if (readyForChart()) navigator().show(u"GEDIT"_s, {{u"テキスト5"_s, text(name(kSerial))}});
}

screen::Request PatientScreen::patientColumns() const {
  screen::Request request;
  struct Copy {
    const char16_t* key;
    const char16_t* control;
  };
  constexpr Copy kCopies[] = {
      {u"テキスト5", kSerial},        {u"患者ID", u"txtFields(1)"},   {u"カルテ番号", u"txtFields(2)"},
      {u"ふりがな", u"txtFields(3)"}, {u"氏名", u"txtFields(4)"},     {u"性別", u"txtFields(5)"},
      {u"生年月日", kBirth},          {u"郵便番号", u"txtFields(8)"}, {u"電話1", u"txtFields(12)"},
      {u"初診日", kFirstVisit},
  };
  for (const Copy& copy : kCopies) request[name(copy.key)] = text(name(copy.control));
  // A claim takes the address as one text.
  request[u"住所1"_s] =
      joinedAddress(text(u"txtFields(9)"_s), text(u"txtFields(10)"_s), text(u"txtFields(11)"_s));
  return request;
}

void PatientScreen::openNewClaim() {
  if (!noPatient()) navigator().show(u"新規レセプト"_s, patientColumns());
}

// A claim is tied to its patient by the serial; a patient of an older register has none and goes by the name.
void PatientScreen::openClaims() {
  if (noPatient()) return;
  const QString serial = text(name(kSerial));
  const QString criteria = serial.isEmpty() ? u"氏名="_s + store::quotedText(text(name(kName))) + u" "_s
                                            : u"番号1 ="_s + store::quotedText(serial) + u" "_s;
  navigator().show(u"レセプト一覧表"_s, {{u"criteria"_s, criteria}});
}

void PatientScreen::openReceipt() {
  if (!noPatient()) navigator().show(u"領収証選択"_s, patientColumns());
}

void PatientScreen::openBooking(const QString& screenName, const screen::Request& request) {
  m_run.callerMark = frame::caller::kPatients;
  navigator().show(screenName, request);
}

void PatientScreen::openPatientAppointment() {
  if (!noPatient()) openBooking(u"予約2"_s, patientColumns());
}
void PatientScreen::openAppointment() { openBooking(u"予約2"_s); }
void PatientScreen::openToday() { openBooking(u"今日の予約"_s); }
void PatientScreen::openWeek() { openBooking(u"予約週間表"_s); }

}  // namespace records
