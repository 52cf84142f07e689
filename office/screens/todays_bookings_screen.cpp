#include "office/screens/todays_bookings_screen.h"

#include "frame/core/routes.h"
#include "office/core/booking_date.h"
#include "office/screens/day_lists.h"
#include "platform/screen/find_row.h"
#include "platform/store/criteria_text.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Of the settings' platform value: where the calendar ends the program.
constexpr QStringView kCalendarFails = u"Xp";

}  // namespace

TodaysBookingsScreen::TodaysBookingsScreen(screen::Services& services, frame::RunState& run)
    : BookingList(kTodaysBookings, services, run) {}

void TodaysBookingsScreen::onLoad() {
  setText(u"Combo4"_s, items(u"Combo4"_s).value(0));
  openWhole();
}

void TodaysBookingsScreen::opened(const screen::Request& request) {
  const bool calendar = m_run.platformValue != kCalendarFails;
  setShown(u"Command4"_s, calendar);
  setShown(u"Men_YC"_s, calendar);
  const bool again = std::exchange(m_loaded, true);
  if (again) readAgain();
  putDayLists(*this, offeredDay(m_run));
  if (request.value(u"最終行"_s).toBool() && holdsRows()) source().moveLast();
  m_showsDay = request.value(u"指定日"_s).toBool();
  if (m_showsDay) return whenActive([this] { showDay(); });
  // Coming back, the listener has to know whether all bookings are on view.
  if (again) sayWithCount(headingTexts());
}

QStringList TodaysBookingsScreen::headingTexts() const {
  QStringList texts{windowTitle()};
  if (m_narrowed) texts += u"抽出中"_s;
  return texts;
}

QStringList TodaysBookingsScreen::openingTexts() const {
  return m_showsDay ? QStringList(windowTitle()) : headingTexts() + countOnView();
}

void TodaysBookingsScreen::readAgain() {
  if (!source().isOpen()) return;
  if (const text::Done read = source().rows().refresh(); !read)
    return messages().tellDataFault(read.fault().message);
  source().show();
}

bool TodaysBookingsScreen::openWhole() {
  if (!BookingList::openWhole()) return false;
  m_narrowed = false;
  return true;
}

void TodaysBookingsScreen::setChanged(const QString& done) {
  m_narrowed = true;
  sayRows({done});
}

void TodaysBookingsScreen::rowShown(int) {
  setCaption(u"Data1"_s, source().isOpen() ? source().positionText() : u"ﾚｺｰﾄﾞ: "_s);
}

// ---- A chosen day

std::optional<QDate> TodaysBookingsScreen::readLists() {
  const auto day = askedDay(*this);
  if (!day) return std::nullopt;
  m_run.dayAsked = day->numbers;
  setText(u"Text1"_s, weekday(day->date));
  return day->date;
}

void TodaysBookingsScreen::showDay() {
  const auto date = readLists();
  if (!date) return;
  auto hits = bookingsOfDay(m_run.dayAsked);
  if (!hits) return;
  if (hits->recordCount() == 0) {
    screen::tellNotFound(*this);
    QStringList texts{dayText(m_run.eraDates(), *date) + u"の予約はありません。"_s};
    // A day is sought among the rows on view: whoever hears "no match" has to know that.
    if (m_narrowed) texts += u"表示中の予約の中から探しました。全表示に戻すと、すべての予約から探せます。"_s;
    return sayWithCount(texts << u"表示中"_s);
  }
  source().assign(std::move(*hits));
  m_narrowed = true;
  sayRows({dayText(m_run.eraDates(), *date)});
}

void TodaysBookingsScreen::showWeekday() {
  if (const auto date = readLists()) voice().speakHeading({dayText(m_run.eraDates(), *date)});
}

// ---- The list

void TodaysBookingsScreen::extract() {
  const QString word = text(u"txtFields(0)"_s);
  if (word.isEmpty()) return askFor(u"txtFields(0)"_s);
  narrowBy(store::likeCriterion(text(u"Combo4"_s), word));
}

void TodaysBookingsScreen::showAll() {
  if (openWhole()) sayRows({u"全表示"_s});
}

void TodaysBookingsScreen::removeBooking() {
  const bool yes = messages().ask(u"　現在の該当患者を削除しますか？"_s);
  m_run.lastAnswer = yes ? 1 : 0;
  if (!yes) return;
  if (!holdsRows()) return messages().tell(u"削除するデータがありません。"_s);
  if (!source().remove()) return;
  source().moveLast();
  sayWithCount({u"削除しました"_s});
}

// ---- Other screens

void TodaysBookingsScreen::openCalendar() { showForBookings(u"予約カレンダー"_s); }
void TodaysBookingsScreen::askCalendar() { showForBookings(u"カレンダーのチェック"_s); }

void TodaysBookingsScreen::showForBookings(const QString& calendar) {
  m_run.calendarMode = frame::calendar::kBookings;
  navigator().show(calendar);
}

void TodaysBookingsScreen::openWeek() { navigator().show(routes::WeekOfBookings{}); }
void TodaysBookingsScreen::newBooking() { navigator().show(u"予約2"_s, {{u"opener"_s, objectName()}}); }

void TodaysBookingsScreen::editBooking() {
  if (emptySet(u"編集データがありません。「全患者表示及び再表示」をクリックして下さい。"_s)) return;
  navigator().show(u"予約2"_s,
                   {{u"ID"_s, source().rows().value(u"ID"_s).toLongLong()}, {u"opener"_s, objectName()}});
}

}  // namespace office
