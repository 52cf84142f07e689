#include "records/screens/search_screen.h"

#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/screen/find_row.h"
#include "platform/screen/opens.h"
#include "platform/store/criteria_text.h"
#include "platform/store/tables/patients.h"
#include "records/core/search_history.h"

namespace records {

using namespace screen;

namespace {

constexpr Choice kColumns[] = {
    {.name = {u"Option1"}, .caption = u"患者ID", .value = patients::patientNumber.name()},
    {.name = {u"Option2"}, .caption = u"カルテ番号", .value = patients::chartNumber.name()},
    {.name = {u"Option3"}, .caption = u"フリガナ", .value = patients::kana.name()},
    {.name = {u"Option4"}, .caption = u"氏名", .value = patients::name.name()},
    {.name = {u"Option5"}, .caption = u"生年月日", .value = patients::birth.name()},
};

constexpr Row kRows[] = {
    Note{.name = {u"Label1"},
         .caption = u"カーソルで項目を選択後、タブ移動し文字入力し、検索ボタンをおしてください。",
         .spoken = true},
    Options{.name = {u"Frame1"},
            .caption = u"検索項目",
            .bind = Unbound{u"chooses the column to search"},
            .choices = kColumns},
    Combo{.name = {u"Combo1"},
          .caption = u"検索文字入力",
          .bind = Unbound{u"the word to search"},
          .editable = true,
          .width = 30},
    Bar{},
    Command{.name = {u"Command3"}, .caption = u"検索", .run = run<&SearchScreen::search>, .standard = true},
    Command{.name = {u"Command1"}, .caption = u"新規作成", .run = run<&SearchScreen::newPatient>},
    Command{.name = {u"Command4"}, .caption = u"一覧と印刷", .run = opens<routes::PatientList>},
    Command{
        .name = {u"Command2"}, .caption = u"キャンセル", .run = run<&SearchScreen::cancel>, .key = u"Esc"},
    EndBar{},
};

constexpr ScreenRow kDeclaration =
    declare({.name = routes::PatientSearch::screen, .caption = u"検索", .rows = kRows, .heading = u"検索"});

constexpr ControlRef kColumn = ref(kRows, u"Frame1");
constexpr ControlRef kWord = ref(kRows, u"Combo1");

}  // namespace

SearchScreen::SearchScreen(Services& services, frame::RunState& run)
    : Screen(kDeclaration, services), m_run(run) {}

void SearchScreen::onLoad() {
  choose(kColumn, patients::name);
  setItems(kWord, SearchHistory(m_run.programFolder).words());
  setText(kWord, QString());
}

void SearchScreen::opened(const Request& request) {
  setItems(kWord, SearchHistory(m_run.programFolder).words());
  const auto* route = request.as<routes::PatientSearch>();
  if (!route || !route->name) return focusOn(kColumn);
  choose(kColumn, patients::name);
  setText(kWord, *route->name);
  focusOn(kWord);
}

Screen* SearchScreen::openedRegister() {
  Screen* screen = navigator().load(routes::PatientRegister::screen);
  return screen != nullptr && screen->source().isOpen() ? screen : nullptr;
}

void SearchScreen::showEmptyNotice() {
  navigator().show(routes::PatientRegister{});
  navigator().show(routes::AskFirstPatient{});
  navigator().unload(routes::PatientSearch::screen);
}

QString SearchScreen::criteria(const QString& word) const {
  const QString column = chosen(kColumn);
  // Numbers are looked up whole, names and dates by any part.
  const bool exact = column == patients::patientNumber.text() || column == patients::chartNumber.text();
  return exact ? store::equalCriterion(column, word) : store::likeCriterion(column, word);
}

void SearchScreen::search() {
  Screen* screen = openedRegister();
  if (screen == nullptr) return;
  if (screen->source().rows().recordCount() == 0) return showEmptyNotice();
  const QString word = text(kWord);
  if (!word.isEmpty()) {
    // A history that cannot be written costs nothing: the search itself goes on.
    (void)SearchHistory(m_run.programFolder).remember(word);
    if (!commitOrDiscardRow(screen->source()) || !findRow(*screen, criteria(word))) return;
  }
  navigator().show(routes::PatientRegister{routes::PatientRegister::Announced{}});
  navigator().unload(routes::PatientSearch::screen);
}

void SearchScreen::newPatient() {
  Screen* screen = openedRegister();
  if (screen == nullptr) return;
  if (screen->source().rows().recordCount() == 0) return showEmptyNotice();
  navigator().show(routes::PatientRegister{routes::PatientRegister::NewPatient{}});
  navigator().unload(routes::PatientSearch::screen);
}

void SearchScreen::cancel() { navigator().unload(routes::PatientSearch::screen); }

}  // namespace records
