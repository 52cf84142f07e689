#include "records/screens/new_visit_prompt.h"

namespace records {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

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
        .name = {u"Text1"}, .caption = u"氏名:", .bind = Unbound{u"tells the patient"}, .readOnly = true},
};

constexpr ScreenRow kDeclaration{.name = u"カルテ2の新規", .caption = u"新規作成", .rows = kRows};

}  // namespace

NewVisitPrompt::NewVisitPrompt(Services& services) : Screen(kDeclaration, services) {}

void NewVisitPrompt::opened(const Request& request) {
  setText(u"Text1"_s, request.value(u"氏名"_s).toString());
}

QStringList NewVisitPrompt::openingTexts() const { return Screen::openingTexts() << text(u"Text1"_s); }

void NewVisitPrompt::makeVisit() {
  close();
  navigator().show(u"治療台帳3"_s, {{u"新規"_s, true}});
}

void NewVisitPrompt::cancel() { close(); }

}  // namespace records
