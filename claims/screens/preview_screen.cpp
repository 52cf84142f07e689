#include "claims/screens/preview_screen.h"

#include <QFontMetrics>
#include <QLineEdit>
#include <array>
#include <utility>

#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/screen/opens.h"
#include "platform/text/number.h"

namespace claims {
namespace {

using namespace screen;

// Lines of the longest preview, a massage claim with every line: areas, visits, limbs, surcharges.
constexpr int kLines = 30;

constexpr Unbound kComputed{u"computed, never stored from here"};

/// "01行:", the caption of a line before a claim gives it its own. No two are alike: the kit would tell like
/// captions apart by their group, and that word would stay.
template <int Index>
constexpr char16_t kLineCaption[] = {u'0' + (Index + 1) / 10, u'0' + (Index + 1) % 10, u'行', u':', u'\0'};

template <int Index>
consteval Row line() {
  return TextField{.name = {u"Text1", Index},
                   .caption = kLineCaption<Index>,
                   .bind = kComputed,
                   .width = 32,
                   .readOnly = true};
}

consteval Row sum(ControlName name, Words caption) {
  return TextField{.name = name, .caption = caption, .bind = kComputed, .width = 14, .readOnly = true};
}

template <int... Index>
consteval auto allRows(std::integer_sequence<int, Index...>) {
  return std::to_array<Row>({
      Group{.name = u"Frame1", .caption = u"施術料金", .columns = 1},
      line<Index>()...,
      EndGroup{},
      Note{.name = u"Label1",
           .caption = u"通所及び訪問施術は、異なる局数は２つまで対応。それ以外は表示しませんし、合計にも、"
                      u"含まれません。"},
      Group{.name = u"Frame2", .caption = u"合計", .columns = 3},
      sum(u"Text2", u"合計:"),
      sum(u"Text3", u"一部負担金:"),
      sum(u"Text4", u"請求額:"),
      EndGroup{},
      Bar{},
      Command{.name = u"Command1",
              .caption = u"閉じる",
              .run = run<&PreviewScreen::finish>,
              .key = u"Esc",
              .say = u"施術料金を閉じます"},
      Command{.name = u"Command2", .caption = u"計算式確認", .run = opens<routes::ShareFormula>},
      EndBar{},
  });
}

constexpr auto kRows = allRows(std::make_integer_sequence<int, kLines>());

constexpr FamilyRef kLine = family(kRows, u"Text1");
constexpr ControlRef kNote = ref(kRows, u"Label1");
constexpr ControlRef kTotal = ref(kRows, u"Text2");
constexpr ControlRef kShare = ref(kRows, u"Text3");
constexpr ControlRef kClaim = ref(kRows, u"Text4");

consteval ScreenRow preview(Words name) {
  return declare({.name = name, .caption = u"施術料金", .rows = kRows, .heading = u"施術料金"});
}

template <size_t... Index>
consteval auto allScreens(std::index_sequence<Index...>) {
  return std::to_array<ScreenRow>({preview(kPreviews[Index].screen)...});
}

constexpr auto kScreens = allScreens(std::make_index_sequence<std::size(kPreviews)>());

QString yen(qint64 amount) {
  return (amount == 0 ? QStringLiteral("0") : text::thousands(amount)) + QStringLiteral("円");
}

}  // namespace

std::span<const ScreenRow> previewScreens() { return kScreens; }

PreviewScreen::PreviewScreen(const ScreenRow& declaration, Services& services, frame::RunState& run,
                             ClaimsState& state, EraTable eraTable)
    : Screen(declaration, services), m_run(run), m_state(state), m_eras(eraTable) {}

void PreviewScreen::opened(const Request&) {
  ClaimAmounts money;
  QString rate;
  if (m_state.display != nullptr) {
    const ClaimRecord claim = m_state.display->record();
    rate = claim.get(claim::shareRate);
    StoredFees fees;
    auto computed = amounts(claim, monthFlags(claim.get(claim::month), m_run.eraDates()), Path::Preview,
                            FeeFiles(m_run.programFolder, m_run.folders), fees, m_eras);
    if (computed)
      money = std::move(*computed);
    else
      messages().tellDataFault(computed.fault().message);
  }
  showMoney(money, rate);
}

// A line is read as a whole: it is never shorter than its text, whatever the font.
void PreviewScreen::widen(const QString& control) {
  auto* field = findChild<QLineEdit*>(control);
  const QFontMetrics metrics = field->fontMetrics();
  field->setMinimumWidth(metrics.horizontalAdvance(field->text()) + 2 * metrics.horizontalAdvance(u'あ'));
}

void PreviewScreen::showMoney(const ClaimAmounts& money, const QString& rate) {
  setShown(kNote, declaration().name.get() == previewScreen(Preview::VisitsMassage));
  for (int i = 0; i < kLines; ++i) {
    const QString control = kLine[i];
    setShown(control, i < money.rows.size());
    if (i >= money.rows.size()) continue;
    const AmountRow& row = money.rows[i];
    setCaption(control, row.label + ':');
    setText(control,
            QStringLiteral("%1 × %2回 ＝ %3").arg(yen(row.unit)).arg(row.count).arg(yen(row.amount)));
    widen(control);
  }
  setCaption(kShare, QStringLiteral("一部負担金") + (rate.isEmpty() ? QString() : ' ' + rate) + ':');
  setText(kTotal, yen(money.total));
  setText(kShare, yen(money.share));
  setText(kClaim, yen(money.claim));
  focusOn(money.rows.isEmpty() ? kTotal : kLine[0]);
}

void PreviewScreen::finish() { close(); }

}  // namespace claims
