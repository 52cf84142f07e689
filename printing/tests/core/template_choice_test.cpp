#include "printing/core/template_choice.h"

#include <gtest/gtest.h>

namespace printing {
namespace {

struct Row {
  const char* screen;
  const char* option;
  const char* check;
  const char* prefecture;
  const char* association;  ///< Aichi or Tokyo submission
  const char* file;
};

constexpr const char *k2024 = "レセプト印刷2024", *k2018 = "レセプト印刷2018", *kOld = "レセプト印刷";

PrintScreen screenOf(const Row& row) { return printScreenNamed(QString::fromUtf8(row.screen)).value(); }

PrintSource sourceOf(const Row& row) {
  PrintSource source;
  source.edition = editionNamed(screenOf(row), QString::fromUtf8(row.option));
  claims::setTick<PrintTicks>(source.ticks, kPrintTicks, QString::fromUtf8(row.check));
  source.prefecture = frame::prefectureOf(QString::fromUtf8(row.prefecture));
  const QString association = QString::fromUtf8(row.association);
  source.aichi = frame::aichiSubmissionOf(association);
  source.tokyo = frame::tokyoSubmissionOf(association);
  return source;
}

std::optional<TemplateChoice> choiceOf(const Row& row) {
  return chooseTemplate(screenOf(row), sourceOf(row));
}

TEST(TemplateChoice, EveryRowOfTheTable) {
  const Row rows[] = {
      {k2024, "Option9", "Check6", "01", "", "HARI_900_R.PRP"},
      {k2024, "Option9", "", "01", "", "HARI_900.PRP"},
      {k2024, "Option9", "Check4", "01", "", "HARI_900.PRP"},  // the tick of the other option
      {k2024, "Option9", "", "13", "5", "HARI_900.PRP"},
      {"レセプト印刷2024aimakai", "Option9", "", "23", "4", "HARI_900_23R.PRP"},
      {"東京助成レセプト印刷2024", "", "", "13", "5", "HARI_900_13R.PRP"},
      {k2024, "Option8", "Check4", "01", "", "HARI_820_R.PRP"},
      {k2024, "Option8", "", "23", "3", "HARI_820_23.PRP"},
      {k2018, "Option8", "Check4", "01", "", "HARI_820_R.PRP"},
      {k2018, "Option8", "Check4", "23", "3", "HARI_820_23R.PRP"},
      {k2018, "Option8", "", "01", "", "HARI_820.PRP"},
      {k2018, "Option8", "", "23", "3", "HARI_820_23.PRP"},
      {k2018, "Option7", "Check3", "01", "", "HARI_810_R.PRP"},
      {k2018, "Option7", "Check3", "23", "3", "HARI_810_23R.PRP"},
      {k2018, "Option7", "", "01", "", "HARI_810.PRP"},
      {k2018, "Option6", "Check1", "01", "", "HARI_750_R.PRP"},
      {k2018, "Option6", "Check1", "23", "3", "HARI_750_23R.PRP"},
      {k2018, "Option6", "", "23", "3", "HARI_750_23.PRP"},
      {k2018, "Option4", "Check1", "23", "3", "HARI_700.PRP"},
      {k2018, "Option8", "", "13", "5", "HARI_820_13R.PRP"},
      {k2018, "Option7", "", "13", "5", "HARI_820_13R.PRP"},
      {k2018, "Option6", "Check1", "13", "5", "HARI_750_R.PRP"},
      {k2018, "Option6", "", "13", "5", "HARI_750.PRP"},
      {k2018, "Option4", "", "13", "5", "HARI_700.PRP"},
      {k2018, "Option8", "", "13", "6", "HARI_820.PRP"},  // who is no member prints the general form
      {k2018, "Option8", "Check4", "23", "4", "HARI_820_232.PRP"},
      {k2018, "Option7", "", "23", "4", "HARI_810_232.PRP"},
      {k2018, "Option6", "", "23", "4", "HARI_750_232.PRP"},
      {k2018, "Option4", "", "23", "4", "HARI_700_232.PRP"},
      {k2018, "Option5", "", "01", "", "HARI_670R.PRP"},
      {k2018, "Option5", "", "23", "3", "HARI_670R_23.PRP"},
      {k2018, "Option5", "", "23", "4", "HARI_670R_232.PRP"},
      {k2018, "Option5", "", "27", "", "HARI_670R_27.PRP"},
      {k2018, "Option5", "", "13", "5", "HARI_670R_13.PRP"},
      {k2018, "Option5", "", "17", "", "HARI_670R_29.PRP"},
      {k2018, "Option5", "", "29", "", "HARI_670R_29.PRP"},
      {k2018, "Option5", "", "33", "", "HARI_670R_1724.PRP"},
      {k2018, "Option5", "", "18", "", "HARI_670R_1724.PRP"},
      {k2018, "Option5", "", "24", "", "HARI_670R_1724.PRP"},
      {k2018, "Option3", "", "01", "", "HARI_670.PRP"},
      {k2018, "Option3", "", "23", "4", "HARI_670_232.PRP"},
      {k2018, "", "", "01", "", "HARI_550.PRP"},
      {k2018, "", "", "27", "", "HARI_550_27.PRP"},
      {k2018, "", "", "24", "", "HARI_550_1724.PRP"},
      {kOld, "Option2", "", "01", "", "HARI_400.PRP"},
      {kOld, "Option2", "", "33", "", "HARI_400_1724.PRP"},
      {kOld, "Option2", "", "27", "", "HARI_400_1724.PRP"},
      {kOld, "Option2", "", "24", "", "HARI_400_1724.PRP"},
      {kOld, "Option2", "", "23", "3", "HARI_400_23.PRP"},
      {kOld, "Option2", "", "29", "", "HARI_400_29.PRP"},
      {kOld, "Option1", "", "01", "", "HARI_550.PRP"},
      {kOld, "", "", "13", "6", "HARI_550_13.PRP"},
      {kOld, "", "", "23", "4", "HARI_550_232.PRP"},
      {kOld, "", "", "24", "", "HARI_550_24.PRP"},  // caught by its own routine, never by the general one
      {kOld, "", "", "18", "", "HARI_550_1724.PRP"},
      {"レセプト印刷2018aimakai", "Option9", "", "23", "4", "HARI_860_23.PRP"},
      {"石川県の公費レセプト印刷", "Option7", "Check3", "17", "", "HARI_810_R.PRP"},
  };
  for (const Row& row : rows) {
    PrintSource source = sourceOf(row);
    auto choice = chooseTemplate(screenOf(row), source);
    ASSERT_TRUE(choice) << row.screen << row.option << row.prefecture;
    EXPECT_EQ(choice->fileName, QString::fromUtf8(row.file)) << row.screen << row.option << row.prefecture;
    source.kind = PrintKind::Massage;
    EXPECT_EQ(chooseTemplate(screenOf(row), source)->fileName,
              QString::fromUtf8(row.file).replace(QStringLiteral("HARI_"), QStringLiteral("Massage_")));
  }
}

TEST(TemplateChoice, OnlyTheFormsFrom202410AreBuilt) {
  EXPECT_TRUE(choiceOf({k2024, "Option9", "Check6", "01", "", ""})->built);
  EXPECT_FALSE(choiceOf({k2024, "Option8", "", "01", "", ""})->built);
  EXPECT_FALSE(choiceOf({"レセプト印刷2024aimakai", "Option9", "", "23", "4", ""})->built);
}

TEST(TemplateChoice, NothingWithoutAnEdition) {
  EXPECT_FALSE(choiceOf({k2024, "", "", "01", "", ""}));
  EXPECT_FALSE(printScreenNamed(QStringLiteral("治療台帳4")));
}

}  // namespace
}  // namespace printing
