#include "frame/core/routes_unbuilt.h"
#include "platform/screen/list_screen.h"
#include "records/tests/screens/visit_ledger_fixture.h"

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

const QString kNoRows = u"検索データが０件です。「全患者表示及び再表示」をクリックして下さい。"_s;

class VisitLedgerView : public test::VisitLedgerFixture {
 protected:
  void SetUp() override {
    VisitLedgerFixture::SetUp();
    for (const QString& name : {u"ソート5"_s, u"カルテ2の抽出"_s, u"集計総合金額"_s}) standIn(name);
  }
  /// Three visits of P1, one of another patient.
  void addSome() {
    addOn(u"令和2年1月8日"_s, u"2020/1/8"_s, u"一"_s);
    addOn(u"令和2年12月1日"_s, u"2020/12/1"_s, u"二"_s);
    addOn(u"2020/1/20"_s, u"2020/1/20"_s, u"西暦"_s);
    addVisit({{u"氏名"_s, u"例示　花子"_s}, {u"治療日時"_s, u"令和2年1月9日"_s}, {u"治療概略"_s, u"他"_s}},
             u"Q9"_s);
  }
  screen::ListScreen& list() { return dynamic_cast<screen::ListScreen&>(ledger()); }
};

TEST_F(VisitLedgerView, MonthIsAPrefixOfTheDateAsItWasTyped) {
  addSome();
  open();
  for (const auto& [month, hits] : {std::pair(u"令和2年"_s, QStringList{u"一"_s, u"二"_s}),
                                    std::pair(u"令和2年1月"_s, QStringList{u"一"_s})}) {
    press(u"Command7");
    type(u"Text1", month);
    press(u"Command6");
    EXPECT_EQ(onView(u"治療概略"_s), hits) << month.toStdString();
    EXPECT_EQ(label(u"Label14"), QString::number(hits.size()));
    EXPECT_EQ(ledger().focused(), u"DBGrid1"_s);
  }
  EXPECT_TRUE(told().isEmpty());
}

TEST_F(VisitLedgerView, AWesternDateIsMissingFromTheMonthAlsoAfterTheDatePass) {
  addSome();
  open();
  press(u"cmdUpdate");
  type(u"Text1", u"令和2年1月"_s);
  press(u"Men_VM");
  EXPECT_EQ(onView(u"治療概略"_s), QStringList{u"一"_s});
  EXPECT_EQ(visitsStored(u"治療日時"_s)[2], u"2020/1/20"_s);
}

TEST_F(VisitLedgerView, HitsAreSaid) {
  addSome();
  open();
  type(u"Text1", u"令和2年"_s);
  press(u"Command6");
  EXPECT_TRUE(channel.heardWhole().join(u'|').contains(u"治療回数:"_s + QChar(254) + u"2"_s))
      << channel.heardWhole().join(u'|').toStdString();
}

TEST_F(VisitLedgerView, NoHitIsReportedAndTheViewStays) {
  addSome();
  open();
  ledger().goLast();
  type(u"Text1", u"昭和"_s);
  press(u"Command6");
  EXPECT_EQ(told(), QStringList{u"該当がありません。"_s});
  EXPECT_EQ(label(u"Label14"), u"3"_s);
  EXPECT_EQ(label(u"Data1"), u"ﾚｺｰﾄﾞ: 3"_s);
}

TEST_F(VisitLedgerView, NoHitHasItsTitle) {
  addSome();
  open();
  type(u"Text1", u"昭和"_s);
  press(u"Command6");
  EXPECT_EQ(messages.titles().last(), u"Not found"_s);
}

TEST_F(VisitLedgerView, ABlankMonthIsIgnored) {
  addSome();
  open();
  type(u"Text1", QString());
  press(u"Command6");
  EXPECT_TRUE(told().isEmpty());
  EXPECT_EQ(label(u"Label14"), u"3"_s);
}

