#include "claims/screens/consent_extract_screen.h"

#include "platform/screen/list_screen.h"
#include "platform/store/criteria_text.h"

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

constexpr ScreenRow kScreen{
    .name = u"抽出6", .caption = u"同意一ｹ月以内の抽出", .rows = kRows, .heading = u"同意一ｹ月以内の抽出"};

const QString kList = QStringLiteral("レセプト一覧表");

}  // namespace

ConsentExtractScreen::ConsentExtractScreen(Services& services) : Screen(kScreen, services) {}

void ConsentExtractScreen::extract() {
  if (text("Text1").isEmpty()) {
    messages().tell(QString::fromUtf16(kWriteDates));
    return focusOn("Text1");
  }
  auto* list = dynamic_cast<ListScreen*>(navigator().load(kList));
  if (list == nullptr) return;
  const QString criteria = store::spanCriterion(QStringLiteral("要加療期間2"), text("Text1"), text("Text2"));
  if (!list->narrowBy(criteria)) return;
  navigator().show(kList);
  close();
}

void ConsentExtractScreen::cancel() { close(); }

}  // namespace claims
