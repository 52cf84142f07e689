#include <QtWidgets/QtWidgets>

#include "records/tests/screens/visit_ledger_fixture.h"

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

class VisitLedgerVisit : public test::VisitLedgerFixture {
 protected:
  QString storedLast(const QString& column) const { return visitsStored(column).last(); }
};

// ---- 新規追加 ----

TEST_F(VisitLedgerVisit, NewVisitCarriesDiseasesHistoryAndComplaintAlone) {
  QHash<QString, QString> columns{{u"氏名"_s, u"見本　太郎"_s},
                                  {u"生年月日"_s, u"昭和28年3月5日"_s},
                                  {u"治療日時"_s, u"令和6年6月1日"_s},
                                  {u"治療概略"_s, u"腰"_s},
                                  {u"治療金額"_s, u"5000"_s}};
  for (int slot = 8; slot <= 38; ++slot)
    columns[PreviousVisit::column(slot)] = u"値 "_s + PreviousVisit::column(slot);
  addVisit(columns);
  open();
  press(u"cmdAdd");
  EXPECT_EQ(label(u"Label14"), u"2"_s);
  EXPECT_EQ(ledger().focused(), u"txtFields(2)"_s);
  EXPECT_EQ(value(u"txtFields(0)"), u"見本　太郎"_s);
  EXPECT_EQ(value(u"txtFields(2)"), u""_s);
  EXPECT_EQ(value(u"txtFields(3)"), u""_s);
  press(u"cmdUpdate");
  EXPECT_EQ(storedLast(u"生年月日"_s), u"昭和28年3月5日"_s);
  EXPECT_EQ(storedLast(u"ETC1"_s), u"P1"_s);
  for (int slot = 8; slot <= 38; ++slot) {
    const QString column = PreviousVisit::column(slot);
    EXPECT_EQ(storedLast(column), slot <= 18 ? u"値 "_s + column : QString()) << column.toStdString();
  }
  for (const QString& blank : {u"治療概略"_s, u"治療金額"_s, u"治療日時"_s})
    EXPECT_EQ(storedLast(blank), QString());
}

TEST_F(VisitLedgerVisit, WithoutANameOnViewEachValueLandsOnePlaceEarly) {
  open();
  navigator.loaded(u"カルテ2の新規"_s)->trigger(u"Command2"_s);
  press(u"cmdAdd");
  press(u"cmdUpdate");
  EXPECT_EQ(visitsStored(u"氏名"_s), QStringList{u"P1"_s});
  EXPECT_EQ(visitsStored(u"生年月日"_s), QStringList{u"見本　太郎"_s});
  EXPECT_EQ(visitsStored(u"ETC1"_s), QStringList{u"P1"_s});
}

TEST_F(VisitLedgerVisit, NewVisitSaysTheCount) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  press(u"cmdAdd");
  EXPECT_TRUE(channel.heardWhole().join(u'|').contains(u"新規追加"_s + QChar(254) + u"治療回数:"_s +
                                                       QChar(254) + u"2"_s))
      << channel.heardWhole().join(u'|').toStdString();
}

TEST_F(VisitLedgerVisit, SecondNewVisitKeepsTheFirst) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  press(u"cmdAdd");
  type(u"txtFields(3)", u"一つ目"_s);
  press(u"cmdAdd");
  type(u"txtFields(3)", u"二つ目"_s);
  press(u"cmdUpdate");
  EXPECT_EQ(visitsStored(u"治療概略"_s), (QStringList{u""_s, u"一つ目"_s, u"二つ目"_s}));
}

// ---- 登録 ----

TEST_F(VisitLedgerVisit, StoringReportsAndTheMenuOnlySays) {
  addOn(u"令和6年6月1日"_s, QString());
  open();
  type(u"txtFields(3)", u"腰"_s);
  press(u"cmdUpdate");
  EXPECT_EQ(told(), QStringList{u"「登録」しました。"_s});
  type(u"txtFields(3)", u"肩"_s);
  press(u"Men_FU");
  EXPECT_EQ(told(), QStringList());
  EXPECT_EQ(channel.lastSaid(), u"「登録」しました。"_s);
  EXPECT_EQ(visitsStored(u"治療概略"_s), QStringList{u"肩"_s});
}

