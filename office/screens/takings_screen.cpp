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

// Kept: asked for a day, an empty list speaks of a button of another screen.
const QString kNoRowsOfDay = u"検索データが０件です。「全表示に戻す」をクリックして下さい。"_s;
const QString kDeleteQuestion = u"　現在の表示の患者のカルテを削除しますか？"_s;
const QString kNothingToDelete = u"削除するデータがありません。"_s;

const QString kVisitDate = u"治療日時"_s;
const QString kCount = u"Label4"_s;

}  // namespace

TakingsScreen::TakingsScreen(screen::Services& services, frame::RunState& run)
    : ListScreen(kTakingsDeclaration, services), m_run(run) {}

void TakingsScreen::onLoad() {
  setShown(u"Text2"_s, false);
  const QDate today = m_run.clock->today();
  setItems(u"Combo1"_s, takingsYears(today));
  putDayLists(*this, numbersOf(today));
  setText(u"Text1"_s, records::presentMonthText(m_run.eraDates()));
  openWhole();
}

void TakingsScreen::opened(const screen::Request& request) {
  if (request.value(u"最終行"_s).toBool()) source().moveLast();
  const QDate day = QDate::fromString(request.value(u"日付"_s).toString(), Qt::ISODate);
  if (!day.isValid()) return;
  putDayLists(*this, numbersOf(day));
  m_onceActive.set([this] { showDay(); });
}

void TakingsScreen::onActivate() { m_onceActive.run(*this); }

QStringList TakingsScreen::openingTexts() const { return QStringList{windowTitle()} + countOnView(); }

bool TakingsScreen::openWhole() { return source().open(m_run.folders[frame::folder::kVisits]); }

void TakingsScreen::rowShown(int) {
  setText(kCount, QString::number(source().isOpen() ? source().rows().recordCount() : 0));
}

QStringList TakingsScreen::countOnView() const { return {caption(kCount), text(kCount)}; }

QStringList TakingsScreen::rowOnView() const {
  if (!holdsRows()) return countOnView();
  const store::RecordSet& rows = source().rows();
  return {source().positionText(), rows.value(kVisitDate), rows.value(u"氏名"_s)};
}

// ---- What is on view ----

// Texts are compared: a visit whose date was typed in western form is not found.
void TakingsScreen::showDay() {
  const auto day = askedDay(*this);
  if (!day || emptySet(kNoRowsOfDay)) return;
  const QString date = takingsDay(m_run.eraDates(), day->date);
  narrow(store::equalCriterion(kVisitDate, date), date);
}

void TakingsScreen::showMonth() {
  const QString month = text(u"Text1"_s);
  if (month.isEmpty()) return askFor(u"Text1"_s);
  narrow(store::prefixCriterion(kVisitDate, month), month);
}

void TakingsScreen::openCalendar() {
  m_run.calendarMode = frame::calendar::kTakings;
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
  navigator().show(u"集計総合金額"_s, records::totalsRequest(*totals, objectName()));
}

// ---- The row ----

// A visit without its link would show whoever stands first in the register.
void TakingsScreen::openPatient() {
  if (emptySet()) return;
  const QString serial = source().rows().value(u"ETC1"_s);
  if (serial.isEmpty()) return screen::tellNotFound(*this);
  navigator().show(u"治療台帳4"_s, {{u"テキスト5"_s, serial}});
}

void TakingsScreen::removeVisit() {
  const bool yes = messages().ask(kDeleteQuestion);
  m_run.lastAnswer = yes ? 1 : 0;
  if (!yes) return;
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
