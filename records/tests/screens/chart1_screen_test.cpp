#include <QAction>

#include "platform/screen/testing/screen_probe.h"
#include "platform/store/bulk.h"
#include "platform/store/database.h"
#include "records/tests/screens/records_fixture.h"

// 治療台帳2 (カルテ１): the long texts of one patient.

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

class Chart1Test : public test::RecordsFixture {
 protected:
  void SetUp() override {
    RecordsFixture::SetUp();
    addPatient({{u"氏名"_s, u"見本 一郎"_s},
                {u"テキスト5"_s, u"20240601001"_s},
                {u"生年月日"_s, u"2019/5/25"_s},
                {u"症状"_s, u"腰痛"_s}});
    addPatient({{u"氏名"_s, u"例示 花子"_s},
                {u"テキスト5"_s, u"20240601002"_s},
                {u"生年月日"_s, u"昭和40年1月2日"_s},
                {u"初診日"_s, u"令和6年6月1日"_s},
                {u"治療"_s, u"鍼"_s}});
  }

  screen::Screen& chart(const QString& serial, const QString& name = QString()) {
    screen::Screen* screen = navigator.show(routes::PatientTexts{.serial = serial, .name = name});
    EXPECT_NE(screen, nullptr);
    return *screen;
  }
  screen::Screen& hanako() { return chart(u"20240601002"_s, u"例示 花子"_s); }
  static QString nameOn(const screen::Screen& screen) { return screen.text(u"txtFields(4)"_s); }

  const QString kUpdate = u"       　　    更新しますか？"_s;
  const QString kWarning =
      u"但し、一旦書き込んであったデータを消すと更新しません。この場合は、スペースで１文字の空白を作って下さい。"_s;
  const QString kClose = u"　　　この方のカルテを閉じますか？"_s;
};

TEST_F(Chart1Test, OpensOnThePatientAndSaysWho) {
  screen::Screen& screen = hanako();
  EXPECT_EQ(screen.windowTitle(), u"カルテ１"_s);
  EXPECT_EQ(nameOn(screen), u"例示 花子"_s);
  EXPECT_EQ(screen.text(u"txtFields(27)"_s), u"鍼"_s);
  EXPECT_TRUE(channel.said().contains(u"例示 花子"_s + voice::kSpeechSeparator + u"カルテ1を起動しました"_s));
}

TEST_F(Chart1Test, CalledForAnotherPatientWhileOpenItGoesThereAndSaysSo) {
  screen::Screen& screen = hanako();
  channel.clear();
  chart(u"20240601001"_s, u"見本 一郎"_s);
  EXPECT_EQ(nameOn(screen), u"見本 一郎"_s) << "searched round the end of the table";
  EXPECT_TRUE(
      channel.heardWhole().contains(u"見本 一郎"_s + voice::kSpeechSeparator + u"カルテ1を起動しました"_s));
}

TEST_F(Chart1Test, FindsThePatientWhoWasEnteredMeanwhile) {
  screen::Screen& screen = hanako();
  addPatient({{u"氏名"_s, u"架空 次郎"_s}, {u"テキスト5"_s, u"20240615001"_s}});
  chart(u"20240615001"_s);
  EXPECT_EQ(nameOn(screen), u"架空 次郎"_s);
}

TEST_F(Chart1Test, NoMatchIsReportedOnceItHasTheKeyboardAndTheRowStays) {
  screen::Screen& screen = hanako();
  chart(u"29990101001"_s);
  EXPECT_EQ(messages.texts(), QStringList());
  screen.onActivate();
  settle();
  EXPECT_EQ(messages.texts(), QStringList(u"該当がありません。"_s));
  EXPECT_EQ(messages.titles(), QStringList(u"Not found"_s));
  EXPECT_EQ(nameOn(screen), u"例示 花子"_s);
  screen.onActivate();
  settle();
  EXPECT_EQ(messages.texts().size(), 1) << "told once";
}

TEST_F(Chart1Test, SymptomAndTreatmentHaveTheCaptionsOfThePractice) {
  run.settings[frame::slot::kCaptionSymptom] = u"主訴:"_s;
  run.settings[frame::slot::kCaptionTreatment] = u"施術内容:"_s;
  screen::Screen& screen = hanako();
  EXPECT_EQ(screen.caption(u"txtFields(26)"_s), u"主訴:"_s);
  EXPECT_EQ(screen.caption(u"txtFields(27)"_s), u"施術内容:"_s);
  EXPECT_EQ(screen.caption(u"txtFields(25)"_s), u"既往症:"_s);
}

