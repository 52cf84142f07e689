// How the patient screen is entered: from the search, the list, the appointment book, a claim, and back from
// a chart.

#include "platform/screen/find_row.h"
#include "platform/store/criteria_text.h"
#include "platform/store/growth.h"
#include "platform/text/utf16.h"
#include "records/screens/patient_rows.h"
#include "records/screens/patient_screen.h"

namespace records {

using namespace Qt::Literals::StringLiterals;
using namespace patient_rows;

namespace {

constexpr char16_t kBookedIsNew[] = u"該当がありません。データを新規に追加します。";
constexpr char16_t kGrowthTitle[] = u"データ追加";
constexpr char16_t kGrowthQuestion[] =
    u"電子カルテのデータに新しいデータを追加します。データによっては時間がかかります。";
constexpr char16_t kGrown[] = u"正常に電子カルテのデータに新しいデータが追加されました。";

}  // namespace

void PatientScreen::opened(const screen::Request& request) {
  const auto* route = request.as<Route>();
  std::visit([this](const auto& who) { enter(who); }, route ? route->who : decltype(Route::who){});
}

void PatientScreen::onActivate() {
  refreshAge();
  if (m_asksGrowth || m_notice)
    QMetaObject::invokeMethod(this, &PatientScreen::showWaiting, Qt::QueuedConnection);
}

// With the keyboard on this screen: before that, closing a message would speak the screen below once more.
void PatientScreen::showWaiting() {
  if (std::exchange(m_asksGrowth, false)) {
    offerGrowth();
    voice().speakText(openingTexts().join(voice::kSpeechSeparator));  // the question interrupted it
  }
  if (const auto notice = std::exchange(m_notice, std::nullopt)) {
    messages().tell(notice->text, notice->title, screen::Icon::Exclamation);
    say(rowInWords());
  }
}

// After a refusal the question comes again at the next load; the screen works without the added columns.
void PatientScreen::offerGrowth() {
  if (!messages().ask(text::utf16(kGrowthQuestion), screen::Buttons::OkCancel, text::utf16(kGrowthTitle)))
    return;
  if (const text::Done grown = store::grow(file(), store::GrowthRun::Patient); !grown)
    return messages().tellDataFault(grown.fault().message);
  // A new row stays open: what is typed into it must not be lost for columns that this screen does not show.
  if (!source().rows().adding())
    if (const text::Done read = source().rows().refresh(); !read)
      return messages().tellDataFault(read.fault().message);
  messages().tell(text::utf16(kGrown), text::utf16(kGrowthTitle), screen::Icon::Information);
}

// Charts opened from here may have changed the row on view.
void PatientScreen::enter(const Route::AsShown&) {
  if (!source().isOpen() || !isVisible() || source().pending()) return;
  if (const text::Done read = source().rows().refresh(); !read)
    return messages().tellDataFault(read.fault().message);
  source().show();
}

void PatientScreen::enter(const Route::Announced&) {
  if (source().isOpen()) sayResult(rowInWords());
}

void PatientScreen::enter(const Route::NewPatient&) { startNewPatient(); }

void PatientScreen::fillSearchRow(const QString& patientName) {
  setText(kSearchColumn, patients::name);
  setText(kSearchWord, patientName);
}

void PatientScreen::noteFound(const text::Result<bool>& found) {
  if (!found)
    m_notice = {text::utf16(screen::kDataControlText) + found.fault().message, QString()};
  else if (!*found)
    m_notice = {text::utf16(screen::kNotFoundText), text::utf16(screen::kNotFoundTitle)};
  else
    sayResult(rowInWords());
}

void PatientScreen::enter(const Route::BySerial& patient) {
  if (patient.serial.isEmpty()) return enter(Route::AsShown{});
  if (source().isOpen() && mayLeaveRow())
    noteFound(screen::seekRow(source(), store::equalCriterion(patients::serial, patient.serial)));
}

void PatientScreen::enter(const Route::Booked& person) {
  if (!source().isOpen()) return;
  fillSearchRow(person.name);
  if (person.name.isEmpty() || !mayLeaveRow()) return;
  store::RecordSet& rows = source().rows();
  text::Done found = rows.refresh();
  const text::Done read = rows.moveAndRead([&](store::RecordSet&) {
    if (found) found = rows.findFirst(store::equalCriterion(patients::name, person.name));
  });
  if (!found || !read) return noteFound((!found ? found : read).fault());
  source().show();
  if (!rows.noMatch()) return noteFound(true);
  if (startRow(person.name)) m_notice = {text::utf16(kBookedIsNew), QString()};
}

void PatientScreen::enter(const Route::Listed& patient) {
  if (!source().isOpen()) return;
  fillSearchRow(patient.name);
  focusOn(kSearchWord);
  if (!mayLeaveRow()) return;
  store::RecordSet& rows = source().rows();
  text::Done read = rows.refresh();
  if (read) read = rows.moveAndRead([&patient](store::RecordSet& set) { set.setBookmark(patient.id); });
  if (!read) return noteFound(read.fault());
  source().show();
  noteFound(rows.bookmark() == patient.id);
}

}  // namespace records
