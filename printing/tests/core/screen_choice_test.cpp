#include "printing/core/screen_choice.h"

#include <gtest/gtest.h>

#include "printing/core/print_button.h"
#include "printing/tests/core/spy_engine.h"

namespace printing {
namespace {

struct Row {
  int year, month;
  const char* prefecture;
  const char* aichi;
  bool publicAid;
  const char* screen;
};

TEST(ScreenChoice, ByMonthPrefectureAndAssociation) {
  const Row rows[] = {
      {2024, 10, "01", "3", false, "レセプト印刷2024"},
      {2024, 9, "01", "3", false, "レセプト印刷2018"},
      {2018, 6, "01", "3", false, "レセプト印刷2018"},
      {2018, 5, "01", "3", false, "レセプト印刷"},
      {2024, 10, "23", "3", false, "レセプト印刷2024"},
      {2024, 10, "23", "4", false, "レセプト印刷2024aimakai"},
      {2024, 9, "23", "4", false, "レセプト印刷2018aimakai"},
      {2024, 9, "23", "3", false, "レセプト印刷2018"},
      {2018, 5, "23", "4", false, "レセプト印刷"},  // the oldest screen comes before the association
      {2024, 10, "13", "3", true, "東京助成レセプト印刷2024"},
      {2024, 10, "13", "3", false, "レセプト印刷2024"},
      {2024, 9, "13", "3", true, "東京助成レセプト印刷"},
      {2018, 5, "13", "3", true, "レセプト印刷"},
      {2024, 10, "17", "3", true, "石川県の公費レセプト印刷2024"},
      {2024, 9, "17", "3", true, "石川県の公費レセプト印刷"},
      {2024, 10, "27", "3", true, "レセプト印刷2024"},  // 公費の印刷 counts in two prefectures only
  };
  for (const Row& row : rows)
    EXPECT_EQ(nameOf(choosePrintScreen({QDate(row.year, row.month, 1), frame::prefectureOf(row.prefecture),
                                        frame::aichiSubmissionOf(row.aichi), row.publicAid})),
              QString::fromUtf8(row.screen))
        << row.year << '/' << row.month << ' ' << row.prefecture << ' ' << row.aichi;
}

class ChoiceOfClaim : public ::testing::Test {
 protected:
  ChoiceOfClaim() {
    run.clock = &clock;
    run.prefectureCode = QStringLiteral("01");
    run.aichiSubmission = QStringLiteral("3");
  }
  QString screenOf(const char* month, const claims::FormTicks& ticks = {}) {
    claims::ClaimRecord claim;
    claim.set(claim::month, QString::fromUtf8(month));
    return PrintButtons(run, engine).screenOf(claim, ticks);
  }
  text::FixedClock clock{QDate(2024, 11, 5)};
  frame::RunState run;
  tests::SpyEngine engine;
};

TEST_F(ChoiceOfClaim, GoesByTheEraMonth) {
  EXPECT_EQ(screenOf("令和6年10月"), QStringLiteral("レセプト印刷2024"));
  EXPECT_EQ(screenOf("令和6年9月"), QStringLiteral("レセプト印刷2018"));
  EXPECT_EQ(screenOf("平成30年5月"), QStringLiteral("レセプト印刷"));
  EXPECT_EQ(screenOf("平成30年6月"), QStringLiteral("レセプト印刷2018"));
}

TEST_F(ChoiceOfClaim, WorksWhereThePlatformKnowsNoReiwa) {
  run.eraCapability = frame::EraCapability::Unsupported;
  EXPECT_EQ(screenOf("令和6年10月"), QStringLiteral("レセプト印刷2024"));
  EXPECT_EQ(screenOf("令和6年9月"), QStringLiteral("レセプト印刷2018"));
}

TEST_F(ChoiceOfClaim, TakesPublicAidFromTheFormsTick) {
  run.prefectureCode = QStringLiteral("13");
  EXPECT_EQ(screenOf("令和6年10月", {.publicAid = true}), QStringLiteral("東京助成レセプト印刷2024"));
}

TEST_F(ChoiceOfClaim, UnreadableMonthOpensNoScreen) { EXPECT_TRUE(screenOf("").isEmpty()); }

TEST_F(ChoiceOfClaim, PresetsTheOptionByEraAndSummaryKind) {
  const auto presetOption = [&](PrintScreen screen, const QString& month, const QString& kind) {
    return QString::fromUtf16(rowOf(screen).controlOf(presetEdition(screen, run.eraDates(), month, kind)));
  };
  const struct {
    const char* month;
    const char* kind;
    const char* option;
  } rows[] = {{"令和2年11月", "0", "Option8"}, {"令和2年12月", "1", "Option8"},
              {"令和2年11月", "1", "Option6"}, {"令和2年11月", "", "Option6"},
              {"平成31年4月", "0", "Option3"}, {"平成31年4月", "1", "Option4"}};
  for (const auto& row : rows)
    EXPECT_EQ(
        presetOption(PrintScreen::General2018, QString::fromUtf8(row.month), QString::fromUtf8(row.kind)),
        QString::fromUtf8(row.option))
        << row.month << row.kind;
  EXPECT_EQ(presetOption(PrintScreen::AichiAssociation2018, {}, {}), QStringLiteral("Option9"));
}

TEST(ScreenPresets, OnePrefectureAsksForTheEraWord) {
  const auto presetChecks = [](const char* prefecture) {
    return claims::namesOfSet<PrintTicks>(presetTicks(frame::prefectureOf(prefecture)), kPrintTicks);
  };
  EXPECT_EQ(presetChecks("22"), QStringList({"Check4", "Check6"}));
  EXPECT_TRUE(presetChecks("23").isEmpty());
}

}  // namespace
}  // namespace printing