TEST_F(VisitLedgerVisit, StoringBringsTheShadowsOfTheViewUpToDate) {
  addOn(u"R6/6/1"_s, QString());
  addOn(u"2024/6/8"_s, QString());
  addVisit({{u"氏名"_s, u"例示　花子"_s}, {u"治療日時"_s, u"令和6年6月2日"_s}}, u"Q9"_s);
  open();
  press(u"cmdUpdate");
  EXPECT_EQ(visitsStored(u"治療日チェック"_s), (QStringList{u"2024/6/1"_s, u"2024/6/8"_s, u""_s}));
  EXPECT_EQ(visitsStored(u"治療日時"_s), (QStringList{u"R6/6/1"_s, u"2024/6/8"_s, u"令和6年6月2日"_s}));
  EXPECT_EQ(value(u"Text10"), u"2024/6/1"_s);
}

TEST_F(VisitLedgerVisit, StoredVisitStaysOnView) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  addOn(u"令和6年6月8日"_s, u"2024/6/8"_s);
  open();
  press(u"cmdAdd");
  type(u"txtFields(2)", u"令和6年1月5日"_s);
  press(u"cmdUpdate");
  EXPECT_EQ(value(u"txtFields(2)"), u"令和6年1月5日"_s);
  EXPECT_EQ(label(u"Data1"), u"ﾚｺｰﾄﾞ: 3"_s);
}

TEST_F(VisitLedgerVisit, VisitThatChangedMeanwhileIsRefusedAndTheTypedTextStays) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s, u"前"_s);
  open();
  type(u"txtFields(3)", u"腰"_s);
  elsewhere("UPDATE \"カルテ\" SET \"治療概略\"='別の人', \"治療金額\"='500'");
  press(u"cmdUpdate");
  ASSERT_EQ(messages.texts().size(), 1);
  EXPECT_TRUE(lastMessage().startsWith(QString::fromUtf16(screen::kDataControlText)));
  EXPECT_EQ(value(u"txtFields(3)"), u"腰"_s);
  EXPECT_EQ(visitsStored(u"治療概略"_s), QStringList{u"別の人"_s});
  press(u"cmdUpdate");
  EXPECT_EQ(lastMessage(), u"「登録」しました。"_s);
  EXPECT_EQ(visitsStored(u"治療概略"_s), QStringList{u"腰"_s});
  EXPECT_EQ(visitsStored(u"治療金額"_s), QStringList{u"500"_s}) << "what was not typed here is kept";
}

TEST_F(VisitLedgerVisit, TooLongATextIsRefusedAndStays) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  press(u"cmdAdd");
  type(u"txtFields(4)", u"1"_s.repeated(300));
  press(u"cmdUpdate");
  EXPECT_TRUE(lastMessage().startsWith(QString::fromUtf16(screen::kDataControlText)));
  EXPECT_EQ(value(u"txtFields(4)").size(), 300);
  press(u"cmdClose");
  EXPECT_EQ(lastMessage(), u"一度登録ボタンを押してから終了して下さい"_s) << "the new row is pending still";
}

// ---- 削除 ----

TEST_F(VisitLedgerVisit, DeletedVisitGivesWayToTheOneBefore) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s, u"一"_s);
  addOn(u"令和6年6月8日"_s, u"2024/6/8"_s, u"二"_s);
  open();
  ledger().goLast();
  answer({false, true});
  press(u"Men_FD");
  EXPECT_EQ(lastMessage(), u"　現在の表示の患者のカルテを削除しますか？"_s);
  EXPECT_EQ(visitsStored(u"ID"_s).size(), 2);
  press(u"cmdDelete");
  EXPECT_EQ(visitsStored(u"治療概略"_s), QStringList{u"一"_s});
  EXPECT_EQ(value(u"txtFields(3)"), u"一"_s);
  EXPECT_TRUE(heard(u"削除しました"_s));
}

TEST_F(VisitLedgerVisit, DeletingANewVisitOnlyDropsIt) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  press(u"cmdAdd");
  answer({true});
  press(u"cmdDelete");
  EXPECT_EQ(visitsStored(u"ID"_s).size(), 1);
  press(u"cmdClose");
  EXPECT_EQ(navigator.loaded(u"治療台帳3"_s), nullptr);
}

// ---- Dates ----