TEST_F(Chart1Test, TheButtonAsksOnceAndStores) {
  screen::Screen& screen = hanako();
  const QString longText(255, u'痛');
  screen.setText(u"txtFields(25)"_s, longText);
  answer({true});
  channel.clear();
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(messages.texts(), QStringList(kUpdate));
  EXPECT_EQ(stored(u"既往症"_s).last(), longText);
  EXPECT_EQ(channel.lastSaid(), u"更新しました"_s + voice::kSpeechSeparator + u"例示 花子"_s);
}

TEST_F(Chart1Test, TheMenuAsksASecondTime) {
  screen::Screen& screen = hanako();
  auto* entry = screen.findChild<QAction*>(u"Men_FU"_s);
  ASSERT_NE(entry, nullptr);
  screen.setText(u"txtFields(27)"_s, u"灸"_s);
  answer({true, false});
  entry->trigger();
  EXPECT_EQ(messages.texts(), QStringList({kUpdate, kWarning}));
  EXPECT_EQ(stored(u"治療"_s).last(), u"鍼"_s);
  EXPECT_EQ(screen.text(u"txtFields(27)"_s), u"灸"_s) << "what was typed stays";
  answer({true, true});
  entry->trigger();
  EXPECT_EQ(stored(u"治療"_s).last(), u"灸"_s);
}

TEST_F(Chart1Test, CancelStoresNothing) {
  screen::Screen& screen = hanako();
  screen.setText(u"txtFields(27)"_s, u"灸"_s);
  answer({false});
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"治療"_s).last(), u"鍼"_s);
}

TEST_F(Chart1Test, ARowThatChangedMeanwhileIsRefusedAndTheTextStays) {
  screen::Screen& screen = hanako();
  store::RecordSet other = table();
  other.moveLast();
  ASSERT_TRUE(other.edit());
  ASSERT_TRUE(other.setValue(u"治療"_s, u"他の窓"_s));
  // The screen reads the row before the other computer stores it.
  screen.setText(u"txtFields(27)"_s, u"灸"_s);
  ASSERT_TRUE(screen.source().rows().edit());
  ASSERT_TRUE(other.update());
  answer({true});
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_TRUE(lastMessage().startsWith(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :"_s))
      << lastMessage().toStdString();
  EXPECT_EQ(stored(u"治療"_s).last(), u"他の窓"_s);
  EXPECT_EQ(screen.text(u"txtFields(27)"_s), u"灸"_s);
}

// Both windows show one row, and each can store after the other.
TEST_F(Chart1Test, TheMasterShowsWhatTheChartStored) {
  screen::Screen& master = shown(u"治療台帳4");
  master.goLast();
  screen::Screen& screen = hanako();
  screen.setText(u"txtFields(27)"_s, u"灸"_s);
  answer({true});
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(nameOn(master), u"例示 花子"_s);
  EXPECT_EQ(master.text(u"txtFields(27)"_s), u"灸"_s);
  master.setText(u"txtFields(26)"_s, u"肩こり"_s);
  answer({true});
  master.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"治療"_s).last(), u"灸"_s);
  EXPECT_EQ(stored(u"症状"_s).last(), u"肩こり"_s);
}

TEST_F(Chart1Test, ClosingStoresAndAsks) {
  screen::Screen& screen = hanako();
  screen.setText(u"txtFields(27)"_s, u"灸"_s);
  answer({false});
  screen.trigger(u"cmdClose"_s);
  EXPECT_EQ(messages.texts(), QStringList(kClose));
  EXPECT_EQ(stored(u"治療"_s).last(), u"灸"_s);
  EXPECT_TRUE(isShown(u"治療台帳2"));
  EXPECT_EQ(nameOn(screen), u"例示 花子"_s) << "the last row is kept";
  answer({true});
  screen.close();
  EXPECT_FALSE(isShown(u"治療台帳2"));
}

TEST_F(Chart1Test, ARefusedRowMayBeGivenUp) {
  screen::Screen& screen = hanako();
  screen.setText(u"txtFields(5)"_s, QString(300, u'あ'));
  answer({false});
  screen.trigger(u"cmdClose"_s);
  ASSERT_EQ(messages.texts().size(), 2);
  EXPECT_EQ(messages.texts().last(), u"登録出来ませんでした。入力した内容を捨てて、閉じますか？"_s);
  EXPECT_TRUE(isShown(u"治療台帳2"));
  EXPECT_EQ(screen.text(u"txtFields(5)"_s).size(), 300) << "what was typed stays";
  answer({true});
  screen.trigger(u"cmdClose"_s);
  EXPECT_FALSE(isShown(u"治療台帳2"));
  EXPECT_EQ(stored(u"性別"_s).last(), QString());
}

