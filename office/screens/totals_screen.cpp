#include "office/screens/totals_screen.h"

#include "platform/text/number.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

namespace {

using namespace screen;

/// The boxes in their order and the numbers that fill them.
constexpr const char16_t* kSums[] = {u"rows",      u"insurer",  u"share",
                                     u"treatment", u"receipts", u"newPatients"};
constexpr int kFirst = 0, kNewPatients = 5;

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
    {.name = u"集計総合金額", .caption = u"集計総合金額", .rows = kRows},
    {.name = u"集計レセ総合金額", .caption = u"集計レセ総合金額", .rows = kRows},
};

QString boxName(int index) { return u"txtFields(%1)"_s.arg(index); }
QString unitName(int index) { return u"unit(%1)"_s.arg(index); }

}  // namespace

void TotalsScreen::opened(const Request& request) {
  const bool onePatient = request.value(u"opener"_s).toString() == u"治療台帳3";
  setCaption(boxName(kFirst), onePatient ? u"治療回数:"_s : u"総患者数:"_s);
  setCaption(unitName(kFirst), onePatient ? u"回"_s : u"人"_s);
  for (const QString& control : {boxName(kNewPatients), unitName(kNewPatients), u"Label1"_s})
    setShown(control, !onePatient);
  int index = 0;
  for (const char16_t* sum : kSums)
    setText(boxName(index++), text::thousands(request.value(QString::fromUtf16(sum)).toLongLong()));
  // Shown again while it is open, it has no opening of its own.
  if (isVisible()) sayResult(openingTexts());
}

QStringList TotalsScreen::openingTexts() const {
  QStringList texts{windowTitle()};
  if (isControlShown(u"Label1"_s)) texts += caption(u"Label1"_s);
  for (int index = kFirst; index <= kNewPatients; ++index) {
    if (!isControlShown(boxName(index))) continue;
    const QString sum = text(boxName(index));
    texts << caption(boxName(index))
          << (sum.isEmpty() ? u"なし"_s : sum + caption(unitName(index)).trimmed());
  }
  return texts;
}

void addTotalsScreens(ScreenRegistry& registry) {
  for (const ScreenRow& row : kTotals)
    registry.add(QString::fromUtf16(row.name.get()),
                 [&row](Services& services) { return std::make_unique<TotalsScreen>(row, services); });
}

}  // namespace office
