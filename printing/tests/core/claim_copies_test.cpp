#include <gtest/gtest.h>

#include <span>

#include "printing/tests/core/claim_fixture.h"

// One column at a time: a claim that holds nothing else prints exactly the items that belong to it.

namespace printing::tests {
namespace {

constexpr auto kHari = PrintKind::Acupuncture, kMassage = PrintKind::Massage;

struct CopyRow {
  PrintKind kind;
  const char16_t* column;
  const char16_t* text;
  std::initializer_list<const char*> lines;
};

QStringList withDate(std::initializer_list<const char*> lines) {
  QStringList sheet{QStringLiteral("Date=2024/11/05")};
  for (const char* line : lines) sheet << QString::fromUtf8(line);
  sheet.sort();
  return sheet;
}

void expectSheets(std::span<const CopyRow> rows, Columns settings = {}) {
  for (const CopyRow& row : rows) {
    Filled filled(row.kind);
    filled.set(settings);
    filled.set({{row.column, row.text}});
    EXPECT_EQ(filled.fill().sheet(), withDate(row.lines)) << QString::fromUtf16(row.column).toStdString();
  }
}

TEST(Copies, EachColumnPrintsInItsOwnItems) {
  const CopyRow rows[] = {
      {kHari, u"療養を受ける者のフリガナ", u"ミ", {"Name7=ミ"}},
      {kHari, u"療養を受ける者の氏名", u"見", {"Name8=見"}},
      {kHari, u"療養を受ける者の性別", u"男", {"HHokenOtoko2="}},
      {kHari, u"療養を受ける者の性別", u"女", {"HHokenOnna2="}},
      {kHari, u"被保険者との続柄", u"妻", {"Zokugara=妻"}},
      {kHari, u"被保険者の氏名", u"見", {"Name5_3=見", "Name5_6=見"}},
      {kHari, u"被保険者の住所", u"市", {"Name12=市", "HHokenAdd=市", "Name13=市"}},
      {kHari, u"被保険者の電話番号", u"00", {"HHokenTel=00"}},
      {kHari, u"被保険者の郵便番号", u"1", {"yuubin1=〒１"}},
      {kHari, u"事業所の名称", u"社", {"JigyouName=社"}},
      {kHari, u"事業所の所在地", u"地", {"JigyouAdd=地"}},
      {kHari, u"同意医師氏名", u"医", {"Name17=医"}},
      {kHari, u"同意医師住所", u"院", {"Name18_1=院"}},
      {kHari, u"同意の傷病名", u"病", {"Name20=病", "Name9=病"}},
      {kHari, u"要加療期間2", u"末", {"Name19=末"}},
      {kHari, u"師会等の機関番号", u"K", {"KikanCode1=K"}},
      {kHari, u"c14", u"1", {"KikanCode=１"}},
      {kMassage, u"c14", u"1", {"KikanCode=１"}},
      {kMassage, u"c15", u"2", {"KikanCode=２"}},
      {kHari, u"c15", u"2", {}},
      {kHari, u"d12", u"宅", {"sebasyo1=宅"}},
      {kHari, u"支払い機関区分", u"振込", {"siharai_kbn=振込"}},
      {kHari, u"請求区分", u"新規", {"seikyu2=新規"}},
      {kHari, u"転帰", u"治癒", {"tenki4=治癒"}},
      {kHari, u"入院入院外の別", u"入院", {"nyuuin2=入院"}},
      {kHari, u"memodummy14", u"摘", {"Name700=摘"}},
      {kMassage, u"発病又は負傷の原因", u"転倒", {"Name6=転倒"}},
      {kHari, u"発病又は負傷の原因", u"転倒", {}},
      {kMassage, u"同意症状", u"痛", {"Syoujyou=痛"}},
      {kHari, u"傷病名7", u"他", {"Name49=他", "syoubyou7="}},
      {kHari, u"傷病名8", u"右", {"Name50=(右)"}},
  };
  expectSheets(rows);
}

TEST(Copies, NumbersFillTheirBoxes) {
  const CopyRow rows[] = {
      {kHari, u"公費負担番号", u"81", {"KouhiFutan_1=8", "KouhiFutan_2=1"}},
      {kHari, u"公費受給者番号", u"81", {"KouhiJyu_1=8", "KouhiJyu_2=1"}},
      {kHari, u"区市町村番号", u"81", {"Kushi_1=8", "Kushi_2=1"}},
      {kHari, u"受給者番号", u"81", {"Jyukyu_1=8", "Jyukyu_2=1"}},
      {kHari, u"保険者番号", u"81", {"Name0_1=8", "Name0_2=1"}},
  };
  expectSheets(rows);
}

TEST(Copies, DiseasesDevicesAndCountsAreInTheOrderOfThePaper) {
  const CopyRow rows[] = {
      {kHari, u"傷病名1", u"1", {"syoubyou1="}}, {kHari, u"傷病名2", u"1", {"syoubyou2="}},
      {kHari, u"傷病名3", u"1", {"syoubyou3="}}, {kHari, u"傷病名4", u"1", {"syoubyou4="}},
      {kHari, u"傷病名5", u"1", {"syoubyou5="}}, {kHari, u"傷病名6", u"1", {"syoubyou6="}},
      {kHari, u"c21", u"1", {"denryou1="}},      {kHari, u"c22", u"1", {"denryou2="}},
      {kHari, u"c23", u"1", {"denryou3="}},      {kMassage, u"c21", u"1", {}},
      {kMassage, u"d3", u"5", {"kaisu1_1=5"}},   {kMassage, u"d4", u"5", {"kaisu1_2=5"}},
      {kMassage, u"d5", u"5", {"kaisu1_3=5"}},   {kMassage, u"d6", u"5", {"kaisu1_4=5"}},
      {kMassage, u"d7", u"5", {"kaisu1_5=5"}},   {kMassage, u"d8", u"5", {"kaisu2_1=5"}},
      {kMassage, u"d9", u"5", {"kaisu2_2=5"}},   {kMassage, u"d10", u"5", {"kaisu2_3=5"}},
      {kMassage, u"d11", u"5", {"kaisu2_4=5"}},  {kHari, u"d8", u"5", {}},
      {kHari, u"摘要1", u"摘", {"Name21=摘"}},   {kHari, u"摘要2", u"摘", {"Name22=摘"}},
      {kHari, u"摘要3", u"摘", {"Name23=摘"}},   {kHari, u"摘要4", u"摘", {"Name24=摘"}},
      {kHari, u"摘要5", u"摘", {"Name25=摘"}},   {kHari, u"摘要6", u"摘", {"Name26=摘"}},
  };
  expectSheets(rows);
}

TEST(Copies, DatesFillTheirFourBoxes) {
  const char16_t* date = u"平成31年4月30日";
  const CopyRow rows[] = {
      {kHari, u"発病又は負傷年月日", date, {"GG2=平成", "YY2=31", "MM2=4", "DD2=30"}},
      {kHari, u"初療年月日", date, {"GG7=平成", "YY7=31", "MM7=4", "DD7=30"}},
      {kHari, u"領収年月日", date, {"GG11=平成", "YY11=31", "MM11=4", "DD11=30"}},
      {kHari,
       u"請求年月日",
       date,
       {"GG12=平成", "YY12=31", "MM12=4", "DD12=30", "GG13=平成", "YY13=31", "MM13=4", "DD13=30"}},
      {kHari, u"実際の同意の年月日", date, {"GG14=平成", "YY14=31", "MM14=4", "DD14=30"}},
      {kHari, u"要加療期間1", date, {"GG15=平成", "YY15=31", "MM15=4", "DD15=30"}},
      {kHari, u"療養を受ける者の生年月日", date, {"wa1_4=", "YY1=31", "MM1=4", "DD1=30"}},
      {kHari, u"txtdummy28", u"平成31年4月", {"YY3=31", "MM3=4"}},
  };
  expectSheets(rows);
}

TEST(Copies, ThePractitionerSignsAndOwnsTheAccount) {
  const CopyRow rows[] = {
      {kHari, u"施術所の名称", u"院", {"semeisyou1=院"}},
      {kHari, u"施術者氏名", u"師", {"Name11=師", "Name11_2=師"}},
      {kHari, u"施術所の郵便番号", u"1", {"yuubin2=〒1"}},
      {kHari, u"施術所の所在地", u"所", {"Name57_3=所", "Name56=所"}},
      {kHari, u"施術所電話番号", u"00", {"Name58=00"}},
      {kHari, u"金融機関名", u"行", {"Name14=行"}},
      {kHari, u"郵便局名", u"局", {"Name14=局"}},
      {kHari, u"本店支店名", u"店", {"Name47=店"}},
      {kHari, u"預金の種類", u"普通", {"yokin2=普通"}},
      {kHari, u"金融機関名種類", u"銀行", {"kinyuu3=銀行"}},
      {kHari, u"本店支店名種類", u"支店", {"kinyuu6=支店"}},
      {kHari, u"口座番号", u"12", {"kouza2=12", "kouza_num1=1", "kouza_num2=2"}},
      {kHari, u"口座名義", u"名", {"kouza3=名"}},
      {kHari, u"口座名義カタカナ", u"ナ", {"kouza3=ナ"}},
      {kHari, u"代表者氏名", u"代", {}},
      {kHari, u"代表者金融機関名", u"行", {}},
  };
  expectSheets(rows);
}

TEST(Copies, TheRepresentativeWhereTheClaimSaysSo) {
  const CopyRow rows[] = {
      {kHari, u"代表者氏名", u"代", {"Name11=代", "Name11_2=代"}},
      {kHari, u"代表者郵便番号", u"1", {"yuubin2=〒1"}},
      {kHari, u"代表者住所", u"所", {"Name57_3=所", "Name56=所"}},
      {kHari, u"代表者電話番号", u"00", {"Name58=00"}},
      {kHari, u"代表者金融機関名", u"行", {"Name14=行"}},
      {kHari, u"代表者郵便局名", u"局", {"Name14=局"}},
      {kHari, u"代表者本店支店名", u"店", {"Name47=店"}},
      {kHari, u"代表者預金の種類", u"普通", {"yokin2=普通"}},
      {kHari, u"代表者金融機関名種類", u"銀行", {"kinyuu3=銀行"}},
      {kHari, u"代表者本店支店名種類", u"支店", {"kinyuu6=支店"}},
      {kHari, u"代表者口座番号", u"12", {"kouza2=12", "kouza_num1=1", "kouza_num2=2"}},
      {kHari, u"代表者口座名義", u"名", {"kouza3=名"}},
      {kHari, u"代表者口座名義カタカナ", u"ナ", {"kouza3=ナ"}},
      {kHari, u"施術者氏名", u"師", {}},
  };
  expectSheets(rows, {{u"txt dummy5", u"0"}, {u"txt dummy6", u"0"}});
}

TEST(Copies, ABankHasPrecedenceOverAPostOfficeAndKatakanaOverTheName) {
  Filled filled;
  filled.set(
      {{u"金融機関名", u"行"}, {u"郵便局名", u"局"}, {u"口座名義", u"名"}, {u"口座名義カタカナ", u"ナ"}});
  EXPECT_EQ(filled.fill().sheet(), withDate({"Name14=行", "kouza3=ナ"}));
}

}  // namespace
}  // namespace printing::tests
