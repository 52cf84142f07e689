#include "records/screens/visit_ledger_screen.h"

#include "frame/core/routes.h"
#include "platform/screen/hourglass.h"
#include "platform/store/growth.h"
#include "records/core/visit_dates.h"
#include "records/screens/visit_ledger_rows.h"

// Life of the ledger: opening on a patient, moving, closing.

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kFirstVisit = u"カルテ2の新規"_s;

}  // namespace

VisitLedgerScreen::VisitLedgerScreen(screen::Services& services, frame::RunState& run,
                                     PreviousVisit& previous)
    : ListScreen(visitLedgerDeclaration(), services), m_run(run), m_previous(previous) {
  source(3).onLeaveRow = [this] { return leaveClaim(); };
}

void VisitLedgerScreen::onLoad() {
  for (const QString& hidden : {u"Text2"_s, u"Text3"_s, u"Text10"_s}) setShown(hidden, false);
  hideGrid();
  const QString path = m_run.folders[frame::folder::kVisits];
  // A file that cannot be asked is told when it is opened.
  if (const auto needed = store::needsGrowth(path, store::GrowthRun::Visit); needed && *needed)
    if (const text::Done grown = store::grow(path, store::GrowthRun::Visit); !grown)
      messages().tellDataFault(grown.fault().message);
  rowShown(1);
}

void VisitLedgerScreen::opened(const screen::Request& request) {
  if (request.value(u"新規"_s).toBool()) return startVisit(m_name, m_birth, m_key);
  if (!request.contains(u"テキスト5"_s)) {
    if (!source().isOpen()) openWhole();
    return;
  }
  if (!settleVisit() || !leaveClaim()) return;  // told; the patient before stays with what was typed
  navigator().unload(kFirstVisit);              // asked for the patient before
  const QString key = request.value(u"テキスト5"_s).toString();
  if (key != m_key) m_previous.clear();
  m_key = key;
  m_name = request.value(u"氏名"_s).toString();
  m_birth = request.value(u"生年月日"_s).toString();
  m_opener = request.value(u"opener"_s).toString();
  m_newRowPending = false;
  m_onceActive.set(nullptr);
  hideGrid();
  for (const QString& month : {u"Text1"_s, u"txtFields(115)"_s})
    setText(month, presentMonthText(m_run.eraDates()));
  {
    const screen::Hourglass counting;
    if (!openWhole()) return;
    if (!putPatient() || !holdsRows()) m_onceActive.set([this] { offerFirstVisit(); });
  }
  if (isVisible()) sayResult(openingTexts());
}

void VisitLedgerScreen::onActivate() {
  m_onceActive.run(*this);
  // The claim form may have stored the claim of the grid meanwhile.
  if (onClaim() && !claimPending()) readClaimAgain();
}

void VisitLedgerScreen::offerFirstVisit() { navigator().show(kFirstVisit, {{u"氏名"_s, m_name}}); }

QStringList VisitLedgerScreen::openingTexts() const {
  const QString name = m_name.isEmpty() && holdsRows() ? source().rows().value(u"氏名"_s) : m_name;
  return {name + u"カルテ２を開きました。"_s};
}

void VisitLedgerScreen::rowShown(int sourceNumber) {
  if (sourceNumber == 3 && gridShown()) showClaim();
  if (sourceNumber != 1) return;
  const bool open = source().isOpen();
  const int count = open ? source().rows().recordCount() + (source().rows().adding() ? 1 : 0) : 0;
  setCaption(u"Data1"_s, open ? source().positionText() : u"ﾚｺｰﾄﾞ: "_s);
  setCaption(u"Label14"_s, QString::number(count));
  // Nothing can be typed where there is no row to keep it.
  for (int field = 0; field <= 6; ++field) setEnabledControl(u"txtFields(%1)"_s.arg(field), onVisit());
  for (int tick = 7; tick <= 8; ++tick) setEnabledControl(u"chkFields(%1)"_s.arg(tick), onVisit());
}

bool VisitLedgerScreen::onVisit() const {
  return source().isOpen() && (source().rows().adding() || source().rows().recordCount() > 0);
}

bool VisitLedgerScreen::openWhole() { return source().open(m_run.folders[frame::folder::kVisits]); }

QStringList VisitLedgerScreen::rowOnView() const {
  if (!onVisit()) return {caption(u"LabelCount"_s), caption(u"Label14"_s)};
  QStringList parts{caption(u"Data1"_s)};
  for (const QString& field : {u"txtFields(2)"_s, u"txtFields(3)"_s})
    if (!text(field).isEmpty()) parts << text(field);
  return parts;
}

// What the file keeps refusing (read only, deleted by another computer) must not lock the user in.
void VisitLedgerScreen::leave() {
  if (m_newRowPending) return messages().tell(u"一度登録ボタンを押してから終了して下さい"_s);
  const bool visitKept = settleVisit(), claimKept = leaveClaim();
  if ((!visitKept || !claimKept) &&
      !messages().askToDrop(u"登録出来ませんでした。入力した内容を捨てて、閉じますか？"_s))
    return;
  const QString before = navigator().loaded(routes::PatientRegister::screen) ? u"治療台帳4"_s : u"選択3"_s;
  navigator().show(m_opener.isEmpty() ? before : m_opener);
  navigator().unload(kFirstVisit);
  navigator().unload(routes::VisitLedger::screen);
}

bool VisitLedgerScreen::onCloseBox() {
  messages().tell(u"「閉じる」ボタンより終了して下さい"_s);
  return false;
}

}  // namespace records
