#include <gtest/gtest.h>

#include "printing/tests/core/claim_fixture.h"

// Sizes by length, dates, marks by the claim's words.

namespace printing::tests {
namespace {

struct SizeRow {
  PrintKind kind;
  const char16_t* column;
  int length;
  const char* item;
};

constexpr auto kHari = PrintKind::Acupuncture, kMassage = PrintKind::Massage;

TEST(Sizes, LengthPicksTheItemAtEachBound) {
  const SizeRow rows[] = {
      {kHari, u"保険証番号", 17, "Name2_1"},
      {kHari, u"保険証番号", 18, "Name2_2"},
      {kHari, u"保険証番号", 40, "Name2_3"},
      {kHari, u"療養を受ける者の氏名", 10, "Name8"},
      {kHari, u"療養を受ける者の氏名", 11, "Name5_4"},
      {kHari, u"同意の傷病名", 22, "Name9"},
      {kHari, u"同意の傷病名", 23, "Name9_1"},
      {kHari, u"同意の傷病名", 36, "Name9_1"},
      {kHari, u"同意の傷病名", 37, "Name9_2"},
      {kMassage, u"同意の傷病名", 37, "Name9_2"},
      {kHari, u"同意の傷病名", 10, "Name20"},
      {kHari, u"同意の傷病名", 11, "Text369"},
      {kHari, u"d12", 29, "sebasyo1"},
      {kHari, u"d12", 30, "sebasyo2"},
      {kHari, u"施術所の所在地", 26, "Name57_3"},
      {kHari, u"施術所の所在地", 27, "Name57"},
      {kHari, u"施術者氏名", 20, "Name11_2"},
      {kHari, u"施術者氏名", 21, "Name11_3"},
      {kHari, u"本店支店名", 8, "Name47"},
      {kHari, u"本店支店名", 9, "Name471"},
      {kHari, u"口座名義", 36, "kouza3"},
      {kHari, u"口座名義", 37, "kouza4"},
      {kHari, u"被保険者の氏名", 13, "Name5_3"},
      {kHari, u"被保険者の氏名", 14, "Name5_5"},
      {kHari, u"被保険者の氏名", 13, "Name5_6"},
      {kHari, u"被保険者の氏名", 14, "Name5_7"},
      {kHari, u"同意医師氏名", 8, "Name17"},
      {kHari, u"同意医師氏名", 9, "Name17_2"},
      {kHari, u"同意医師住所", 17, "Name18_1"},
      {kHari, u"同意医師住所", 18, "Name18_2"},
      {kHari, u"同意医師住所", 35, "Name18_2"},
      {kHari, u"同意医師住所", 36, "Name18_3"},
      {kHari, u"区市町村名称", 12, "Name48"},
      {kHari, u"区市町村名称", 13, "Name48_1"},
      {kHari, u"区市町村名称", 16, "Name48_1"},
      {kHari, u"区市町村名称", 17, "Name48_2"},
      {kHari, u"傷病名7", 7, "Name49"},
      {kHari, u"傷病名7", 8, "Name49_2"},
      {kHari, u"傷病名7", 10, "Name49_2"},
      {kHari, u"傷病名7", 11, "Name49_3"},
      {kHari, u"傷病名7", 15, "Name49_3"},  // the claim form lets 15 characters stand: none is lost
      {kMassage, u"同意症状", 32, "Syoujyou"},
      {kMassage, u"同意症状", 33, "Syoujyou1"},
      {kMassage, u"同意症状", 41, "Syoujyou3"},
      {kMassage, u"同意症状", 51, "Syoujyou4"},
  };
  for (const SizeRow& row : rows) {
    Filled filled(row.kind);
    const QString text(row.length, u'漢');
    filled.source.claim.setNamed(QString::fromUtf16(row.column), text);
    EXPECT_EQ(filled[row.item], text) << row.item << ' ' << row.length;
    // One size only: the variants of a place never print over each other.
    const QString family = QString::fromUtf8(row.item).section(u'_', 0, 0);
    int shown = 0;
    for (const QString& line : filled.engine.sheet())
      if (line.startsWith(family + u'_') || line.startsWith(family + u'=')) ++shown;
    EXPECT_LE(shown, family == u"Name5" ? 2 : family == u"Name11" ? 2 : 1) << row.item;
  }
}

TEST(Sizes, CauseDetailAndReasonDetail) {
  Filled filled;
  filled.set({{u"業務上外のもの", u"その他"}, {u"d15", u"その他"}});
  const auto with = [&](const char16_t* column, int length, const char* item) {
    filled.source.claim.setNamed(QString::fromUtf16(column), QString(length, u'字'));
    return filled[item] == QString(length, u'字');
  };
  EXPECT_TRUE(with(u"d13", 10, "dai3_ta"));
  EXPECT_TRUE(with(u"d13", 11, "dai3_ta1"));
  EXPECT_TRUE(with(u"d14", 27, "sonota2"));
  EXPECT_TRUE(with(u"d14", 28, "sonota1"));
}

TEST(CardLine, JoinsWhatIsThereInFullWidth) {
  Filled filled;
  filled.set(
      {{u"保険の種類", u"組合"}, {u"保険証記号1", u"11"}, {u"保険証記号2", u"22"}, {u"保険証番号", u"33"}});
  EXPECT_EQ(filled["Name2_1"], QStringLiteral("１１　２２　３３"));
  filled.set({{u"保険証記号1", u""}, {u"保険証記号2", u""}});
  EXPECT_EQ(filled["Name2_1"], QStringLiteral("３３"));
}

TEST(ConsentedIllness, JoinsTheNote) {
  Filled filled;
  filled.set({{u"memodummy11", u"歩行困難"}});
  EXPECT_EQ(filled["Name9"], QStringLiteral("歩行困難"));
  filled.set({{u"同意の傷病名", u"腰痛症"}});
  EXPECT_EQ(filled["Name9"], QStringLiteral("腰痛症、歩行困難"));
}

struct DateRow {
  const char16_t* text;
  const char *era, *year, *month, *day;
};

TEST(Dates, AreCutIntoEraYearMonthAndDay) {
  const DateRow rows[] = {{u"令和6年2月3日", "令和", "6", "2", "3"},
                          {u"2024/2/3", "令和", "6", "2", "3"},
                          {u"2019/4/30", "平成", "31", "4", "30"},  // the last day of 平成
                          {u"2019/5/1", "令和", "1", "5", "1"},
                          {u"令和元年5月1日", "令和", "1", "5", "1"},
                          {u"R6/2/3", "令和", "6", "2", "3"},
                          {u"昭和64年1月7日", "昭和", "64", "1", "7"},
                          {u"平成16年1月上旬", "平成", "16", "1", "上旬"},
                          {u"平成16/1/上旬", "平成", "16", "1", "上旬"}};
  for (const DateRow& row : rows) {
    Filled filled;
    filled.set({{u"発病又は負傷年月日", row.text}});
    EXPECT_EQ(filled["GG2"], QString::fromUtf8(row.era));
    EXPECT_EQ(filled["YY2"], QString::fromUtf8(row.year));
    EXPECT_EQ(filled["MM2"], QString::fromUtf8(row.month));
    EXPECT_EQ(filled["DD2"], QString::fromUtf8(row.day));
  }
}

TEST(Dates, PlatformWithoutReiwaPrintsTheSameSheet) {
  for (Filled filled : {fullAcupuncture(), fullMassage()}) {
    const QStringList sheet = filled.fill().sheet();
    filled.capability = frame::EraCapability::Unsupported;
    EXPECT_EQ(filled.fill().sheet(), sheet);
  }
}

TEST(Dates, UnreadableDateLosesItsFieldAndTheFormStillPrints) {
  Filled filled = fullAcupuncture();
  filled.set({{u"初療年月日", u"不明"}});
  EXPECT_FALSE(filled.marked("YY7"));
  EXPECT_EQ(filled["Name8"], QStringLiteral("見本花子"));
}

TEST(Dates, BirthEraIsCircled) {
  const struct {
    const char16_t* birth;
    const char* mark;
  } rows[] = {{u"明治45年7月29日", "wa1_1"},
              {u"大正15年12月24日", "wa1_2"},
              {u"昭和1年12月25日", "wa1_3"},
              {u"平成1年1月8日", "wa1_4"},
              {u"令和1年5月1日", "wa1_5"}};
  for (const auto& row : rows) {
    Filled filled;
    filled.set({{u"療養を受ける者の生年月日", row.birth}});
    SpyEngine& engine = filled.fill();
    for (const char* mark : {"wa1_1", "wa1_2", "wa1_3", "wa1_4", "wa1_5"})
      EXPECT_EQ(engine.marked(QString::fromUtf8(mark)), std::string_view(mark) == row.mark)
          << row.mark << mark;
  }
}

TEST(Dates, PreviousReportTakesTheLetterWhereTicked) {
  Filled filled;
  filled.set({{u"txtdummy28", u"令和6年5月"}});
  EXPECT_EQ(filled["YY3"], QStringLiteral("6"));
  EXPECT_EQ(filled["MM3"], QStringLiteral("5"));
  filled.source.form.eraLetter = true;
  EXPECT_EQ(filled["YY3"], QStringLiteral("R6"));
}

TEST(DayGrid, MarksByCodeAndVisit) {
  Filled filled;
  filled.set({{u"申請年月", u"令和6年10月"}});
  const struct {
    const char16_t* visit;
    const char* mark;
  } rows[] = {{u"", "○"},   {u"v1", "①"},  {u"v2", "②"},  {u"v3", "③"},
              {u"v9", "③"}, {u"v10", "③"}, {u"v20", "③"}, {u"t", "◎"}};
  for (const auto& row : rows) {
    filled.set({{u"治療内容7", u"a"}, {u"往療距離7", row.visit}});
    EXPECT_EQ(filled["day7"], QString::fromUtf8(row.mark));
    EXPECT_EQ(filled["Name16"], QStringLiteral("1"));
  }
}

TEST(DayGrid, FreeVisitsMarkEveryTreatedDay) {
  Filled filled;
  filled.set(
      {{u"申請年月", u"令和6年10月"}, {u"治療内容1", u"a"}, {u"治療内容2", u"b"}, {u"往療距離3", u"v1"}});
  filled.source.form.freeVisits = true;
  EXPECT_EQ(filled["day1"], QStringLiteral("◎"));
  EXPECT_EQ(filled["day2"], QStringLiteral("◎"));
  EXPECT_FALSE(filled.marked("day3"));  // no code, no mark
  EXPECT_EQ(filled["Name16"], QStringLiteral("2"));
}

TEST(DayGrid, EndsWithTheMonth) {
  const struct {
    const char16_t* month;
    int last;
  } rows[] = {{u"令和6年10月", 31}, {u"令和6年11月", 30}, {u"令和7年2月", 28}, {u"令和10年2月", 29}};
  for (const auto& row : rows) {
    Filled filled;
    filled.set({{u"申請年月", row.month}});
    for (int day = 1; day <= 31; ++day)
      filled.source.claim.setNamed(QStringLiteral("治療内容%1").arg(day), QStringLiteral("a"));
    EXPECT_EQ(filled["Name16"], QString::number(row.last));
    EXPECT_EQ(filled.engine.marked(QStringLiteral("day31")), row.last == 31);
  }
}

TEST(Reasons, CircleTheChoices) {
  const struct {
    const char16_t* reason;
    const char16_t* detail;
    bool one, two, three;
  } rows[] = {{u"独歩による公共交通機関を使っての外出困難", u"x", true, false, false},
              {u"認知症や視覚、内部、精神障害などにより独歩による外出困難", u"", false, true, false},
              {u"その他", u"", false, false, true},
              {u"①と②の両方に丸をつける。", u"", true, true, false},
              {u"①と②の両方に丸をつける。", u"x", true, true, true},
              {u"", u"x", false, false, false}};
  for (const auto& row : rows) {
    Filled filled;
    filled.set({{u"d15", row.reason}, {u"d14", row.detail}});
    EXPECT_EQ(filled.marked("ouri1"), row.one);
    EXPECT_EQ(filled.marked("ouri2"), row.two);
    EXPECT_EQ(filled.marked("ouri3"), row.three);
    EXPECT_EQ(filled.marked("sonota2"), row.three && row.detail[0] != u'\0');
  }
}

TEST(Cause, CirclesTheWord) {
  Filled filled;
  filled.set({{u"業務上外のもの", u"第三者行為である"}, {u"d13", u"追突"}});
  EXPECT_EQ(filled["gyoumu1"], QStringLiteral("第三者行為である"));
  EXPECT_FALSE(filled.marked("gyoumu3"));
  EXPECT_FALSE(filled.marked("dai3_ta"));
  filled.set({{u"業務上外のもの", u"業務上"}});
  EXPECT_EQ(filled["gyoumu1"], QStringLiteral("業務上"));
}

TEST(Share, PrintsWhatTheInsurerPays) {
  const struct {
    const char16_t* share;
    const char *line, *circle;
  } rows[] = {{u"1割", "itibu1", "Kyuufu_1"}, {u"2割", "itibu2", "Kyuufu_2"}, {u"3割", "itibu3", "Kyuufu_3"}};
  for (const auto& row : rows) {
    Filled filled;
    filled.set({{u"一部負担金", row.share}});
    EXPECT_EQ(filled.fill().sheet(), QStringList({"Date=2024/11/05", QString::fromUtf8(row.circle) + u'=',
                                                  QString::fromUtf8(row.line) + u'='}));
  }
}

TEST(RightBox, FiveMarksServeSixTicks) {
  const struct {
    const char16_t* column;
    const char* mark;
  } rows[] = {{u"本人", "hutan1"},  {u"就学前", "hutan2"}, {u"家族", "hutan3"},
              {u"高齢9", "hutan4"}, {u"高齢8", "hutan5"},  {u"高齢7", "hutan5"}};
  for (const auto& row : rows) {
    Filled filled;
    filled.set({{row.column, u"1"}});
    EXPECT_EQ(filled.fill().sheet(), QStringList({"Date=2024/11/05", QString::fromUtf8(row.mark) + u'='}));
  }
  Filled filled;
  filled.source.form.insuredMark = true;
  EXPECT_TRUE(filled.marked("hutan1"));
}

TEST(KindOfInsurance, OneCircle) {
  const struct {
    const char16_t *kind, *printed;
    const char* mark;
  } rows[] = {{u"国保", u"国民健保", "H_M_Circle1"},
              {u"全国健康保険協会", u"", "H_M_Circle1"},
              {u"国保", u"公費負担", "H_M_Circle2"},
              {u"後期高齢", u"後期高齢", "H_M_Circle3"}};
  for (const auto& row : rows) {
    Filled filled;
    filled.set({{u"保険の種類", row.kind}, {u"保険の種類3", row.printed}});
    SpyEngine& engine = filled.fill();
    for (const char* mark : {"H_M_Circle1", "H_M_Circle2", "H_M_Circle3"})
      EXPECT_EQ(engine.marked(QString::fromUtf8(mark)), std::string_view(mark) == row.mark);
  }
}

TEST(InsurerName, TakesTheAddresseesWord) {
  Filled filled;
  filled.set({{u"区市町村名称", u"架空"}, {u"保険の種類", u"組合"}, {u"c6", u" "}});
  EXPECT_EQ(filled["Name48"], QStringLiteral("架空"));  // a blank word: as it stands
  filled.set({{u"c6", u""}});
  EXPECT_EQ(filled["Name48"], QStringLiteral("架空健康保険組合長"));  // never chosen: of the kind
  filled.set({{u"保険の種類", u"全国健康保険協会"}, {u"c6", u"全国健康保険協会支部長"}});
  EXPECT_EQ(filled["Name48_1"], QStringLiteral("全国健康保険協会架空支部長"));
  EXPECT_FALSE(filled.marked("Name48"));
}

TEST(FirstTreatment, CirclesTheKindOfTheFirstTreatedDay) {
  const struct {
    const char16_t* code;
    const char* word;
  } rows[] = {{u"a", "はり"},   {u"b", "はり"},           {u"c", "きゅう"},
              {u"d", "きゅう"}, {u"e", "はりきゅう併用"}, {u"f", "はりきゅう併用"}};
  for (const auto& row : rows) {
    Filled filled;
    filled.set({{u"初回有無", u"-1"}, {u"治療内容9", row.code}, {u"治療内容20", u"a"}});
    EXPECT_EQ(filled["syokaijutu3"], QString::fromUtf8(row.word));
    filled.set({{u"初回有無", u"0"}});
    EXPECT_FALSE(filled.marked("syokaijutu3"));
  }
}

TEST(Person, MassageHasNoDiseasesAndAcupunctureNoSymptoms) {
  Filled massage(PrintKind::Massage), hari;
  for (Filled* filled : {&massage, &hari})
    filled->set({{u"傷病名1", u"1"},
                 {u"傷病名7", u"他"},
                 {u"傷病名8", u"付"},
                 {u"同意症状", u"筋萎縮"},
                 {u"d3", u"4"}});
  EXPECT_EQ(massage.fill().sheet(), QStringList({"Date=2024/11/05", "Syoujyou=筋萎縮", "kaisu1_1=4"}));
  EXPECT_EQ(hari.fill().sheet(),
            QStringList({"Date=2024/11/05", "Name49=他", "Name50=(付)", "syoubyou1=", "syoubyou7="}));
}

}  // namespace
}  // namespace printing::tests
