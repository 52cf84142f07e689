#include "records/screens/patient_screen.h"

#include "platform/screen/find_row.h"
#include "platform/screen/shown_record.h"
#include "platform/shell/desktop.h"
#include "platform/store/criteria_text.h"
#include "platform/store/growth.h"
#include "platform/store/tables/claims.h"
#include "platform/text/utf16.h"
#include "records/core/patient_serial.h"
#include "records/core/search_columns.h"
#include "records/core/search_history.h"
#include "records/screens/date_fields.h"
#include "records/screens/patient_rows.h"

namespace records {

using namespace Qt::Literals::StringLiterals;
using namespace patient_rows;

namespace {

constexpr screen::RecordWords kWords{
    .nothingToDelete = nullptr,
    .deleteQuestion = u"　現在の表示の患者を削除しますか？",
    .discardQuestion = u"登録出来ませんでした。入力した内容を捨てて、メインメニューへ戻りますか？"};

QString storeFirst() {
  return u"記入後には、登録ボタンを押してからカルテへ移動してください。登録ボタンをおさないとカルテは開きません。"_s;
}

}  // namespace

PatientScreen::PatientScreen(screen::Services& services, frame::RunState& run)
    : RecordScreen(kDeclaration, services, kWords), m_run(run) {}

void PatientScreen::onLoad() {
  applyOwnCaptions(*this, m_run.settings, kOwnCaptions);
  QStringList captions;
  for (const SearchColumn& row : searchColumns()) captions << row.caption;
  setItems(kSearchColumn, captions);
  setText(kSearchColumn, patients::name);
  setItems(kSearchWord, SearchHistory(m_run.programFolder).words());
  if (!source().open(file())) return;
  const text::Result<bool> older = store::needsGrowth(file(), store::GrowthRun::Patient);
  m_asksGrowth = older && *older;  // a fault was reported by open(): the file is the same
  // The patient who was on view when the screen was left comes back.
  if (m_run.patientOnView >= 0)
    source().moveAndShow([this](store::RecordSet& rows) { rows.setBookmark(m_run.patientOnView); });
}

QString PatientScreen::file() const { return m_run.folders[frame::folder::kPatients]; }

void PatientScreen::rowShown(int) {
  const bool open = source().isOpen();
  setCaption(kPosition, open ? source().positionText() : u"ﾚｺｰﾄﾞ: "_s);
  setCaption(kCount, QString::number(open ? source().rows().recordCount() : 0));
}

bool PatientScreen::mayLeaveRow() { return screen::commitOrDiscardRow(source()); }

QStringList PatientScreen::rowInWords() const {
  if (source().isOpen() && source().rows().adding()) return {u"新規追加"_s, text(kName)};
  if (!source().isOpen() || source().rows().recordCount() == 0)
    return {caption(kCountLabel), caption(kCount)};
  return {caption(kPosition), text(kName)};
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
  if (!messages().ask(u"　　　新しい患者を追加しますか？"_s)) return;
  messages().tell(storeFirst());
  startNewPatient();
}

void PatientScreen::startNewPatient() {
  if (source().isOpen() && (isEmpty() || mayLeaveRow())) startRow();
}

// What was typed on the screen of an empty register becomes the first patient's.
bool PatientScreen::startRow(const QString& patientName) {
  const bool first = isEmpty();
  // Read again first: a patient whom another computer entered meanwhile must not get the same serial.
  // On the screen of an empty register what was typed stays: a last row that is there now is of another
  // computer, entered meanwhile.
  store::RecordSet& rows = source().rows();
  text::Done read = rows.refresh();
  if (read) read = rows.moveAndRead(&store::RecordSet::moveLast);
  if (!read) {
    messages().tellDataFault(read.fault().message);
    return false;
  }
  if (rows.recordCount() > 0 && !first) source().show();
  const QString last = rows.value(patients::serial);
  if (!(first ? source().addNewAsShown() : source().addNew())) return false;
  setText(kSerial, nextSerial(last, m_run.clock->today()));
  if (!patientName.isEmpty()) setText(kName, patientName);
  focusOn(kPatientNumber);
  return true;
}

bool PatientScreen::readyToStore() {
  if (noPatient() || !messages().ask(u"       　　    登録しますか？"_s)) return false;
  refreshAge();
  return true;
}

void PatientScreen::sayStored() { say({text::utf16(words().stored)}); }

void PatientScreen::search() {
  const QString word = text(kSearchWord);
  if (word.isEmpty()) return askFor(kSearchWord);
  if (!source().isOpen() || !mayLeaveRow()) return;
  const SearchHistory history(m_run.programFolder);
  // A history that cannot be written costs nothing: the search itself goes on.
  (void)history.remember(word, SearchHistory::kMaxOlderOfRegister);
  setItems(kSearchWord, history.words());
  setText(kSearchWord, word);
  if (screen::findRow(*this, store::likeCriterion(columnOfCaption(text(kSearchColumn)), word)))
    voice().speakHeading(rowInWords());
}

void PatientScreen::chooseSex() { setText(kSex, text(kSexChoice)); }

// ---- Dates ----

void PatientScreen::refreshAge() {
  if (const std::optional<int> age = m_run.eraDates().ageFromBirthDate(text(kBirth)))
    setText(kAge, QString::number(*age));
}

void PatientScreen::enterBirth() {
  refreshAge();
  say({caption(kAge), text(kAge)});
}

void PatientScreen::convert(const DateConversion& conversion) {
  convertDates(*this, kDates, m_run.eraDates(), conversion);
  refreshAge();
}

void PatientScreen::toSeireki() {
  convert(kToSeireki);
  sayDates(*this, kDates, kToSeireki);
}

void PatientScreen::toWareki() {
  convert(kToWareki);
  sayDates(*this, kDates, kToWareki);
}

void PatientScreen::fillFirstVisit() {
  if (text(kFirstVisit).isEmpty()) setText(kFirstVisit, m_run.eraDates().formatEra(m_run.clock->today()));
  copyToday();
  say({caption(kFirstVisit), text(kFirstVisit)});
}

void PatientScreen::copyToday() {
  services().desktop->copyText(m_run.eraDates().formatEra(m_run.clock->today()));
}

void PatientScreen::focusSymptom() { focusOn(kSymptoms); }
void PatientScreen::focusTreatment() { focusOn(kTreatment); }

// ---- Leaving ----

void PatientScreen::leave() {
  if (source().isOpen()) {
    if (!mayClose()) return;
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

// ---- Other screens ----

bool PatientScreen::readyForChart() {
  if (!source().isOpen() || noPatient()) return false;
  if (source().rows().adding()) {
    messages().tell(storeFirst());
    return false;
  }
  if (!source().write()) return false;
  if (!text(kSerial).isEmpty()) return true;
  say({u"この患者には、カルテの番号（テキスト5）がありません"_s});
  return false;
}

void PatientScreen::openChart1() {
  if (readyForChart()) navigator().show(routes::PatientTexts{.serial = text(kSerial), .name = text(kName)});
}

void PatientScreen::openChart2() {
  if (!readyForChart()) return;
  navigator().show(routes::VisitLedger{routes::VisitLedger::Of{.serial = text(kSerial),
                                                               .name = text(kName),
                                                               .birth = text(kBirth),
                                                               .opener = routes::PatientRegister::screen}});
}

void PatientScreen::openChart3() {
  if (readyForChart()) navigator().show(routes::unbuilt::PictureChart{.serial = text(kSerial)});
}

frame::Patient PatientScreen::patientOnView() const {
  frame::Patient patient = screen::shownRecord<frame::Patient>(*this);
  patient.address = joinedAddress(patient.address, patient.address2, patient.address3);
  patient.address2.clear();
  patient.address3.clear();
  return patient;
}

void PatientScreen::openNewClaim() {
  if (!noPatient()) navigator().show(routes::NewClaim{.patient = patientOnView()});
}

// A claim is tied to its patient by the serial; a patient of an older register has none and goes by the name.
void PatientScreen::openClaims() {
  if (noPatient()) return;
  const QString serial = text(kSerial);
  const QString criteria = serial.isEmpty()
                               ? claim::name.text() + u"="_s + store::quotedText(text(kName)) + u" "_s
                               : claim::patientSerial.text() + u" ="_s + store::quotedText(serial) + u" "_s;
  navigator().show(routes::ClaimList{.criteria = criteria, .order = {}});
}

void PatientScreen::openReceipt() {
  if (!noPatient())
    navigator().show(routes::unbuilt::ReceiptChoice{.day = {}, .patient = patientOnView(), .opener = {}});
}

template <class R>
void PatientScreen::openBookings(const R& route) {
  m_run.bookingsCaller = Route::screen;
  navigator().show(route);
}

void PatientScreen::openPatientAppointment() {
  if (!noPatient()) openBookings(routes::Booking{routes::Booking::NewBooking{patientOnView()}, {}});
}
void PatientScreen::openAppointment() { openBookings(routes::Booking{}); }
void PatientScreen::openToday() { openBookings(routes::TodaysBookings{}); }
void PatientScreen::openWeek() { openBookings(routes::WeekOfBookings{}); }

}  // namespace records
