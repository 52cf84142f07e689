#include "claims/screens/claim_list_screen.h"

#include "claims/core/claim_file.h"
#include "claims/screens/claim_list_rows.h"

namespace claims {
namespace {

const QString kForm = QStringLiteral("frmレセプトフォーム");
const QString kTable = QStringLiteral("保険申請");
const QString kNewestFirst = QStringLiteral("ID DESC");
const QString kNoRows =
    QStringLiteral("検索データが０件です。「全患者表示及び再表示」をクリックして下さい。");

}  // namespace

ClaimListScreen::ClaimListScreen(screen::Services& services, frame::RunState& run, ClaimsState& state)
    : Screen(kClaimListScreen, services), m_run(run), m_state(state) {
  source().writesOnMove = false;
}

void ClaimListScreen::onLoad() { openWhole(); }

void ClaimListScreen::opened(const screen::Request& request) {
  if (request.contains("criteria")) {
    if (openWhole()) showPatient(request["criteria"].toString());
  } else if (request.contains("sort")) {
    if (!emptySet()) showSet(QString(), request["sort"].toString());
  } else if (request.contains("refresh")) {
    refresh();
  }
}

bool ClaimListScreen::openWhole() {
  if (!source().open(m_run.folders[frame::folder::kClaims1], kTable)) return false;
  source().rows().setSort(kNewestFirst);
  auto sorted = source().rows().openRecordset();
  if (!sorted) {
    messages().tellDataFault(sorted.fault().message);
    return false;
  }
  source().assign(std::move(*sorted));
  return true;
}

bool ClaimListScreen::emptySet() {
  if (source().isOpen() && source().rows().recordCount() > 0) return false;
  messages().tell(kNoRows);
  return true;
}

// Narrows or sorts the set on view. A criteria text that the engine refuses is told in the engine's words; no
// hit leaves the list as it was.
void ClaimListScreen::showSet(const QString& criteria, const QString& order) {
  auto& rows = source().rows();
  if (!criteria.isEmpty()) rows.setFilter(criteria);
  if (!order.isEmpty()) rows.setSort(order);
  auto set = rows.openRecordset();
  if (!set) {
    rows.setFilter(QString());
    messages().tellDataFault(set.fault().message);
    return;
  }
  if (set->recordCount() == 0) {
    rows.setFilter(QString());
    messages().tell(QString::fromUtf16(screen::kNotFoundText), QString::fromUtf16(screen::kNotFoundTitle),
                    screen::Icon::Exclamation);
    return;
  }
  source().assign(std::move(*set));
  focusOn("DBGrid1");
}

// The claims of one patient, asked for on the patient screen. None: told, and the whole list stands.
void ClaimListScreen::showPatient(const QString& criteria) {
  source().rows().setFilter(criteria);
  const auto set = source().rows().openRecordset();
  source().rows().setFilter(QString());
  if (set && set->recordCount() == 0)
    messages().tell(kNoRows);
  else
    showSet(criteria, QString());
}

void ClaimListScreen::search() {
  const QString word = text("Text1");
  if (emptySet()) return;
  showSet(text("Combo1") + " like '*" + word + "*' order by ID", QString());
}

void ClaimListScreen::showAll() { openWhole(); }

// 更新: claims made meanwhile come in; a narrowed list becomes whole.
void ClaimListScreen::refresh() { openWhole(); }

void ClaimListScreen::askSort() {
  if (!emptySet()) navigator().show(QStringLiteral("ソート3"));
}

QString ClaimListScreen::currentId() const { return source().rows().value(QStringLiteral("ID")); }

// A first half without its second half gets one on the spot, so that the pair exists.
void ClaimListScreen::openClaim() {
  if (emptySet()) return;
  const QString id = currentId();
  if (id.isEmpty()) return;
  auto file = ClaimFile::open(m_run.folders);
  const text::Done repaired = file ? file->repairSecond(id.toLongLong()) : text::Done(file.fault());
  if (!repaired) {
    messages().tellDataFault(repaired.fault().message);
    return;
  }
  navigator().show(kForm, {{"ID", id}});
}

void ClaimListScreen::removeClaim() {
  if (!source().isOpen() || source().rows().recordCount() == 0) {
    messages().tell(QStringLiteral("削除するデータがありません。"));
    return;
  }
  if (!messages().ask(QStringLiteral("　現在の表示該当患者のレセプトを削除しますか？"), screen::Buttons::YesNo))
    return;
  auto file = ClaimFile::open(m_run.folders);
  const text::Done removed = file ? file->remove(currentId().toLongLong()) : text::Done(file.fault());
  if (!removed) messages().tellDataFault(removed.fault().message);
  openWhole();
}

void ClaimListScreen::finish() {
  navigator().show(QStringLiteral("選択3"));
  closeNow();
}

bool ClaimListScreen::onCloseBox() {
  messages().tell(QStringLiteral("「閉じる」ボタンより終了して下さい"));
  return false;
}

void ClaimListScreen::rowShown(int) { setText("Text2", source().positionText()); }

void ClaimListScreen::printMonth() { navigator().show(QStringLiteral("年月")); }
void ClaimListScreen::printSummary() { navigator().show(QStringLiteral("施術録")); }
void ClaimListScreen::printCollective() { navigator().show(QStringLiteral("レセプト一覧表2")); }
void ClaimListScreen::printSheets() { navigator().show(QStringLiteral("総括表700_1")); }
void ClaimListScreen::printRoutes() { navigator().show(QStringLiteral("往療行程の印刷")); }
void ClaimListScreen::watchConsents() { navigator().show(QStringLiteral("同意期限一ヶ月")); }
void ClaimListScreen::printBodyCharts() { navigator().show(QStringLiteral("jintaizu")); }

}  // namespace claims