TEST_F(Chart1Test, DatesAreRewrittenAndBlankOnesStayBlank) {
  screen::Screen& screen = chart(u"20240601001"_s);
  screen.trigger(u"Command9"_s);
  EXPECT_EQ(screen.text(u"txtF6"_s), u"令和1年5月25日"_s);
  EXPECT_EQ(screen.text(u"txtF24"_s), QString());
  screen.trigger(u"Command3"_s);
  EXPECT_EQ(screen.text(u"txtF6"_s), u"2019/5/25"_s);
  EXPECT_EQ(channel.lastSaid(), u"日付を西暦にしました"_s + voice::kSpeechSeparator + u"2019/5/25"_s);
  hanako();
  screen.trigger(u"Command3"_s);
  EXPECT_EQ(screen.text(u"txtF6"_s), u"1965/1/2"_s);
  EXPECT_EQ(screen.text(u"txtF24"_s), u"2024/6/1"_s);
}

TEST_F(Chart1Test, TodayAndTheTimeGoToTheClipboard) {
  hanako().trigger(u"Command8"_s);
  EXPECT_EQ(desktop.copiedText(), u"令和6年6月15日（09:00）"_s);
  EXPECT_TRUE(channel.lastSaid().contains(u"令和6年6月15日（09:00）"_s));
}

TEST_F(Chart1Test, CbClosesTheHelperWindows) {
  for (const QString& window : {u"frmCLmoji"_s, u"frmCl2moji"_s, u"frm経穴"_s}) {
    standIn(window);
    navigator.show(window);
  }
  hanako().trigger(u"Command2"_s);
  settle();
  for (const char16_t* window : {u"frmCLmoji", u"frmCl2moji", u"frm経穴"}) EXPECT_FALSE(isShown(window));
  EXPECT_TRUE(channel.heardWhole().contains(u"辞典の窓を閉じました"_s));
}

TEST_F(Chart1Test, CbLeavesAWindowWhoseTextItsFileRefuses) {
  const QString file = u"CLmoji2000.mdb"_s, field = u"txtFields(0)"_s;
  makeFile(file);
  ASSERT_TRUE(store::addRows(path(file), u"CLmoji"_s, {{{u"moji"_s, u"見本一"_s}}}));
  screen::Screen& chart1 = hanako();
  screen::Screen& phrases = *navigator.show(u"frmCLmoji"_s);
  phrases.setText(field, u"書きかけ"_s);
  {
    auto other = store::RecordSet::open(store::Database::open(path(file)).value(), u"CLmoji"_s);
    ASSERT_TRUE(other);
    ASSERT_TRUE(other->remove());
  }
  answer({false});  // not given up
  chart1.trigger(u"Command2"_s);
  settle();
  ASSERT_EQ(navigator.loaded(u"frmCLmoji"_s), &phrases);
  EXPECT_EQ(phrases.text(field), u"書きかけ"_s);
  EXPECT_EQ(navigator.front(), &phrases);
  EXPECT_FALSE(channel.heardWhole().contains(u"辞典の窓を閉じました"_s));
}

TEST_F(Chart1Test, TheMenuOpensTheDictionaries) {
  screen::Screen& screen = hanako();
  const std::pair<QString, const char16_t*> rooms[] = {
      {u"Men_FJ1"_s, u"frmCLmoji"}, {u"Men_FJ2"_s, u"frmCl2moji"}, {u"Men_FJ3"_s, u"frm経穴"}};
  for (const auto& [entry, room] : rooms) {
    standIn(QString::fromUtf16(room));
    screen.trigger(entry);
    EXPECT_TRUE(isShown(room)) << entry.toStdString();
  }
}

TEST_F(Chart1Test, TheRecordKeysSayWhoIsOnView) {
  screen::Screen& screen = chart(u"20240601001"_s);
  screen::testing::ScreenProbe probe(screen, channel);
  probe.open();
  probe.press(Qt::Key_F3);
  EXPECT_EQ(channel.lastSaid(), u"ﾚｺｰﾄﾞ: 2"_s + voice::kSpeechSeparator + u"例示 花子"_s);
}

TEST_F(Chart1Test, TheMasterOpensItOnThePatientOnView) {
  screen::Screen& master = shown(u"治療台帳4");
  master.goLast();
  master.trigger(u"Command2"_s);
  screen::Screen* screen = navigator.loaded(u"治療台帳2"_s);
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(nameOn(*screen), u"例示 花子"_s);
  EXPECT_TRUE(channel.said().contains(u"例示 花子"_s + voice::kSpeechSeparator + u"カルテ1を起動しました"_s));
}

}  // namespace
}  // namespace records
