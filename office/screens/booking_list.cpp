#include "office/screens/booking_list.h"

#include "frame/core/routes.h"
#include "office/core/booking_book.h"
#include "platform/screen/hourglass.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

std::optional<screen::ScreenName> callerOf(const frame::RunState& run) {
  const bool noWayBack =
      run.bookingsCaller == routes::MainMenu::screen && run.folders[frame::folder::kPatients].isEmpty();
  return noWayBack ? std::nullopt : run.bookingsCaller;
}

BookingList::BookingList(const screen::ScreenRow& declaration, screen::ControlRef list,
                         screen::Services& services, frame::RunState& run)
    : ListScreen(declaration, services), m_run(run), m_list(list) {}

void BookingList::onActivate() { m_whenActivated.run(*this); }

void BookingList::whenActive(std::function<void()> work) {
  m_whenActivated.set(std::move(work));
  if (isActiveWindow()) m_whenActivated.run(*this);
}

bool BookingList::openWhole() { return source().open(m_run.folders[frame::folder::kAppointments]); }

QString BookingList::noRowsText() const {
  return u"検索データが０件です。「全表示に戻す」をクリックして下さい。"_s;
}

QStringList BookingList::rowOnView() const {
  if (!holdsRows()) return countOnView();
  const Booking shown = booking();
  return {dayInWords(shown), shown.time, shown.patientName};
}

std::optional<store::RecordSet> BookingList::bookingsOfDay(const frame::DayAsked& day) {
  if (emptySet()) return std::nullopt;
  auto hits = [&] {
    const screen::Hourglass seeking;
    return bookingsOf(source().rows(), day);
  }();
  if (hits) return std::move(*hits);
  messages().tellDataFault(hits.fault().message);
  return std::nullopt;
}

QStringList BookingList::countOnView() const {
  return {u"予約 %1 件"_s.arg(source().isOpen() ? source().rows().recordCount() : 0)};
}

void BookingList::sayWithCount(const QStringList& parts) {
  // The sentence that a window opens with is not cut.
  if (!voice().isHeld()) messages().interruptAndProtectNext();
  voice().speakText((parts + countOnView()).join(voice::kSpeechSeparator));
}

void BookingList::sayRows(const QStringList& parts) {
  sayWithCount(parts);
  if (focused() == m_list.name() && holdsRows())
    return voice().speakText(rowOnView().join(voice::kSpeechSeparator));
  focusOn(m_list);
}

void BookingList::handOver() {
  if (!holdsRows()) return messages().tell(u"代入するデータがありません。"_s);
  if (!source().ensureRead()) return;
  const Booking shown = booking();
  navigator().show(
      routes::PatientRegister{routes::PatientRegister::Booked{shown.patientName, shown.patientNumber}});
}

void BookingList::finish() {
  if (const auto caller = callerOf(m_run)) navigator().show(*caller);
  closeNow();
}

bool BookingList::onCloseBox() {
  finish();
  return false;
}

}  // namespace office
