#include "records/screens/phrase_screen.h"

#include <array>

#include "platform/store/tables/dictionaries.h"

namespace records {

using namespace screen;

namespace {

constexpr char16_t kAdded[] = u"追加しました";
constexpr char16_t kNewRow[] = u"新しい文字を書き込んでから、更新ボタンを押してください";
constexpr char16_t kCopySay[] = u"選択文字をクリップボードにコピーします";
constexpr int kLongestPhrase = 200;

/// The rows of a phrase window; the column is all that the two differ in.
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
                    .limit = kLongestPhrase,
                    .width = 60}},
      Row{EndGroup{}},
      Row{Bar{}},
      Row{Command{.name = {u"cmdAdd"}, .caption = u"追加", .run = run<&PhraseScreen::add>}},
      Row{Command{.name = {u"cmdDelete"}, .caption = u"削除", .run = run<&PhraseScreen::remove>}},
      Row{Command{.name = {u"cmdUpdate"}, .caption = u"更新", .run = run<&PhraseScreen::store>}},
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

constexpr ScreenRow kScreen1{.name = u"frmCLmoji",
                             .caption = u"クリップ文字",
                             .rows = kRows1,
                             .sources = phrases::table,
                             .functionKeys = true};
constexpr ScreenRow kScreen2{.name = u"frmCl2moji",
                             .caption = u"クリップ文字２",
                             .rows = kRows2,
                             .sources = phrasePairs::table,
                             .functionKeys = true};

constexpr DictionaryRow kDictionaries[] = {{kScreen1, frame::folder::kPhrases1, u"CLmoji", kNewRow},
                                           {kScreen2, frame::folder::kPhrases2, u"CL2moji", kNewRow}};

}  // namespace

std::span<const DictionaryRow> phraseDictionaries() { return kDictionaries; }

// The list says the phrase itself, so nothing more is said of the copy.
void PhraseScreen::rowReached() { copyEntry(); }

void PhraseScreen::add() {
  if (!source().ready()) return;
  if (entry().trimmed().isEmpty()) {
    source().drop();  // the row whose text was cleared to make room stays as it was stored
    if (source().addNew()) askForEntry();
    return;
  }
  if (!source().rows().adding() && !source().addNewAsShown()) return;
  if (source().write()) say({QString::fromUtf16(kAdded), entry()});
}

}  // namespace records
