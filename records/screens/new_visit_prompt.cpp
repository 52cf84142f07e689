#include "records/screens/new_visit_prompt.h"

#include "frame/core/routes.h"
#include "platform/screen/declare.h"

namespace records {

using namespace screen;

namespace {

constexpr Row kRows[] = {
    Note{.name = {u"Label1"}, .caption = u"この患者のカルテ２のデータはありません。", .spoken = true},
    Note{.name = {u"Label2"}, .caption = u"新規につくりますか？", .spoken = true},
    Bar{},
    Command{.name = {u"Command1"}, .caption = u"はい", .run = run<&NewVisitPrompt::makeVisit>},
    Command{
        .name = {u"Command2"}, .caption = u"キャンセル", .run = run<&NewVisitPrompt::cancel>, .key = u"Esc"},
    EndBar{},
    TextField{
        .name = {u"Text1"}, .caption = u"氏名:", .bind = Unbound{u"shows the patient"}, .readOnly = true},
};

constexpr ScreenRow kDeclaration =
    declare({.name = routes::AskFirstVisit::screen, .caption = u"新規作成", .rows = kRows});

constexpr ControlRef kName = ref(kRows, u"Text1");

}  // namespace

NewVisitPrompt::NewVisitPrompt(Services& services) : Screen(kDeclaration, services) {}

void NewVisitPrompt::opened(const Request& request) {
  const auto* route = request.as<routes::AskFirstVisit>();
  setText(kName, route ? route->name : QString());
}

QStringList NewVisitPrompt::openingTexts() const { return Screen::openingTexts() << text(kName); }

void NewVisitPrompt::makeVisit() {
  close();
  navigator().show(routes::VisitLedger{routes::VisitLedger::NewVisit{}});
}

void NewVisitPrompt::cancel() { close(); }

}  // namespace records
