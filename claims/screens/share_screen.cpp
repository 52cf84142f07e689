#include "claims/screens/share_screen.h"

#include "claims/core/share_table.h"
#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/text/number.h"

namespace claims {

using namespace Qt::StringLiterals;

namespace {

using namespace screen;

/// A base whose double is larger is not doubled.
constexpr qint64 kMaxBase = 999'999'999'999;

consteval Row cell(ControlName name, Words caption) {
  return TextField{
      .name = name, .caption = caption, .bind = Unbound{u"result"}, .width = 14, .readOnly = true};
}

constexpr Row kRows[] = {
    Group{.name = u"Frame1", .caption = u"元数値", .columns = 1},
    TextField{.name = u"Text1",
              .caption = u"元数値:",
              .bind = Unbound{u"the base amount is typed"},
              .limit = 12,
              .width = 14,
              .onEnter = call<&ShareScreen::calculate>},
    Bar{},
    Command{.name = u"Command1", .caption = u"計算", .run = run<&ShareScreen::calculate>},
    Command{.name = u"Command2",
            .caption = u"倍々",
            .run = run<&ShareScreen::doubleUp>,
            .tip = u"元数値を２倍にして計算します。"},
    EndBar{},
    EndGroup{},
    Group{.name = u"Frame2", .caption = u"計算結果", .columns = 3},
    cell({u"Text2", 0}, u"１割 切り上げ:"),
    cell({u"Text3", 0}, u"１割 切り捨て:"),
    cell({u"Text4", 0}, u"１割 四捨五入:"),
    cell({u"Text2", 1}, u"２割 切り上げ:"),
    cell({u"Text3", 1}, u"２割 切り捨て:"),
    cell({u"Text4", 1}, u"２割 四捨五入:"),
    cell({u"Text2", 2}, u"３割 切り上げ:"),
    cell({u"Text3", 2}, u"３割 切り捨て:"),
    cell({u"Text4", 2}, u"３割 四捨五入:"),
    cell({u"Text2", 3}, u"７割 切り上げ:"),
    cell({u"Text3", 3}, u"７割 切り捨て:"),
    cell({u"Text4", 3}, u"７割 四捨五入:"),
    cell({u"Text2", 4}, u"８割 切り上げ:"),
    cell({u"Text3", 4}, u"８割 切り捨て:"),
    cell({u"Text4", 4}, u"８割 四捨五入:"),
    cell({u"Text2", 5}, u"９割 切り上げ:"),
    cell({u"Text3", 5}, u"９割 切り捨て:"),
    cell({u"Text4", 5}, u"９割 四捨五入:"),
    EndGroup{},
    Bar{},
    Command{.name = u"Command3", .caption = u"閉じる", .run = run<&ShareScreen::finish>, .key = u"Esc"},
    EndBar{},
};

constexpr ScreenRow kScreen = declare({.name = routes::ShareFormula::screen,
                                       .caption = u"計算式確認",
                                       .rows = kRows,
                                       .heading = u"計算式確認"});

constexpr ControlRef kBase = ref(kRows, u"Text1");
constexpr FamilyRef kUp = family(kRows, u"Text2");
constexpr FamilyRef kDown = family(kRows, u"Text3");
constexpr FamilyRef kNearest = family(kRows, u"Text4");

QString shown(qint64 yen) { return yen == 0 ? u"0"_s : text::thousands(yen); }

}  // namespace

ShareScreen::ShareScreen(screen::Services& services) : Screen(kScreen, services) {}

void ShareScreen::calculate() {
  const auto lines = shareTable(text::intOf(text(kBase)));
  for (int i = 0; i < int(lines.size()); ++i) {
    setText(kUp[i], shown(lines[size_t(i)].up));
    setText(kDown[i], shown(lines[size_t(i)].down));
    setText(kNearest[i], shown(lines[size_t(i)].nearest));
  }
  focusOn(kUp[0]);
}

void ShareScreen::doubleUp() {
  const qint64 base = text::intOf(text(kBase));
  if (base <= kMaxBase / 2) setText(kBase, QString::number(base * 2));
  calculate();
  voice().speakText(caption(kBase) + voice::kSpeechSeparator + text(kBase));
}

void ShareScreen::finish() { close(); }

}  // namespace claims
