#include <QtWidgets/QtWidgets>

#include "platform/screen/testing/screen_probe.h"
#include "records/core/patient_columns.h"
#include "records/tests/screens/patient_list_fixture.h"

// 抽出2, 抽出3 and ソート1 over the list of patients.

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

class PatientExtractTest : public test::PatientListFixture {};

// ---- 抽出2 ----

TEST_F(PatientExtractTest, DialogsOfferTheThirtyColumns) {
  list().trigger(u"Command2"_s);
  list().trigger(u"Command7"_s);
  QStringList columns;
  for (const store::Column& column : kPatientColumns) columns << column;
  EXPECT_EQ(columns.join(u' '),
            u"患者ID カルテ番号 ふりがな 氏名 性別 生年月日 年齢 職業 会社名 郵便番号 住所1 住所2 住所3 "
            u"電話1 電話2 携帯 "
            "FAX キーワード1 キーワード2 区分 紹介してくれた人 紹介した人 担当者 割付 既往症 日付1 テキスト1 "
            "テキスト2 "
            "テキスト3 症状"_s);
  EXPECT_EQ(navigator.loaded(u"抽出2"_s)->items(u"Combo1"_s), columns);
  EXPECT_EQ(navigator.loaded(u"ソート1"_s)->items(u"Combo1"_s), columns);
  EXPECT_EQ(navigator.loaded(u"抽出2"_s)->windowTitle(), u"抽出"_s);
  EXPECT_EQ(navigator.loaded(u"ソート1"_s)->windowTitle(), u"ソート"_s);
}

TEST_F(PatientExtractTest, ExtractionNarrowsAndASecondOneNarrowsFurther) {
  addFour();
  extract(u"氏名"_s, u"見本"_s);
  EXPECT_EQ(names(), (QStringList{u"見本 一郎"_s, u"見本 二子"_s}));
  EXPECT_FALSE(isShown(u"抽出2"));
  EXPECT_EQ(list().text(u"Text2"_s), u"2"_s);
  EXPECT_TRUE(channel.said().contains(u"抽出しました"_s + kPart + u"表示の患者数:"_s + kPart + u"2"_s));
  extract(u"性別"_s, u"女"_s);
  EXPECT_EQ(names(), QStringList{u"見本 二子"_s});
  list().trigger(u"cmdRefresh"_s);
  EXPECT_EQ(names().size(), 4);
  EXPECT_EQ(channel.heardWhole().first(),
            u"全患者を表示しました"_s + kPart + u"表示の患者数:"_s + kPart + u"4"_s);
}

TEST_F(PatientExtractTest, NoHitLeavesTheSetAndTheDialog) {
  addFour();
  extract(u"氏名"_s, u"架空"_s);
  EXPECT_EQ(lastMessage(), kNotFound);
  EXPECT_EQ(messages.titles().last(), u"Not found"_s);
  EXPECT_EQ(names().size(), 4);
  ASSERT_TRUE(isShown(u"抽出2"));
  EXPECT_EQ(navigator.loaded(u"抽出2"_s)->text(u"Text1"_s), u"架空"_s);
}

TEST_F(PatientExtractTest, WidthKanaAndCaseDoNotMatter) {
  addPatient({{u"氏名"_s, u"見本"_s}, {u"ふりがな"_s, u"ﾐﾎﾝ"_s}, {u"会社名"_s, u"ＡＢＣ商店"_s}});
  addPatient({{u"氏名"_s, u"例示"_s}, {u"ふりがな"_s, u"レイジ"_s}});
  extract(u"ふりがな"_s, u"みほん"_s);
  EXPECT_EQ(names(), QStringList{u"見本"_s});
  extract(u"会社名"_s, u"abc"_s);
  EXPECT_EQ(names(), QStringList{u"見本"_s});
  EXPECT_TRUE(messages.texts().isEmpty());
  list().trigger(u"cmdRefresh"_s);
  extract(u"ふりがな"_s, u"ﾚｲｼﾞ"_s);
  EXPECT_EQ(names(), QStringList{u"例示"_s});
}

TEST_F(PatientExtractTest, EmptyTableSaysSoToEveryCommandOfRows) {
  extract(u"氏名"_s, u"見本"_s);
  EXPECT_EQ(messages.texts(), QStringList{kNoRows});
  messages.forget();
  extractSex(u"男"_s);
  EXPECT_EQ(messages.texts(), QStringList{kNoRows});
  for (const QString& command : {u"cmdRefresh"_s, u"Command4"_s, u"Command8"_s}) {
    messages.forget();
    list().trigger(command);
    EXPECT_EQ(messages.texts(), QStringList{kNoRows}) << command.toStdString();
  }
  EXPECT_TRUE(engine.calls().empty());
}

