#include "claims/tests/screens/claim_list_fixture.h"

// The claim list: order, search, sort, what stands in it and when.

namespace claims {
namespace {

const char16_t kNoRows[] = u"検索データが０件です。「全患者表示及び再表示」をクリックして下さい。";
const char16_t kNotFound[] = u"該当がありません。";

/// The keys as the users know them, in the order in which they are offered.
const QStringList kKeys = {qs(u"申請年月"),
                           qs(u"氏名"),
                           qs(u"生年月日"),
                           qs(u"保険の種類"),
                           qs(u"保険証番号1"),
                           qs(u"被保険者のフリガナ"),
                           qs(u"被保険者の氏名"),
                           qs(u"被保険者の生年月日"),
                           qs(u"療養を受ける者のフリガナ"),
                           qs(u"療養を受ける者の氏名"),
                           qs(u"療養を受ける者の生年月日"),
                           qs(u"事業所の名称"),
                           qs(u"事業所の所在地"),
                           qs(u"保険者番号"),
                           qs(u"初療年月日"),
                           qs(u"同意医師住所"),
                           qs(u"同意医師氏名"),
                           qs(u"同意の年月日"),
                           qs(u"申請月"),
                           qs(u"要加療期間2")};

TEST_F(ClaimListTest, TheNewestClaimIsAtTheTop) {
  for (int i = 0; i < 3; ++i) add(acupuncture());
  openList();
  EXPECT_EQ(shown(), QStringList({qs(u"3"), qs(u"2"), qs(u"1")}));
  EXPECT_EQ(m_list->text(qs(u"Text2")), qs(u"ﾚｺｰﾄﾞ: 1"));
  m_list->source().moveTo(2);
  EXPECT_EQ(m_list->text(qs(u"Text2")), qs(u"ﾚｺｰﾄﾞ: 3"));
  EXPECT_EQ(told(), QStringList());
}

TEST_F(ClaimListTest, TheKeysAreOfferedInTheirOrder) {
  openList();
  EXPECT_EQ(m_list->items(qs(u"Combo1")), kKeys);
  EXPECT_EQ(m_list->text(qs(u"Combo1")), kKeys.front()) << "a search has a key from the start";
}

class ClaimListKeys : public ClaimListTest, public testing::WithParamInterface<int> {};

TEST_P(ClaimListKeys, FindsThePartOfTheTextInIdOrder) {
  const QString key = kKeys[GetParam()];
  for (const char16_t* value : {u"甲見本乙", u"別", u"見本"}) {
    ClaimRecord claim;
    claim.setNamed(key, qs(value));
    add(claim);
  }
  openList();
  search(reinterpret_cast<const char16_t*>(key.utf16()), qs(u"見本"));
  EXPECT_EQ(shown(), QStringList({qs(u"1"), qs(u"3")}));
  EXPECT_EQ(told(), QStringList());
}
INSTANTIATE_TEST_SUITE_P(Keys, ClaimListKeys, testing::Range(0, 20));

TEST_F(ClaimListTest, SaysHowManyClaimsAreOnView) {
  for (const char16_t* name : {u"見本 太郎", u"例示 花子", u"見本 次郎"}) addNamed(name);
  openList();
  activate();
  m_channel.clear();
  search(u"氏名", qs(u"見本"));
  EXPECT_TRUE(m_channel.said().contains(qs(u"抽出しました") + voice::kSpeechSeparator + qs(u"2件です。")));
  m_channel.clear();
  press(u"cmdRefresh");
  EXPECT_TRUE(
      m_channel.said().contains(qs(u"全患者を表示しました") + voice::kSpeechSeparator + qs(u"3件です。")));
}

TEST_F(ClaimListTest, ASearchSeesNoDifferenceOfWidthAndKana) {
  addClaim({{u"被保険者のフリガナ", u"ﾐﾎﾝ ﾀﾛｳ"}});
  addClaim({{u"被保険者のフリガナ", u"レイジ ハナコ"}});
  openList();
  search(u"被保険者のフリガナ", qs(u"みほん"));
  EXPECT_EQ(shown(), QStringList(qs(u"1")));
}

TEST_F(ClaimListTest, NoHitIsReportedAndTheListStays) {
  addNamed(u"見本 太郎");
  addNamed(u"例示 花子");
  openList();
  m_list->source().moveTo(1);
  m_messages.forget();
  search(u"氏名", qs(u"架空"));
  EXPECT_EQ(m_messages.texts(), QStringList(qs(kNotFound)));
  EXPECT_EQ(m_messages.titles(), QStringList(qs(u"Not found")));
  EXPECT_EQ(shown(), QStringList({qs(u"2"), qs(u"1")}));
  EXPECT_EQ(m_list->source().rows().absolutePosition(), 1) << "the row is kept too";
  told();
  search(u"氏名", qs(u"例示"));
  EXPECT_EQ(shown(), QStringList(qs(u"2"))) << "the search that failed is forgotten";
}

TEST_F(ClaimListTest, AMissingFileIsReportedByNameNotAsAnEmptyList) {
  ASSERT_TRUE(QFile::remove(path(qs(u"保険申請2000_1.mdb"))));
  openList();
  activate();
  QCoreApplication::processEvents();
  const auto onlyTheFile = [&] {
    const QStringList texts = told();
    return texts.size() == 1 && texts[0].contains(qs(u"保険申請2000_1.mdb"));
  };
  EXPECT_TRUE(onlyTheFile());
  press(u"Command1");
  EXPECT_TRUE(onlyTheFile()) << "each command tells it again";
}

TEST_F(ClaimListTest, AQuoteGivesTheEnginesTextAndNothingElse) {
  for (const char16_t* name : {u"見本 太郎", u"例示 花子"}) addNamed(name);
  openList();
  for (const char16_t* word : {u"見本' or '1'='1", u"'", u"x'; DELETE FROM 保険申請; --"}) {
    m_messages.forget();
    search(u"氏名", qs(word));
    const QStringList texts = told();
    ASSERT_EQ(texts.size(), 1) << qs(word).toStdString();
    EXPECT_TRUE(texts[0].startsWith(qs(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :"))) << texts[0].toStdString();
    EXPECT_GT(texts[0].size(), 24) << "the engine's own words stand behind the label";
    EXPECT_EQ(shown(), QStringList({qs(u"2"), qs(u"1")}));
  }
  search(u"氏名", qs(u"見本"));
  EXPECT_EQ(shown(), QStringList(qs(u"1")));
}

TEST_F(ClaimListTest, ASecondSearchNarrowsTheFirstUntilAllAreShown) {
  addClaim({{u"氏名", u"見本 太郎"}, {u"申請年月", u"令和6年9月"}});
  addClaim({{u"氏名", u"見本 太郎"}, {u"申請年月", u"令和6年10月"}});
  addClaim({{u"氏名", u"例示 花子"}, {u"申請年月", u"令和6年10月"}});
  openList();
  search(u"氏名", qs(u"見本"));
  search(u"申請年月", qs(u"10月"));
  EXPECT_EQ(shown(), QStringList(qs(u"2")));
  press(u"cmdRefresh");
  EXPECT_EQ(shown(), QStringList({qs(u"3"), qs(u"2"), qs(u"1")}));
}

TEST_F(ClaimListTest, EnterInTheWordSearches) {
  addNamed(u"見本 太郎");
  addNamed(u"例示 花子");
  openList();
  activate();
  m_list->setText(qs(u"Combo1"), qs(u"氏名"));
  m_list->focusOn(qs(u"Text1"));
  m_list->setText(qs(u"Text1"), qs(u"太郎"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(shown(), QStringList(qs(u"1")));
  EXPECT_EQ(m_list->focused(), qs(u"DBGrid1")) << "the hits have the focus";
}

TEST_F(ClaimListTest, SortsBothWaysWhatIsOnView) {
  addClaim({{u"氏名", u"い"}, {u"申請月", u"1"}});
  addClaim({{u"氏名", u"あ"}, {u"申請月", u"1"}});
  addClaim({{u"氏名", u"う"}, {u"申請月", u"2"}});
  openList();
  m_list->opened(routes::ClaimList{.criteria = {}, .order = qs(u"氏名 ASC")});
  EXPECT_EQ(shown(u"氏名"), QStringList({qs(u"あ"), qs(u"い"), qs(u"う")}));
  m_list->opened(routes::ClaimList{.criteria = {}, .order = qs(u"氏名 DESC")});
  EXPECT_EQ(shown(u"氏名"), QStringList({qs(u"う"), qs(u"い"), qs(u"あ")}));
  search(u"申請月", qs(u"1"));
  m_list->opened(routes::ClaimList{.criteria = {}, .order = qs(u"氏名 ASC")});
  EXPECT_EQ(shown(u"氏名"), QStringList({qs(u"あ"), qs(u"い")}));
}

TEST_F(ClaimListTest, ThePatientsScreenOpensItNarrowed) {
  addClaim({{u"番号1", u"20240401001"}});
  addClaim({{u"番号1", u"20240401002"}});
  addClaim({{u"番号1", u"20240401001"}});
  openList(routes::ClaimList{.criteria = qs(u"番号1 ='20240401001' "), .order = {}});
  EXPECT_EQ(shown(), QStringList({qs(u"3"), qs(u"1")})) << "newest first";
}

TEST_F(ClaimListTest, APatientWithoutClaimsGivesAnEmptyList) {
  addClaim({{u"番号1", u"20240401001"}});
  openList(routes::ClaimList{.criteria = qs(u"番号1 ='20240401009' "), .order = {}});
  EXPECT_EQ(shown(), QStringList());
  activate();
  EXPECT_EQ(told(), QStringList(qs(kNoRows)));
  press(u"cmdRefresh");
  EXPECT_EQ(shown(), QStringList(qs(u"1")));
}

TEST_F(ClaimListTest, ANewRowComesInWithRefreshOnly) {
  add(acupuncture());
  openList();
  add(acupuncture());
  m_list->opened({});  // back from the claim form
  EXPECT_EQ(shown(), QStringList(qs(u"1")));
  press(u"Command6");
  EXPECT_EQ(shown(), QStringList({qs(u"2"), qs(u"1")}));
}

TEST_F(ClaimListTest, WhatTheFormStoredIsInTheListAtOnce) {
  const qint64 id = add(acupuncture());
  openList();
  ASSERT_EQ(shown(u"合計"), QStringList(QString()));
  ClaimRecord changed;
  changed.setNamed(qs(u"合計"), qs(u"4990"));
  ASSERT_TRUE(file().store(id, stored(id), changed).ok());
  EXPECT_EQ(shown(u"合計"), QStringList(qs(u"4990")));
}

TEST_F(ClaimListTest, AnEmptyListAnswersSoToEveryCommandOnRows) {
  openList();
  told();
  for (const char16_t* command : {u"Command7", u"Command3", u"Command1"}) {
    press(command);
    EXPECT_EQ(told(), QStringList(qs(kNoRows))) << qs(command).toStdString();
  }
  EXPECT_TRUE(m_navigator.shows.isEmpty());
  press(u"cmdDelete");
  EXPECT_EQ(told(), QStringList(qs(u"削除するデータがありません。")));
}

TEST_F(ClaimListTest, AnEmptyListSaysSoOnceItHasTheKeyboard) {
  openList();
  EXPECT_EQ(told(), QStringList());
  activate();
  EXPECT_EQ(told(), QStringList(qs(kNoRows)));
  m_list->onActivate();
  QCoreApplication::processEvents();
  EXPECT_EQ(told(), QStringList()) << "once for each opening";
}

TEST_F(ClaimListTest, AMissingSecondFileIsReportedAtOpening) {
  add(acupuncture());
  ASSERT_TRUE(QFile::remove(path(qs(u"保険申請2000_2.mdb"))));
  openList();
  const QStringList texts = told();
  ASSERT_EQ(texts.size(), 1);
  EXPECT_TRUE(texts[0].contains(qs(u"保険申請2000_2.mdb"))) << texts[0].toStdString();
  EXPECT_FALSE(QFile::exists(path(qs(u"保険申請2000_2.mdb")))) << "nothing is made in its place";
  EXPECT_EQ(shown(), QStringList(qs(u"1")));
}

/// Columns of the grid whose heading is not the name of their column.
const QHash<QString, QString> kOtherHeadings = {{qs(u"一部負担金"), qs(u"一部負担金2")},
                                                {qs(u"続柄"), qs(u"被保険者との続柄")}};

TEST_F(ClaimListTest, EveryCellOfTheGridIsOfTheColumnThatItsHeadingNames) {
  ClaimRecord claim;
  for (const store::ColumnRow& column : claim::firstHalf.columns())
    if (column.type == store::ColumnType::Text255)
      claim.setNamed(qs(column.name), u'<' + qs(column.name) + u'>');
  const qint64 id = add(claim);
  const QAbstractItemModel* grid = openList().findChild<QTableView*>(qs(u"DBGrid1"))->model();
  ASSERT_EQ(grid->columnCount(), 29);
  for (int column = 0; column < grid->columnCount(); ++column) {
    const QString heading = grid->headerData(column, Qt::Horizontal).toString();
    const QString value =
        heading == u"ID" ? QString::number(id) : u'<' + kOtherHeadings.value(heading, heading) + u'>';
    EXPECT_EQ(grid->index(0, column).data().toString(), value) << heading.toStdString();
  }
}

}  // namespace
}  // namespace claims
