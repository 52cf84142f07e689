#include "office/screens/takings_screen.h"

#include "frame/core/routes.h"
#include "office/core/booking_date.h"
#include "office/core/takings.h"
#include "office/screens/day_lists.h"
#include "office/screens/takings_rows.h"
#include "platform/screen/find_row.h"
#include "platform/store/criteria_text.h"
#include "records/core/visit_dates.h"
#include "records/core/visit_totals.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

namespace {

using namespace takings_rows;

// Kept: asked for a day, an empty list speaks of a button of another screen.
const QString kNoRowsOfDay = u"検索データが０件です。「全表示に戻す」をクリックして下さい。"_s;
const QString kDeleteQuestion = u"　現在の表示の患者のカルテを削除しますか？"_s;
const QString kNothingToDelete = u"削除するデータがありません。"_s;

}  // namespace

TakingsScreen::TakingsScreen(screen::Services& services, frame::RunState& run)
    : ListScreen(kDeclaration, services), m_run(run) {}

void TakingsScreen::onLoad() {
  setShown(kSerial, false);
  const QDate today = m_run.clock->today();
  setItems(kDay.year, takingsYears(today));
  putDayLists(*this, kDay, numbersOf(today));
  setText(kMonth, records::presentMonthText(m_run.eraDates()));
  openWhole();
}

void TakingsScreen::opened(const screen::Request& request) {
  const auto* asked = request.as<routes::Takings>();
  if (!asked) return;
  if (asked->lastRow) source().moveLast();
  if (!asked->day.isValid()) return;
  putDayLists(*this, kDay, numbersOf(asked->day));
  m_whenActivated.set([this] { showDay(); });
}

void TakingsScreen::onActivate() { m_whenActivated.run(*this); }

QStringList TakingsScreen::openingTexts() const { return QStringList{windowTitle()} + countOnView(); }

bool TakingsScreen::openWhole() { return source().open(m_run.folders[frame::folder::kVisits]); }

void TakingsScreen::rowShown(int) {
  setText(kCount, QString::number(source().isOpen() ? source().rows().recordCount() : 0));
}

QStringList TakingsScreen::countOnView() const { return {caption(kCount), text(kCount)}; }

QStringList TakingsScreen::rowOnView() const {
  if (!holdsRows()) return countOnView();
  const store::RecordSet& rows = source().rows();
  return {source().positionText(), rows.value(visits::date), rows.value(visits::name)};
}

// ---- What is on view ----

// Texts are compared: a visit whose date was typed in western form is not found.
void TakingsScreen::showDay() {
  const auto day = askedDay(*this, kDay);
  if (!day || emptySet(kNoRowsOfDay)) return;
  const QString date = takingsDay(m_run.eraDates(), day->date);
  narrow(store::equalCriterion(visits::date, date), date);
}

void TakingsScreen::showMonth() {
  const QString month = text(kMonth);
  if (month.isEmpty()) return askFor(kMonth);
  narrow(store::prefixCriterion(visits::date, month), month);
}

void TakingsScreen::openCalendar() {
  m_run.calendarUse = frame::CalendarUse::Takings;
  navigator().show(routes::TakingsCalendar{});
}

void TakingsScreen::askSort() {
  if (!emptySet()) navigator().show(routes::SortTakings{});
}

void TakingsScreen::showAll() {
  if (openWhole()) tellResult(u"全患者を表示しました"_s);
}

void TakingsScreen::showTotals() {
  if (!source().isOpen() && !openWhole()) return;
  const auto totals = records::totalsOf(source().rows());
  if (!totals) return messages().tellDataFault(totals.fault().message);
  navigator().show(records::totalsRoute(*totals, false));
}

// ---- The row ----

// A visit without its link would show the first patient of the register.
void TakingsScreen::openPatient() {
  if (emptySet() || !source().ensureRead()) return;
  const QString serial = source().rows().value(visits::patientSerial);
  if (serial.isEmpty()) return screen::tellNotFound(*this);
  navigator().show(routes::PatientRegister{routes::PatientRegister::BySerial{serial}});
}

void TakingsScreen::removeVisit() {
  if (!messages().ask(kDeleteQuestion)) return;
  if (!holdsRows()) return messages().tell(kNothingToDelete);
  if (source().remove()) tellResult(u"削除しました"_s);
}

void TakingsScreen::finish() {
  navigator().show(routes::MainMenu{});
  closeNow();
}

bool TakingsScreen::onCloseBox() {
  finish();
  return false;
}

}  // namespace office
