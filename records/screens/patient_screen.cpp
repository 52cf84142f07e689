#include "records/screens/patient_screen.h"

#include "frame/core/settings_slots.h"
#include "platform/screen/find_row.h"
#include "platform/shell/desktop.h"
#include "platform/store/criteria_text.h"
#include "records/core/patient_serial.h"
#include "records/core/search_columns.h"
#include "records/core/search_history.h"
#include "records/screens/patient_rows.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char16_t kBirth[] = u"txtF6";
constexpr char16_t kFirstVisit[] = u"txtF24";
constexpr char16_t kSerial[] = u"Text2";
constexpr char16_t kName[] = u"txtFields(4)";

/// Results, spoken when the work is done.
constexpr char16_t kStored[] = u"登録しました";
constexpr char16_t kDeleted[] = u"削除しました";
constexpr char16_t kWesternDone[] = u"日付を西暦にしました";
constexpr char16_t kEraDone[] = u"日付を和暦にしました";

QString name(const char16_t* control) { return QString::fromUtf16(control); }

/// A field whose caption the practice may change, and the setting that holds it.
struct OwnCaption {
  int slot;
  const char16_t* control;
};
constexpr OwnCaption kOwnCaptions[] = {
    {frame::slot::kCaptionText1, u"txtFields(29)"},     {frame::slot::kCaptionText2, u"txtFields(30)"},
    {frame::slot::kCaptionText3, u"txtFields(31)"},     {frame::slot::kCaptionSymptom, u"txtFields(26)"},
    {frame::slot::kCaptionTreatment, u"txtFields(27)"},
};

}  // namespace

PatientScreen::PatientScreen(screen::Services& services, frame::RunState& run)
    : Screen(kPatientDeclaration, services), m_run(run) {}

void PatientScreen::onLoad() {
  applyCaptions();
  QStringList captions;
  for (const SearchColumn& row : searchColumns()) captions << row.caption.toString();
  setItems(u"Combo1"_s, captions);
  setText(u"Combo1"_s, u"氏名"_s);
  setItems(u"Combo3"_s, SearchHistory(m_run.programFolder).words());
  if (!source().open(m_run.folders[frame::folder::kPatients], u"臨床QV"_s)) return;
  // The patient who was on view when the screen was left comes back.
  if (m_run.patientOnView >= 0) source().rows().setBookmark(m_run.patientOnView);
  source().show();
}

void PatientScreen::applyCaptions() {
  for (const OwnCaption& own : kOwnCaptions) {
    const QString caption = m_run.settings[own.slot];
    if (!caption.isEmpty()) setCaption(name(own.control), caption);
  }
}

void PatientScreen::opened(const screen::Request& request) {
  if (request.value(u"新規"_s).toBool()) return startNewPatient();
  // A claim's カルテ3へ names its patient.
  const QString serial = request.value(u"テキスト5"_s).toString();
  if (!serial.isEmpty() && source().isOpen() && screen::settleRow(source()))
    screen::findRow(*this, u"テキスト5 = '%1' "_s.arg(serial));
}

void PatientScreen::onActivate() { refreshAge(); }

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
  if (!source().isOpen() || source().rows().recordCount() == 0)
    return {caption(u"LabelCount"_s), caption(u"Label14"_s)};
  return {caption(u"Data1"_s), text(name(kName))};
}

void PatientScreen::say(const QStringList& parts) {
  QStringList spoken;
  for (const QString& part : parts)
    if (!part.isEmpty()) spoken << part;
  voice().speakText(spoken.join(voice::kSpeechSeparator));
}

// ---- The record ----

void PatientScreen::askNewPatient() {
  const bool yes = messages().ask(u"　　　新しい患者を追加しますか？"_s);
  m_run.lastAnswer = yes ? 1 : 0;
  if (!yes) return;
  messages().tell(
      u"記入後には、登録ボタンを押してからカルテへ移動してください。登録ボタンをおさないとカルテは開きません。"_s);
  startNewPatient();
}

void PatientScreen::startNewPatient() {
  if (!source().isOpen() || !screen::settleRow(source())) return;
  // Read again first: a patient whom another computer entered meanwhile must not get the same serial.
  if (const text::Done read = source().rows().refresh(); !read)
    return messages().tellDataFault(read.fault().message);
  QString last;
  if (source().rows().recordCount() > 0) {
    move(&screen::DataSource::moveLast);
    last = source().rows().value(u"テキスト5"_s);
  }
  if (!source().addNew()) return;
  setText(name(kSerial), nextSerial(last, m_run.clock->today()));
  focusOn(u"txtFields(1)"_s);
}

