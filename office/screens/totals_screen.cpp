#include "office/screens/totals_screen.h"

#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/text/number.h"
#include "platform/text/utf16.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

namespace {

using namespace screen;

constexpr Unbound kSum{u"a sum handed over by the opener"};

consteval TextField box(int index, const char16_t* caption) {
  return TextField{
      .name = {u"txtFields", index}, .caption = caption, .bind = kSum, .width = 16, .readOnly = true};
}
consteval Note unit(int index, const char16_t* caption) {
  return Note{.name = {u"unit", index}, .caption = caption};
}

constexpr Row kRows[] = {
    Bar{},
    Note{.name = {u"Label1"}, .caption = u"集計ウインドに表示された患者のみの集計です。"},
    EndBar{},
    Group{.name = {u"FrameSums"}, .caption = u"総合金額", .columns = 2},
    box(0, u"総患者数:"),
    unit(0, u"人"),
    box(1, u"保険者負担金:"),
    unit(1, u"円"),
    box(2, u"保険の一部負担金:"),
    unit(2, u"円"),
    box(3, u"治療金額:"),
    unit(3, u"円"),
    box(4, u"領収証発行数:"),
    unit(4, u"　"),  // receipts are counted without a unit
    box(5, u"新患数:"),
    unit(5, u"人"),
    EndGroup{},
    Bar{},
    Command{.name = {u"Command1"}, .caption = u"閉じる", .run = run<&TotalsScreen::finish>, .key = u"Esc"},
    EndBar{},
};

constexpr ScreenRow kTotals[] = {
    declare({.name = routes::Totals::screen, .caption = u"集計総合金額", .rows = kRows}),
    declare({.name = routes::ClaimTotals::screen, .caption = u"集計レセ総合金額", .rows = kRows}),
};

constexpr ControlRef kNote = ref(kRows, u"Label1");

/// A box, its unit, and the sum that fills it.
struct SumBox {
  ControlRef box;
  ControlRef unit;
  qint64 routes::Totals::*sum;
};
consteval SumBox sumBox(int index, qint64 routes::Totals::*sum) {
  return {ref(kRows, u"txtFields", index), ref(kRows, u"unit", index), sum};
}
constexpr SumBox kSums[] = {
    sumBox(0, &routes::Totals::rows),     sumBox(1, &routes::Totals::insurer),
    sumBox(2, &routes::Totals::share),    sumBox(3, &routes::Totals::treatment),
    sumBox(4, &routes::Totals::receipts), sumBox(5, &routes::Totals::newPatients),
};
constexpr SumBox kRowCount = kSums[0], kNewPatients = kSums[5];

routes::Totals totalsOf(const Request& request) {
  if (const auto* visits = request.as<routes::Totals>()) return *visits;
  if (const auto* claims = request.as<routes::ClaimTotals>()) return *claims;
  return {};
}

}  // namespace

void TotalsScreen::opened(const Request& request) {
  const routes::Totals totals = totalsOf(request);
  const bool onePatient = totals.ofOnePatient;
  setCaption(kRowCount.box, onePatient ? u"治療回数:"_s : u"総患者数:"_s);
  setCaption(kRowCount.unit, onePatient ? u"回"_s : u"人"_s);
  for (const ControlRef& control : {kNewPatients.box, kNewPatients.unit, kNote})
    setShown(control, !onePatient);
  for (const SumBox& sum : kSums) setText(sum.box, text::thousands(totals.*sum.sum));
  // Shown again while it is open it does not say its opening by itself.
  if (isVisible()) sayResult(openingTexts());
}

QStringList TotalsScreen::openingTexts() const {
  QStringList texts{windowTitle()};
  if (isControlShown(kNote)) texts += caption(kNote);
  for (const SumBox& sum : kSums) {
    if (!isControlShown(sum.box)) continue;
    const QString amount = text(sum.box);
    texts << caption(sum.box) << (amount.isEmpty() ? u"なし"_s : amount + caption(sum.unit).trimmed());
  }
  return texts;
}

void addTotalsScreens(ScreenRegistry& registry) {
  for (const ScreenRow& row : kTotals)
    registry.add(text::utf16(row.name.get()),
                 [&row](Services& services) { return std::make_unique<TotalsScreen>(row, services); });
}

}  // namespace office