TEST_F(VisitLedgerView, AQuoteInTheMonthIsReportedAndHarmsNothing) {
  addSome();
  open();
  type(u"Text1", u"令和2年' or 治療概略 like '他"_s);
  press(u"Command6");
  EXPECT_EQ(onView(u"治療概略"_s).size(), 3) << "no other patient's, and none is lost";
  EXPECT_EQ(told().size(), 1);
  type(u"Text1", u"令和'2年"_s);
  press(u"Command6");
  ASSERT_EQ(messages.texts().size(), 1);
  EXPECT_TRUE(lastMessage().startsWith(QString::fromUtf16(screen::kDataControlText)));
  EXPECT_EQ(label(u"Label14"), u"3"_s);
  EXPECT_EQ(value(u"Text1"), u"令和'2年"_s);
}

TEST_F(VisitLedgerView, AnEmptyViewSaysSo) {
  open();
  navigator.loaded(u"カルテ2の新規"_s)->trigger(u"Command2"_s);
  press(u"Command6");
  press(u"Command2");
  EXPECT_EQ(told(), (QStringList{kNoRows, kNoRows}));
  EXPECT_FALSE(list().sortBy(u"治療日チェック ASC"_s));
  EXPECT_EQ(told(), QStringList{u"検索データが０件です。「全会員表示及び再表示」をクリックして下さい。"_s});
}

TEST_F(VisitLedgerView, WhatWasTypedIsWrittenBeforeTheViewChanges) {
  addSome();
  open();
  const char16_t* const commands[] = {u"Command6", u"Command7", u"cmdRefresh", u"Command2"};
  for (const char16_t* command : commands) {
    press(u"Command7");
    const QString id = value(u"Text3");
    type(u"txtFields(3)", QString::fromUtf16(command));
    press(command);
    EXPECT_EQ(visitsStored(u"治療概略"_s)[id.toInt() - 1], QString::fromUtf16(command));
  }
}

TEST_F(VisitLedgerView, WholeViewOfThePatientComesBackInOrder) {
  addSome();
  open();
  type(u"Text1", u"令和2年12月"_s);
  press(u"Command6");
  press(u"Men_VA");
  EXPECT_EQ(onView(u"治療概略"_s), (QStringList{u"一"_s, u"西暦"_s, u"二"_s})) << "8 January before the 20th";
}

TEST_F(VisitLedgerView, TheWholeViewReportsAPatientWithoutVisits) {
  addVisit({{u"氏名"_s, u"例示　花子"_s}}, u"Q9"_s);
  open();
  navigator.loaded(u"カルテ2の新規"_s)->trigger(u"Command2"_s);
  press(u"Command7");
  EXPECT_EQ(told(), QStringList{u"該当がありません。追加ボタンを押し新規登録してください。"_s});
  EXPECT_EQ(label(u"Label14"), u"0"_s);
}

TEST_F(VisitLedgerView, AnEmptyTableOffersTheFirstVisitAgain) {
  open();
  navigator.loaded(u"カルテ2の新規"_s)->trigger(u"Command2"_s);
  settle();
  press(u"Command7");
  EXPECT_TRUE(isShown(u"カルテ2の新規"));
}

TEST_F(VisitLedgerView, AllPatientsAreCountedAndSummed) {
  addVisit({{u"氏名"_s, u"見本　太郎"_s},
            {u"保険者負担金"_s, u"700"_s},
            {u"保険の一部負担金"_s, u"300"_s},
            {u"治療金額"_s, u"1000"_s},
            {u"領収証チェック"_s, u"-1"_s}});
  addVisit({{u"氏名"_s, u"見本　太郎"_s}, {u"治療金額"_s, u"500"_s}});
  addVisit({{u"氏名"_s, u"例示　花子"_s}, {u"治療金額"_s, u"40"_s}, {u"新患"_s, u"-1"_s}}, u"Q9"_s);
  open();
  const auto totals = [&] {
    press(u"Men_VS");
    const routes::Totals route = routeTo<routes::Totals>().value_or(routes::Totals{});
    EXPECT_TRUE(route.ofOnePatient);
    return QList<qint64>{route.rows,      route.insurer,  route.share,
                         route.treatment, route.receipts, route.newPatients};
  };
  ledger().goLast();
  EXPECT_EQ(totals(), (QList<qint64>{2, 700, 300, 1500, 1, 0}));
  EXPECT_EQ(label(u"Data1"), u"ﾚｺｰﾄﾞ: 2"_s);
  press(u"cmdRefresh");
  EXPECT_EQ(label(u"Label14"), u"3"_s);
  EXPECT_EQ(totals(), (QList<qint64>{3, 700, 300, 1540, 1, 1}));
}

