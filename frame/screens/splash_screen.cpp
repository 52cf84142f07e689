#include "frame/screens/splash_screen.h"

#include "frame/core/routes.h"
#include "frame/screens/start.h"
#include "platform/screen/declare.h"

namespace frame {

using namespace screen;

namespace {

constexpr Row kRows[] = {
    Group{.name = {u"fraMain"}, .caption = u"鍼灸・マッサージ治療院", .columns = 1},
    Note{.name = {u"lblProductName"}, .caption = u"レセプト対応治療台帳"},
    Note{.name = {u"lblVersion"}, .caption = u"Ver 9.22"},
    Note{.name = {u"lblWait"}, .caption = u"起動しています。しばらくお待ちください。"},
    EndGroup{},
};

constexpr ScreenRow kDeclaration =
    declare({.name = routes::Splash::screen, .caption = u"治療台帳", .rows = kRows});

}  // namespace

SplashScreen::SplashScreen(Services& services, RunState& run) : Screen(kDeclaration, services), m_run(run) {}

void SplashScreen::keyPressEvent(QKeyEvent*) { showFirstScreen(m_run, services()); }
void SplashScreen::mousePressEvent(QMouseEvent*) { showFirstScreen(m_run, services()); }

}  // namespace frame
