#include "claims/screens/new_claim_screen.h"

#include "frame/core/routes.h"

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

constexpr ScreenRow kScreen{
    .name = u"新規レセプト", .caption = u"新規レセプト作成", .rows = kRows, .heading = u"新規レセプト作成"};

}  // namespace

NewClaimScreen::NewClaimScreen(screen::Services& services, ClaimsState& state)
    : Screen(kScreen, services), m_state(state) {}

void NewClaimScreen::opened(const screen::Request& request) {
  m_state.newClaim = ClaimRecord();
  for (auto column = request.cbegin(); column != request.cend(); ++column)
    m_state.newClaim.set(column.key(), column.value().toString());
}

void NewClaimScreen::accept() {
  navigator().show(routes::ClaimChoice{});
  close();
}

void NewClaimScreen::cancel() { close(); }

}  // namespace claims
