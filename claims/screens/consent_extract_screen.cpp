#include "claims/screens/consent_extract_screen.h"

#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/screen/list_screen.h"
#include "platform/store/criteria_text.h"
#include "platform/store/tables/claims.h"
#include "platform/text/utf16.h"

namespace claims {
namespace {

using namespace screen;

constexpr char16_t kWriteDates[] = u"抽出する,年月日を書き込んで下さい";

constexpr Row kRows[] = {
    Note{.name = u"Label1", .caption = kWriteDates, .spoken = true},
    Group{.name = u"Frame1", .caption = u"要加療期間2"},
    TextField{.name = u"Text1", .caption = u"から", .bind = Unbound{u"the first date"}},
    TextField{.name = u"Text2", .caption = u"まで", .bind = Unbound{u"the last date"}},
    EndGroup{},
    Bar{},
    Command{.name = u"Command1",
            .caption = u"抽出",
            .run = run<&ConsentExtractScreen::extract>,
            .standard = true},
    Command{.name = u"Command2",
            .caption = u"キャンセル",
            .run = run<&ConsentExtractScreen::cancel>,
            .key = u"Esc"},
    EndBar{},
};

constexpr ScreenRow kScreen = declare({.name = routes::ExtractConsents::screen,
                                       .caption = u"同意一ｹ月以内の抽出",
                                       .rows = kRows,
                                       .heading = u"同意一ｹ月以内の抽出"});

constexpr ControlRef kFrom = ref(kRows, u"Text1");
constexpr ControlRef kUntil = ref(kRows, u"Text2");

}  // namespace

ConsentExtractScreen::ConsentExtractScreen(Services& services) : Screen(kScreen, services) {}

void ConsentExtractScreen::extract() {
  if (text(kFrom).isEmpty()) {
    messages().tell(::text::utf16(kWriteDates));
    return focusOn(kFrom);
  }
  ListScreen* list = listOf(*this, routes::ClaimList::screen);
  if (list == nullptr) return;
  const QString criteria = store::spanCriterion(claim::consentUntil, text(kFrom), text(kUntil));
  if (!list->narrowBy(criteria)) return;
  navigator().show(routes::ClaimList::screen);
  close();
}

void ConsentExtractScreen::cancel() { close(); }

}  // namespace claims