TEST_F(VisitLedgerVisit, TodayGoesIntoABlankDateOnly) {
  for (const auto capability : {frame::EraCapability::Supported, frame::EraCapability::Unsupported}) {
    run.eraCapability = capability;
    addOn(QString(), QString());
    open();
    press(u"Command1");
    EXPECT_EQ(value(u"txtFields(2)"), u"令和6年6月15日"_s);
    EXPECT_TRUE(told().isEmpty());
    clock.set(QDate(2024, 6, 16));
    press(u"Men_VT");
    EXPECT_EQ(told(), QStringList{u"治療日の項目に日付が入っています。削除してから実行して下さい。"_s});
    EXPECT_EQ(value(u"txtFields(2)"), u"令和6年6月15日"_s);
    clock.set(QDate(2024, 6, 15));
    store::RecordSet rows = visits();
    press(u"cmdClose");
    settle();
    ASSERT_TRUE(rows.refresh());
    ASSERT_TRUE(rows.remove());
  }
}

TEST_F(VisitLedgerVisit, TodayIsCopiedAndSaid) {
  open();
  press(u"Command8");
  EXPECT_EQ(desktop.copiedText(), u"令和6年6月15日"_s);
  EXPECT_TRUE(heard(u"令和6年6月15日"_s));
}

TEST_F(VisitLedgerVisit, ShownDatesTurnIntoTheOtherNotation) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  for (const auto capability : {frame::EraCapability::Supported, frame::EraCapability::Unsupported}) {
    run.eraCapability = capability;
    open();
    channel.clear();
    press(u"Command3");
    EXPECT_EQ(value(u"txtFields(1)"), u"1953/3/5"_s);
    EXPECT_EQ(value(u"txtFields(2)"), u"2024/6/1"_s);
    EXPECT_TRUE(heard(u"治療日:"_s + QChar(254) + u"2024/6/1"_s));
    press(u"Command9");
    EXPECT_EQ(value(u"txtFields(1)"), u"昭和28年3月5日"_s);
    EXPECT_EQ(value(u"txtFields(2)"), u"令和6年6月1日"_s);
  }
}

// ---- 前回同様 ----

TEST_F(VisitLedgerVisit, PreviousValuesAreThoseOfTheRowThatWasSelected) {
  addVisit({{u"氏名"_s, u"見本　太郎"_s},
            {u"治療日チェック"_s, u"2024/6/1"_s},
            {u"治療概略"_s, u"選んだ行"_s},
            {u"保険者負担金"_s, u"100"_s},
            {u"保険の一部負担金"_s, u"200"_s},
            {u"治療金額"_s, u"300"_s}});
  addVisit(
      {{u"氏名"_s, u"見本　太郎"_s}, {u"治療日チェック"_s, u"2024/6/8"_s}, {u"治療概略"_s, u"最後の行"_s}});
  open();
  press(u"cmdAdd");
  press(u"Command4");
  EXPECT_EQ(value(u"txtFields(3)"), u"選んだ行"_s);
  press(u"Command5");
  EXPECT_EQ(value(u"txtFields(4)"), u"100"_s);
  EXPECT_EQ(value(u"txtFields(5)"), u"200"_s);
  EXPECT_EQ(value(u"txtFields(6)"), u"300"_s);
  EXPECT_TRUE(heard(u"治療金額:"_s + QChar(254) + u"300"_s));
  press(u"Men_ZS");
  press(u"Men_ZA");
  EXPECT_EQ(told(), (QStringList{u"治療概略の項目に文字が入っています。削除してから実行して下さい。"_s,
                                 u"金額の項目に文字が入っています。削除してから実行して下さい。"_s}));
}

TEST_F(VisitLedgerVisit, OneFilledAmountIsEnoughToRefuse) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  for (const char16_t* field : {u"txtFields(4)", u"txtFields(5)", u"txtFields(6)"}) {
    type(field, u"1"_s);
    press(u"Command5");
    EXPECT_EQ(told(), QStringList{u"金額の項目に文字が入っています。削除してから実行して下さい。"_s});
    type(field, QString());
  }
}

TEST_F(VisitLedgerVisit, APreviousVisitThatWasNeverTakenCopiesNothing) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  press(u"Command4");
  press(u"Command5");
  EXPECT_TRUE(told().isEmpty());
  for (const char16_t* field : {u"txtFields(3)", u"txtFields(4)", u"txtFields(5)", u"txtFields(6)"})
    EXPECT_EQ(value(field), u""_s);
}

}  // namespace
}  // namespace records
