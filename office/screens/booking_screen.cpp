#include "office/screens/booking_screen.h"

#include "office/core/booking_book.h"
#include "office/core/booking_date.h"
#include "office/core/booking_time.h"
#include "office/screens/booking_list.h"
#include "platform/screen/find_row.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kPatientId = u"txtFields(1)"_s, kName = u"txtFields(2)"_s, kTime = u"txtFields(6)"_s,
              kStamp = u"txtFields(7)"_s, kYear = u"Combo1"_s, kMonth = u"Combo2"_s, kDay = u"Combo3"_s,
              kWeekday = u"Combo4"_s, kShadow = u"Text2"_s, kSerial = u"Text3"_s;

/// The columns of the day once more: hidden, each beside its list.
const std::pair<QString, QString> kDayFields[] = {
    {u"txtFields(3)"_s, kYear}, {u"txtFields(4)"_s, kMonth}, {u"txtFields(5)"_s, kDay}};

/// Everything that is stored but the row's key.
const QStringList kFields{u"txtFields(0)"_s, kPatientId, kName,  kYear, kMonth, kDay, kWeekday, kTime, kStamp,
                          u"txtFields(8)"_s, kShadow,    kSerial};

const QString kKeptFromDropping = u"登録していない内容があります。捨ててもよろしいですか？"_s;
const QString kCannotStore = u"登録出来ませんでした。入力した内容を捨てて、閉じますか？"_s;
const QString kNoTime = u"予約時間を時刻として読めません。9:30 または 14時30分 のように入力して下さい。"_s;
const QString kNoStamp =
    u"登録日時を日付と時刻として読めません。令和6年10月1日 9:30 のように入力して下さい。"_s;

}  // namespace

BookingScreen::BookingScreen(screen::Services& services, frame::RunState& run)
    : Screen(kBooking, services), m_run(run) {
  source().writesOnMove = false;
}

void BookingScreen::onLoad() {
  for (const QString& hidden : {u"Text1"_s, kShadow, kSerial}) setShown(hidden, false);
  for (const auto& [hidden, list] : kDayFields) setShown(hidden, false);
}

void BookingScreen::opened(const screen::Request& request) {
  if (request.contains(u"戻る"_s) || !mayDrop()) return;
  m_opener = request.value(u"opener"_s).toString();
  if (request.contains(u"ID"_s))
    showBooking(request[u"ID"_s].toLongLong());
  else
    begin(request);
  // Another booking in the open window: what came on view is said as at its opening.
  if (isVisible()) sayResult(openingTexts());
  focusOnField();
}

QStringList BookingScreen::openingTexts() const {
  QStringList texts{windowTitle()};
  if (source().isOpen() && source().rows().adding()) texts += u"新規予約"_s;
  return texts + bookingOnView();
}

void BookingScreen::onActivate() { m_onceActive.run(*this); }

bool BookingScreen::openTable() { return source().open(m_run.folders[frame::folder::kAppointments]); }

void BookingScreen::rowShown(int) { m_shown = fields(); }

// ---- Which booking is on view

void BookingScreen::begin(const screen::Request& patient) {
  // Read afresh, so that a list narrowed to one booking does not stay.
  if (!openTable() || !source().addNew()) return;
  putDay(m_run.clock->today());
  setText(kTime, timeText(m_run.clock->now().time()));
  setText(kPatientId, patient.value(u"患者ID"_s).toString());
  setText(kName, patient.value(u"氏名"_s).toString());
  setText(kSerial, patient.value(u"テキスト5"_s).toString());
  m_shown = fields();
}

void BookingScreen::focusOnField() {
  const bool adding = source().isOpen() && source().rows().adding();
  focusOn(!adding ? kFields.first() : text(kName).isEmpty() ? kName : kYear);
}

void BookingScreen::showBooking(qint64 id) {
  if (!openTable()) return;
  store::RecordSet& rows = source().rows();
  rows.setFilter(u"ID = %1 "_s.arg(id));
  auto hit = rows.openRecordset();
  rows.setFilter(QString());
  if (!hit) return messages().tellDataFault(hit.fault().message);
  if (hit->recordCount() == 0) m_onceActive.set([this] { screen::tellNotFound(*this); });
  source().assign(std::move(*hit));
}

bool BookingScreen::hasBooking() const { return source().holdsRow(); }

