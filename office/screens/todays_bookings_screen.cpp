#include "office/screens/todays_bookings_screen.h"

#include "frame/core/routes.h"
#include "office/core/booking_date.h"
#include "office/screens/day_lists.h"
#include "office/screens/todays_bookings_rows.h"
#include "platform/screen/find_row.h"
#include "platform/store/criteria_text.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

namespace {

using namespace todays_rows;

/// The platform value of the settings with which the calendar ends the program.
constexpr QStringView kCalendarFails = u"Xp";

}  // namespace

TodaysBookingsScreen::TodaysBookingsScreen(screen::Services& services, frame::RunState& run)
    : BookingList(kDeclaration, kList, services, run) {}

void TodaysBookingsScreen::onLoad() {
  setText(kColumn, items(kColumn).value(0));
  openWhole();
}

void TodaysBookingsScreen::opened(const screen::Request& request) {
  const bool calendar = m_run.platformValue != kCalendarFails;
  setShown(kCalendarButton, calendar);
  setShown(kCalendarEntry, calendar);
  const bool again = std::exchange(m_loaded, true);
  if (again) readAgain();
  putDayLists(*this, kDay, offeredDay(m_run));
  const auto* asked = request.as<routes::TodaysBookings>();
  if (asked && asked->lastRow && holdsRows()) source().moveLast();
  m_showsDay = asked && asked->showsDay;
  if (m_showsDay) return whenActive([this] { showDay(); });
  // Coming back, the user has to hear whether all bookings are on view.
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
  setCaption(kPosition, source().isOpen() ? source().positionText() : u"ﾚｺｰﾄﾞ: "_s);
}

// ---- A chosen day

std::optional<QDate> TodaysBookingsScreen::readLists() {
  const auto day = askedDay(*this, kDay);
  if (!day) return std::nullopt;
  m_run.dayAsked = day->numbers;
  setText(kWeekday, weekday(day->date));
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
    // The day is searched among the rows on view: who hears "no match" has to know that.
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
  const QString word = text(kWord);
  if (word.isEmpty()) return askFor(kWord);
  narrowBy(store::likeCriterion(text(kColumn), word));
}

void TodaysBookingsScreen::showAll() {
  if (openWhole()) sayRows({u"全表示"_s});
}

void TodaysBookingsScreen::removeBooking() {
  if (!messages().ask(u"　現在の該当患者を削除しますか？"_s)) return;
  if (!holdsRows()) return messages().tell(u"削除するデータがありません。"_s);
  if (!source().remove()) return;
  source().moveLast();
  sayWithCount({u"削除しました"_s});
}

// ---- Other screens

void TodaysBookingsScreen::openCalendar() {
  m_run.calendarUse = frame::CalendarUse::Bookings;
  navigator().show(routes::BookingCalendar{});
}

void TodaysBookingsScreen::askCalendar() {
  m_run.calendarUse = frame::CalendarUse::Bookings;
  navigator().show(routes::AskCalendar{});
}

void TodaysBookingsScreen::openWeek() { navigator().show(routes::WeekOfBookings{}); }
void TodaysBookingsScreen::newBooking() {
  navigator().show(routes::Booking{.opener = routes::TodaysBookings::screen});
}

void TodaysBookingsScreen::editBooking() {
  if (emptySet(u"編集データがありません。「全患者表示及び再表示」をクリックして下さい。"_s)) return;
  navigator().show(routes::Booking{.what = routes::Booking::Stored{source().rows().bookmark()},
                                   .opener = routes::TodaysBookings::screen});
}

}  // namespace office
