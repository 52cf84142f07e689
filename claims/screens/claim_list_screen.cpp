#include "claims/screens/claim_list_screen.h"

#include "claims/screens/claim_list_rows.h"
#include "platform/store/criteria_text.h"
#include "platform/store/growth.h"
#include "platform/store/tables/claims.h"
#include "platform/text/utf16.h"

namespace claims {

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t kNothingToDelete[] = u"削除するデータがありません。";
constexpr char16_t kDeleteQuestion[] = u"　現在の表示該当患者のレセプトを削除しますか？";

constexpr screen::ControlRef kGrid = screen::ref(claim_list::kRows, u"DBGrid1");
constexpr screen::ControlRef kKey = screen::ref(claim_list::kRows, u"Combo1");
constexpr screen::ControlRef kWanted = screen::ref(claim_list::kRows, u"Text1");
constexpr screen::ControlRef kPosition = screen::ref(claim_list::kRows, u"Text2");

/// The newest claim at the top.
QString newestFirst() { return claim::id + u" DESC"_s; }

}  // namespace

ClaimListScreen::ClaimListScreen(screen::Services& services, frame::RunState& run, ClaimsState& state)
    : ListScreen(claim_list::kScreen, services), m_run(run), m_state(state) {
  source().writesOnMove = false;
}

void ClaimListScreen::onLoad() {
  setText(kKey, kListKeys.front());
  growSecondFile();
  if (openWhole())
    claimFile();  // a second file that is missing or broken is reported now, not at the first claim
}

void ClaimListScreen::opened(const screen::Request& request) {
  if (const auto* route = request.as<routes::ClaimList>()) {
    if (route->criteria) {
      if (openWhole()) put(*route->criteria, QString());
    } else if (route->order && holdsRows()) {
      put(QString(), *route->order);
    }
    if (holdsRows()) focusOn(kGrid);
  }
  if (!holdsRows() || !m_growthFault.isEmpty()) m_whenActivated.set([this] { tellOpening(); });
}

// The second file of an older version gets its new columns. Where it cannot, the list works with those that
// it has; a file that cannot be read at all is reported by name when it is opened.
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

void ClaimListScreen::onActivate() { m_whenActivated.run(*this); }

void ClaimListScreen::tellOpening() {
  if (!m_growthFault.isEmpty()) messages().tellDataFault(std::exchange(m_growthFault, {}));
  if (source().isOpen() && !holdsRows()) emptySet();
}

bool ClaimListScreen::openWhole() {
  if (!source().open(m_run.folders[frame::folder::kClaims1])) return false;
  return put(QString(), newestFirst());
}

QStringList ClaimListScreen::countOnView() const {
  return {u"%1件です。"_s.arg(source().rows().recordCount())};
}

// Hits come in the order in which the claims were made.
void ClaimListScreen::search() {
  narrowBy(store::likeCriterion(text(kKey), text(kWanted)) + u"order by "_s + claim::id);
}

void ClaimListScreen::showAll() {
  if (openWhole() && !emptySet()) tellResult(u"全患者を表示しました"_s);
}

// 更新: claims made meanwhile come in; a narrowed list becomes whole.
void ClaimListScreen::refresh() { showAll(); }

void ClaimListScreen::askSort() {
  if (!emptySet()) navigator().show(routes::SortClaims{});
}

qint64 ClaimListScreen::currentId() const { return holdsRows() ? source().rows().bookmark() : 0; }

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
  navigator().show(routes::ClaimForm{.id = id, .opener = {}});
}

void ClaimListScreen::removeClaim() {
  const qint64 id = currentId();
  if (id == 0) return messages().tell(::text::utf16(kNothingToDelete));
  if (!messages().ask(::text::utf16(kDeleteQuestion), screen::Buttons::YesNo)) return;
  auto file = claimFile();
  if (!file) return;
  const bool onDisplay =
      m_state.display != nullptr && m_state.display->record().get(claim::id).toLongLong() == id;
  const text::Done removed = file->remove(id);
  if (!removed) messages().tellDataFault(removed.fault().message);
  if (removed && onDisplay) navigator().unload(routes::ClaimForm::screen);
  if (openWhole() && removed) tellResult(u"削除しました"_s);
}

void ClaimListScreen::finish() {
  navigator().show(routes::MainMenu{});
  closeNow();
}

bool ClaimListScreen::onCloseBox() {
  messages().tell(u"「閉じる」ボタンより終了して下さい"_s);
  return false;
}

QStringList ClaimListScreen::rowOnView() const {
  if (!holdsRows()) return {};
  const store::RecordSet& rows = source().rows();
  QStringList parts;
  for (const store::Column& column : {claim::month, claim::name}) parts << column << rows.value(column);
  return parts;
}

void ClaimListScreen::rowShown(int) { setText(kPosition, source().positionText()); }

}  // namespace claims
