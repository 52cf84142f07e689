#include "frame/screens/about_screen.h"

#include <QStandardPaths>

#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/shell/desktop.h"
#include "platform/text/utf16.h"

namespace frame {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

/// System information programs; the first that is installed is started.
constexpr const char16_t* kSystemPrograms[] = {u"hardinfo2", u"hardinfo", u"kinfocenter"};

constexpr Row kRows[] = {
    Note{.name = {u"lblTitle"}, .caption = u"治療台帳", .spoken = true},
    Note{.name = {u"lblVersion"}, .caption = u"レセプト対応治療台帳バージョン 9.22", .spoken = true},
    Bar{},
    Command{.name = {u"cmdOK"},
            .caption = u"OK",
            .run = run<&AboutScreen::finish>,
            .key = u"Esc",
            .standard = true},
    Command{.name = {u"cmdSysInfo"}, .caption = u"ｼｽﾃﾑ情報", .run = run<&AboutScreen::showSystemInformation>},
    EndBar{},
};

constexpr ScreenRow kDeclaration =
    declare({.name = routes::About::screen, .caption = u"ﾊﾞｰｼﾞｮﾝ情報", .rows = kRows});

}  // namespace

AboutScreen::AboutScreen(Services& services) : Screen(kDeclaration, services) {}

void AboutScreen::showSystemInformation() {
  for (const char16_t* program : kSystemPrograms) {
    const QString path = QStandardPaths::findExecutable(text::utf16(program));
    if (!path.isEmpty() && services().desktop->startProgram(path)) return;
  }
  messages().tell(u"現時点ではｼｽﾃﾑ情報を使用できません"_s);
}

void AboutScreen::finish() { navigator().unload(routes::About::screen); }

}  // namespace frame