// The row just stored stays on view.
void PatientScreen::storePatient() {
  if (!source().isOpen() || !messages().ask(u"       　　    登録しますか？"_s)) return;
  refreshAge();
  if (source().write()) say({name(kStored)});
}

void PatientScreen::deletePatient() {
  if (!source().isOpen()) return;
  store::RecordSet& rows = source().rows();
  if (rows.recordCount() == 0 && !rows.adding()) return;
  if (!messages().ask(u"　現在の表示の患者を削除しますか？"_s)) return;
  // A row that was never stored only leaves the screen: the patient before it must not go instead.
  if (rows.adding())
    source().drop();
  else if (!source().remove())
    return;
  say(QStringList{name(kDeleted)} + onView());
}

void PatientScreen::search() {
  const QString word = text(u"Combo3"_s);
  if (word.isEmpty() || !source().isOpen() || !screen::settleRow(source())) return;
  const SearchHistory history(m_run.programFolder);
  // A history that cannot be written costs nothing: the search itself goes on.
  (void)history.remember(word);
  setItems(u"Combo3"_s, history.words());
  setText(u"Combo3"_s, word);
  if (screen::findRow(*this, store::likeCriterion(columnOfCaption(text(u"Combo1"_s)), word)))
    voice().speakHeading(onView());
}

void PatientScreen::chooseSex() { setText(u"txtFields(5)"_s, text(u"Combo2"_s)); }

// ---- Dates ----

void PatientScreen::refreshAge() {
  if (const std::optional<int> age = m_run.eraDates().ageFromBirthDate(text(name(kBirth))))
    setText(u"txtFields(7)"_s, QString::number(*age));
}

void PatientScreen::convertDates(QString (frame::EraDates::*conversion)(const QString&) const) {
  const frame::EraDates dates = m_run.eraDates();
  for (const char16_t* field : {kBirth, kFirstVisit}) {
    const QString before = text(name(field));
    if (before.isEmpty()) continue;
    const QString after = (dates.*conversion)(before);
    if (after != before) setText(name(field), after);
  }
  refreshAge();
}

void PatientScreen::toSeireki() {
  convertDates(&frame::EraDates::seireki);
  say({name(kWesternDone), text(name(kBirth)), text(name(kFirstVisit))});
}

void PatientScreen::toWareki() {
  convertDates(&frame::EraDates::wareki);
  say({name(kEraDone), text(name(kBirth)), text(name(kFirstVisit))});
}

void PatientScreen::fillFirstVisit() {
  if (text(name(kFirstVisit)).isEmpty())
    setText(name(kFirstVisit), m_run.eraDates().formatEra(m_run.clock->today()));
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
  const bool yes = messages().ask(
      u"登録出来ませんでした。入力した内容を捨てて、メインメニューへ戻りますか？"_s, screen::Buttons::YesNo);
  m_run.lastAnswer = yes ? 1 : 0;
  if (yes) source().drop();
  return yes;
}

void PatientScreen::leave() {
  if (source().isOpen()) {
    if (!mayLeave()) return;
    m_run.patientOnView = source().rows().recordCount() > 0 ? source().rows().bookmark() : -1;
  }
  navigator().show(u"選択3"_s);
  navigator().unload(u"治療台帳4"_s);
}

// The close box converts the dates to era notation first, then leaves like the button.
bool PatientScreen::onCloseBox() {
  if (source().isOpen() && source().rows().recordCount() > 0) convertDates(&frame::EraDates::wareki);
  leave();
  return false;
}

// ---- Other rooms ----

void PatientScreen::openChart1() {
  const QString serial = text(name(kSerial));
  if (!serial.isEmpty()) navigator().show(u"治療台帳2"_s, {{u"テキスト5"_s, serial}});
}

void PatientScreen::openChart2() {
  navigator().show(u"治療台帳3"_s, {{u"テキスト5"_s, text(name(kSerial))}});
}
void PatientScreen::openChart3() { navigator().show(u"GEDIT"_s, {{u"テキスト5"_s, text(name(kSerial))}}); }

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

void PatientScreen::openNewClaim() { navigator().show(u"新規レセプト"_s, patientColumns()); }

// A claim is tied to its patient by the serial; a patient of an older register has none and goes by the name.
void PatientScreen::openClaims() {
  const QString serial = text(name(kSerial));
  const QString criteria =
      serial.isEmpty() ? u"氏名='"_s + text(u"txtFields(4)"_s) + u"' "_s : u"番号1 ='"_s + serial + u"' "_s;
  navigator().show(u"レセプト一覧表"_s, {{u"criteria"_s, criteria}});
}

void PatientScreen::openReceipt() { navigator().show(u"領収証選択"_s, patientColumns()); }
void PatientScreen::openPatientAppointment() { navigator().show(u"予約2"_s, patientColumns()); }

}  // namespace records
