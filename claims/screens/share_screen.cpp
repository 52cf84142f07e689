#include "claims/screens/share_screen.h"

#include "claims/core/share_table.h"
#include "platform/text/number.h"

namespace claims {
namespace {

using namespace screen;

constexpr Row kRows[] = {
    Group{.name = u"Frame1", .caption = u"元数値", .columns = 1},
    TextField{.name = u"Text1", .caption = u"元数値:", .bind = Unbound{u"the base amount is typed"}, .limit = 12,
              .onEnter = call<&ShareScreen::calculate>},
    Bar{},
    Command{.name = u"Command1", .caption = u"計算", .run = run<&ShareScreen::calculate>},
    Command{.name = u"Command2", .caption = u"倍々", .run = run<&ShareScreen::doubleUp>,
            .tip = u"元数値を２倍にして計算します。"},
    EndBar{},
    EndGroup{},
    Group{.name = u"Frame2", .caption = u"計算結果", .columns = 3},
    TextField{.name = {u"Text2", 0}, .caption = u"１割 切り上げ:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text3", 0}, .caption = u"１割 切り捨て:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text4", 0}, .caption = u"１割 四捨五入:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text2", 1}, .caption = u"２割 切り上げ:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text3", 1}, .caption = u"２割 切り捨て:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text4", 1}, .caption = u"２割 四捨五入:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text2", 2}, .caption = u"３割 切り上げ:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text3", 2}, .caption = u"３割 切り捨て:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text4", 2}, .caption = u"３割 四捨五入:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text2", 3}, .caption = u"７割 切り上げ:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text3", 3}, .caption = u"７割 切り捨て:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text4", 3}, .caption = u"７割 四捨五入:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text2", 4}, .caption = u"８割 切り上げ:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text3", 4}, .caption = u"８割 切り捨て:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text4", 4}, .caption = u"８割 四捨五入:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text2", 5}, .caption = u"９割 切り上げ:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text3", 5}, .caption = u"９割 切り捨て:", .bind = Unbound{u"result"}, .readOnly = true},
    TextField{.name = {u"Text4", 5}, .caption = u"９割 四捨五入:", .bind = Unbound{u"result"}, .readOnly = true},
    EndGroup{},
    Bar{},
    Command{.name = u"Command3", .caption = u"閉じる", .run = run<&ShareScreen::finish>},
    EndBar{},
};

constexpr ScreenRow kScreen{.name = u"計算式確認", .caption = u"計算式確認", .rows = kRows, .heading = u"計算式確認"};

QString shown(qint64 yen) { return yen == 0 ? QStringLiteral("0") : text::thousands(yen); }

}  // namespace

ShareScreen::ShareScreen(screen::Services& services) : Screen(kScreen, services) {}

void ShareScreen::calculate() {
  const auto lines = shareTable(text::intOf(text("Text1")));
  for (int i = 0; i < int(lines.size()); ++i) {
    const QString index = '(' + QString::number(i) + ')';
    setText("Text2" + index, shown(lines[i].up));
    setText("Text3" + index, shown(lines[i].down));
    setText("Text4" + index, shown(lines[i].nearest));
  }
  focusOn("Text2(0)");
}

void ShareScreen::doubleUp() {
  setText("Text1", QString::number(text::intOf(text("Text1")) * 2));
  calculate();
}

void ShareScreen::finish() { close(); }

}  // namespace claims
