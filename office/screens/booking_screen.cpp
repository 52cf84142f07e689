#include "office/screens/booking_screen.h"

#include "office/core/booking_book.h"
#include "office/core/booking_date.h"
#include "office/core/booking_time.h"
#include "office/screens/booking_form_rows.h"
#include "office/screens/booking_list.h"
#include "platform/screen/find_row.h"
#include "platform/text/utf16.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

namespace {

using namespace booking_form;

constexpr screen::RecordWords kWords{
    .dropped = u"中止しました",
    .deleteQuestion = u"　現在の該当患者を削除しますか？",
    .discardQuestion = u"登録していない内容があります。捨ててもよろしいですか？"};

/// The columns of the day once more: hidden, each next to its list.
constexpr std::pair<screen::ControlRef, screen::ControlRef> kDayFields[] = {
    {ref(kRows, u"txtFields", 3), kDay.year},
    {ref(kRows, u"txtFields", 4), kDay.month},
    {ref(kRows, u"txtFields", 5), kDay.day}};

/// Everything that is stored but the row's key.
constexpr screen::ControlRef kFields[] = {kNumber,  kPatientNumber, kName,  kDay.year, kDay.month, kDay.day,
                                          kWeekday, kTime,          kStamp, kMemo,     kShadow,    kSerial};

const QString kCannotStore = u"登録出来ませんでした。入力した内容を捨てて、閉じますか？"_s;
const QString kNoTime = u"予約時間を時刻として読めません。9:30 または 14時30分 のように入力して下さい。"_s;
const QString kNoStamp =
    u"登録日時を日付と時刻として読めません。令和6年10月1日 9:30 のように入力して下さい。"_s;

}  // namespace

BookingScreen::BookingScreen(screen::Services& services, frame::RunState& run)
    : RecordScreen(kDeclaration, services, kWords), m_run(run) {}

void BookingScreen::onLoad() {
  for (const screen::ControlRef& hidden : {kId, kShadow, kSerial}) setShown(hidden, false);
  for (const auto& [hidden, list] : kDayFields) setShown(hidden, false);
}

void BookingScreen::opened(const screen::Request& request) {
  const auto* handed = request.as<routes::Booking>();
  const routes::Booking booking = handed ? *handed : routes::Booking{};
  if (std::holds_alternative<routes::Booking::Back>(booking.what) || !mayDrop()) return;
  m_opener = booking.opener;
  if (const auto* stored = std::get_if<routes::Booking::Stored>(&booking.what))
    showBooking(stored->id);
  else
    begin(std::get<routes::Booking::NewBooking>(booking.what).patient);
  // Another booking in the open window: what came on view is said as at its opening.
  if (isVisible()) sayResult(openingTexts());
  focusOnField();
}

QStringList BookingScreen::openingTexts() const {
  QStringList texts{windowTitle()};
  if (source().isOpen() && source().rows().adding()) texts += u"新規予約"_s;
  return texts + bookingOnView();
}

void BookingScreen::onActivate() { m_whenActivated.run(*this); }

bool BookingScreen::openTable() { return source().open(m_run.folders[frame::folder::kAppointments]); }

void BookingScreen::rowShown(int) { m_shown = fields(); }

// ---- Which booking is on view

void BookingScreen::begin(const std::optional<frame::Patient>& patient) {
  // Read afresh, so that a set narrowed to one booking does not remain.
  if (!openTable() || !source().addNew()) return;
  putDay(m_run.clock->today());
  setText(kTime, timeText(m_run.clock->now().time()));
  if (patient) {
    setText(kPatientNumber, patient->number);
    setText(kName, patient->name);
    setText(kSerial, patient->serial);
  }
  m_shown = fields();
}

void BookingScreen::focusOnField() {
  const bool adding = source().isOpen() && source().rows().adding();
  focusOn(!adding ? kNumber : text(kName).isEmpty() ? kName : kDay.year);
}

void BookingScreen::showBooking(qint64 id) {
  if (!openTable()) return;
  store::RecordSet& rows = source().rows();
  rows.setFilter(u"%1 = %2 "_s.arg(bookings::id.text()).arg(id));
  auto hit = rows.openRecordset();
  rows.setFilter(QString());
  if (!hit) return messages().tellDataFault(hit.fault().message);
  if (hit->recordCount() == 0) m_whenActivated.set([this] { screen::tellNotFound(*this); });
  source().assign(std::move(*hit));
}

QStringList BookingScreen::fields() const {
  QStringList texts;
  for (const screen::ControlRef& field : kFields) texts += text(field);
  return texts;
}

void BookingScreen::putFields(const QStringList& texts) {
  for (qsizetype i = 0; i < texts.size(); ++i) setText(kFields[i], texts[i]);
}

bool BookingScreen::mayDrop() {
  if (!source().isOpen() || fields() == m_shown) return true;
  return messages().askToDrop(text::utf16(kWords.discardQuestion));
}

bool BookingScreen::mayLeaveRow() {
  if (!mayDrop()) return false;
  source().drop();
  return true;
}

void BookingScreen::addBooking() {
  if (!mayDrop()) return;
  begin({});
  sayBooking(u"新規追加"_s);
  focusOnField();
}