TEST_F(VisitLedgerView, SortingAndExtractingWorkOnTheViewByItsListName) {
  addSome();
  open();
  EXPECT_TRUE(list().sortBy(u"治療日チェック DESC"_s));
  EXPECT_EQ(onView(u"治療概略"_s), (QStringList{u"二"_s, u"西暦"_s, u"一"_s}));
  EXPECT_TRUE(list().narrowBy(u"治療概略 like '*一*' "_s));
  EXPECT_EQ(onView(u"治療概略"_s), QStringList{u"一"_s});
  EXPECT_FALSE(list().sortBy(u"治療概要 ASC"_s)) << "not a column";
  EXPECT_TRUE(lastMessage().startsWith(QString::fromUtf16(screen::kDataControlText)));
  press(u"Command13");
  EXPECT_TRUE(isShown(u"ソート5"));
  press(u"Command15");
  EXPECT_TRUE(isShown(u"カルテ2の抽出"));
}

// ---- Other screens ----

TEST_F(VisitLedgerView, DetailIsGatedByThePendingVisitAndAsksFirst) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  press(u"cmdAdd");
  press(u"Command14");
  EXPECT_EQ(told(), QStringList{u"一度「登録」ボタンを押してから終了して下さい"_s});
  press(u"cmdUpdate");
  told();
  const QString question =
      u"カルテ２詳細データを表示します。尚、新規登録の場合は、既往症・初診時の主要症状は前回分を自動で代入しています。"_s;
  answer({false, true});
  press(u"Command14");
  EXPECT_EQ(told(), QStringList{question});
  press(u"Command14");
  EXPECT_EQ(told(), (QStringList{question, notYet(u"治療台帳detail"_s)}));
}

TEST_F(VisitLedgerView, DetailGetsItsVisitAndIsNotOpenedTwice) {
  standIn(u"治療台帳detail"_s);
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  answer({true, true});
  press(u"Command14");
  const auto chart = routeTo<routes::unbuilt::DetailChart>();
  ASSERT_TRUE(chart);
  EXPECT_EQ(chart->visit, 1);
  EXPECT_EQ(chart->serial, u"P1"_s);
  press(u"Command14");
  EXPECT_EQ(lastMessage(),
            u"すでにカルテ２詳細データ(治療台帳detail)の窓が開いています。"
            u"開いているカルテ２詳細データ(治療台帳detail)を閉じて下さい。"_s);
}

TEST_F(VisitLedgerView, UnbuiltReceiptsAreReportedByName) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  press(u"Command12");
  press(u"Men_RP");
  press(u"Command10");
  EXPECT_EQ(told(), (QStringList{notYet(u"領収証選択"_s), notYet(u"領収証選択"_s), notYet(u"明細領収"_s)}));
}

TEST_F(VisitLedgerView, ReceiptsAreHandedThePatientOfTheVisitAndTheWayBack) {
  standIn(u"領収証選択"_s);
  standIn(u"明細領収"_s);
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  press(u"Command12");
  press(u"Command10");
  const auto receipt = routeTo<routes::unbuilt::ReceiptChoice>();
  const auto detailed = routeTo<routes::unbuilt::DetailedReceipt>();
  ASSERT_TRUE(receipt && receipt->patient && detailed);
  for (const frame::Patient& patient : {*receipt->patient, detailed->patient}) {
    EXPECT_EQ(patient.serial, u"P1"_s);
    EXPECT_EQ(patient.name, u"見本　太郎"_s);
    EXPECT_EQ(patient.birth, u"昭和28年3月5日"_s);
  }
  EXPECT_EQ(receipt->opener, routes::VisitLedger::screen);
  EXPECT_EQ(detailed->opener, routes::VisitLedger::screen);
}

}  // namespace
}  // namespace records
