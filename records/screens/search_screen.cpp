#include "records/screens/search_screen.h"

#include "frame/core/routes.h"
#include "platform/screen/find_row.h"
#include "platform/screen/opens.h"
#include "platform/store/criteria_text.h"
#include "records/core/search_columns.h"
#include "records/core/search_history.h"

namespace records {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Choice kColumns[] = {
    {.name = {u"Option1"}, .caption = u"患者ID", .value = u"患者ID"},
    {.name = {u"Option2"}, .caption = u"カルテ番号", .value = u"カルテ番号"},
    {.name = {u"Option3"}, .caption = u"フリガナ", .value = u"ふりがな"},
    {.name = {u"Option4"}, .caption = u"氏名", .value = u"氏名"},
    {.name = {u"Option5"}, .caption = u"生年月日", .value = u"生年月日"},
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

constexpr ScreenRow kDeclaration{.name = u"選択4", .caption = u"検索", .rows = kRows, .heading = u"検索"};

}  // namespace

SearchScreen::SearchScreen(Services& services, frame::RunState& run)
    : Screen(kDeclaration, services), m_run(run) {}

void SearchScreen::onLoad() {
  choose(u"Frame1"_s, u"氏名"_s);
  setItems(u"Combo1"_s, SearchHistory(m_run.programFolder).words());
  setText(u"Combo1"_s, QString());
}

void SearchScreen::opened(const Request& request) {
  setItems(u"Combo1"_s, SearchHistory(m_run.programFolder).words());
  if (!request.contains(u"氏名"_s)) return focusOn(u"Frame1"_s);
  choose(u"Frame1"_s, u"氏名"_s);
  setText(u"Combo1"_s, request[u"氏名"_s].toString());
  focusOn(u"Combo1"_s);
}

Screen* SearchScreen::patients() {
  Screen* screen = navigator().load(routes::PatientRegister::screen);
  return screen != nullptr && screen->source().isOpen() ? screen : nullptr;
}

void SearchScreen::showEmptyNotice() {
  navigator().show(routes::PatientRegister{});
  navigator().show(routes::AskFirstPatient{});
  navigator().unload(routes::PatientSearch::screen);
}

QString SearchScreen::criteria(const QString& word) const {
  const QString column = chosen(u"Frame1"_s);
  // Numbers are looked up whole, names and dates by any part.
  const bool exact = column == u"患者ID" || column == u"カルテ番号";
  return exact ? store::equalCriterion(column, word) : store::likeCriterion(column, word);
}

void SearchScreen::search() {
  Screen* screen = patients();
  if (screen == nullptr) return;
  if (screen->source().rows().recordCount() == 0) return showEmptyNotice();
  const QString word = text(u"Combo1"_s);
  if (!word.isEmpty()) {
    // A history that cannot be written costs nothing: the search itself goes on.
    (void)SearchHistory(m_run.programFolder).remember(word);
    if (!settleRow(screen->source()) || !findRow(*screen, criteria(word))) return;
  }
  navigator().show(u"治療台帳4"_s, {{u"表示患者"_s, true}});
  navigator().unload(routes::PatientSearch::screen);
}

void SearchScreen::newPatient() {
  Screen* screen = patients();
  if (screen == nullptr) return;
  if (screen->source().rows().recordCount() == 0) return showEmptyNotice();
  navigator().show(u"治療台帳4"_s, {{u"新規"_s, true}});
  navigator().unload(routes::PatientSearch::screen);
}

void SearchScreen::cancel() { navigator().unload(routes::PatientSearch::screen); }

}  // namespace records
