#include "records/screens/visit_dialogs.h"

#include <gtest/gtest.h>

#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/screen/testing/screen_probe.h"
#include "platform/store/bulk.h"
#include "platform/store/tables/visits.h"
#include "records/tests/screens/records_fixture.h"

// カルテ2の抽出 and ソート5 over a list of visits.

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr screen::GridColumn kColumns[] = {{visits::date, u"治療日時"}};
constexpr screen::Row kListRows[] = {
    screen::Grid{.name = {u"DBGrid1"}, .caption = u"治療の一覧表", .columns = kColumns}};
constexpr screen::ScreenRow kList = screen::declare(
    {.name = routes::VisitLedger::screen, .caption = u"カルテ", .rows = kListRows, .sources = visits::table});

/// A bare list of visits in the place of the ledger.
class VisitList : public screen::ListScreen {
 public:
  VisitList(screen::Services& services, const QString& path) : ListScreen(kList, services), m_path(path) {}
  void onLoad() override { openWhole(); }
  QStringList dates() const {
    QStringList dates;
    for (int row = 0; row < source().rows().recordCount(); ++row)
      dates << source().rows().valueAt(row, u"治療日時"_s);
    return dates;
  }

 protected:
  bool openWhole() override { return source().open(m_path); }
  QString noRowsText() const override { return u"０件"_s; }

 private:
  QString m_path;
};

class VisitDialogsTest : public test::RecordsFixture {
 protected:
  void SetUp() override {
    RecordsFixture::SetUp();
    makeFile(kVisits);
    registry.add(u"治療台帳3"_s,
                 [this](screen::Services& all) { return std::make_unique<VisitList>(all, path(kVisits)); });
    ASSERT_TRUE(store::addRows(path(kVisits), u"カルテ"_s,
                               {{{u"治療日時"_s, u"令和2年1月5日"_s},
                                 {u"治療日チェック"_s, u"2020/1/5"_s},
                                 {u"治療概略"_s, u"腰"_s},
                                 {u"治療金額"_s, u"1600"_s},
                                 {u"領収証チェック"_s, u"-1"_s}},
                                {{u"治療日時"_s, u"平成30年2月1日"_s},
                                 {u"治療日チェック"_s, u"2018/2/1"_s},
                                 {u"治療概略"_s, u"肩"_s},
                                 {u"保険者負担金"_s, u"1120"_s},
                                 {u"保険の一部負担金"_s, u"480"_s},
                                 {u"新患"_s, u"-1"_s}}}));
    navigator.show(u"治療台帳3"_s);
  }
  QStringList dates() { return dynamic_cast<VisitList*>(navigator.loaded(u"治療台帳3"_s))->dates(); }
  void search(const QString& column, const QString& word) {
    navigator.unload(u"治療台帳3"_s);
    navigator.show(u"治療台帳3"_s);
    screen::Screen& dialog = shown(u"カルテ2の抽出");
    dialog.setText(u"Combo1"_s, column);
    dialog.setText(u"Text1"_s, word);
    dialog.trigger(u"Command1"_s);
  }
  void sort(const QString& column, const QString& button) {
    screen::Screen& dialog = shown(u"ソート5");
    dialog.setText(u"Combo1"_s, column);
    dialog.trigger(button);
  }
  const QString kVisits = u"カルテ2データ2000.mdb"_s;
  const QStringList kFirst{u"令和2年1月5日"_s}, kSecond{u"平成30年2月1日"_s};
};

TEST_F(VisitDialogsTest, TheSearchOffersItsColumnsAndItsHelp) {
  screen::Screen& dialog = shown(u"カルテ2の抽出");
  EXPECT_EQ(dialog.items(u"Combo1"_s),
            QStringList({u"治療日時"_s, u"治療概略"_s, u"保険者負担金"_s, u"保険の一部負担金"_s,
                         u"治療金額"_s, u"領収証チェック"_s, u"新患"_s}));
  EXPECT_EQ(
      dialog.caption(u"Label1"_s),
      u"※１年分の場合は、左側を「治療日時」にして、この欄に「令和2年」と入力すると、令和2年のみ表示されます。"
      u"1ケ月分は、「令和2年1月」の"_s);
  EXPECT_TRUE(channel.said().filter(dialog.caption(u"Label1"_s)).size() == 1) << "the help is heard";
}

