#include <QtWidgets/QtWidgets>

#include "platform/store/growth.h"
#include "records/tests/screens/visit_ledger_fixture.h"

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

class VisitLedgerLife : public test::VisitLedgerFixture {
 protected:
  bool isOffered() const { return isShown(u"カルテ2の新規"); }
  void pressPrompt(const char16_t* button) {
    navigator.loaded(u"カルテ2の新規"_s)->trigger(QString::fromUtf16(button));
    settle();
  }
};

TEST_F(VisitLedgerLife, OpensOnTheVisitsOfThePatientInTheOrderOfTheirDates) {
  addOn(u"令和6年10月8日"_s, u"2024/10/8"_s, u"後"_s);
  addVisit({{u"氏名"_s, u"例示　花子"_s}, {u"治療日チェック"_s, u"2024/10/2"_s}}, u"Q9"_s);
  addOn(u"令和5年3月1日"_s, u"2023/3/1"_s, u"先"_s);
  open();
  EXPECT_EQ(onView(u"治療概略"_s), (QStringList{u"先"_s, u"後"_s}));
  EXPECT_EQ(value(u"txtFields(2)"), u"令和5年3月1日"_s);
  EXPECT_EQ(label(u"Data1"), u"ﾚｺｰﾄﾞ: 1"_s);
  EXPECT_EQ(label(u"Label14"), u"2"_s);
  EXPECT_FALSE(isOffered());
  EXPECT_EQ(ledger().windowTitle(), u"カルテ"_s);
}

TEST_F(VisitLedgerLife, VisitsAreFoundByASerialAnywhereInTheirLink) {
  addVisit({{u"氏名"_s, u"見本　太郎"_s}}, u"xP1x"_s);
  open();
  EXPECT_EQ(onView(u"ETC1"_s), QStringList{u"xP1x"_s});
}

TEST_F(VisitLedgerLife, AnnouncesThePatientAndTakesThePresentMonth) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  EXPECT_TRUE(heard(u"見本　太郎カルテ２を開きました。"_s)) << channel.said().join(u'|').toStdString();
  EXPECT_EQ(value(u"Text1"), u"令和6年6月"_s);
  EXPECT_EQ(value(u"txtFields(115)"), u"令和6年6月"_s);
}

TEST_F(VisitLedgerLife, MonthIsTheProgramsOwnIfThePlatformLacksTheEra) {
  run.eraCapability = frame::EraCapability::Unsupported;
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  EXPECT_EQ(value(u"Text1"), u"令和6年6月"_s);
}

TEST_F(VisitLedgerLife, EmptyTableOffersAFirstVisit) {
  open();
  ASSERT_TRUE(isOffered());
  screen::Screen& prompt = *navigator.loaded(u"カルテ2の新規"_s);
  EXPECT_EQ(prompt.windowTitle(), u"新規作成"_s);
  EXPECT_EQ(prompt.text(u"Text1"_s), u"見本　太郎"_s);
  EXPECT_TRUE(heard(u"この患者のカルテ２のデータはありません。"_s));
  EXPECT_TRUE(heard(u"新規につくりますか？"_s));
  screen::testing::ScreenProbe probe(prompt, channel);
  probe.open();
  EXPECT_EQ(probe.faults(), QStringList());
}

TEST_F(VisitLedgerLife, FirstVisitGetsTheRightFieldsAndCountsAsOne) {
  open();
  pressPrompt(u"Command1");
  EXPECT_FALSE(isOffered());
  EXPECT_EQ(label(u"Label14"), u"1"_s);
  EXPECT_EQ(value(u"txtFields(0)"), u"見本　太郎"_s);
  EXPECT_EQ(ledger().focused(), u"txtFields(2)"_s);
  type(u"txtFields(2)", u"令和6年6月15日"_s);
  press(u"cmdUpdate");
  EXPECT_EQ(lastMessage(), u"「登録」しました。"_s);
  EXPECT_EQ(visitsStored(u"氏名"_s), QStringList{u"見本　太郎"_s});
  EXPECT_EQ(visitsStored(u"生年月日"_s), QStringList{u"昭和28年3月5日"_s});
  EXPECT_EQ(visitsStored(u"ETC1"_s), QStringList{u"P1"_s});
  EXPECT_EQ(visitsStored(u"治療日チェック"_s), QStringList{u"2024/6/15"_s});
}

