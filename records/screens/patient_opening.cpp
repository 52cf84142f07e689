// How the patient screen is entered: from the search, the list, the appointment book, a claim, and back from
// a chart.

#include "platform/screen/find_row.h"
#include "platform/store/criteria_text.h"
#include "platform/store/growth.h"
#include "records/screens/patient_fields.h"
#include "records/screens/patient_screen.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char16_t kBookedIsNew[] = u"該当がありません。データを新規に追加します。";
constexpr char16_t kGrowthTitle[] = u"データ追加";
constexpr char16_t kGrowthQuestion[] =
    u"電子カルテのデータに新しいデータを追加します。データによっては時間がかかります。";
constexpr char16_t kGrown[] = u"正常に電子カルテのデータに新しいデータが追加されました。";

}  // namespace

void PatientScreen::opened(const screen::Request& request) {
  if (request.value(u"新規"_s).toBool()) return startNewPatient();
  if (!source().isOpen()) return;
  const QString serial = request.value(u"テキスト5"_s).toString();  // a claim's カルテ3へ names its patient
  if (!serial.isEmpty()) {
    takeSerial(serial);
  } else if (request.contains(u"代入"_s)) {
    takeBooked(request[u"代入"_s].toString());
  } else if (request.contains(u"ID"_s)) {
    takeListed(request[u"ID"_s].toLongLong(), request[u"氏名"_s].toString());
  } else if (request.contains(u"表示患者"_s)) {
    sayResult(onView());
  } else {
    showAgain();
  }
}

// Asked and told with the keyboard on this screen: before that, the screen behind would be heard once more.
void PatientScreen::onActivate() {
  refreshAge();
  if (m_asksGrowth || m_notice)
    QMetaObject::invokeMethod(this, &PatientScreen::tellWaiting, Qt::QueuedConnection);
}

void PatientScreen::tellWaiting() {
  if (std::exchange(m_asksGrowth, false)) {
    offerGrowth();
    voice().speakText(openingTexts().join(voice::kSpeechSeparator));  // the question cut it
  }
  if (const auto notice = std::exchange(m_notice, std::nullopt)) {
    messages().tell(notice->text, notice->title, screen::Icon::Exclamation);
    say(onView());
  }
}

// A refusal is asked again at the next load; the screen works without the added columns.
void PatientScreen::offerGrowth() {
  const bool yes = messages().ask(name(kGrowthQuestion), screen::Buttons::OkCancel, name(kGrowthTitle));
  m_run.lastAnswer = yes ? 1 : 0;
  if (!yes) return;
  if (const text::Done grown = store::grow(file(), store::GrowthRun::Patient); !grown)
    return messages().tellDataFault(grown.fault().message);
  // A new row stays open: what is typed into it must not be lost for columns that this screen does not show.
  if (!source().rows().adding())
    if (const text::Done read = source().rows().refresh(); !read)
      return messages().tellDataFault(read.fault().message);
  messages().tell(name(kGrown), name(kGrowthTitle), screen::Icon::Information);
}

// Charts opened from here may have changed the row on view.
void PatientScreen::showAgain() {
  if (!isVisible() || source().pending()) return;
  if (const text::Done read = source().rows().refresh(); !read)
    return messages().tellDataFault(read.fault().message);
  source().show();
}

void PatientScreen::fillSearchRow(const QString& patientName) {
  setText(u"Combo1"_s, u"氏名"_s);
  setText(u"Combo3"_s, patientName);
}

void PatientScreen::noteFound(const text::Result<bool>& found) {
  if (!found)
    m_notice = {QString::fromUtf16(screen::kDataControlText) + found.fault().message, QString()};
  else if (!*found)
    m_notice = {QString::fromUtf16(screen::kNotFoundText), QString::fromUtf16(screen::kNotFoundTitle)};
  else
    sayResult(onView());
}

void PatientScreen::takeSerial(const QString& serial) {
  if (screen::commitOrDiscardRow(source()))
    noteFound(screen::seekRow(source(), store::equalCriterion(u"テキスト5"_s, serial)));
}

void PatientScreen::takeBooked(const QString& patientName) {
  fillSearchRow(patientName);
  if (patientName.isEmpty() || !screen::commitOrDiscardRow(source())) return;
  store::RecordSet& rows = source().rows();
  text::Done found = rows.refresh();
  const text::Done read = rows.moveAndRead([&](store::RecordSet&) {
    if (found) found = rows.findFirst(store::equalCriterion(u"氏名"_s, patientName));
  });
  if (!found || !read) return noteFound((!found ? found : read).fault());
  source().show();
  if (!rows.noMatch()) return noteFound(true);
  if (startRow(patientName)) m_notice = {name(kBookedIsNew), QString()};
}

void PatientScreen::takeListed(qint64 id, const QString& patientName) {
  fillSearchRow(patientName);
  focusOn(u"Combo3"_s);
  if (!screen::commitOrDiscardRow(source())) return;
  store::RecordSet& rows = source().rows();
  text::Done read = rows.refresh();
  if (read) read = rows.moveAndRead([id](store::RecordSet& set) { set.setBookmark(id); });
  if (!read) return noteFound(read.fault());
  source().show();
  noteFound(rows.bookmark() == id);
}

}  // namespace records
