// Text that goes to paper comes back from the document letter by letter.

#include <QRegularExpression>

#include "platform/report/tests/engine_fixture.h"

namespace report::testing {
namespace {

class Exactness : public EngineTest, public ::testing::WithParamInterface<const char*> {
 protected:
  void SetUp() override {
    if (!canReadPdf()) GTEST_SKIP() << "pdftotext is not installed";
    writeTemplate(
        "F.PRP",
        "form F\ntext wide 10 10 190 8 pt 10\ntext thin 10 20 12 4 pt 10\ntext two 10 30 40 8 pt 9 wrap 2\n"
        "text tall 10 50 5 200 pt 10 vertical\ntext gothic 30 50 160 8 gothic\n");
  }
};

TEST_P(Exactness, readsBackAsItWasSet) {
  const QString text = QString::fromUtf8(GetParam());
  EXPECT_EQ(linesOf(printed("F.PRP", {{"wide", text}})), QStringList{text});
  EXPECT_EQ(linesOf(printed("F.PRP", {{"gothic", text}})), QStringList{text});
}

INSTANTIATE_TEST_SUITE_P(Rows, Exactness,
                         ::testing::Values("支給氏名生年月日用金高",  // share glyphs with radicals
                                           "⽀⽒⽣⽇⽉",              // the radicals themselves
                                           "支⽀支",                  // both in one text
                                           "東京都　架空区　見本町",  // ideographic blanks
                                           "10時～12時", "波〜線",    // the two waves
                                           "－−―ー‐-", "①②③○◎", "ｶﾅﾊﾝｶｸ ﾀﾞﾐｰ", "A B  C", "(\\)<>[]/%",
                                           "髙﨑神德", "𠮷野家𡈽𠮟", "鄧小平鰯", "が゙は゜",
                                           "葛󠄀城 辻󠄀", "한글", "Ωμέγα"));

using Fitting = Exactness;

TEST_F(Fitting, overlongTextShrinksAndIsNeverLost) {
  QString text;
  for (int i = 0; i < 80; ++i) text += QChar(u'一' + i * 7);
  EXPECT_EQ(linesOf(printed("F.PRP", {{"thin", text}})), QStringList{text});
}

TEST_F(Fitting, overlongTextStaysInsideItsRectangle) {
  const QByteArray pdf = printed("F.PRP", {{"thin", QString(80, u'国')}});
  const auto match =
      QRegularExpression("xMin=\"([\\d.]+)\".*xMax=\"([\\d.]+)\"").match(textOf(pdf, {"-bbox"}));
  ASSERT_TRUE(match.hasMatch());
  EXPECT_GE(match.captured(1).toDouble() * kMmPerPoint, 10 - 0.1);
  EXPECT_LE(match.captured(2).toDouble() * kMmPerPoint, 22 + 0.1);
}

TEST_F(Fitting, wrapsIntoTheLinesThatTheItemAllows) {
  // 40 mm at 9 points hold 12 characters.
  const QString text = QStringLiteral("一二三四五六七八九十百千万億兆");
  EXPECT_EQ(linesOf(printed("F.PRP", {{"two", text}})),
            (QStringList{QStringLiteral("一二三四五六七八九十百千"), QStringLiteral("万億兆")}));
}

TEST_F(Fitting, aLineDoesNotStartWithAFullStop) {
  EXPECT_EQ(linesOf(printed("F.PRP", {{"two", QStringLiteral("一二三四五六七八九十百千。万")}})),
            (QStringList{QStringLiteral("一二三四五六七八九十百"), QStringLiteral("千。万")}));
}

TEST_F(Fitting, aKanjiOfFourBytesIsNotTornAtTheEndOfALine) {
  EXPECT_EQ(linesOf(printed("F.PRP", {{"two", QStringLiteral("一二三四五六七八九十百𠮷。万")}})),
            (QStringList{QStringLiteral("一二三四五六七八九十百"), QStringLiteral("𠮷。万")}));
}

TEST_F(Fitting, lineEndsPartLinesWhereThereAreSeveralAndAreBlanksElsewhere) {
  EXPECT_EQ(linesOf(printed("F.PRP", {{"two", QStringLiteral("一\r\n二")}})),
            (QStringList{QStringLiteral("一"), QStringLiteral("二")}));
  EXPECT_EQ(linesOf(printed("F.PRP", {{"wide", QStringLiteral("一\n二\t三")}})),
            QStringList{QStringLiteral("一 二 三")});
}

TEST_F(Fitting, shrinksWhenTheLinesAreFull) {
  QString text;
  for (int i = 0; i < 40; ++i) text += QChar(u'一' + i * 7);
  const QStringList lines = linesOf(printed("F.PRP", {{"two", text}}));
  EXPECT_EQ(lines.size(), 2);
  EXPECT_EQ(lines.join(QString()), text);
}

TEST_F(Fitting, verticalTextRunsDownAndReadsBack) {
  const QString text = QStringLiteral("国民健康保険｜、。（ー）");
  const QByteArray pdf = printed("F.PRP", {{"tall", text}});
  EXPECT_EQ(linesOf(pdf).join(QString()), text);
  const QString boxes = textOf(pdf, {"-bbox"});
  EXPECT_LT(boxes.indexOf(QStringLiteral(">国<")), boxes.indexOf(QStringLiteral(">民<")));
}

TEST_F(Fitting, textsOfManyDocumentsDoNotDisturbEachOther) {
  EXPECT_EQ(linesOf(printed("F.PRP", {{"wide", QStringLiteral("⽣⽇")}})),
            QStringList{QStringLiteral("⽣⽇")});
  EXPECT_EQ(linesOf(printed("F.PRP", {{"wide", QStringLiteral("生日")}})),
            QStringList{QStringLiteral("生日")});
}

}  // namespace
}  // namespace report::testing