TEST_F(VisitLedgerLife, RefusedFirstVisitLeavesAnEmptyScreen) {
  open();
  pressPrompt(u"Command2");
  activate();
  EXPECT_FALSE(isOffered()) << "asked once";
  EXPECT_EQ(label(u"Label14"), u"0"_s);
  EXPECT_EQ(value(u"txtFields(0)"), u""_s);
  EXPECT_TRUE(visitsStored(u"ID"_s).isEmpty());
  for (const char16_t* command :
       {u"cmdUpdate", u"cmdDelete", u"Command1", u"Command4", u"Command5", u"Command3"}) {
    messages.forget();
    press(command);
    EXPECT_EQ(lastMessage(), u"検索データが０件です。「全患者表示及び再表示」をクリックして下さい。"_s)
        << QString::fromUtf16(command).toStdString();
  }
}

TEST_F(VisitLedgerLife, PatientWithoutVisitsIsOfferedAFirstOneToo) {
  addVisit({{u"氏名"_s, u"例示　花子"_s}}, u"Q9"_s);
  open();
  EXPECT_TRUE(isOffered());
  EXPECT_EQ(label(u"Label14"), u"0"_s);
}

TEST_F(VisitLedgerLife, APatientWithoutASerialDoesNotGetEverybodysVisits) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open(u""_s);
  EXPECT_EQ(label(u"Label14"), u"0"_s);
}

TEST_F(VisitLedgerLife, AnotherPatientComesWithHisVisitsAndWithoutThePreviousStore) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s, u"腰"_s);
  addVisit({{u"氏名"_s, u"例示　花子"_s}}, u"Q9"_s);
  open();
  press(u"cmdAdd");
  type(u"txtFields(3)", u"書きかけ"_s);
  channel.clear();
  open(u"Q9"_s, u"例示　花子"_s);
  EXPECT_EQ(visitsStored(u"治療概略"_s).last(), u"書きかけ"_s) << "what was typed is stored";
  EXPECT_TRUE(heard(u"例示　花子カルテ２を開きました。"_s));
  EXPECT_EQ(onView(u"氏名"_s), QStringList{u"例示　花子"_s});
  press(u"Command4");
  EXPECT_EQ(value(u"txtFields(3)"), u""_s);
  press(u"cmdClose");
  EXPECT_EQ(navigator.loaded(u"治療台帳3"_s), nullptr) << "no new row is pending";
}

// ---- Closing ----

TEST_F(VisitLedgerLife, CloseBoxIsRefusedInEveryState) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  addClaim(u"令和6年6月", u"鍼灸", {{1, u"a"}});
  const QString refusal = u"「閉じる」ボタンより終了して下さい"_s;
  open();
  const auto expectRefused = [&](const char* state) {
    messages.forget();
    EXPECT_FALSE(ledger().close()) << state;
    EXPECT_EQ(messages.texts(), QStringList{refusal}) << state;
    EXPECT_TRUE(isShown(u"治療台帳3")) << state;
  };
  expectRefused("fresh");
  type(u"txtFields(3)", u"書きかけ"_s);
  expectRefused("typed");
  tickGrid();
  expectRefused("grid");
  press(u"cmdAdd");
  expectRefused("new row");
}

