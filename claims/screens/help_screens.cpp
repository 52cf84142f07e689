#include "claims/screens/help_screens.h"

#include <algorithm>

#include "claims/screens/help_texts.h"
#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/text/utf16.h"

namespace claims {

using namespace screen;

namespace {

constexpr Row kRows[] = {
    TextField{.name = {u"Text1"},
              .caption = u"記入の仕方:",
              .bind = Unbound{u"a fixed text"},
              .limit = 32000,
              .width = 70,
              .lines = 22,
              .readOnly = true,
              .say = u"記入の仕方です。「次の行」のボタンで1行ずつ聞けます。"},
    Bar{},
    Command{.name = {u"Command3"}, .caption = u"次の行", .run = run<&HelpScreen::speakNext>},
    Command{.name = {u"Command4"}, .caption = u"前の行", .run = run<&HelpScreen::speakPrevious>},
    Command{.name = {u"Command2"}, .caption = u"記入の仕方を音声で説明", .run = run<&HelpScreen::speakAll>},
    Command{.name = {u"Command1"}, .caption = u"閉じる", .run = run<&HelpScreen::closeHelp>},
    EndBar{},
};

consteval ScreenRow helpOf(ScreenName name) {
  return declare({.name = name, .caption = name, .rows = kRows});
}
constexpr ScreenRow kBefore202012 = helpOf(routes::FillingHelp::screen);
constexpr ScreenRow kBefore202410 = helpOf(routes::FillingHelp2018::screen);
constexpr ScreenRow kFrom202410 = helpOf(routes::FillingHelp2024::screen);

}  // namespace

HelpScreen::HelpScreen(const ScreenRow& declaration, std::span<const char16_t* const> lines,
                       Services& services)
    : Screen(declaration, services), m_lines(lines) {}

QStringList HelpScreen::lines() const {
  QStringList all;
  for (const char16_t* line : m_lines) all << text::utf16(line);
  return all;
}

void HelpScreen::onLoad() { setText(ref(kRows, u"Text1"), lines().join(u'\n')); }
QStringList HelpScreen::openingTexts() const { return lines(); }
void HelpScreen::speakAll() { voice().speakHeading(lines()); }
void HelpScreen::speakNext() { speakLine(m_line + 1); }
void HelpScreen::speakPrevious() { speakLine(m_line - 1); }

void HelpScreen::speakLine(int line) {
  m_line = std::clamp(line, 0, int(m_lines.size()) - 1);
  voice().speakFocus(text::utf16(m_lines[size_t(m_line)]));
}

void HelpScreen::closeHelp() { navigator().unload(objectName()); }

FillingHelpScreen::FillingHelpScreen(Services& services, frame::RunState&, ClaimsState&)
    : HelpScreen(kBefore202012, help::before202012(), services) {}
FillingHelp2018Screen::FillingHelp2018Screen(Services& services, frame::RunState&, ClaimsState&)
    : HelpScreen(kBefore202410, help::before202410(), services) {}
FillingHelp2024Screen::FillingHelp2024Screen(Services& services, frame::RunState&, ClaimsState&)
    : HelpScreen(kFrom202410, help::from202410(), services) {}

}  // namespace claims
