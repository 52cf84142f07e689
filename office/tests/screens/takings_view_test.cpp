#include "office/tests/screens/takings_fixture.h"

// What the takings list: a day, a month, a text, an order.

namespace office {
namespace {

using namespace Qt::Literals::StringLiterals;

using TakingsTest = test::TakingsFixture;

TEST_F(TakingsTest, OpensOnToday) {
  addDates({u"令和6年6月14日"_s, u"令和6年6月15日"_s});
  screen::Screen& screen = takings();
  EXPECT_EQ(screen.text(u"Combo1"_s), u"2024"_s);
  EXPECT_EQ(screen.text(u"Combo2"_s), u"6"_s);
  EXPECT_EQ(screen.text(u"Combo3"_s), u"15"_s);
  EXPECT_EQ(screen.text(u"Text1"_s), u"令和6年6月"_s);
  EXPECT_EQ(screen.text(u"Label4"_s), u"2"_s);
  EXPECT_EQ(screen.items(u"Combo1"_s).first(), u"2000"_s);
  EXPECT_EQ(screen.items(u"Combo2"_s).size(), 12);
  EXPECT_EQ(screen.items(u"Combo3"_s).size(), 31);
  EXPECT_TRUE(channel.said().contains(sentence({u"集計"_s, u"治療総数:"_s, u"2"_s})));
  EXPECT_EQ(takeMessages(), QStringList());
}

TEST_F(TakingsTest, TheMainMenuLeadsToTheLastVisit) {
  addDates({u"令和6年6月14日"_s, u"令和6年6月15日"_s, u"令和6年6月13日"_s});
  screen::Screen& screen = takings(routes::Takings{.lastRow = true});
  EXPECT_EQ(screen.source().rows().value(u"治療日時"_s), u"令和6年6月13日"_s);
}

TEST_F(TakingsTest, EmptyFileOpensFromTheMainMenu) {
  screen::Screen& screen = takings(routes::Takings{.lastRow = true});
  EXPECT_EQ(screen.text(u"Label4"_s), u"0"_s);
  EXPECT_EQ(takeMessages(), QStringList());
}

TEST_F(TakingsTest, ADayShowsItsVisitsAndSaysHowMany) {
  addDates({u"令和6年6月14日"_s, u"令和6年6月15日"_s, u"令和6年6月1日"_s, u"令和6年6月15日"_s});
  screen::Screen& screen = takings();
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(listed(), QStringList({u"見本 2"_s, u"見本 4"_s}));
  EXPECT_EQ(screen.text(u"Label4"_s), u"2"_s);
  EXPECT_TRUE(channel.heardWhole().contains(sentence({u"令和6年6月15日"_s, u"治療総数:"_s, u"2"_s})))
      << "not cut off by the list that has the keyboard now";
  EXPECT_EQ(screen.focused(), u"DBGrid1"_s);
  EXPECT_EQ(takeMessages(), QStringList());
}

TEST_F(TakingsTest, ADayMissesWhatWasTypedInWesternForm) {
  addDates({u"2024/6/15"_s, u"令和6年6月15日"_s, u"R6/6/15"_s});
  takings().trigger(u"Command1"_s);
  EXPECT_EQ(listed(), QStringList(u"見本 2"_s));
}

TEST_F(TakingsTest, TheListHasItsColumns) {
  QStringList headers = headersOf(takings(), u"DBGrid1"_s);
  for (const QString& column :
       {u"治療日時"_s, u"氏名"_s, u"治療概略"_s, u"保険者負担金"_s, u"保険の一部負担金"_s, u"治療金額"_s,
        u"領収証チェック"_s, u"新患"_s, u"生年月日"_s})
    EXPECT_EQ(headers.removeAll(column), 1) << column.toStdString();
  EXPECT_EQ(headers, QStringList());
}

struct DayRow {
  const char16_t *year, *month, *day;
  const char16_t* found;
};

// A day that does not exist is the one that the date function makes of it.
TEST_F(TakingsTest, DaysAreRolledAndWrittenInTheirEra) {
  const DayRow rows[] = {{u"2024", u"2", u"31", u"令和6年3月2日"}, {u"2023", u"2", u"29", u"令和5年3月1日"},
                         {u"2024", u"6", u"31", u"令和6年7月1日"}, {u"2019", u"4", u"30", u"平成31年4月30日"},
                         {u"2019", u"5", u"1", u"令和1年5月1日"},  {u"2000", u"1", u"1", u"平成12年1月1日"}};
  QStringList dates;
  for (const DayRow& row : rows) dates += QString::fromUtf16(row.found);
  addDates(dates);
  screen::Screen& screen = takings();
  for (const DayRow& row : rows) {
    screen.trigger(u"cmdRefresh"_s);
    askFor(screen, QString::fromUtf16(row.year), QString::fromUtf16(row.month), QString::fromUtf16(row.day));
    EXPECT_EQ(listed(u"治療日時"_s), QStringList(QString::fromUtf16(row.found)));
  }
}

TEST_F(TakingsTest, APlatformWithoutTheEraFindsTheSameDaysAndMonths) {
  run.eraCapability = frame::EraCapability::Unsupported;
  addDates({u"令和6年6月15日"_s, u"令和6年5月15日"_s});
  screen::Screen& screen = takings();
  EXPECT_EQ(screen.text(u"Text1"_s), u"令和6年6月"_s);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(listed(), QStringList(u"見本 1"_s));
}

TEST_F(TakingsTest, AMonthIsThePrefixOfItsDays) {
  addDates({u"令和6年1月31日"_s, u"令和6年10月1日"_s, u"令和6年1月4日"_s, u"2024/1/5"_s, u"令和5年1月1日"_s});
  screen::Screen& screen = takings();
  screen.setText(u"Text1"_s, u"令和6年1月"_s);
  screen.trigger(u"Command6"_s);
  EXPECT_EQ(listed(), QStringList({u"見本 1"_s, u"見本 3"_s}));
  EXPECT_TRUE(channel.heardWhole().contains(sentence({u"令和6年1月"_s, u"治療総数:"_s, u"2"_s})));
  screen.trigger(u"cmdRefresh"_s);
  screen.setText(u"Text1"_s, u"令和6年"_s);
  screen.trigger(u"Command6"_s);
  EXPECT_EQ(listed(), QStringList({u"見本 1"_s, u"見本 2"_s, u"見本 3"_s}));
}

TEST_F(TakingsTest, ABlankMonthIsAskedForAndChangesNothing) {
  addDates({u"令和6年6月15日"_s, u"令和6年5月15日"_s});
  screen::Screen& screen = takings();
  screen.setText(u"Text1"_s, QString());
  screen.trigger(u"Command6"_s);
  EXPECT_EQ(listed().size(), 2);
  EXPECT_EQ(screen.focused(), u"Text1"_s);
  EXPECT_EQ(takeMessages(), QStringList());
  channel.clear();
  screen.trigger(u"Command6"_s);
  EXPECT_EQ(channel.lastSaid(), u"指定月:"_s) << "said also where the focus was there already";
}

TEST_F(TakingsTest, EnterInTheMonthShowsIt) {
  addDates({u"令和6年6月15日"_s, u"令和6年5月15日"_s});
  screen::Screen& screen = takings();
  screen::testing::ScreenProbe probe(screen, channel);
  probe.open();
  screen.focusOn(u"Text1"_s);
  probe.press(Qt::Key_Return);
  EXPECT_EQ(listed(), QStringList(u"見本 1"_s));
}

TEST_F(TakingsTest, NoHitIsReportedAndLeavesTheListAsItWas) {
  addDates({u"令和6年6月14日"_s, u"令和6年6月13日"_s});
  screen::Screen& screen = takings(routes::Takings{.lastRow = true});
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(messages.titles(), QStringList(u"Not found"_s));
  EXPECT_EQ(takeMessages(), QStringList(kNotFound));
  EXPECT_EQ(listed().size(), 2);
  EXPECT_EQ(screen.source().rows().absolutePosition(), 1);
  EXPECT_EQ(screen.text(u"Label4"_s), u"2"_s);
}

TEST_F(TakingsTest, EmptyListIsReportedInTheWordsOfEachCommand) {
  screen::Screen& screen = takings();
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(takeMessages(), QStringList(u"検索データが０件です。「全表示に戻す」をクリックして下さい。"_s));
  for (const QString& command : {u"Command6"_s, u"Command7"_s, u"Command8"_s}) {
    screen.trigger(command);
    EXPECT_EQ(takeMessages(), QStringList(kNoRows)) << command.toStdString();
  }
  EXPECT_FALSE(isShown(u"ソート2"));
  EXPECT_FALSE(isShown(u"治療台帳4"));
}

TEST_F(TakingsTest, TheFilterStaysUntilAllAreShown) {
  addVisits({{{u"治療日時"_s, u"令和6年6月15日"_s}, {u"氏名"_s, u"見本 太郎"_s}},
             {{u"治療日時"_s, u"令和6年6月15日"_s}, {u"氏名"_s, u"例示 花子"_s}},
             {{u"治療日時"_s, u"令和6年5月1日"_s}, {u"氏名"_s, u"見本 太郎"_s}}});
  screen::Screen& screen = takings();
  screen.trigger(u"Command6"_s);
  screen::Screen& extract = shown(u"集計抽出");
  extract.setText(u"Text1"_s, u"太郎"_s);
  extract.trigger(u"Command1"_s);
  EXPECT_EQ(listed(u"治療日時"_s), QStringList(u"令和6年6月15日"_s)) << "searched in the month on view";
  screen.trigger(u"cmdRefresh"_s);
  EXPECT_EQ(listed().size(), 3);
  EXPECT_TRUE(channel.heardWhole().contains(sentence({u"全患者を表示しました"_s, u"治療総数:"_s, u"3"_s})));
}

TEST_F(TakingsTest, AllAreReadAgainFromTheFile) {
  addDates({u"令和6年6月15日"_s});
  screen::Screen& screen = takings();
  addDates({u"令和6年6月15日"_s});
  EXPECT_EQ(screen.text(u"Label4"_s), u"1"_s);
  screen.trigger(u"cmdRefresh"_s);
  EXPECT_EQ(screen.text(u"Label4"_s), u"2"_s);
}

struct ExtractCase {
  QString column;
  QString typed;
  QStringList found;
};

class TakingsExtractTest : public test::TakingsFixture, public testing::WithParamInterface<ExtractCase> {};

TEST_P(TakingsExtractTest, FindsThePartOfTheText) {
  addVisits({{{u"氏名"_s, u"見本 一"_s},
              {u"生年月日"_s, u"昭和40年1月2日"_s},
              {u"治療日時"_s, u"令和6年6月1日"_s},
              {u"治療概略"_s, u"腰部へ施術"_s},
              {u"保険者負担金"_s, u"1120"_s},
              {u"保険の一部負担金"_s, u"480"_s},
              {u"治療金額"_s, u"1600"_s},
              {u"領収証チェック"_s, u"-1"_s},
              {u"新患"_s, u"0"_s}},
             {{u"氏名"_s, u"例示 二"_s}, {u"領収証チェック"_s, u"0"_s}, {u"新患"_s, u"-1"_s}}});
  takings();
  screen::Screen& dialog = shown(u"集計抽出");
  dialog.setText(u"Combo1"_s, GetParam().column);
  dialog.setText(u"Text1"_s, GetParam().typed);
  dialog.trigger(u"Command1"_s);
  EXPECT_EQ(listed(), GetParam().found);
  EXPECT_EQ(takeMessages(), QStringList());
}

const QStringList kOne{u"見本 一"_s}, kTwo{u"例示 二"_s};
INSTANTIATE_TEST_SUITE_P(
    Columns, TakingsExtractTest,
    testing::Values(ExtractCase{u"氏名"_s, u"見本"_s, kOne}, ExtractCase{u"生年月日"_s, u"40年"_s, kOne},
                    ExtractCase{u"治療日時"_s, u"6月"_s, kOne}, ExtractCase{u"治療概略"_s, u"腰"_s, kOne},
                    ExtractCase{u"保険者負担金"_s, u"112"_s, kOne},
                    ExtractCase{u"保険の一部負担金"_s, u"480"_s, kOne},
                    ExtractCase{u"治療金額"_s, u"16"_s, kOne},
                    ExtractCase{u"領収証チェック"_s, u"Yes"_s, kOne},
                    ExtractCase{u"領収証チェック"_s, u"no"_s, kTwo}, ExtractCase{u"新患"_s, u"yes"_s, kTwo},
                    ExtractCase{u"新患"_s, u"No"_s, kOne}));

TEST_F(TakingsTest, TheExtractionSaysHowManyWereFoundAndGoesBackToTheList) {
  addDates({u"令和6年6月15日"_s, u"令和6年6月14日"_s, u"令和6年5月1日"_s});
  takings();
  screen::Screen& dialog = shown(u"集計抽出");
  dialog.setText(u"Combo1"_s, u"治療日時"_s);
  dialog.setText(u"Text1"_s, u"6月"_s);
  dialog.trigger(u"Command1"_s);
  EXPECT_TRUE(channel.heardWhole().contains(sentence({u"抽出しました"_s, u"治療総数:"_s, u"2"_s})));
  EXPECT_FALSE(isShown(u"集計抽出"));
}

TEST_F(TakingsTest, QuoteGivesTheDatabaseErrorAndNothingElse) {
  addDates({u"令和6年6月15日"_s, u"令和6年6月14日"_s});
  screen::Screen& screen = takings();
  screen.setText(u"Text1"_s, u"令和' or '1'='1"_s);
  screen.trigger(u"Command6"_s);
  EXPECT_TRUE(lastMessage().startsWith(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :"_s))
      << lastMessage().toStdString();
  EXPECT_EQ(listed().size(), 2);
}

TEST_F(TakingsTest, DatesAreSortedByTheirShadow) {
  addVisits(
      {{{u"氏名"_s, u"平成"_s}, {u"治療日時"_s, u"平成30年1月1日"_s}, {u"治療日チェック"_s, u"2018/1/1"_s}},
       {{u"氏名"_s, u"昭和"_s}, {u"治療日時"_s, u"昭和60年1月1日"_s}, {u"治療日チェック"_s, u"1985/1/1"_s}},
       {{u"氏名"_s, u"令和"_s}, {u"治療日時"_s, u"令和2年1月1日"_s}, {u"治療日チェック"_s, u"2020/1/1"_s}}});
  screen::Screen& screen = takings();
  screen.trigger(u"Command7"_s);
  screen::Screen* dialog = navigator.loaded(u"ソート2"_s);
  ASSERT_NE(dialog, nullptr);
  dialog->setText(u"Combo1"_s, u"治療日時"_s);
  dialog->trigger(u"Command3"_s);
  EXPECT_EQ(listed(), QStringList({u"令和"_s, u"平成"_s, u"昭和"_s}));
  EXPECT_TRUE(channel.heardWhole().contains(sentence({u"並び替えました"_s, u"治療総数:"_s, u"3"_s})));
}

TEST_F(TakingsTest, EveryColumnOfTheSortDialogIsAColumnOfTheTable) {
  addDates({u"令和6年6月15日"_s});
  takings();
  for (const QString& column : shown(u"ソート2").items(u"Combo1"_s)) {
    screen::Screen& dialog = shown(u"ソート2");
    dialog.setText(u"Combo1"_s, column);
    dialog.trigger(u"Command1"_s);
    EXPECT_EQ(takeMessages(), QStringList()) << column.toStdString();
  }
}

TEST_F(TakingsTest, TheRecordKeysSayWhereTheyLedTo) {
  addDates({u"令和6年6月14日"_s, u"令和6年6月15日"_s});
  screen::Screen& screen = takings();
  screen::testing::ScreenProbe probe(screen, channel);
  probe.open();
  probe.press(Qt::Key_F4);
  EXPECT_EQ(channel.lastSaid(), sentence({u"ﾚｺｰﾄﾞ: 2"_s, u"令和6年6月15日"_s, u"見本 2"_s}));
}

TEST_F(TakingsTest, MissingFileIsReportedByName) {
  ASSERT_TRUE(QFile::remove(path(kFile)));
  screen::Screen& screen = takings();
  for (const QString& command : {u"Command1"_s, u"Command2"_s, u"cmdRefresh"_s}) {
    screen.trigger(command);
    EXPECT_TRUE(lastMessage().contains(kFile)) << command.toStdString();
    EXPECT_EQ(takeMessages().size(), 1) << command.toStdString();
  }
  EXPECT_FALSE(isShown(u"集計総合金額"));
}

}  // namespace
}  // namespace office