TEST_F(VisitLedgerLife, ItStaysOpenUntilANewVisitIsStored) {
  standIn(u"治療台帳4"_s);
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  press(u"cmdAdd");
  press(u"cmdClose");
  EXPECT_EQ(lastMessage(), u"一度登録ボタンを押してから終了して下さい"_s);
  EXPECT_TRUE(isShown(u"治療台帳3"));
  press(u"cmdUpdate");
  press(u"cmdClose");
  settle();
  EXPECT_EQ(navigator.loaded(u"治療台帳3"_s), nullptr);
  EXPECT_TRUE(isShown(u"治療台帳4"));
}

TEST_F(VisitLedgerLife, ANewVisitThatIsGoneDoesNotLockTheUserIn) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  press(u"cmdAdd");
  ledger().goFirst();  // writes it
  answer({true, true});
  press(u"cmdDelete");
  press(u"cmdDelete");
  ASSERT_EQ(label(u"Label14"), u"0"_s);
  press(u"cmdClose");
  EXPECT_EQ(lastMessage(), u"一度登録ボタンを押してから終了して下さい"_s);
  press(u"cmdUpdate");
  press(u"cmdClose");
  settle();
  EXPECT_EQ(navigator.loaded(u"治療台帳3"_s), nullptr);
}

TEST_F(VisitLedgerLife, ClosingWritesWhatWasTypedAndShowsTheOpener) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  addNamed({u"見本　太郎"_s});
  navigator.show(u"治療台帳4"_s);
  open();
  type(u"txtFields(3)", u"腰"_s);
  press(u"Men_FEnd");
  settle();
  EXPECT_EQ(visitsStored(u"治療概略"_s), QStringList{u"腰"_s});
  EXPECT_EQ(navigator.loaded(u"治療台帳3"_s), nullptr);
  EXPECT_EQ(navigator.front(), navigator.loaded(u"治療台帳4"_s));
}

TEST_F(VisitLedgerLife, AVisitThatCannotBeWrittenDoesNotLockTheUserIn) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  type(u"txtFields(3)", u"腰"_s);
  store::RecordSet other = visits();
  ASSERT_TRUE(other.remove());
  answer({false, true});
  press(u"cmdClose");
  EXPECT_TRUE(isShown(u"治療台帳3"));
  EXPECT_EQ(value(u"txtFields(3)"), u"腰"_s);
  press(u"cmdClose");
  settle();
  EXPECT_EQ(navigator.loaded(u"治療台帳3"_s), nullptr);
}

// ---- The window as it is built ----

TEST_F(VisitLedgerLife, EveryControlIsNamedSpokenAndReached) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  addClaim(u"令和6年6月", u"鍼灸", {{1, u"a"}});
  open();
  screen::testing::ScreenProbe probe(ledger(), channel);
  EXPECT_EQ(probe.faults().join(u'\n').toStdString(), "");
  tickGrid();
  EXPECT_EQ(probe.faults().join(u'\n').toStdString(), "");
  EXPECT_EQ(probe.unknownColumns({kVisitFile, u"保険申請2000_2.mdb"_s, u"保険申請2000_1.mdb"_s}),
            QStringList());
}

TEST_F(VisitLedgerLife, ListSaysItsNameAndHowItIsRead) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  channel.clear();
  ledger().focusOn(u"DBGrid1"_s);
  EXPECT_TRUE(channel.lastSaid().startsWith(u"治療の一覧表"_s + QChar(254) +
                                            u"右カーソルキーを押し、上カーソルキーで前回分を音声致します"_s))
      << channel.lastSaid().toStdString();
}