TEST_F(PatientExtractTest, SortingAnEmptyTableSpeaksOfAllMembers) {
  sort(u"氏名"_s, u"Command1"_s);
  EXPECT_EQ(messages.texts(),
            QStringList{u"検索データが０件です。「全会員表示及び再表示」をクリックして下さい。"_s});
}

// ---- 抽出3 ----

TEST_F(PatientExtractTest, KindsHaveTheirCaptionsAndTexts) {
  list().trigger(u"Command3"_s);
  screen::Screen& dialog = *navigator.loaded(u"抽出3"_s);
  EXPECT_EQ(dialog.windowTitle(), u"抽出"_s);
  EXPECT_EQ(dialog.caption(u"Label1"_s),
            u"検索先のチェックボタンにチェックを入れて、抽出ボタンを押して下さい。"_s);
  EXPECT_EQ(dialog.caption(u"Command1"_s), u"抽出の開始"_s);
  EXPECT_EQ(dialog.findChild<QWidget*>(u"Command1"_s)->accessibleDescription(),
            u"１回目を抽出後、続けて抽出すると更に１回目の中から抽出出来ます。"_s);
  const std::pair<QString, QString> options[] = {{u"Option3"_s, u"男女別の抽出"_s},
                                                 {u"Option5"_s, u"キーワード 1:2: 内の抽出"_s},
                                                 {u"Option6"_s, u"年齢による抽出-1-"_s},
                                                 {u"Option7"_s, u"年齢による抽出-2-"_s},
                                                 {u"Option12"_s, u"住所による抽出"_s},
                                                 {u"Option1"_s, u"男"_s},
                                                 {u"Option2"_s, u"女"_s}};
  for (const auto& [option, caption] : options) {
    const auto* button = dialog.findChild<QRadioButton*>(option);
    ASSERT_NE(button, nullptr) << option.toStdString();
    EXPECT_EQ(button->text(), caption);
  }
}

TEST_F(PatientExtractTest, BySex) {
  addFour();
  extractSex(u"女"_s);
  EXPECT_EQ(names(), (QStringList{u"見本 二子"_s, u"例示 四子"_s}));
  list().trigger(u"cmdRefresh"_s);
  extractSex(u"男"_s);
  EXPECT_EQ(names(), (QStringList{u"見本 一郎"_s, u"例示 三男"_s}));
}

TEST_F(PatientExtractTest, KeywordsFitWholeUnlessWildcardsAreTyped) {
  addFour();
  extractKind(u"キーワード"_s, u"Text1"_s, u"腰痛"_s);
  EXPECT_EQ(names(), (QStringList{u"見本 一郎"_s, u"見本 二子"_s}));
  list().trigger(u"cmdRefresh"_s);
  extractKind(u"キーワード"_s, u"Text1"_s, u"腰痛*"_s);
  EXPECT_EQ(names(), (QStringList{u"見本 一郎"_s, u"見本 二子"_s, u"例示 三男"_s}));
  messages.forget();
  extractKind(u"キーワード"_s, u"Text1"_s, u"腰"_s);
  EXPECT_EQ(messages.texts(), QStringList{kNotFound});
}

TEST_F(PatientExtractTest, AgesCompareAsNumbers) {
  addFour();
  extractKind(u"年齢以上"_s, u"Text2"_s, u"65"_s);
  EXPECT_EQ(names(), (QStringList{u"見本 一郎"_s, u"例示 三男"_s})) << "9 is less than 65, 100 is not";
  list().trigger(u"cmdRefresh"_s);
  extractKind(u"年齢以下"_s, u"Text3"_s, u"６５"_s);
  EXPECT_EQ(names(), (QStringList{u"見本 一郎"_s, u"見本 二子"_s}));
}

TEST_F(PatientExtractTest, AddressesInAnyOfTheThreeLines) {
  addFour();
  extractKind(u"住所"_s, u"Text5"_s, u"港町"_s);
  EXPECT_EQ(names(), (QStringList{u"見本 二子"_s, u"例示 三男"_s}));
}

TEST_F(PatientExtractTest, KindsSeeNoDifferenceOfWidthKanaAndCase) {
  addPatient({{u"氏名"_s, u"見本"_s}, {u"住所2"_s, u"ﾐﾅﾄ町ＡＢＣ"_s}, {u"キーワード1"_s, u"カタ"_s}});
  addPatient({{u"氏名"_s, u"例示"_s}});
  for (const auto& [kind, input, word] : {std::tuple(u"住所"_s, u"Text5"_s, u"みなと町abc"_s),
                                          std::tuple(u"キーワード"_s, u"Text1"_s, u"ｶﾀ"_s)}) {
    extractKind(kind, input, word);
    EXPECT_EQ(names(), QStringList{u"見本"_s}) << kind.toStdString();
    list().trigger(u"cmdRefresh"_s);
  }
  EXPECT_TRUE(messages.texts().isEmpty());
}

