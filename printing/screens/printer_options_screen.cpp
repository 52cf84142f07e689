#include "printing/screens/printer_options_screen.h"

#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/text/number.h"
#include "platform/text/utf16.h"
#include "platform/text/width.h"

namespace printing {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char16_t kFormsPaper[] = u"用紙の指定に従う";
constexpr char16_t kFilePrinterCaption[] = u"PDF（印刷フォルダに保存）";
constexpr int kMaxCopies = 99;

// In the order of report::Orientation and report::Sides.
constexpr const char16_t* kOrientations[] = {u"用紙の指定に従う", u"縦", u"横"};
constexpr const char16_t* kSidesWords[] = {u"プリンターの設定に従う", u"片面", u"両面（長い辺でとじる）",
                                           u"両面（短い辺でとじる）"};

constexpr Unbound kChoice{u"the printer choice of this run"};

constexpr Row kRows[] = {
    Combo{.name = {u"Combo1"},
          .caption = u"プリンター:",
          .bind = kChoice,
          .width = 30,
          .onEdit = call<&PrinterOptionsScreen::printerChosen>},
    Combo{.name = {u"Combo2"}, .caption = u"用紙サイズ:", .bind = kChoice, .width = 24},
    TextField{.name = {u"Text1"}, .caption = u"印刷部数:", .bind = kChoice, .limit = 2, .width = 4},
    Combo{.name = {u"Combo3"}, .caption = u"用紙の向き:", .bind = kChoice, .items = kOrientations},
    Combo{.name = {u"Combo4"}, .caption = u"両面印刷:", .bind = kChoice, .items = kSidesWords, .width = 22},
    Bar{},
    Command{.name = {u"Command1"},
            .caption = u"ＯＫ",
            .run = run<&PrinterOptionsScreen::accept>,
            .standard = true},
    Command{.name = {u"Command2"},
            .caption = u"キャンセル",
            .run = run<&PrinterOptionsScreen::cancel>,
            .key = u"Esc"},
    EndBar{},
};

constexpr ScreenRow kDeclaration = declare({.name = routes::PrinterOptions::screen,
                                            .caption = u"プリンターオプション",
                                            .rows = kRows,
                                            .heading = u"プリンターオプション"});

constexpr ControlRef kPrinter = ref(kRows, u"Combo1"), kPaper = ref(kRows, u"Combo2"),
                     kCopies = ref(kRows, u"Text1"), kOrientation = ref(kRows, u"Combo3"),
                     kSides = ref(kRows, u"Combo4");

QString captionOf(const report::PrinterEntry& printer) {
  if (printer.name == report::kFilePrinter) return text::utf16(kFilePrinterCaption);
  return printer.isDefault ? printer.name + u"（通常使うプリンター）"_s : printer.name;
}

/// Place of the shown word among the words of a list, 0 where it is none.
int placeOf(const QString& shown, std::span<const char16_t* const> words) {
  for (size_t i = 0; i < words.size(); ++i)
    if (shown == QStringView(words[i])) return static_cast<int>(i);
  return 0;
}

}  // namespace

PrinterOptionsScreen::PrinterOptionsScreen(Services& services, report::PrinterChoice& choice)
    : PrinterOptionsScreen(services, choice, Lists()) {}

PrinterOptionsScreen::PrinterOptionsScreen(Services& services, report::PrinterChoice& choice, Lists lists)
    : Screen(kDeclaration, services), m_choice(choice), m_lists(lists) {}

void PrinterOptionsScreen::onLoad() {
  m_printers = m_lists.printers();
  const QString current = m_choice.printer.isEmpty() ? m_lists.usual() : m_choice.printer;
  QStringList captions;
  QString shown;
  for (const report::PrinterEntry& printer : m_printers) {
    captions << captionOf(printer);
    if (printer.name == current) shown = captions.last();
  }
  setItems(kPrinter, captions);
  setText(kPrinter, shown.isEmpty() ? captions.value(0) : shown);
  setText(kCopies, QString::number(m_choice.copies));
  setText(kOrientation, text::utf16(kOrientations[static_cast<size_t>(m_choice.orientation)]));
  setText(kSides, text::utf16(kSidesWords[static_cast<size_t>(m_choice.sides)]));
  showMedia();
}

QString PrinterOptionsScreen::chosenPrinter() const {
  const QString shown = text(kPrinter);
  for (const report::PrinterEntry& printer : m_printers)
    if (captionOf(printer) == shown) return printer.name;
  return QString();
}

void PrinterOptionsScreen::showMedia() {
  m_media = m_lists.media(chosenPrinter());
  QStringList captions{text::utf16(kFormsPaper)};
  QString shown = captions.first();
  for (const report::MediaSize& size : m_media) {
    captions << size.caption;
    if (size.media == m_choice.media) shown = size.caption;
  }
  setItems(kPaper, captions);
  setText(kPaper, shown);
}

void PrinterOptionsScreen::printerChosen() { showMedia(); }

void PrinterOptionsScreen::accept() {
  const QString copies = text::asciiDigits(text(kCopies));
  if (!text::isNumeric(copies) || text::intOf(copies) < 1 || text::intOf(copies) > kMaxCopies) {
    messages().tell(u"印刷枚数が正しくありません。"_s);
    return focusOn(kCopies);
  }
  m_choice.printer = chosenPrinter();
  m_choice.copies = static_cast<int>(text::intOf(copies));
  m_choice.orientation = static_cast<report::Orientation>(placeOf(text(kOrientation), kOrientations));
  m_choice.sides = static_cast<report::Sides>(placeOf(text(kSides), kSidesWords));
  m_choice.media.clear();
  for (const report::MediaSize& size : m_media)
    if (size.caption == text(kPaper)) m_choice.media = size.media;
  cancel();
}

void PrinterOptionsScreen::cancel() { navigator().unload(routes::PrinterOptions::screen); }

}  // namespace printing