QStringList BookingScreen::rowInWords() const {
  if (!source().hasCurrentRow()) return {u"予約 0 件"_s};
  return {source().positionText(), text(kDay.month) + u"月"_s + text(kDay.day) + u"日"_s, text(kTime),
          text(kName)};
}

void BookingScreen::sayDone(const QString& done) {
  sayBooking(source().hasCurrentRow() ? done + voice::kSpeechSeparator + u"表示中の予約"_s : done);
}

void BookingScreen::sayBooking(const QString& done) { sayResult(QStringList{done} + bookingOnView()); }

QStringList BookingScreen::bookingOnView() const {
  if (!source().hasCurrentRow()) return {};
  QString day;
  const std::pair<screen::ControlRef, QChar> numbers[] = {
      {kDay.year, u'年'}, {kDay.month, u'月'}, {kDay.day, u'日'}};
  for (const auto& [list, unit] : numbers)
    if (!text(list).isEmpty()) day += text(list) + unit;
  QStringList parts{day, text(kWeekday), text(kTime), text(kName)};
  parts.removeAll(QString());
  return parts;
}

// ---- Date and time

void BookingScreen::putDay(QDate date) {
  putNumbers(numbersOf(date));
  setText(kWeekday, weekday(date));
}

void BookingScreen::putNumbers(const frame::DayAsked& day) {
  putDayLists(*this, kDay, day);
  for (const auto& [hidden, list] : kDayFields) setText(hidden, text(list));
}

// Kept: only the date text rolls over; month and day stay as typed, and a search goes by them.
void BookingScreen::putDerived(const ListedDay& day) {
  putNumbers(day.numbers);
  setText(kShadow, shadowDate(day.date));
  setText(kWeekday, weekday(day.date));
}

void BookingScreen::fillToday() {
  putDay(m_run.clock->today());
  voice().speakHeading({dayText(m_run.eraDates(), m_run.clock->today())});
}

void BookingScreen::fillNow() {
  setText(kTime, timeText(m_run.clock->now().time()));
  voice().speakHeading({caption(kTime), text(kTime)});
}

void BookingScreen::rewriteTimes() {
  const auto time = typedTime(text(kTime));
  if (!text(kTime).isEmpty() && !time) {
    messages().tell(kNoTime);
    return focusOn(kTime);
  }
  const auto stamp = stampRewritten(m_run.eraDates(), text(kStamp));
  if (!text(kStamp).isEmpty() && !stamp) {
    messages().tell(kNoStamp);
    return focusOn(kStamp);
  }
  if (time) setText(kTime, timeText(*time));
  if (stamp) setText(kStamp, *stamp);
  voice().speakHeading({caption(kTime), text(kTime), caption(kStamp), text(kStamp)});
}

void BookingScreen::showWeekday() {
  const auto day = askedDay(*this, kDay);
  if (!day) return;
  setText(kWeekday, weekday(day->date));
  voice().speakHeading({dayText(m_run.eraDates(), day->date)});
}

// ---- Storing

bool BookingScreen::putSerial() {
  if (!text(kSerial).isEmpty()) return true;
  const auto serial = nextBookingSerial(m_run.folders[frame::folder::kPatients],
                                        m_run.folders[frame::folder::kAppointments], m_run.clock->today());
  if (serial)
    setText(kSerial, *serial);
  else
    messages().tellDataFault(serial.fault().message);
  return serial.ok();
}

void BookingScreen::storeRow() {
  const QStringList typed = fields();
  if (!source().isOpen()) {
    // A file that could not be opened before is tried again; what was typed becomes a new booking.
    if (!openTable() || !source().addNew()) return;
    putFields(typed);
  }
  const auto day = askedDay(*this, kDay);
  if (!day) return;
  setText(kStamp, stampText(m_run.eraDates(), m_run.clock->now()));
  putDerived(*day);
  // A booking that was refused must not look like a stored one.
  if (!putSerial() || !writeOnView()) return putFields(typed);
  messages().tell(u"更新しました。一旦、閉じるを押してください。"_s);
}

// ---- Leaving

std::optional<screen::ScreenName> BookingScreen::caller() const {
  return m_opener ? m_opener : callerOf(m_run);
}

void BookingScreen::openList() { navigator().show(routes::TodaysBookings{}); }

void BookingScreen::finish() {
  if (!source().hasCurrentRow()) return leave();
  if (text(kName).isEmpty() || text(kStamp).isEmpty()) {
    navigator().show(routes::AskUnfinishedBooking{.caller = caller()});
    return;
  }
  const auto day = dayOfLists(*this, kDay);
  if (!day) {
    // A stored row without a date is left as it is; one that was changed has to be corrected first.
    if (fields() != m_shown)
      askedDay(*this, kDay);
    else
      leave();
    return;
  }
  putDerived(*day);
  if (writeOnView() || messages().askToDrop(kCannotStore)) leave();
}

void BookingScreen::leave() {
  if (const auto back = caller()) navigator().show(*back);
  navigator().unload(objectName());
}

bool BookingScreen::onCloseBox() {
  finish();
  return false;
}

}  // namespace office