TEST_F(VisitLedgerLife, MovesSayWhichVisitIsOnView) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s, u"肩"_s);
  addOn(u"令和6年6月8日"_s, u"2024/6/8"_s, u"腰"_s);
  open();
  const auto said = [](int place, const QString& date, const QString& summary) {
    return QStringList{u"ﾚｺｰﾄﾞ: %1"_s.arg(place) + QChar(254) + date + QChar(254) + summary};
  };
  screen::testing::ScreenProbe probe(ledger(), channel);
  for (const auto& [key, expected] : {std::pair(Qt::Key_F4, said(2, u"令和6年6月8日"_s, u"腰"_s)),
                                      std::pair(Qt::Key_F3, said(2, u"令和6年6月8日"_s, u"腰"_s)),
                                      std::pair(Qt::Key_F2, said(1, u"令和6年6月1日"_s, u"肩"_s)),
                                      std::pair(Qt::Key_F2, said(1, u"令和6年6月1日"_s, u"肩"_s)),
                                      std::pair(Qt::Key_F1, said(1, u"令和6年6月1日"_s, u"肩"_s))}) {
    probe.press(key);
    EXPECT_EQ(channel.heardWhole(), expected) << key;
  }
}

TEST_F(VisitLedgerLife, MenusHaveTheirCaptions) {
  open();
  QHash<QString, QStringList> menus;
  for (const QMenu* menu : ledger().menuBar()->findChildren<QMenu*>())
    for (const QAction* entry : menu->actions())
      menus[menu->objectName().section(u'(', 0, 0)] << entry->text();
  const auto bare = [](QStringList texts) {
    for (QString& text : texts) text = text.section(u'(', 0, 0);
    return texts;
  };
  EXPECT_EQ(bare(menus[u"ファイル"_s]),
            (QStringList{u"新規追加"_s, u"登録"_s, u"表示患者の削除"_s, u"閉じる"_s}));
  EXPECT_EQ(bare(menus[u"表示"_s]), (QStringList{u"今日の日付を治療日に代入"_s, u"指定月のみ表示"_s,
                                                 u"全表示に戻す"_s, u"総合金額"_s}));
  EXPECT_EQ(bare(menus[u"前回同様"_s]), (QStringList{u"治療概要に前回同様"_s, u"全金額に前回同様"_s}));
  EXPECT_EQ(bare(menus[u"領収証印刷"_s]), QStringList{u"領収証印刷"_s});
  EXPECT_EQ(bare(menus[u"レセプト日付表示"_s]), QStringList{u"療養費の日付の記入"_s});
}

// ---- Files ----

TEST_F(VisitLedgerLife, AnOlderFileGrowsAtLoadWithoutAQuestion) {
  ASSERT_TRUE(QFile::remove(path(kVisitFile)));
  ASSERT_TRUE(store::createFresh(path(kVisitFile), kVisitFile, store::FreshColumns::FirstSchema));
  addVisit({{u"氏名"_s, u"見本　太郎"_s}});
  open();
  EXPECT_TRUE(messages.texts().isEmpty()) << messages.texts().join(u'|').toStdString();
  EXPECT_FALSE(store::needsGrowth(path(kVisitFile), store::GrowthRun::Visit).value());
  EXPECT_EQ(visitsStored(u"氏名"_s), QStringList{u"見本　太郎"_s});
}

TEST_F(VisitLedgerLife, WithoutAPatientItShowsAllVisits) {
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  addVisit({{u"氏名"_s, u"例示　花子"_s}}, u"Q9"_s);
  navigator.show(u"治療台帳3"_s);
  EXPECT_EQ(label(u"Label14"), u"2"_s);
}

TEST_F(VisitLedgerLife, MissingFileIsReportedByNameOnceAndNothingIsMade) {
  ASSERT_TRUE(QFile::remove(path(kVisitFile)));
  open();
  ASSERT_EQ(messages.texts().size(), 1);
  EXPECT_TRUE(lastMessage().contains(kVisitFile));
  EXPECT_FALSE(ledger().findChild<QLineEdit*>(u"txtFields(2)"_s)->isEnabled()) << "nothing would keep it";
  EXPECT_FALSE(QFile::exists(path(kVisitFile)));
  for (const char16_t* command :
       {u"cmdAdd", u"cmdUpdate", u"Command6", u"Command7", u"cmdRefresh", u"Command2"})
    press(command);
  EXPECT_FALSE(QFile::exists(path(kVisitFile)));
}

}  // namespace
}  // namespace records
