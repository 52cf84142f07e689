#include "records/screens/visit_ledger_screen.h"

#include "platform/screen/hourglass.h"
#include "platform/store/growth.h"
#include "records/core/visit_dates.h"
#include "records/screens/visit_ledger_rows.h"

// Life of the ledger: opening on a patient, moving, closing.

namespace records {

using namespace Qt::Literals::StringLiterals;
using namespace visit_ledger_rows;

VisitLedgerScreen::VisitLedgerScreen(screen::Services& services, frame::RunState& run,
                                     PreviousVisit& previous)
    : ListScreen(kDeclaration, services), m_run(run), m_previous(previous) {
  source(kFirstHalf).onLeaveRow = [this] { return leaveClaim(); };
}

void VisitLedgerScreen::onLoad() {
  for (const screen::ControlRef& hidden : {kSerial, kId, kDateShadow}) setShown(hidden, false);
  hideGrid();
  const QString path = m_run.folders[frame::folder::kVisits];
  // A file that cannot be read is reported when it is opened.
  if (const auto needed = store::needsGrowth(path, store::GrowthRun::Visit); needed && *needed)
    if (const text::Done grown = store::grow(path, store::GrowthRun::Visit); !grown)
      messages().tellDataFault(grown.fault().message);
  rowShown(kVisits);
}

void VisitLedgerScreen::opened(const screen::Request& request) {
  const auto* route = request.as<Route>();
  std::visit([this](const auto& what) { enter(what); }, route ? route->what : decltype(Route::what){});
}

void VisitLedgerScreen::enter(const Route::AsShown&) {
  if (!source().isOpen()) openWhole();
}

void VisitLedgerScreen::enter(const Route::NewVisit&) {
  Visit visit;
  visit.serial = m_patient.serial;
  visit.name = m_patient.name;
  visit.birth = m_patient.birth;
  startVisit(visit);
}

void VisitLedgerScreen::enter(const Route::Of& patient) {
  if (!settleVisit() || !leaveClaim()) return;  // reported; the patient before stays with what was typed
  navigator().unload(routes::AskFirstVisit::screen);  // it asks for the patient before
  if (patient.serial != m_patient.serial) m_previous.clear();
  m_patient = patient;
  m_newRowPending = false;
  m_whenActivated.set(nullptr);
  hideGrid();
  for (const screen::ControlRef& month : {kMonthOnView, kMonthOfClaim})
    setText(month, presentMonthText(m_run.eraDates()));
  {
    const screen::Hourglass counting;
    if (!openWhole()) return;
    if (!putPatient() || !holdsRows()) m_whenActivated.set([this] { offerFirstVisit(); });
  }
  if (isVisible()) sayResult(openingTexts());
}

void VisitLedgerScreen::onActivate() {
  m_whenActivated.run(*this);
  // The claim form may have stored the claim of the grid meanwhile.
  if (onClaim() && !claimPending()) readClaimAgain();
}

void VisitLedgerScreen::offerFirstVisit() { navigator().show(routes::AskFirstVisit{.name = m_patient.name}); }

QStringList VisitLedgerScreen::openingTexts() const {
  const QString name =
      m_patient.name.isEmpty() && holdsRows() ? source().rows().value(visits::name) : m_patient.name;
  return {name + u"カルテ２を開きました。"_s};
}

void VisitLedgerScreen::rowShown(int sourceNumber) {
  if (sourceNumber == kFirstHalf && gridShown()) showClaim();
  if (sourceNumber != kVisits) return;
  const bool open = source().isOpen();
  const int count = open ? source().rows().recordCount() + (source().rows().adding() ? 1 : 0) : 0;
  setCaption(kPosition, open ? source().positionText() : u"ﾚｺｰﾄﾞ: "_s);
  setCaption(kCount, QString::number(count));
  // Without a row there is nothing that typed text could be stored in.
  for (const screen::ControlRef& field : kVisitFields) setEnabledControl(field, onVisit());
}

bool VisitLedgerScreen::onVisit() const {
  return source().isOpen() && (source().rows().adding() || source().rows().recordCount() > 0);
}

bool VisitLedgerScreen::openWhole() { return source().open(m_run.folders[frame::folder::kVisits]); }

QStringList VisitLedgerScreen::rowOnView() const {
  if (!onVisit()) return {caption(kCountLabel), caption(kCount)};
  QStringList parts{caption(kPosition)};
  for (const screen::ControlRef& field : {kDate, kSummary})
    if (!text(field).isEmpty()) parts << text(field);
  return parts;
}

// What the file refuses every time (read only, deleted by another computer) must not lock the user in.
void VisitLedgerScreen::leave() {
  if (m_newRowPending) return messages().tell(u"一度登録ボタンを押してから終了して下さい"_s);
  const bool visitSettled = settleVisit(), claimSettled = leaveClaim();
  if ((!visitSettled || !claimSettled) &&
      !messages().askToDrop(u"登録出来ませんでした。入力した内容を捨てて、閉じますか？"_s))
    return;
  const screen::ScreenName usual = navigator().loaded(routes::PatientRegister::screen)
                                       ? routes::PatientRegister::screen
                                       : routes::MainMenu::screen;
  navigator().show(m_patient.opener.value_or(usual));
  navigator().unload(routes::AskFirstVisit::screen);
  navigator().unload(routes::VisitLedger::screen);
}

bool VisitLedgerScreen::onCloseBox() {
  messages().tell(u"「閉じる」ボタンより終了して下さい"_s);
  return false;
}

}  // namespace records
