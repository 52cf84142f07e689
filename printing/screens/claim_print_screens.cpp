#include <array>

#include "printing/core/print_ticks.h"
#include "printing/screens/claim_print_screen.h"
#include "printing/screens/print_forms.h"
#include "printing/screens/unbuilt_print_screen.h"

namespace printing {

using namespace screen;

namespace {

constexpr char16_t kCaption[] = u"レセプト印刷";
constexpr char16_t kTokyoCaption[] = u"東京公費のレセプト印刷";
constexpr char16_t kIshikawaCaption[] = u"石川県の公費レセプト印刷";
constexpr Unbound kForThisPrint{u"chosen for this print"};

// Printing screens that print.

/// The option button of an edition on the screen; does not compile where the screen lacks it.
consteval Choice editionChoice(PrintScreen screen, Edition edition, const char16_t* caption) {
  const char16_t* control = rowOf(screen).controlOf(edition);
  return {{control}, caption, control};
}

consteval Check tickRow(bool PrintTicks::*tick, const char16_t* caption, const char16_t* group = nullptr) {
  return {.name = {controlOf(tick)}, .caption = caption, .bind = kForThisPrint, .group = group};
}

/// One era tick for each paper, distinguished by the paper's name.
consteval Check eraTick(bool PrintTicks::*tick, const char16_t* paper) {
  return tickRow(tick, u"申請年月に元号を追加", paper);
}

constexpr char16_t kPaper202410[] = u"令和６年１０月からの新用紙";
constexpr char16_t kPaper202104[] = u"令和3年4月からの新用紙（丸印無の印刷）";

constexpr Choice kEditions2024[] = {
    editionChoice(PrintScreen::General2024, Edition::From202410, kPaper202410),
    editionChoice(PrintScreen::General2024, Edition::From202104, kPaper202104)};

constexpr Row kGeneral2024[] = {
    Note{.name = {u"Label1"}, .caption = u"印刷する用紙を選択して、ＯＫを押してください。", .spoken = true},
    Options{.name = {kEditionGroup}, .caption = u"印刷用紙", .bind = kForThisPrint, .choices = kEditions2024},
    Group{.name = {u"Frame2"}, .caption = kPaper202410, .columns = 1},
    eraTick(&PrintTicks::eraOn202410, kPaper202410),
    EndGroup{},
    Group{.name = {u"Frame3"}, .caption = kPaper202104, .columns = 1},
    eraTick(&PrintTicks::eraOn202104, kPaper202104),
    EndGroup{},
    tickRow(&PrintTicks::newElderlyLabels, u"右上部の高齢９・高齢８→高齢ー・高齢７にした印刷"),
    Bar{},
    Command{
        .name = {u"Command1"}, .caption = u"ＯＫ", .run = run<&ClaimPrintScreen::print>, .standard = true},
    Command{.name = {u"Command2"},
            .caption = u"キャンセル",
            .run = run<&ClaimPrintScreen::cancel>,
            .key = u"Esc"},
    Command{.name = {u"Command3"},
            .caption = u"プリンターオプション",
            .run = run<&ClaimPrintScreen::printerOptions>},
    EndBar{},
};

consteval PrintForm form(PrintScreen screen, const char16_t* caption, Rows rows) {
  return {screen, {.name = rowOf(screen).name, .caption = caption, .rows = rows, .heading = caption}};
}

constexpr PrintForm kForms[] = {form(PrintScreen::General2024, kCaption, kGeneral2024)};

// Printing screens whose papers are not there yet.

consteval std::array<Row, 5> notice(const char16_t* words) {
  return {Note{.name = {u"Label1"}, .caption = words, .spoken = true},
          Note{.name = {u"Label2"}, .caption = u"何も印刷されていません。", .spoken = true}, Bar{},
          Command{.name = {u"Command2"},
                  .caption = u"閉じる",
                  .run = run<&UnbuiltPrintScreen::finish>,
                  .key = u"Esc",
                  .standard = true},
          EndBar{}};
}

constexpr auto kBefore201806 =
    notice(u"平成３０年５月以前のレセプトの用紙は、この版ではまだ用意されていません。");
constexpr auto kBefore202410 =
    notice(u"平成３０年６月から令和６年９月までのレセプトの用紙は、この版ではまだ用意されていません。");
constexpr auto kAichiAssociation =
    notice(u"愛知県鍼灸マッサージ師会へ提出するレセプトの用紙は、この版ではまだ用意されていません。");
constexpr auto kTokyoAid = notice(
    u"東京都の公費のレセプトの用紙は、この版ではまだ用意されていません。公費の印刷のチェックを外すと、"
    u"令和６年１０月以降のレセプトは一般の用紙で印刷できます。");
constexpr auto kIshikawaAid = notice(
    u"石川県の公費のレセプトの用紙は、この版ではまだ用意されていません。公費の印刷のチェックを外すと、"
    u"令和６年１０月以降のレセプトは一般の用紙で印刷できます。");

constexpr PrintForm kUnbuilt[] = {
    form(PrintScreen::Oldest, kCaption, kBefore201806),
    form(PrintScreen::General2018, kCaption, kBefore202410),
    form(PrintScreen::AichiAssociation2018, kCaption, kAichiAssociation),
    form(PrintScreen::AichiAssociation2024, kCaption, kAichiAssociation),
    form(PrintScreen::TokyoAid2018, kTokyoCaption, kTokyoAid),
    form(PrintScreen::TokyoAid2024, kTokyoCaption, kTokyoAid),
    form(PrintScreen::IshikawaAid2018, kIshikawaCaption, kIshikawaAid),
    form(PrintScreen::IshikawaAid2024, kIshikawaCaption, kIshikawaAid),
};

/// Whether each printing screen is declared once.
consteval bool everyScreenIsDeclared() {
  for (const PrintScreenRow& row : kPrintScreens) {
    int declarations = 0;
    for (const PrintForm& built : kForms) declarations += built.screen == row.screen;
    for (const PrintForm& notThere : kUnbuilt) declarations += notThere.screen == row.screen;
    if (declarations != 1) return false;
  }
  return true;
}
static_assert(everyScreenIsDeclared());

}  // namespace

std::span<const PrintForm> claimPrintForms() { return kForms; }
std::span<const PrintForm> unbuiltPrintForms() { return kUnbuilt; }

}  // namespace printing
