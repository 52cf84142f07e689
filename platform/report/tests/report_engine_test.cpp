#include <QRegularExpression>

#include "platform/report/tests/engine_fixture.h"

namespace report::testing {
namespace {

const QString kForm = QStringLiteral(
    "form F\npaper A4\nblock 一\nlabel Text1 20 20 60 6 \"固定の文字\"\nlabel Text2 20 30 60 6 "
    "\"隠れた文字\" hidden\n"
    "box Box1 20 20 60 6\nline Line1 20 40 80 40\nline waku_1 20 45 80 45\ntext Name1 20 50 80 6\n"
    "text Name2 20 60 80 6\ntext note 20 70 80 6 \"控えの文字\"\ndigits no1..3 20 80 30 6\n"
    "mark M 20 90 10 5\nchoice seikyu2 \"新規\" 20 100 10 5 \"継続\" 40 100 10 5\n");

class Engine : public EngineTest {
 protected:
  void SetUp() override {
    if (!canReadPdf()) GTEST_SKIP() << "pdftotext is not installed";
    writeTemplate(QStringLiteral("F.PRP"), kForm);
  }
};

/// Curves of the page's content: a mark has four. The content is compressed, so that an image is asked.
int curvesOf(const QByteArray& pdf) {
  const QByteArray svg = runOnPdf(QStringLiteral("pdftocairo"), {"-svg"}, pdf, {"-"}).toUtf8();
  int curves = 0;
  for (const QByteArray& path : svg.split('<'))
    if (path.startsWith("path") && path.contains("stroke-width")) curves += int(path.count(" C "));
  return curves;
}

TEST_F(Engine, printsTheFrameAndNothingOfUntouchedData) {
  EXPECT_EQ(linesOf(printed("F.PRP", {})), QStringList{QStringLiteral("固定の文字")});
}

TEST_F(Engine, printsAnItemThatIsShownAndThenSet) {
  const QStringList lines = linesOf(printed("F.PRP", {{"Name1", QStringLiteral("見本太郎")}}));
  EXPECT_EQ(lines, (QStringList{QStringLiteral("固定の文字"), QStringLiteral("見本太郎")}));
}

TEST_F(Engine, settingATextDoesNotShowTheItem) {
  m_engine.PR_StartDC(0, 1, "x", kStartFlags);
  ASSERT_EQ(m_engine.PR_LoadReport(0, 0, "F.PRP"), 0);
  m_engine.PR_RepSetText("Name1", QStringLiteral("見えない"));
  m_engine.PR_PlayReport();
  m_engine.PR_EndDoc();
  EXPECT_EQ(linesOf(m_documents.at(0).pdf), QStringList{QStringLiteral("固定の文字")});
}

TEST_F(Engine, showingAnItemPrintsTheTextThatTheTemplateStores) {
  m_engine.PR_StartDC(0, 1, "x", kStartFlags);
  ASSERT_EQ(m_engine.PR_LoadReport(0, 0, "F.PRP"), 0);
  m_engine.PR_RepSetVisible("note", kShown);
  m_engine.PR_RepSetVisible("Text2", kShown);
  m_engine.PR_PlayReport();
  m_engine.PR_EndDoc();
  EXPECT_EQ(linesOf(m_documents.at(0).pdf),
            (QStringList{QStringLiteral("固定の文字"), QStringLiteral("隠れた文字"),
                         QStringLiteral("控えの文字")}));
}

TEST_F(Engine, aLabelCanGetAnotherText) {
  const QStringList lines = linesOf(printed("F.PRP", {{"Text1", QStringLiteral("住　所")}}));
  EXPECT_EQ(lines, QStringList{QStringLiteral("住　所")});
  EXPECT_EQ(linesOf(printed("F.PRP", {})), QStringList{QStringLiteral("固定の文字")})
      << "and the next page has its own";
}

TEST_F(Engine, itemsThatTheTemplateLacksDoNoHarm) {
  m_engine.PR_RepSetText("Name1", "no template is loaded");
  const QByteArray pdf =
      printed("F.PRP", {{"Name1", "A"}, {"nyuuin2", QStringLiteral("入院")}, {"Name１", "B"}});
  EXPECT_EQ(linesOf(pdf), (QStringList{QStringLiteral("固定の文字"), "A"}));
}

TEST_F(Engine, hidingTheFramesFourFamiliesLeavesOnlyTheData) {
  m_engine.PR_StartDC(0, 1, "x", kStartFlags);
  ASSERT_EQ(m_engine.PR_LoadReport(0, 0, "F.PRP"), 0);
  for (int n = 1; n <= 1000; ++n)
    for (const char* stem : {"waku_", "Box", "Line", "Text"})
      m_engine.PR_RepSetVisible(stem + QString::number(n), kHidden);
  m_engine.PR_RepSetVisible("Name1", kShown);
  m_engine.PR_RepSetText("Name1", QStringLiteral("項目のみ"));
  m_engine.PR_PlayReport();
  m_engine.PR_EndDoc();
  const QByteArray pdf = m_documents.at(0).pdf;
  EXPECT_EQ(linesOf(pdf), QStringList{QStringLiteral("項目のみ")});
  const QString svg = runOnPdf(QStringLiteral("pdftocairo"), {"-svg"}, pdf, {"-"});
  EXPECT_FALSE(svg.contains(QStringLiteral("stroke-width"))) << "no rule is drawn";
}

TEST_F(Engine, digitsStandInTheirBoxes) {
  const QByteArray pdf = printed("F.PRP", {{"no1", "3"}, {"no3", "9"}});
  const QString boxes = textOf(pdf, {"-bbox"});
  // Boxes of 10 mm from 20 mm on: the middles of the first and the third are 25 and 45 mm.
  for (const auto& [digit, middle] : {std::pair(3, 25.0), {9, 45.0}}) {
    const QRegularExpression word(QStringLiteral("xMin=\"([\\d.]+)\".*xMax=\"([\\d.]+)\".*>%1<").arg(digit));
    const auto match = word.match(boxes);
    ASSERT_TRUE(match.hasMatch()) << boxes.toStdString();
    const double at = (match.captured(1).toDouble() + match.captured(2).toDouble()) / 2 * kMmPerPoint;
    EXPECT_NEAR(at, middle, 0.2);
  }
}

TEST_F(Engine, aTextCanBeCentredInItsPlace) {
  m_engine.PR_StartDC(0, 1, "x", kStartFlags);
  ASSERT_EQ(m_engine.PR_LoadReport(0, 0, "F.PRP"), 0);
  m_engine.PR_RepSetVisible("Name1", kShown);
  m_engine.PR_RepSetText("Name1", QStringLiteral("国"));
  m_engine.PR_RepSetTextAlign("Name1", 1);
  m_engine.PR_PlayReport();
  m_engine.PR_EndDoc();
  const auto match = QRegularExpression(QStringLiteral("xMin=\"([\\d.]+)\".*xMax=\"([\\d.]+)\".*>国<"))
                         .match(textOf(m_documents.at(0).pdf, {"-bbox"}));
  // The place is 80 mm wide from 20 mm on.
  EXPECT_NEAR((match.captured(1).toDouble() + match.captured(2).toDouble()) / 2 * kMmPerPoint, 60, 0.1);
}

TEST_F(Engine, aMarkNeedsNoTextAndAChoiceNeedsOneOfItsWords) {
  const int none = curvesOf(printed("F.PRP", {}));
  EXPECT_EQ(curvesOf(printed("F.PRP", {{"M", ""}})) - none, 4);
  EXPECT_EQ(curvesOf(printed("F.PRP", {{"seikyu2", QStringLiteral("継続")}})) - none, 4);
  EXPECT_EQ(curvesOf(printed("F.PRP", {{"seikyu2", QStringLiteral("　継続 ")}})) - none, 4);
  EXPECT_EQ(curvesOf(printed("F.PRP", {{"seikyu2", QStringLiteral("継")}})), none);
  EXPECT_EQ(curvesOf(printed("F.PRP", {{"seikyu2", ""}})), none);
}

TEST_F(Engine, aMissingTemplateIsToldByTheResultAndTheNextJobWorks) {
  EXPECT_LE(m_engine.PR_StartDC(0, 1, "x", kStartFlags), kStartFailureAbove);
  EXPECT_NE(m_engine.PR_LoadReport(0, 0, "NONE.PRP"), 0);
  m_engine.PR_AbortDoc();
  EXPECT_TRUE(m_documents.empty());
  EXPECT_FALSE(printed("F.PRP", {}).isEmpty());
}

TEST_F(Engine, aDamagedTemplateIsToldByTheResultAndItsRepairIsSeen) {
  writeTemplate("G.PRP", "form G\ntext Name1 1 1\n");
  m_engine.PR_StartDC(0, 1, "x", kStartFlags);
  EXPECT_NE(m_engine.PR_LoadReport(0, 0, "G.PRP"), 0);
  EXPECT_EQ(m_engine.loadFault(), "G.PRP:2: expected the width in mm");
  m_engine.PR_AbortDoc();
  writeTemplate("G.PRP", "form G\ntext Name1 10 10 50 5\n");
  EXPECT_EQ(linesOf(printed("G.PRP", {{"Name1", "A"}})), QStringList{"A"});
}

TEST_F(Engine, aTemplateIsReadAgainWhenItsBaseChanges) {
  writeTemplate("G.PRP", "form G\nbase F\n");
  EXPECT_EQ(linesOf(printed("G.PRP", {})), QStringList{QStringLiteral("固定の文字")});
  writeTemplate("F.PRP",
                QString(kForm).replace(QStringLiteral("固定の文字"), QStringLiteral("変わった文字列")));
  EXPECT_EQ(linesOf(printed("G.PRP", {})), QStringList{QStringLiteral("変わった文字列")});
}

TEST_F(Engine, templatesOutsideTheProgramFolderAreRefused) {
  m_engine.PR_StartDC(0, 1, "x", kStartFlags);
  EXPECT_NE(m_engine.PR_LoadReport(0, 0, m_folder.filePath("F.PRP")), 0);
  EXPECT_NE(m_engine.PR_LoadReport(0, 0, "../F.PRP"), 0);
  EXPECT_NE(m_engine.PR_LoadReport(0, 0, ""), 0);
}

TEST_F(Engine, eachPageStartsFromTheStoredStateAndAllAreOneDocument) {
  m_engine.PR_StartDC(0, 1, QStringLiteral("申請書鍼1"), kStartFlags);
  for (const char* name : {"A", "B"}) {
    ASSERT_EQ(m_engine.PR_LoadReport(0, 0, "F.PRP"), 0);
    m_engine.PR_RepSetVisible(name == QByteArray("A") ? "Name1" : "Name2", kShown);
    m_engine.PR_RepSetText(name == QByteArray("A") ? "Name1" : "Name2", name);
    m_engine.PR_PlayReport();
  }
  m_engine.PR_EndDoc();
  ASSERT_EQ(m_documents.size(), 1u);
  EXPECT_EQ(m_documents[0].title, QStringLiteral("申請書鍼1"));
  EXPECT_EQ(linesOf(m_documents[0].pdf),
            (QStringList{QStringLiteral("固定の文字"), "A", QStringLiteral("固定の文字"), "B"}));
}

TEST_F(Engine, theDocumentIsTitledTaggedAndOnItsPaper) {
  writeTemplate("H.PRP", "form H\npaper JIS-B5 landscape\ntext Name1 10 10 50 5\n");
  m_engine.PR_StartDC(0, 1, QStringLiteral("申請書鍼"), kStartFlags);
  m_engine.PR_LoadReport(0, 0, "H.PRP");
  m_engine.PR_RepSetVisible("Name1", kShown);
  m_engine.PR_RepSetText("Name1", "A");
  m_engine.PR_PlayReport();
  m_engine.PR_EndDoc();
  const QString info = infoOf(m_documents.at(0).pdf).simplified();
  EXPECT_TRUE(info.contains(QStringLiteral("Title: 申請書鍼"))) << info.toStdString();
  EXPECT_TRUE(info.contains("Tagged: yes"));
  EXPECT_TRUE(info.contains("Page size: 728.5 x 515.91 pts")) << info.toStdString();  // 257 x 182 mm
  const QString structure = runOnPdf("pdfinfo", {"-struct-text"}, m_documents.at(0).pdf);
  EXPECT_EQ(structure.simplified(), "Document P (block) \"A\"");
}

TEST_F(Engine, captionsAreReadBeforeTheDataOfTheirBlock) {
  writeTemplate("K.PRP",
                "form K\nblock 一\nlabel Text1 10 10 50 5 \"first\"\ntext Name1 70 10 50 5\nblock 二\n"
                "label Text2 10 20 50 5 \"second\"\ntext Name2 70 20 50 5\n");
  const QByteArray pdf = printed("K.PRP", {{"Name1", "one"}, {"Name2", "two"}});
  EXPECT_EQ(runOnPdf("pdfinfo", {"-struct-text"}, pdf).simplified(),
            "Document P (block) \"first\" \"one\" P (block) \"second\" \"two\"");
}

TEST_F(Engine, aTargetThatCannotBeWrittenFailsAtTheStart) {
  ReportEngine engine(m_folder.path(), [](const PrinterChoice&) {
    return std::make_unique<FileSink>(QStringLiteral("/nonexistent/folder/out.pdf"));
  });
  EXPECT_GT(engine.PR_StartDC(0, 1, "x", kStartFlags), kStartFailureAbove);
  engine.PR_EndDoc();
  engine.PR_AbortDoc();
}

TEST_F(Engine, anAbortedOrEmptyDocumentGoesNowhere) {
  m_engine.PR_StartDC(0, 1, "x", kStartFlags);
  m_engine.PR_LoadReport(0, 0, "F.PRP");
  m_engine.PR_PlayReport();
  m_engine.PR_AbortDoc();
  m_engine.PR_EndDoc();
  m_engine.PR_StartDC(0, 1, "x", kStartFlags);
  m_engine.PR_EndDoc();
  EXPECT_TRUE(m_documents.empty());
}

TEST_F(Engine, thePrinterDialogChangesTheChoiceOfTheRun) {
  quintptr window = 0;
  m_engine.setPrinterDialog([&](quintptr over, PrinterChoice& choice) {
    window = over;
    choice.copies = 3;
  });
  m_engine.PR_PrinterSetupDlg(77);
  EXPECT_EQ(window, 77u);
  EXPECT_EQ(m_engine.printerChoice().copies, 3);
}

TEST_F(Engine, aListIsDrawnByHand) {
  m_engine.PR_StartDC(0, 1, QStringLiteral("同意期限一ヶ月以内"), kStartFlags);
  m_engine.PR_SetMargin(240, 300);
  m_engine.PR_SetScale();
  for (int page = 0; page < 2; ++page) {
    m_engine.PR_SetFont(QStringLiteral("ＭＳ 明朝"));
    m_engine.PR_SetFontSize(50);
    m_engine.PR_Output(135.0f, -20.0f, QStringLiteral("印刷日:"));
    m_engine.PR_SetPen(3);
    m_engine.PR_Line(0, 20.0f, 170.0f, 20.0f);
    m_engine.PR_EndPage();
  }
  m_engine.PR_EndDoc();
  const QByteArray pdf = m_documents.at(0).pdf;
  EXPECT_EQ(linesOf(pdf), (QStringList{QStringLiteral("印刷日:"), QStringLiteral("印刷日:")}));
  // The upper left corner of the text lies at 24 + 135 mm and 30 - 20 mm.
  const auto match = QRegularExpression("xMin=\"([\\d.]+)\"").match(textOf(pdf, {"-bbox"}));
  EXPECT_NEAR(match.captured(1).toDouble() * kMmPerPoint, 159.0, 0.1);
}

}  // namespace
}  // namespace report::testing
