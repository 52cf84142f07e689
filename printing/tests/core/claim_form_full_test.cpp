#include <gtest/gtest.h>

#include "printing/tests/core/claim_fixture.h"

// The whole sheet of a claim with every block filled, item by item.

namespace printing::tests {
namespace {

QStringList digitsOf(const char* stem, const char* digits, int from = 1) {
  QStringList lines;
  for (int i = 0; digits[i] != '\0'; ++i)
    lines << QStringLiteral("%1%2=%3").arg(QString::fromUtf8(stem)).arg(from + i).arg(QLatin1Char(digits[i]));
  return lines;
}

QStringList commonSheet() {
  QStringList lines{"Date=2024/11/05",
                    "GG4=令和",
                    "YY4=6",
                    "MM4=10",
                    "MM5=10",
                    "KikanCode1=K-001",
                    "sejutuNO=登録第０００１号",
                    "Name2_1=見本　１２３４",
                    "Zokugara=妻",
                    "Name7=ミホンハナコ",
                    "Name8=見本花子",
                    "HHokenOnna2=",
                    "wa1_3=",
                    "YY1=25",
                    "MM1=3",
                    "DD1=4",
                    "GG2=令和",
                    "YY2=6",
                    "MM2=1",
                    "DD2=上旬",
                    "sebasyo1=架空の家",
                    "ouri3=",
                    "sonota2=車椅子のため",
                    "gyoumu3=",
                    "dai3_ta=日常生活",
                    "tkkubun1=",
                    "yuubin2=〒001-0002",
                    "Name57_3=北海道架空市架空町３－３",
                    "semeisyou1=架空治療院",
                    "Name58=000-000-0002",
                    "Name11=架空次郎",
                    "Name56=北海道架空市架空町３－３",
                    "Name11_2=架空次郎",
                    "GG11=令和",
                    "YY11=6",
                    "MM11=10",
                    "DD11=31",
                    "GG12=令和",
                    "YY12=6",
                    "MM12=11",
                    "DD12=1",
                    "GG13=令和",
                    "YY13=6",
                    "MM13=11",
                    "DD13=1",
                    "siharai_kbn=振込",
                    "Name14=架空",
                    "kinyuu3=銀行",
                    "Name47=見本",
                    "kinyuu6=支店",
                    "yokin2=普通",
                    "kouza2=0123456",
                    "kouza3=カクウジロウ",
                    "Name5_3=見本太郎",
                    "Name12=北海道架空市見本町１－１",
                    "yuubin1=〒００１－０００１",
                    "HHokenTel=000-000-0001",
                    "HHokenAdd=北海道架空市見本町１－１",
                    "Name13=北海道架空市見本町１－１",
                    "Name5_6=見本太郎",
                    "Name17=例示一郎",
                    "Name18_1=架空市例示町２－２",
                    "Name20=腰痛症",
                    "GG14=令和",
                    "YY14=6",
                    "MM14=9",
                    "DD14=1",
                    "GG15=令和",
                    "YY15=6",
                    "MM15=9",
                    "DD15=1",
                    "Name19=令和7年2月28日",
                    "Name48=架空市市長",
                    "Name21=摘要一",
                    "Name22=摘要二",
                    "Name24=摘要四",
                    "H_M_Circle1=",
                    "itibu3=",
                    "Kyuufu_3=",
                    "hutan3=",
                    "GG7=令和",
                    "YY7=6",
                    "MM7=2",
                    "DD7=3",
                    "GG9=令和",
                    "YY9=6",
                    "MM9=10",
                    "DD9=1",
                    "GG10=令和",
                    "YY10=6",
                    "MM10=10",
                    "seikyu2=継続",
                    "tenki4=継続"};
  lines += digitsOf("Name0_", "138057", 3);
  lines += digitsOf("KouhiFutan_", "81136015");
  lines += digitsOf("KouhiJyu_", "1234567");
  lines += digitsOf("kouza_num", "0123456");
  return lines;
}

void expectSheet(Filled& filled, QStringList expected) {
  expected.sort();
  const QStringList printed = filled.fill().sheet();
  for (const QString& line : expected)
    EXPECT_TRUE(printed.contains(line)) << "missing: " << line.toStdString();
  for (const QString& line : printed) EXPECT_TRUE(expected.contains(line)) << "extra: " << line.toStdString();
  EXPECT_EQ(printed.size(), expected.size());
}

TEST(FullClaim, AcupunctureSheetItemByItem) {
  Filled filled = fullAcupuncture();
  expectSheet(
      filled,
      commonSheet() + QStringList{"DD10=31",  // 転帰 継続: the month's last day
                                  "Name9=腰痛症", "syoubyou1=", "syoubyou5=", "syoubyou7=", "Name49=肩関節炎",
                                  "Name50=(右)", "denryou1=", "syokaijutu3=はりきゅう併用", "day1=○",
                                  "day8=①", "day15=◎", "day22=③", "Name16=4", "YY3=6", "MM3=5",
                                  // Both rows of 通所, one row of 訪問１ in the middle of its cell.
                                  "dain1=100", "dain2=2", "dain3=2", "dain4=1,610", "dain5=1", "dain6=1,610",
                                  "dain7=1,770", "dain8=1", "dain9=1,770", "dain54=3,910", "dain55=2",
                                  "dain56=7,820", "dain34=100", "dain35=2", "dain36=200", "dain40=2,300",
                                  "dain41=1", "dain42=2,300", "dain45=480", "dain46=14,280", "dain47=4,284",
                                  "dain48=9,996"});
}

TEST(FullClaim, MassageSheetItemByItem) {
  Filled filled = fullMassage();
  expectSheet(
      filled,
      commonSheet() + QStringList{"DD10=31", "Name6=不詳", "Name9=腰痛症、歩行困難", "Syoujyou=筋萎縮",
                                  "day2=○", "day9=②", "Name16=2", "kaisu1_1=2", "kaisu1_2=2", "kaisu2_1=1",
                                  // One row of 通所 in the middle, both rows of 訪問１.
                                  "dain1=2", "dain2=2", "dain6=1", "dain71=900", "dain72=1", "dain73=900",
                                  "dain16=3,200", "dain17=1", "dain18=3,200", "dain19=3,650", "dain20=1",
                                  "dain21=3,650", "dain46=450", "dain47=1", "dain48=450", "dain58=8,200",
                                  "dain59=2,460", "dain60=5,740"});
}

TEST(FullClaim, EveryItemIsShownBeforeItGetsItsText) {
  Filled filled = fullAcupuncture();
  const QStringList calls = filled.fill().itemCalls;
  for (qsizetype i = 0; i < calls.size(); ++i) {
    if (!calls[i].contains(u'=')) continue;
    EXPECT_EQ(calls.value(i - 1), QStringLiteral("-1 ") + calls[i].section(u'=', 0, 0));
  }
}

TEST(FullClaim, BlankClaimPrintsTheDateAlone) {
  for (const PrintKind kind : {PrintKind::Acupuncture, PrintKind::Massage}) {
    Filled filled(kind);
    EXPECT_EQ(filled.fill().sheet(), QStringList({"Date=2024/11/05"}));
  }
}

}  // namespace
}  // namespace printing::tests
