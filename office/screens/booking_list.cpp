#include "office/screens/booking_list.h"

#include "office/core/booking_book.h"
#include "platform/screen/hourglass.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

QString callerOf(const frame::RunState& run) {
  if (run.callerMark == frame::caller::kMainMenu && !run.folders[frame::folder::kPatients].isEmpty())
    return u"選択3"_s;
  return run.callerMark == frame::caller::kPatients ? u"治療台帳4"_s : QString();
}

BookingList::BookingList(const screen::ScreenRow& declaration, screen::Services& services,
                         frame::RunState& run)
    : ListScreen(declaration, services), m_run(run) {}

void BookingList::onActivate() { m_onceActive.run(*this); }

void BookingList::whenActive(std::function<void()> work) {
  m_onceActive.set(std::move(work));
  if (isActiveWindow()) m_onceActive.run(*this);
}

bool BookingList::openWhole() { return source().open(m_run.folders[frame::folder::kAppointments]); }

QString BookingList::noRowsText() const {
  return u"検索データが０件です。「全表示に戻す」をクリックして下さい。"_s;
}

QStringList BookingList::rowOnView() const {
  if (!holdsRows()) return countOnView();
  const store::RecordSet& rows = source().rows();
  return {rows.value(u"予約月"_s) + u"月"_s + rows.value(u"予約日"_s) + u"日"_s, rows.value(u"予約時間"_s),
          rows.value(u"予約患者"_s)};
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
  if (!voice().isHeld()) messages().holdSpeech();
  voice().speakText((parts + countOnView()).join(voice::kSpeechSeparator));
}

void BookingList::sayRows(const QStringList& parts) {
  sayWithCount(parts);
  if (focused() == u"DBGrid1" && holdsRows())
    return voice().speakText(rowOnView().join(voice::kSpeechSeparator));
  focusOn(u"DBGrid1"_s);
}

void BookingList::handOver() {
  if (!holdsRows()) return messages().tell(u"代入するデータがありません。"_s);
  const store::RecordSet& rows = source().rows();
  navigator().show(u"治療台帳4"_s,
                   {{u"代入"_s, rows.value(u"予約患者"_s)}, {u"患者NO"_s, rows.value(u"患者NO"_s)}});
}

void BookingList::finish() {
  const QString caller = callerOf(m_run);
  if (!caller.isEmpty()) navigator().show(caller);
  closeNow();
}

bool BookingList::onCloseBox() {
  finish();
  return false;
}

}  // namespace office
