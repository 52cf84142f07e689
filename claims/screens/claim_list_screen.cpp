#include "claims/screens/claim_list_screen.h"

#include "claims/core/list_keys.h"
#include "claims/screens/claim_list_rows.h"
#include "frame/core/routes.h"
#include "platform/store/criteria_text.h"
#include "platform/store/growth.h"
#include "platform/store/tables/claims.h"

namespace claims {
namespace {

const QString kForm = QStringLiteral("frmレセプトフォーム");
const QString kTable = QStringLiteral("保険申請");
const QString kNewestFirst = QStringLiteral("ID DESC");
const QString kNothingToDelete = QStringLiteral("削除するデータがありません。");
const QString kDeleteQuestion = QStringLiteral("　現在の表示該当患者のレセプトを削除しますか？");

}  // namespace

ClaimListScreen::ClaimListScreen(screen::Services& services, frame::RunState& run, ClaimsState& state)
    : ListScreen(kClaimListScreen, services), m_run(run), m_state(state) {
  source().writesOnMove = false;
}

void ClaimListScreen::onLoad() {
  setText("Combo1", QString::fromUtf16(kListKeys.front()));
  growSecondFile();
  if (openWhole())
    claimFile();  // a second file that is missing or broken is told now, not at the first claim
}

void ClaimListScreen::opened(const screen::Request& request) {
  if (request.contains("criteria")) {
    if (openWhole()) put(request["criteria"].toString(), QString());
  } else if (request.contains("sort") && holdsRows()) {
    put(QString(), request["sort"].toString());
  }
  if (!request.isEmpty() && holdsRows()) focusOn("DBGrid1");
  if (!holdsRows() || !m_growthFault.isEmpty()) m_onceActive.set([this] { tellOpening(); });
}

// The second file of an older version gets its new columns. Where it cannot, the list works with those that
// it has; a file that cannot be read at all is told by name where it is opened.
void ClaimListScreen::growSecondFile() {
  const QString& path = m_run.folders[frame::folder::kClaims2];
  for (const store::GrowthRun run : {store::GrowthRun::Claim1, store::GrowthRun::Claim2}) {
    const auto lacks = store::needsGrowth(path, run);
    if (!lacks || !*lacks) continue;
    if (const text::Done grown = store::grow(path, run); !grown) {
      m_growthFault = grown.fault().message;
      return;
    }
  }
}

void ClaimListScreen::onActivate() { m_onceActive.run(*this); }

void ClaimListScreen::tellOpening() {
  if (!m_growthFault.isEmpty()) messages().tellDataFault(std::exchange(m_growthFault, {}));
  if (source().isOpen() && !holdsRows()) emptySet();
}

bool ClaimListScreen::openWhole() {
  if (!source().open(m_run.folders[frame::folder::kClaims1])) return false;
  return put(QString(), kNewestFirst);
}

QStringList ClaimListScreen::countOnView() const {
  return {QStringLiteral("%1件です。").arg(source().rows().recordCount())};
}

// Hits stand in the order in which the claims were made.
void ClaimListScreen::search() {
  narrowBy(store::likeCriterion(text("Combo1"), text("Text1")) + "order by ID");
}

void ClaimListScreen::showAll() {
  if (openWhole() && !emptySet()) tellResult(QStringLiteral("全患者を表示しました"));
}

// 更新: claims made meanwhile come in; a narrowed list becomes whole.
void ClaimListScreen::refresh() { showAll(); }

void ClaimListScreen::askSort() {
  if (!emptySet()) navigator().show(routes::SortClaims{});
}

qint64 ClaimListScreen::currentId() const {
  return holdsRows() ? source().rows().value(QStringLiteral("ID")).toLongLong() : 0;
}

std::optional<ClaimFile> ClaimListScreen::claimFile() {
  auto file = ClaimFile::open(m_run.folders);
  if (file) return std::move(*file);
  messages().tellDataFault(file.fault().message);
  return std::nullopt;
}

void ClaimListScreen::openClaim() {
  if (emptySet()) return;
  const qint64 id = currentId();
  if (id == 0) return;
  auto file = claimFile();
  if (!file) return;
  if (const text::Done repaired = file->repairSecond(id); !repaired)
    return messages().tellDataFault(repaired.fault().message);
  navigator().show(kForm, {{"ID", id}});
}

void ClaimListScreen::removeClaim() {
  const qint64 id = currentId();
  if (id == 0) return messages().tell(kNothingToDelete);
  if (!messages().ask(kDeleteQuestion, screen::Buttons::YesNo)) return;
  auto file = claimFile();
  if (!file) return;
  const bool onDisplay =
      m_state.display != nullptr && m_state.display->record().get(claim::id).toLongLong() == id;
  const text::Done removed = file->remove(id);
  if (!removed) messages().tellDataFault(removed.fault().message);
  if (removed && onDisplay) navigator().unload(kForm);
  if (openWhole() && removed) tellResult(QStringLiteral("削除しました"));
}

void ClaimListScreen::finish() {
  navigator().show(routes::MainMenu{});
  closeNow();
}

bool ClaimListScreen::onCloseBox() {
  messages().tell(QStringLiteral("「閉じる」ボタンより終了して下さい"));
  return false;
}

QStringList ClaimListScreen::rowOnView() const {
  if (!holdsRows()) return {};
  const store::RecordSet& rows = source().rows();
  QStringList parts;
  for (const QString& column : {QStringLiteral("申請年月"), QStringLiteral("氏名")})
    parts << column << rows.value(column);
  return parts;
}

void ClaimListScreen::rowShown(int) { setText("Text2", source().positionText()); }

}  // namespace claims
