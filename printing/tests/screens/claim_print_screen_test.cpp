#include "printing/tests/screens/print_room_fixture.h"

namespace printing::tests {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr char16_t kScreen[] = u"レセプト印刷2024";
constexpr char16_t kPrompt[] =
    u"レセプトデータの印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。";

class ClaimPrint : public PrintRoom {};

TEST_F(ClaimPrint, PresetsTheNewPaper) {
  screen::Screen& screen = open(kScreen);
  EXPECT_EQ(screen.chosen(u"Frame1"_s), u"Option9"_s);
  EXPECT_FALSE(screen.checked(u"Check6"_s));
  EXPECT_FALSE(screen.checked(u"Check4"_s));
}

TEST_F(ClaimPrint, OnePrefecturePresetsTheEraTicks) {
  run.prefectureCode = u"22"_s;
  screen::Screen& screen = open(kScreen);
  EXPECT_TRUE(screen.checked(u"Check6"_s));
  EXPECT_TRUE(screen.checked(u"Check4"_s));
}

TEST_F(ClaimPrint, OkAsksPrintsAndLeaves) {
  messages.answerFromQueue({true});
  open(kScreen).trigger(u"Command1"_s);
  EXPECT_EQ(messages.texts(), QStringList({QString::fromUtf16(kPrompt)}));
  EXPECT_EQ(engine.calls,
            QStringList({u"PR_GetPrinterDC"_s, u"PR_StartDC 42 7 申請書鍼 262144"_s,
                         u"PR_LoadReport 0 0 HARI_900.PRP"_s, u"PR_PlayReport"_s, u"PR_EndDoc"_s}));
  EXPECT_EQ(engine.printed(u"Name8"_s), u"見本花子"_s);
  EXPECT_FALSE(isLoaded(kScreen));
  EXPECT_EQ(channel.lastSaid(), u"印刷に送りました。"_s);
}

TEST_F(ClaimPrint, MassageButtonPrintsTheMassageForm) {
  state.printKind = claims::PrintKind::Massage;
  messages.answerFromQueue({true});
  open(kScreen).trigger(u"Command1"_s);
  EXPECT_EQ(engine.loaded, u"Massage_900.PRP"_s);
  EXPECT_TRUE(engine.calls.contains(u"PR_StartDC 42 7 申請書マ 262144"_s));
}

TEST_F(ClaimPrint, EraTickTakesTheFormWithTheEra) {
  messages.answerFromQueue({true});
  screen::Screen& screen = open(kScreen);
  screen.setChecked(u"Check6"_s, true);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(engine.loaded, u"HARI_900_R.PRP"_s);
}

TEST_F(ClaimPrint, RefusedPromptLeavesTheScreenOpen) {
  messages.answerFromQueue({false});
  open(kScreen).trigger(u"Command1"_s);
  EXPECT_TRUE(engine.calls.isEmpty());
  EXPECT_TRUE(isLoaded(kScreen));
}

TEST_F(ClaimPrint, APrinterThatDoesNotTakeTheDocumentIsReportedAndTheNextTryPrints) {
  engine.documentResult = text::Fault{u"プリンタの断り"_s};
  messages.answerFromQueue({true});
  open(kScreen).trigger(u"Command1"_s);
  EXPECT_EQ(messages.texts(), QStringList({QString::fromUtf16(kPrompt), u"プリンタの断り"_s}));
  EXPECT_EQ(channel.lastSaid(), u"プリンタの断り"_s);
  EXPECT_FALSE(channel.said().contains(u"印刷に送りました。"_s));
  EXPECT_TRUE(isLoaded(kScreen));
  engine.documentResult = {};
  messages.answerFromQueue({true});
  open(kScreen).trigger(u"Command1"_s);
  EXPECT_EQ(channel.lastSaid(), u"印刷に送りました。"_s);
  EXPECT_FALSE(isLoaded(kScreen));
}

TEST_F(ClaimPrint, ClaimThatFailsItsCheckNeverReachesTheEngine) {
  table.set(u"初療年月日", u"");
  messages.answerFromQueue({true});
  open(kScreen).trigger(u"Command1"_s);
  EXPECT_EQ(messages.texts().last(), u"初療年月日が入力されていません。"_s);
  EXPECT_TRUE(engine.calls.isEmpty());
}

TEST_F(ClaimPrint, EngineFailuresAreSilent) {
  for (const bool start : {true, false}) {
    engine = SpyEngine();
    messages.forget();
    messages.answerFromQueue({true});
    if (start)
      engine.startResult = 11;
    else
      engine.missingTemplates << u"HARI_900.PRP"_s;
    open(kScreen).trigger(u"Command1"_s);
    EXPECT_EQ(messages.texts().size(), 1);  // the prompt alone
    EXPECT_FALSE(channel.said().contains(u"印刷に送りました。"_s));
    EXPECT_EQ(engine.calls.last(), start ? u"PR_StartDC 42 7 申請書鍼 262144"_s : u"PR_AbortDoc"_s);
    EXPECT_TRUE(isLoaded(kScreen));
  }
}

TEST_F(ClaimPrint, ItemsOnlyComesFromTheClaimForm) {
  table.ticks.itemsOnly = true;
  messages.answerFromQueue({true});
  open(kScreen).trigger(u"Command1"_s);
  EXPECT_EQ(engine.itemCalls.first(), u"0 waku_1"_s);
  EXPECT_TRUE(engine.touched(u"Text1000"_s));
}

TEST_F(ClaimPrint, OlderPaperSaysThatItIsNotThereInsteadOfPrinting) {
  screen::Screen& screen = open(kScreen);
  screen.choose(u"Frame1"_s, u"Option8"_s);
  messages.answerFromQueue({true});
  screen.trigger(u"Command1"_s);
  EXPECT_TRUE(messages.texts().last().contains(u"まだ用意されていません"_s));
  EXPECT_TRUE(engine.calls.isEmpty());
  EXPECT_TRUE(isLoaded(kScreen));
}

TEST_F(ClaimPrint, WithoutAnOpenClaimItSaysSo) {
  state.display = nullptr;
  open(kScreen).trigger(u"Command1"_s);
  EXPECT_EQ(messages.texts(), QStringList({u"印刷するレセプトが開かれていません。"_s}));
}

TEST_F(ClaimPrint, PrinterOptionsAndCancel) {
  screen::Screen& screen = open(kScreen);
  screen.trigger(u"Command3"_s);
  EXPECT_TRUE(engine.calls.last().startsWith(u"PR_PrinterSetupDlg "));
  screen.trigger(u"Command2"_s);
  EXPECT_FALSE(isLoaded(kScreen));
}

TEST_F(ClaimPrint, WorkValueFallsBackAfterTheJob) {
  run.prefectureCode = u"100"_s;
  messages.answerFromQueue({true});
  open(kScreen).trigger(u"Command1"_s);
  EXPECT_EQ(run.prefectureCode, u"34"_s);
}

TEST_F(ClaimPrint, TicksOfTheTwoPapersAreToldApartByEar) {
  screen::Screen& screen = open(kScreen);
  QStringList names;
  for (const char* name : {"Check4", "Check6"}) {
    auto* box = screen.findChild<QCheckBox*>(QString::fromLatin1(name));
    ASSERT_NE(box, nullptr);
    names << box->accessibleName();
  }
  EXPECT_NE(names[0], names[1]);
  EXPECT_TRUE(names[0].contains(u"申請年月に元号を追加"_s));
}

TEST_F(ClaimPrint, ClaimFormGetsTheChoiceOfTheScreen) {
  EXPECT_EQ(state.printing->screenOf(table.claim, {}), u"レセプト印刷2024"_s);
  table.set(u"申請年月", u"令和6年9月");
  EXPECT_EQ(state.printing->screenOf(table.claim, {}), u"レセプト印刷2018"_s);
  state.printing->setUpPrinter(9);
  EXPECT_EQ(engine.calls.last(), u"PR_PrinterSetupDlg 9"_s);
}

}  // namespace
}  // namespace printing::tests
