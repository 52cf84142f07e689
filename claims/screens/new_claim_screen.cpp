#include "claims/screens/new_claim_screen.h"

#include "frame/core/routes.h"
#include "platform/screen/declare.h"

namespace claims {
namespace {

using namespace screen;

constexpr Row kRows[] = {
    Note{.name = u"Label1", .caption = u"表示患者の新規のレセプトを作成します。", .spoken = true},
    Bar{},
    Command{.name = u"Command1", .caption = u"ＯＫ", .run = run<&NewClaimScreen::accept>, .standard = true},
    Command{
        .name = u"Command2", .caption = u"キャンセル", .run = run<&NewClaimScreen::cancel>, .key = u"Esc"},
    EndBar{},
};

constexpr ScreenRow kScreen = declare({.name = routes::NewClaim::screen,
                                       .caption = u"新規レセプト作成",
                                       .rows = kRows,
                                       .heading = u"新規レセプト作成"});

}  // namespace

NewClaimScreen::NewClaimScreen(screen::Services& services, ClaimsState& state)
    : Screen(kScreen, services), m_state(state) {}

void NewClaimScreen::opened(const screen::Request& request) {
  const auto* route = request.as<routes::NewClaim>();
  m_state.newClaim = route ? route->patient : frame::Patient();
}

void NewClaimScreen::accept() {
  navigator().show(routes::ClaimChoice{});
  close();
}

void NewClaimScreen::cancel() { close(); }

}  // namespace claims
