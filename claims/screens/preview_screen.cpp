#include "claims/screens/preview_screen.h"

#include "claims/core/amounts.h"
#include "platform/text/number.h"

namespace claims {
namespace {

using namespace screen;

// Lines of the longest preview, a massage claim with every line: areas, visits, limbs, surcharges.
constexpr int kLines = 30;

constexpr Row kRows[] = {
    Group{.name = u"Frame1", .caption = u"施術料金", .columns = 1},
    TextRun{.name = {u"Text1", 0}, .count = kLines, .caption = u"%1行:", .bind = Unbound{u"a line of the money"},
            .width = 40, .perLine = 1, .readOnly = true},
    EndGroup{},
    Group{.name = u"Frame2", .caption = u"合計", .columns = 1},
    TextField{.name = u"Text2", .caption = u"合計:", .bind = Unbound{u"computed"}, .readOnly = true},
    TextField{.name = u"Text3", .caption = u"一部負担金:", .bind = Unbound{u"computed"}, .readOnly = true},
    TextField{.name = u"Text4", .caption = u"請求額:", .bind = Unbound{u"computed"}, .readOnly = true},
    EndGroup{},
    Bar{},
    Command{.name = u"Command1", .caption = u"閉じる", .run = run<&PreviewScreen::finish>, .key = u"Esc",
            .say = u"施術料金を閉じます"},
    Command{.name = u"Command2", .caption = u"計算式確認", .run = run<&PreviewScreen::openShareTable>},
    EndBar{},
};

consteval ScreenRow preview(Words name) {
  return {.name = name, .caption = u"施術料金", .rows = kRows, .heading = u"施術料金"};
}

// 施術料金2108A is the screen's own name, not a slip of ours.
constexpr ScreenRow kScreens[] = {
    preview(u"施術料金1"),     preview(u"施術料金2"),     preview(u"施術料金2018H"),
    preview(u"施術料金2108A"), preview(u"施術料金2024H"), preview(u"施術料金2024A"),
};

QString yen(qint64 amount) {
  return (amount == 0 ? QStringLiteral("0") : text::thousands(amount)) + QStringLiteral("円");
}

}  // namespace

std::span<const ScreenRow> previewScreens() { return kScreens; }

PreviewScreen::PreviewScreen(const ScreenRow& declaration, Services& services, frame::RunState& run,
                             ClaimsState& state)
    : Screen(declaration, services), m_run(run), m_state(state) {}

void PreviewScreen::showLine(int index, const QString& caption, const QString& value) {
  const QString control = QStringLiteral("Text1(%1)").arg(index);
  setShown(control, !caption.isEmpty());
  if (caption.isEmpty()) return;
  setCaption(control, caption + ':');
  setText(control, value);
}

void PreviewScreen::opened(const Request&) {
  if (m_state.display == nullptr) return;
  const ClaimRecord claim = m_state.display->record();
  StoredFees fees;
  const auto money = amounts(claim, monthFlags(claim.get(QStringLiteral("申請年月")), m_run.eraDates()),
                             Path::Preview, FeeFiles(m_run.programFolder, m_run.folders), fees);
  if (!money) {
    messages().tellDataFault(money.fault().message);
    return;
  }
  for (int i = 0; i < kLines; ++i) {
    if (i < money->rows.size()) {
      const AmountRow& row = money->rows[i];
      showLine(i, row.label, QStringLiteral("%1 × %2回 ＝ %3").arg(yen(row.unit)).arg(row.count).arg(yen(row.amount)));
    } else {
      showLine(i, QString(), QString());
    }
  }
  const QString rate = claim.get(QStringLiteral("一部負担金"));
  setCaption("Text3", QStringLiteral("一部負担金") + (rate.isEmpty() ? QString() : ' ' + rate) + ':');
  setText("Text2", yen(money->total));
  setText("Text3", yen(money->share));
  setText("Text4", yen(money->claim));
  focusOn(money->rows.isEmpty() ? QStringLiteral("Text2") : QStringLiteral("Text1(0)"));
}

void PreviewScreen::onClosed() { m_state.previewKind = 0; }

void PreviewScreen::finish() { close(); }

void PreviewScreen::openShareTable() { navigator().show(QStringLiteral("計算式確認")); }

}  // namespace claims
