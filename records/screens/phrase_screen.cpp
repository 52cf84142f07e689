#include "records/screens/phrase_screen.h"

#include <array>

#include "frame/core/routes.h"
#include "platform/store/tables/dictionaries.h"

namespace records {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char16_t kNewRow[] = u"新しい文字を書き込んでから、更新ボタンを押してください";
constexpr char16_t kCopySay[] = u"選択文字をクリップボードにコピーします";
constexpr int kMaxPhraseLength = 200;

/// The rows of a phrase window; the two windows differ by the column alone.
consteval auto phraseRows(store::Column column, std::span<const GridColumn> listed) {
  return std::array{
      Row{Grid{.name = {u"DBGrid1"},
               .caption = u"文字の一覧",
               .columns = listed,
               .onActivate = call<&PhraseScreen::copy>,
               .onMove = call<&PhraseScreen::rowReached>}},
      Row{Group{.name = {u"Frame1"}, .caption = u"選択中の文字", .columns = 2}},
      Row{TextField{.name = {u"txtFields", 0},
                    .caption = u"書き込み文字の変更と新規の書き込み",
                    .bind = column,
                    .limit = kMaxPhraseLength,
                    .width = 60}},
      Row{EndGroup{}},
      Row{Bar{}},
      Row{Command{.name = {u"cmdAdd"}, .caption = u"追加", .run = run<&PhraseScreen::add>}},
      Row{Command{.name = {u"cmdDelete"}, .caption = u"削除", .run = run<&PhraseScreen::removeRow>}},
      Row{Command{.name = {u"cmdUpdate"}, .caption = u"更新", .run = run<&PhraseScreen::storeRow>}},
      Row{Command{.name = {u"Command1"},
                  .caption = u"Ｃ",
                  .run = run<&PhraseScreen::copy>,
                  .say = kCopySay,
                  .tip = kCopySay}},
      Row{Command{.name = {u"cmdClose"}, .caption = u"閉じる", .run = run<&PhraseScreen::finish>}},
      Row{EndBar{}},
  };
}

constexpr GridColumn kListed1[] = {{phrases::phrase, u"文字"}};
constexpr GridColumn kListed2[] = {{phrasePairs::heading, u"文字"}};
constexpr auto kRows1 = phraseRows(phrases::phrase, kListed1);
constexpr auto kRows2 = phraseRows(phrasePairs::heading, kListed2);

constexpr ScreenRow kScreen1 = declare({.name = routes::Phrases::screen,
                                        .caption = u"クリップ文字",
                                        .rows = kRows1,
                                        .sources = phrases::table,
                                        .functionKeys = true});
constexpr ScreenRow kScreen2 = declare({.name = routes::PhrasePairs::screen,
                                        .caption = u"クリップ文字２",
                                        .rows = kRows2,
                                        .sources = phrasePairs::table,
                                        .functionKeys = true});

constexpr DictionaryRow kDictionaries[] = {
    {kScreen1, ref(kRows1, u"txtFields", 0), frame::folder::kPhrases1, kNewRow},
    {kScreen2, ref(kRows2, u"txtFields", 0), frame::folder::kPhrases2, kNewRow}};

}  // namespace

std::span<const DictionaryRow> phraseDictionaries() { return kDictionaries; }

// The list says the phrase itself, so the copy is not announced.
void PhraseScreen::rowReached() { copyEntry(); }

void PhraseScreen::add() {
  if (!source().ensureOpen()) return;
  if (entry().trimmed().isEmpty()) {
    source().drop();  // the row whose text was cleared stays as it was stored
    if (source().addNew()) askForEntry();
    return;
  }
  if (!source().rows().adding() && !source().addNewAsShown()) return;
  if (source().write()) say({u"追加しました"_s, entry()});
}

}  // namespace records