QStringList BookingScreen::fields() const {
  QStringList texts;
  for (const QString& field : kFields) texts += text(field);
  return texts;
}

void BookingScreen::putFields(const QStringList& texts) {
  for (qsizetype i = 0; i < kFields.size(); ++i) setText(kFields[i], texts[i]);
}

bool BookingScreen::mayDrop() {
  if (!source().isOpen() || fields() == m_shown) return true;
  return messages().askToDrop(kKeptFromDropping);
}

void BookingScreen::addBooking() {
  if (!mayDrop()) return;
  begin({});
  sayBooking(u"新規追加"_s);
  focusOnField();
}

void BookingScreen::step(void (screen::DataSource::*move)()) {
  if (!source().ready() || !mayDrop()) return;
  source().drop();
  (source().*move)();
  if (!hasBooking()) return voice().speakHeading({u"予約 0 件"_s});
  voice().speakHeading(
      {source().positionText(), text(kMonth) + u"月"_s + text(kDay) + u"日"_s, text(kTime), text(kName)});
}

void BookingScreen::goFirst() { step(&screen::DataSource::moveFirst); }
void BookingScreen::goPrevious() { step(&screen::DataSource::movePrevious); }
void BookingScreen::goNext() { step(&screen::DataSource::moveNext); }
void BookingScreen::goLast() { step(&screen::DataSource::moveLast); }

void BookingScreen::sayBooking(const QString& done) { sayResult(QStringList{done} + bookingOnView()); }

QStringList BookingScreen::bookingOnView() const {
  if (!hasBooking()) return {};
  QString day;
  const std::pair<QString, QChar> numbers[] = {{kYear, u'年'}, {kMonth, u'月'}, {kDay, u'日'}};
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
  putDayLists(*this, day);
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
  const auto day = askedDay(*this);
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

bool BookingScreen::write() {
  if (!hasBooking()) return source().addNewAsShown() && source().write();
  return source().write();
}

void BookingScreen::storeBooking() {
  const QStringList typed = fields();
  if (!source().isOpen()) {
    // A file that could not be opened before is tried again; what was typed becomes a booking of its own.
    if (!openTable() || !source().addNew()) return;
    putFields(typed);
  }
  const auto day = askedDay(*this);
  if (!day) return;
  setText(kStamp, stampText(m_run.eraDates(), m_run.clock->now()));
  putDerived(*day);
  // A booking that was refused must not look like a stored one.
  if (!putSerial() || !write()) return putFields(typed);
  messages().tell(u"更新しました。一旦、閉じるを押してください。"_s);
}

void BookingScreen::deleteBooking() {
  if (!hasBooking()) return messages().tell(u"削除するデータがありません。"_s);
  const bool yes = messages().ask(u"　現在の該当患者を削除しますか？"_s);
  m_run.lastAnswer = yes ? 1 : 0;
  if (!yes) return;
  // A new booking only leaves the screen: the row before it must not go instead.
  const bool added = source().rows().adding();
  if (added)
    source().drop();
  else if (!source().remove())
    return;
  const QString done = added ? u"中止しました"_s : u"削除しました"_s;
  sayBooking(hasBooking() ? done + voice::kSpeechSeparator + u"表示中の予約"_s : done);
}

// ---- Leaving

QString BookingScreen::caller() const { return m_opener.isEmpty() ? callerOf(m_run) : m_opener; }

void BookingScreen::openList() { navigator().show(u"今日の予約"_s, {{u"opener"_s, objectName()}}); }

void BookingScreen::finish() {
  if (!hasBooking()) return leave();
  if (text(kName).isEmpty() || text(kStamp).isEmpty()) {
    navigator().show(u"更新の確認"_s, {{u"caller"_s, caller()}});
    return;
  }
  const auto day = dayOfLists(*this);
  if (!day) {
    // A stored row without a date is left as it is; one that was changed is put right first.
    if (fields() != m_shown)
      askedDay(*this);
    else
      leave();
    return;
  }
  putDerived(*day);
  if (write() || messages().askToDrop(kCannotStore)) leave();
}

void BookingScreen::leave() {
  const QString back = caller();
  if (!back.isEmpty()) navigator().show(back, {{u"opener"_s, objectName()}});
  navigator().unload(objectName());
}

bool BookingScreen::onCloseBox() {
  finish();
  return false;
}

}  // namespace office
