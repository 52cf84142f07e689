#include "printing/core/screen_choice.h"
#include "printing/screens/printer_options_screen.h"
#include "printing/tests/screens/print_room_fixture.h"

namespace printing::tests {
namespace {

using namespace Qt::Literals::StringLiterals;

class Notices : public PrintRoom {
 protected:
  QString spoken() const { return channel.said().join(u'|'); }
};

TEST_F(Notices, ItemsOnlyNoteIsReadWhenItOpensAndByItsButton) {
  screen::Screen& screen = open(u"項目のみ印刷の注意事項");
  EXPECT_TRUE(spoken().contains(u"枠が印刷済みの用紙"_s));
  channel.clear();
  screen.trigger(u"Command2"_s);
  EXPECT_TRUE(spoken().contains(u"枠が印刷済みの用紙"_s));
}

TEST_F(Notices, ItemsOnlyNoteIsSilencedForThisRun) {
  screen::Screen& screen = open(u"項目のみ印刷の注意事項");
  auto* box = screen.findChild<QCheckBox*>(u"Check1"_s);
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->text(), u"今回の機動中では、再表示しない。"_s);
  box->click();
  EXPECT_TRUE(run.itemsOnlyNoteSilenced);
  box->click();
  EXPECT_FALSE(run.itemsOnlyNoteSilenced);
  screen.trigger(u"Command1"_s);
  EXPECT_FALSE(isLoaded(u"項目のみ印刷の注意事項"));
}

TEST_F(Notices, EveryScreenThatTheChoiceNamesOpens) {
  for (const QString& prefecture : {u"01"_s, u"13"_s, u"17"_s, u"23"_s})
    for (const QDate month : {QDate(2018, 5, 1), QDate(2024, 9, 1), QDate(2024, 10, 1)})
      for (const QString& aichi : {u"3"_s, u"4"_s}) {
        const QString name = nameOf(choosePrintScreen(
            {month, frame::prefectureOf(prefecture), frame::aichiSubmissionOf(aichi), true}));
        EXPECT_NE(navigator.show(name), nullptr) << name.toStdString();
        navigator.unload(name);
      }
}

TEST_F(Notices, ScreensWithoutPapersSayThatNothingWasPrinted) {
  for (const char16_t* name :
       {u"レセプト印刷", u"レセプト印刷2018", u"レセプト印刷2024aimakai", u"東京助成レセプト印刷2024"}) {
    channel.clear();
    screen::Screen& screen = open(name);
    EXPECT_TRUE(spoken().contains(u"何も印刷されていません。"_s));
    screen.trigger(u"Command2"_s);
    EXPECT_FALSE(isLoaded(name));
  }
  EXPECT_TRUE(engine.calls.isEmpty());
}

std::vector<report::PrinterEntry> twoPrinters() {
  return {{u"kiroku"_s, u"見本プリンター"_s, true}, {report::kFilePrinter, QString(), false}};
}
std::vector<report::MediaSize> sizesOf(const QString& printer) {
  if (printer == u"kiroku") return {{u"iso_a4_210x297mm"_s, u"A4"_s}};
  return {{u"iso_a4_210x297mm"_s, u"A4"_s}, {u"jis_b5_182x257mm"_s, u"B5 (JIS)"_s}};
}
QString usual() { return u"kiroku"_s; }

class PrinterOptions : public PrintRoom {};

TEST_F(PrinterOptions, ShowsTheUsualPrinterFirst) {
  PrinterOptionsScreen screen(services, choice, {twoPrinters, sizesOf, usual});
  screen.onLoad();
  EXPECT_EQ(screen.text(u"Combo1"_s), u"kiroku（通常使うプリンター）"_s);
  EXPECT_EQ(screen.text(u"Text1"_s), u"1"_s);
  EXPECT_EQ(screen.items(u"Combo2"_s), QStringList({u"用紙の指定に従う"_s, u"A4"_s}));
}

TEST_F(PrinterOptions, OkKeepsWhatWasChosen) {
  PrinterOptionsScreen screen(services, choice, {twoPrinters, sizesOf, usual});
  screen.onLoad();
  screen.setText(u"Combo1"_s, u"PDF（印刷フォルダに保存）"_s);
  screen.printerChosen();
  screen.setText(u"Combo2"_s, u"B5 (JIS)"_s);
  screen.setText(u"Text1"_s, u"３"_s);
  screen.setText(u"Combo3"_s, u"横"_s);
  screen.setText(u"Combo4"_s, u"両面（短い辺でとじる）"_s);
  screen.trigger(u"Command1"_s);
  const report::PrinterChoice expected{report::kFilePrinter, u"jis_b5_182x257mm"_s, 3,
                                       report::Orientation::Landscape, report::Sides::ShortEdge};
  EXPECT_EQ(choice, expected);
}

TEST_F(PrinterOptions, CancelChangesNothing) {
  PrinterOptionsScreen screen(services, choice, {twoPrinters, sizesOf, usual});
  screen.onLoad();
  screen.setText(u"Text1"_s, u"5"_s);
  screen.trigger(u"Command2"_s);
  EXPECT_EQ(choice, report::PrinterChoice());
}

TEST_F(PrinterOptions, CopiesMustBeANumber) {
  for (const QString& copies : {u""_s, u"0"_s, u"二"_s}) {
    PrinterOptionsScreen screen(services, choice, {twoPrinters, sizesOf, usual});
    screen.onLoad();
    screen.setText(u"Text1"_s, copies);
    screen.trigger(u"Command1"_s);
    EXPECT_EQ(messages.texts().last(), u"印刷枚数が正しくありません。"_s);
    EXPECT_EQ(choice, report::PrinterChoice());
  }
}

}  // namespace
}  // namespace printing::tests