TEST_F(PatientExtractTest, TypingInAnInputChoosesItsKind) {
  addFour();
  list().trigger(u"Command3"_s);
  screen::Screen& dialog = *navigator.loaded(u"抽出3"_s);
  screen::testing::ScreenProbe probe(dialog, channel);
  probe.open();
  const std::pair<QString, QString> inputs[] = {{u"Text1"_s, u"キーワード"_s},
                                                {u"Text2"_s, u"年齢以上"_s},
                                                {u"Text3"_s, u"年齢以下"_s},
                                                {u"Text5"_s, u"住所"_s}};
  for (const auto& [input, kind] : inputs) {
    dialog.focusOn(input);
    probe.type(u"1"_s);
    EXPECT_EQ(dialog.chosen(u"Frame1"_s), kind);
  }
  dialog.findChild<QRadioButton*>(u"Option2"_s)->click();
  EXPECT_EQ(dialog.chosen(u"Frame1"_s), u"性別"_s);
  dialog.trigger(u"Command1"_s);
  EXPECT_EQ(names(), (QStringList{u"見本 二子"_s, u"例示 四子"_s}));
}

TEST_F(PatientExtractTest, TwoKindsGiveWhatFitsBoth) {
  addFour();
  extractSex(u"男"_s);
  extractKind(u"年齢以上"_s, u"Text2"_s, u"70"_s);
  EXPECT_EQ(names(), QStringList{u"例示 三男"_s});
  messages.forget();
  extractKind(u"住所"_s, u"Text5"_s, u"中央"_s);
  EXPECT_EQ(messages.texts(), QStringList{kNotFound}) << "一郎 lives there but is not on view";
  EXPECT_EQ(names(), QStringList{u"例示 三男"_s});
}

TEST_F(PatientExtractTest, WithoutAKindTheNoteIsShown) {
  addFour();
  list().trigger(u"Command3"_s);
  screen::Screen& dialog = *navigator.loaded(u"抽出3"_s);
  dialog.trigger(u"Command1"_s);
  EXPECT_EQ(lastMessage(), dialog.caption(u"Label1"_s));
  EXPECT_TRUE(isShown(u"抽出3"));
}

TEST_F(PatientExtractTest, AgeThatIsNoNumberIsRefusedAndStays) {
  addFour();
  for (const QString& typed : {u"六十"_s, u"6 or 1=1"_s, u"'"_s}) {
    messages.forget();
    extractKind(u"年齢以上"_s, u"Text2"_s, typed);
    EXPECT_EQ(messages.texts(), QStringList{u"年齢は数字で記入して下さい。"_s});
    EXPECT_EQ(navigator.loaded(u"抽出3"_s)->text(u"Text2"_s), typed);
    EXPECT_EQ(names().size(), 4);
  }
}

TEST_F(PatientExtractTest, BlankInputIsAskedFor) {
  addFour();
  extractKind(u"住所"_s, u"Text5"_s, QString());
  EXPECT_EQ(channel.lastSaid(), u"住所"_s);
  EXPECT_TRUE(messages.texts().isEmpty());
  EXPECT_TRUE(isShown(u"抽出3"));
  EXPECT_EQ(names().size(), 4);
}

TEST_F(PatientExtractTest, QuoteGivesTheDatabasesTextAndLeavesTheListAlone) {
  addFour();
  extractKind(u"住所"_s, u"Text5"_s, u"港' or 氏名 like '*"_s);
  EXPECT_TRUE(lastMessage().startsWith(QString::fromUtf16(screen::kDataControlText)));
  EXPECT_EQ(names().size(), 4);
}

// ---- ソート1 ----

TEST_F(PatientExtractTest, SortsWhatIsOnViewBothWays) {
  addPatient({{u"氏名"_s, u"見本"_s}, {u"ふりがな"_s, u"ﾐ"_s}, {u"区分"_s, u"甲"_s}});
  addPatient({{u"氏名"_s, u"例示"_s}, {u"ふりがな"_s, u"レ"_s}, {u"区分"_s, u"甲"_s}});
  addPatient({{u"氏名"_s, u"架空"_s}, {u"ふりがな"_s, u"か"_s}, {u"区分"_s, u"乙"_s}});
  sort(u"ふりがな"_s, u"Command1"_s);
  EXPECT_EQ(names(), (QStringList{u"架空"_s, u"見本"_s, u"例示"_s}));
  EXPECT_TRUE(channel.said().contains(u"並び替えました"_s + kPart + u"表示の患者数:"_s + kPart + u"3"_s));
  extract(u"区分"_s, u"甲"_s);
  sort(u"ふりがな"_s, u"Command3"_s);
  EXPECT_EQ(names(), (QStringList{u"例示"_s, u"見本"_s})) << "only what is on view";
  EXPECT_FALSE(isShown(u"ソート1"));
}

}  // namespace
}  // namespace records