TEST_F(VisitDialogsTest, EachColumnIsSearched) {
  search(u"治療日時"_s, u"令和2年"_s);
  EXPECT_EQ(dates(), kFirst);
  search(u"治療概略"_s, u"肩"_s);
  EXPECT_EQ(dates(), kSecond);
  search(u"保険者負担金"_s, u"112"_s);
  EXPECT_EQ(dates(), kSecond);
  search(u"保険の一部負担金"_s, u"480"_s);
  EXPECT_EQ(dates(), kSecond);
  search(u"治療金額"_s, u"16"_s);
  EXPECT_EQ(dates(), kFirst);
  EXPECT_EQ(messages.texts(), QStringList());
}

TEST_F(VisitDialogsTest, MarksAreSearchedByYesAndNo) {
  for (const QString& yes : {u"Yes"_s, u"yes"_s}) {
    search(u"領収証チェック"_s, yes);
    EXPECT_EQ(dates(), kFirst) << yes.toStdString();
    search(u"新患"_s, yes);
    EXPECT_EQ(dates(), kSecond) << yes.toStdString();
  }
  for (const QString& no : {u"No"_s, u"no"_s}) {
    search(u"領収証チェック"_s, no);
    EXPECT_EQ(dates(), kSecond) << no.toStdString();
    search(u"新患"_s, no);
    EXPECT_EQ(dates(), kFirst) << no.toStdString();
  }
}

TEST_F(VisitDialogsTest, ABlankTextDoesNothingAndNoHitIsReported) {
  search(u"治療概略"_s, QString());
  EXPECT_EQ(dates().size(), 2);
  EXPECT_EQ(messages.texts(), QStringList());
  search(u"治療概略"_s, u"膝"_s);
  EXPECT_EQ(messages.texts(), QStringList(u"該当がありません。"_s));
  EXPECT_EQ(messages.titles(), QStringList(u"Not found"_s));
  EXPECT_EQ(dates().size(), 2);
}

TEST_F(VisitDialogsTest, DatesAreSortedByTheirShadow) {
  sort(u"治療日時"_s, u"Command1"_s);
  EXPECT_EQ(dates(), kSecond + kFirst);
  sort(u"治療日時"_s, u"Command3"_s);
  EXPECT_EQ(dates(), kFirst + kSecond);
}

TEST_F(VisitDialogsTest, TheSummaryIsOfferedByANameThatTheTableLacks) {
  sort(u"治療概要"_s, u"Command1"_s);
  EXPECT_TRUE(lastMessage().startsWith(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :"_s))
      << lastMessage().toStdString();
  EXPECT_EQ(dates(), kFirst + kSecond);
}

TEST_F(VisitDialogsTest, TheOtherChoicesAreColumns) {
  EXPECT_EQ(
      shown(u"ソート5").items(u"Combo1"_s),
      QStringList({u"治療日時"_s, u"治療概要"_s, u"保険者負担金"_s, u"保険の一部負担金"_s, u"治療金額"_s}));
  for (const QString& column : {u"保険者負担金"_s, u"保険の一部負担金"_s, u"治療金額"_s})
    sort(column, u"Command3"_s);
  EXPECT_EQ(messages.texts(), QStringList());
}

class VisitScreenTest : public VisitDialogsTest, public testing::WithParamInterface<QString> {};

TEST_P(VisitScreenTest, EveryControlIsNamedSpokenAndReached) {
  addNamed({u"見本 一"_s});
  screen::Screen* screen = navigator.show(GetParam());
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(screen->objectName(), GetParam());
  screen::testing::ScreenProbe probe(*screen, channel);
  probe.open();
  EXPECT_EQ(probe.faults(), QStringList());
  EXPECT_EQ(probe.unknownColumns({kFile}), QStringList());
}
INSTANTIATE_TEST_SUITE_P(Screens, VisitScreenTest,
                         testing::Values(u"治療台帳2"_s, u"カルテ2の抽出"_s, u"ソート5"_s));

}  // namespace
}  // namespace records
