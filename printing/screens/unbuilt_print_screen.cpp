#include "printing/screens/unbuilt_print_screen.h"

namespace printing {

using namespace screen;

namespace {

constexpr Row closing() {
  return Command{.name = {u"Command2"},
                 .caption = u"閉じる",
                 .run = run<&UnbuiltPrintScreen::finish>,
                 .key = u"Esc",
                 .standard = true};
}
constexpr Row nothingPrinted() {
  return Note{.name = {u"Label2"}, .caption = u"何も印刷されていません。", .spoken = true};
}

constexpr Row kBefore2018[] = {
    Note{.name = {u"Label1"},
         .caption = u"平成３０年５月以前のレセプトの用紙は、この版ではまだ用意されていません。",
         .spoken = true},
    nothingPrinted(), Bar{}, closing(), EndBar{}};
constexpr Row kBefore2024[] = {
    Note{.name = {u"Label1"},
         .caption =
             u"平成３０年６月から令和６年９月までのレセプトの用紙は、この版ではまだ用意されていません。",
         .spoken = true},
    nothingPrinted(), Bar{}, closing(), EndBar{}};
constexpr Row kAssociation[] = {
    Note{.name = {u"Label1"},
         .caption = u"愛知県鍼灸マッサージ師会へ提出するレセプトの用紙は、この版ではまだ用意されていません。",
         .spoken = true},
    nothingPrinted(), Bar{}, closing(), EndBar{}};
constexpr Row kTokyoAid[] = {Note{.name = {u"Label1"},
                                  .caption = u"東京都の公費のレセプトの用紙は、この版ではまだ用意されていませ"
                                             u"ん。公費の印刷のチェックを外すと、"
                                             u"令和６年１０月以降のレセプトは一般の用紙で印刷できます。",
                                  .spoken = true},
                             nothingPrinted(), Bar{}, closing(), EndBar{}};
constexpr Row kIshikawaAid[] = {Note{.name = {u"Label1"},
                                     .caption = u"石川県の公費のレセプトの用紙は、この版ではまだ用意されてい"
                                                u"ません。公費の印刷のチェックを外すと、"
                                                u"令和６年１０月以降のレセプトは一般の用紙で印刷できます。",
                                     .spoken = true},
                                nothingPrinted(), Bar{}, closing(), EndBar{}};

constexpr ScreenRow kDeclarations[] = {
    {.name = u"レセプト印刷", .caption = u"レセプト印刷", .rows = kBefore2018, .heading = u"レセプト印刷"},
    {.name = u"レセプト印刷2018",
     .caption = u"レセプト印刷",
     .rows = kBefore2024,
     .heading = u"レセプト印刷"},
    {.name = u"レセプト印刷2018aimakai",
     .caption = u"レセプト印刷",
     .rows = kAssociation,
     .heading = u"レセプト印刷"},
    {.name = u"レセプト印刷2024aimakai",
     .caption = u"レセプト印刷",
     .rows = kAssociation,
     .heading = u"レセプト印刷"},
    {.name = u"東京助成レセプト印刷",
     .caption = u"東京公費のレセプト印刷",
     .rows = kTokyoAid,
     .heading = u"東京公費のレセプト印刷"},
    {.name = u"東京助成レセプト印刷2024",
     .caption = u"東京公費のレセプト印刷",
     .rows = kTokyoAid,
     .heading = u"東京公費のレセプト印刷"},
    {.name = u"石川県の公費レセプト印刷",
     .caption = u"石川県の公費レセプト印刷",
     .rows = kIshikawaAid,
     .heading = u"石川県の公費レセプト印刷"},
    {.name = u"石川県の公費レセプト印刷2024",
     .caption = u"石川県の公費レセプト印刷",
     .rows = kIshikawaAid,
     .heading = u"石川県の公費レセプト印刷"},
};

}  // namespace

UnbuiltPrintScreen::UnbuiltPrintScreen(const ScreenRow& declaration, Services& services)
    : Screen(declaration, services) {}

std::span<const ScreenRow> UnbuiltPrintScreen::declarations() { return kDeclarations; }

void UnbuiltPrintScreen::finish() { navigator().unload(QString::fromUtf16(declaration().name.get())); }

}  // namespace printing
