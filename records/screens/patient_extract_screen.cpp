#include "records/screens/patient_extract_screen.h"

#include <algorithm>

#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/screen/list_screen.h"
#include "platform/store/criteria_text.h"
#include "platform/store/tables/patients.h"
#include "platform/text/number.h"
#include "platform/text/utf16.h"
#include "platform/text/width.h"

namespace records {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char16_t kNote[] = u"検索先のチェックボタンにチェックを入れて、抽出ボタンを押して下さい。";
constexpr char16_t kSex[] = u"性別", kKeyword[] = u"キーワード", kFromAge[] = u"年齢以上",
                   kToAge[] = u"年齢以下", kAddress[] = u"住所";

constexpr Choice kKinds[] = {
    {.name = u"Option3", .caption = u"男女別の抽出", .value = kSex},
    {.name = u"Option5", .caption = u"キーワード 1:2: 内の抽出", .value = kKeyword},
    {.name = u"Option6", .caption = u"年齢による抽出-1-", .value = kFromAge},
    {.name = u"Option7", .caption = u"年齢による抽出-2-", .value = kToAge},
    {.name = u"Option12", .caption = u"住所による抽出", .value = kAddress},
};
constexpr Choice kSexes[] = {{.name = u"Option1", .caption = u"男", .value = u"男"},
                             {.name = u"Option2", .caption = u"女", .value = u"女"}};

constexpr Row kRows[] = {
    Note{.name = u"Label1", .caption = kNote, .spoken = true},
    Options{.name = u"Frame1",
            .caption = u"検索先",
            .bind = Unbound{u"the kind of extraction"},
            .choices = kKinds},
    Options{.name = u"Frame2",
            .caption = u"性別",
            .bind = Unbound{u"the sex to extract"},
            .choices = kSexes,
            .onChoose = call<&PatientExtractScreen::chooseSex>},
    Group{.name = u"Frame3", .caption = u"抽出する文字", .columns = 2},
    TextField{.name = u"Text1",
              .caption = u"キーワード",
              .bind = Unbound{u"the keyword to extract"},
              .onEdit = call<&PatientExtractScreen::typeWord>},
    TextField{.name = u"Text2",
              .caption = u"歳以上",
              .bind = Unbound{u"the youngest age"},
              .width = 4,
              .onEdit = call<&PatientExtractScreen::typeWord>},
    TextField{.name = u"Text3",
              .caption = u"歳以下",
              .bind = Unbound{u"the oldest age"},
              .width = 4,
              .onEdit = call<&PatientExtractScreen::typeWord>},
    TextField{.name = u"Text5",
              .caption = u"住所",
              .bind = Unbound{u"the part of an address"},
              .onEdit = call<&PatientExtractScreen::typeWord>},
    EndGroup{},
    Bar{},
    Command{.name = u"Command1",
            .caption = u"抽出の開始",
            .run = run<&PatientExtractScreen::extract>,
            .tip = u"１回目を抽出後、続けて抽出すると更に１回目の中から抽出出来ます。",
            .standard = true},
    Command{.name = u"Command2",
            .caption = u"キャンセル",
            .run = run<&PatientExtractScreen::cancel>,
            .key = u"Esc"},
    EndBar{},
};

constexpr ScreenRow kDeclaration =
    declare({.name = routes::ExtractPatients::screen, .caption = u"抽出", .rows = kRows, .heading = u"抽出"});

constexpr ControlRef kKind = ref(kRows, u"Frame1");

/// A kind of extraction: its value among the options, its input, and whether that is a number.
struct Kind {
  const char16_t* value;
  ControlRef input;
  bool number = false;
};
constexpr Kind kInputs[] = {{kSex, ref(kRows, u"Frame2")},
                            {kKeyword, ref(kRows, u"Text1")},
                            {kFromAge, ref(kRows, u"Text2"), true},
                            {kToAge, ref(kRows, u"Text3"), true},
                            {kAddress, ref(kRows, u"Text5")}};

}  // namespace

// The user types the wildcards of a keyword himself; without them a part of a keyword finds nothing.
QString extractCriteria(const QString& kind, const QString& word) {
  const QString orElse = u"or "_s;
  if (kind == kSex) return u"%1 ='%2' "_s.arg(patients::sex.text(), word);
  if (kind == kKeyword)
    return store::patternCriterion(patients::keyword[1], word) + orElse +
           store::patternCriterion(patients::keyword[2], word);
  if (kind == kFromAge) return patients::age.text() + u" >="_s + word;
  if (kind == kToAge) return patients::age.text() + u" <="_s + word;
  return store::likeCriterion(patients::address[1], word) + orElse +
         store::likeCriterion(patients::address[2], word) + orElse +
         store::likeCriterion(patients::address[3], word);
}

PatientExtractScreen::PatientExtractScreen(Services& services) : Screen(kDeclaration, services) {}

void PatientExtractScreen::chooseSex() { choose(kKind, text::utf16(kSex)); }

void PatientExtractScreen::typeWord() {
  const QString typedIn = focused();
  for (const Kind& kind : kInputs)
    if (typedIn == kind.input.name()) choose(kKind, text::utf16(kind.value));
}

void PatientExtractScreen::extract() {
  ListScreen* list = listOf(*this, routes::PatientList::screen);
  if (list == nullptr) return;
  const QString chosenKind = chosen(kKind);
  const Kind* kind =
      std::ranges::find(kInputs, chosenKind, [](const Kind& each) { return text::utf16(each.value); });
  if (kind == std::end(kInputs)) {
    messages().tell(text::utf16(kNote));
    return focusOn(kKind);
  }
  const QString input = kind->input;
  QString word = kind->value == kSex ? chosen(input) : text(input);
  if (word.isEmpty()) return askFor(input);
  if (kind->number && !text::isNumeric(word)) {
    messages().tell(u"年齢は数字で記入して下さい。"_s);
    return focusOn(input);
  }
  if (kind->number) word = text::asciiDigits(word).trimmed();
  if (!list->narrowBy(extractCriteria(chosenKind, word))) return;
  navigator().show(routes::PatientList{});
  close();
}

}  // namespace records
