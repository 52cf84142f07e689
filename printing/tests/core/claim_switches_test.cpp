#include <gtest/gtest.h>

#include "printing/tests/core/claim_fixture.h"

// Print settings, ticks of the screens, prefectures, paper that is printed already.

namespace printing::tests {
namespace {

struct SwitchRow {
  const char16_t* column;
  const char16_t* off;  ///< stored text of the second button
  std::initializer_list<const char*> items;
};

TEST(Switches, EachTakesItsItemsOffTheSheet) {
  const SwitchRow rows[] = {
      {u"txt dummy4", u"1", {"KouhiFutan_1", "KouhiJyu_1"}},
      {u"txt dummy7", u"0", {"Name17", "Name18_1", "Name20", "YY14", "YY15", "Name19"}},
      {u"txt dummy8", u"0", {"dain1", "dain46", "dain47", "dain48", "dain54"}},
      {u"txt dummy9", u"1", {"HHokenOnna2"}},
      {u"txt dummy10", u"1", {"Name13", "Name5_6", "Name56", "Name11_2", "YY13"}},
      {u"txt dummy13", u"1", {"Name5_6"}},
      {u"txtdummy26", u"1", {"Zokugara"}},
      {u"c8", u"1", {"Name5_3", "Name56", "Name11_2"}},
      {u"c9", u"1", {"Kyuufu_3"}},
      {u"c13", u"1", {"YY11", "YY12", "YY13"}},
  };
  for (const SwitchRow& row : rows) {
    Filled filled = fullAcupuncture();
    const QStringList before = filled.fill().sheet();
    filled.set({{row.column, row.off}});
    const QStringList after = filled.fill().sheet();
    for (const char* item : row.items) {
      const QString name = QString::fromUtf8(item) + u'=';
      const auto stands = [&](const QStringList& sheet) {
        return std::any_of(sheet.begin(), sheet.end(),
                           [&](const QString& line) { return line.startsWith(name); });
      };
      EXPECT_TRUE(stands(before)) << item;
      EXPECT_FALSE(stands(after)) << item;
    }
  }
}

TEST(Switches, LeftMarginPrintsWhereItIsOn) {
  Filled filled;
  filled.set({{u"師会名", u"見本センター"}, {u"txt dummy3", u"0"}});
  const struct {
    const char16_t* kind;
    const char* words;
    bool mark;
  } rows[] = {{u"国保", "国民健康保険", false}, {u"特別国保", "国民健康保険", true},
              {u"共済", "共済組合", true},      {u"組合", "健康保険組合", false},
              {u"後期高齢", nullptr, true},     {u"全国健康保険協会", nullptr, false}};
  for (const auto& row : rows) {
    filled.set({{u"保険の種類", row.kind}});
    EXPECT_EQ(filled["HokenTypeT"], row.words == nullptr ? QString() : QString::fromUtf8(row.words));
    EXPECT_EQ(filled.marked("HokenType_4"), row.mark);
    EXPECT_EQ(filled["Shikai"], QStringLiteral("　見本センタ｜"));
  }
  filled.set({{u"txt dummy3", u"1"}, {u"保険の種類", u"共済"}});
  for (const char* item : {"HokenTypeT", "HokenType_4", "Shikai"}) EXPECT_FALSE(filled.marked(item)) << item;
}

TEST(Switches, RepresentativeStandsForThePractitioner) {
  Filled filled = fullAcupuncture();
  filled.set({{u"代表者氏名", u"代表一"},
              {u"代表者郵便番号", u"002-0000"},
              {u"代表者住所", u"代表市"},
              {u"代表者電話番号", u"代表電話"},
              {u"代表者金融機関名", u"代表銀"},
              {u"代表者口座番号", u"98"},
              {u"代表者口座名義カタカナ", u"ダイヒョウ"},
              {u"代表者預金の種類", u"当座"}});
  filled.set({{u"txt dummy6", u"0"}});
  EXPECT_EQ(filled["Name11"], QStringLiteral("代表一"));
  EXPECT_EQ(filled["yuubin2"], QStringLiteral("〒002-0000"));
  EXPECT_EQ(filled["Name57_3"], QStringLiteral("代表市"));
  EXPECT_EQ(filled["Name58"], QStringLiteral("代表電話"));
  EXPECT_EQ(filled["Name14"], QStringLiteral("架空"));  // the account is a switch of its own
  EXPECT_EQ(filled["Name11_2"], QStringLiteral("架空次郎"));
  filled.set({{u"txt dummy5", u"0"}});
  EXPECT_EQ(filled["Name14"], QStringLiteral("代表銀"));
  EXPECT_EQ(filled["kouza_num1"], QStringLiteral("9"));
  EXPECT_EQ(filled["kouza3"], QStringLiteral("ダイヒョウ"));
  EXPECT_EQ(filled["yokin2"], QStringLiteral("当座"));
  EXPECT_FALSE(filled.marked("Name47"));  // the representative has no branch: nothing prints
  EXPECT_EQ(filled["Name11_2"], QStringLiteral("代表一"));
  EXPECT_EQ(filled["Name56"], QStringLiteral("代表市"));
}

TEST(Switches, ShownOnlyWhereChosen) {
  Filled filled;
  for (const char* item : {"JUININ1", "JUININ2", "JUININ3", "betten1"})
    EXPECT_FALSE(filled.marked(item)) << item;
  filled.set({{u"c10", u"0"}, {u"c16", u"0"}});
  for (const char* item : {"JUININ1", "JUININ2", "JUININ3", "betten1"})
    EXPECT_TRUE(filled.marked(item)) << item;
}

TEST(Switches, PublicAidSetsTheShareToZero) {
  Filled hari = fullAcupuncture(), massage = fullMassage();
  for (Filled* filled : {&hari, &massage}) filled->set({{u"c11", u"1"}});
  EXPECT_EQ(hari["dain47"], QStringLiteral("0"));
  EXPECT_EQ(massage["dain59"], QStringLiteral("0"));
  EXPECT_EQ(massage["dain47"], QStringLiteral("1"));  // a count on this form
}

TEST(Switches, PracticesFlagsRuleWhereTheClaimIsBlank) {
  Filled filled = fullAcupuncture();
  filled.source.profile[frame::slot::kRelationPrinted] = QStringLiteral("0");
  EXPECT_EQ(filled["Zokugara"], QStringLiteral("妻"));  // the flag is 本人の続柄印刷
  filled.set({{u"被保険者との続柄", u"本人"}});
  EXPECT_FALSE(filled.marked("Zokugara"));
  filled.set({{u"txtdummy26", u"0"}});  // the claim's own choice: printed
  EXPECT_EQ(filled["Zokugara"], QStringLiteral("本人"));
}

TEST(Switches, TheFlagOfTheInsuredRulesOnesNotHeadOfTheHousehold) {
  Filled filled = fullAcupuncture();
  filled.source.profile[frame::slot::kRelationPrinted] = QStringLiteral("0");
  filled.set({{u"保険の種類2", u"-1"}});  // prints as 本人
  EXPECT_FALSE(filled.marked("Zokugara"));
}

TEST(Switches, PeriodByFirstAndLastDay) {
  Filled filled;
  filled.set(
      {{u"申請年月", u"令和6年10月"}, {u"治療内容4", u"a"}, {u"治療内容20", u"a"}, {u"転帰", u"継続"}});
  filled.set({{u"txt dummy1", u"0"}, {u"txt dummy2", u"0"}});  // 最初の治療日, 月末日
  EXPECT_EQ(filled["DD9"], QStringLiteral("4"));
  EXPECT_EQ(filled["DD10"], QStringLiteral("31"));
  filled.set({{u"txt dummy1", u"1"}, {u"txt dummy2", u"1"}});  // １日, 最終の治療日
  EXPECT_EQ(filled["DD9"], QStringLiteral("1"));
  EXPECT_EQ(filled["DD10"], QStringLiteral("20"));
  filled.set({{u"txt dummy2", u"0"}, {u"転帰", u"治癒"}});  // ended: the last treated day
  EXPECT_EQ(filled["DD10"], QStringLiteral("20"));
  filled.set({{u"請求区分", u"新規"}, {u"初療年月日", u"令和6年10月3日"}});
  EXPECT_EQ(filled["DD9"], QStringLiteral("3"));
}

TEST(Switches, PeriodWhereNobodyChoseGoesByRequestAndOutcome) {
  Filled filled;
  filled.set({{u"申請年月", u"令和7年2月"}, {u"治療内容4", u"a"}, {u"治療内容20", u"a"}, {u"転帰", u"継続"}});
  for (const char16_t* link : {u"", u"77"}) {  // a link of the two halves is no choice
    filled.set({{u"txt dummy1", link}, {u"転帰", u"継続"}});
    EXPECT_EQ(filled["DD9"], QStringLiteral("1"));
    EXPECT_EQ(filled["DD10"], QStringLiteral("28"));
    filled.set({{u"転帰", u"中止"}});
    EXPECT_EQ(filled["DD10"], QStringLiteral("20"));
  }
}

TEST(Person, NotTheHeadOfTheHouseholdIsInsuredAllTheSame) {
  Filled filled = fullAcupuncture();
  filled.set({{u"保険の種類2", u"1"}});
  EXPECT_EQ(filled["Zokugara"], QStringLiteral("本人"));
}

TEST(Person, LateElderlyNameByTheClinicsFlag) {
  Filled filled = fullAcupuncture();
  filled.set({{u"保険の種類", u"後期高齢"}});
  EXPECT_EQ(filled["Name5_3"], QStringLiteral("見本太郎"));
  for (const char* flag : {"1", "11", "111"}) {
    filled.source.profile[frame::slot::kElderlyNamePrinted] = QString::fromUtf8(flag);
    EXPECT_EQ(filled["Name5_3"], QStringLiteral("見本花子")) << flag;
    EXPECT_EQ(filled["Name5_6"], QStringLiteral("見本花子")) << flag;
  }
  filled.set({{u"保険の種類", u"国保"}});
  EXPECT_EQ(filled["Name5_3"], QStringLiteral("見本太郎"));
}

TEST(Notes, NewRemarksTakeThePlaceOfTheLines) {
  Filled filled = fullAcupuncture();
  filled.set({{u"memodummy14", u"新しい摘要"}, {u"txtdummy25", u"0"}});
  EXPECT_EQ(filled["Name21"], QStringLiteral("摘要一"));  // kept from the print
  for (const char16_t* tick : {u"", u"1"}) {
    filled.set({{u"txtdummy25", tick}});
    EXPECT_EQ(filled["Name700"], QStringLiteral("新しい摘要"));
  }
  EXPECT_EQ(filled["Name700"], QStringLiteral("新しい摘要"));
  for (int n = 21; n <= 26; ++n) {
    const QString item = QStringLiteral("Name%1").arg(n);
    EXPECT_TRUE(filled.engine.touched(item) && !filled.engine.marked(item)) << n;
  }
  filled.set({{u"memodummy14", u""}});
  EXPECT_FALSE(filled.marked("Name700"));
  EXPECT_EQ(filled["Name21"], QStringLiteral("摘要一"));
}

TEST(Prefectures, SaitamaCountsThePeriodFromTheGrid) {
  Filled filled = fullAcupuncture();
  filled.set({{u"txt dummy1", u"1"}, {u"txt dummy2", u"0"}});
  EXPECT_EQ(filled["DD9"], QStringLiteral("1"));
  EXPECT_EQ(filled["DD10"], QStringLiteral("31"));
  filled.source.prefecture = frame::Prefecture::Saitama;
  filled.set({{u"治療内容1", u""}});
  EXPECT_EQ(filled["DD9"], QStringLiteral("8"));
  EXPECT_EQ(filled["DD10"], QStringLiteral("22"));
  EXPECT_EQ(filled["DD10_2"], QStringLiteral("22"));
}

TEST(Prefectures, ChibaWritesTheTermOfCare) {
  Filled filled = fullAcupuncture();
  EXPECT_FALSE(filled.marked("youkaryuki1"));
  filled.source.prefecture = frame::Prefecture::Chiba;
  EXPECT_EQ(filled["youkaryuki1"], QStringLiteral("自令和6年9月1日"));
  EXPECT_EQ(filled["youkaryuki2"], QStringLiteral("至令和7年2月28日"));
}

TEST(Prefectures, AichiRelabelsAVisitingPractice) {
  Filled filled = fullAcupuncture();
  filled.source.prefecture = frame::Prefecture::Aichi;
  EXPECT_TRUE(filled.marked("semeisyou1"));
  filled.source.profile[frame::slot::kHealthOffice] = QStringLiteral("出張専門施術者住所地");
  EXPECT_TRUE(filled.marked("Text66"));
  EXPECT_EQ(filled["Text67"], QStringLiteral("住　所"));
  EXPECT_FALSE(filled.marked("semeisyou1"));
  EXPECT_TRUE(filled.engine.touched(QStringLiteral("Text573")));
  EXPECT_FALSE(filled.engine.marked(QStringLiteral("Text573")));
  EXPECT_TRUE(filled.marked("tkkubun2"));
  filled.source.prefecture = frame::Prefecture::Hokkaido;
  EXPECT_FALSE(filled.marked("Text66"));
}

TEST(ItemsOnly, NoFramePrintsAndTheEraWordStaysAway) {
  Filled filled = fullAcupuncture();
  filled.source.form.itemsOnly = true;
  SpyEngine& engine = filled.fill();
  for (int n = 1; n <= 1000; ++n)
    for (const char* family : {"waku_", "Box", "Line", "Text"}) {
      const QString item = QString::fromUtf8(family) + QString::number(n);
      EXPECT_FALSE(engine.marked(item)) << item.toStdString();
    }
  EXPECT_FALSE(engine.marked(QStringLiteral("GG4")));
  EXPECT_TRUE(engine.touched(QStringLiteral("T_seibetu2")));
  EXPECT_EQ(engine.printed(QStringLiteral("Name8")), QStringLiteral("見本花子"));
  EXPECT_EQ(engine.printed(QStringLiteral("day1")), QStringLiteral("○"));
}

TEST(ItemsOnly, LabelsOfTheElderlyComeBackWhereTicked) {
  Filled filled = fullAcupuncture();
  filled.source.form.itemsOnly = true;
  filled.source.ticks.newElderlyLabels = true;
  EXPECT_EQ(filled["Text432"], QStringLiteral("4 六外"));
  EXPECT_EQ(filled["Text430"], QStringLiteral("8 高外-"));
  EXPECT_EQ(filled["Text433"], QStringLiteral("0 高外7"));
  EXPECT_FALSE(filled.marked("Text382"));
  filled.source.edition = Edition::From201901Reiwa;
  EXPECT_EQ(filled["Text382"], QStringLiteral("登録記号番号（申し出た施術者登録番号）"));
  filled.source.form.itemsOnly = false;
  EXPECT_FALSE(filled.marked("Text432"));  // the frame itself prints its own words
}

TEST(Seals, AreTakenOffWithTheirTickOnTheirEdition) {
  Filled filled;
  filled.source.ticks.sealsHidden = true;
  EXPECT_FALSE(filled.fill().touched(QStringLiteral("Line500")));
  filled.source.edition = Edition::From201901Reiwa;
  for (const char* item : {"Line500", "Text104", "Line501", "Text106", "Line504", "Text427"}) {
    EXPECT_TRUE(filled.fill().touched(QString::fromUtf8(item)));
    EXPECT_FALSE(filled.engine.marked(QString::fromUtf8(item)));
  }
}

}  // namespace
}  // namespace printing::tests
