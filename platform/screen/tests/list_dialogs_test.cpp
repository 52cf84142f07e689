#include <gtest/gtest.h>

#include "platform/screen/extract_dialog.h"
#include "platform/screen/find_row.h"
#include "platform/screen/list_screen.h"
#include "platform/screen/sort_dialog.h"
#include "platform/store/bulk.h"
#include "platform/store/database.h"
#include "platform/store/tables/patients.h"
#include "sample_screen.h"

// A list with its two dialogs, and the search that walks round.

namespace screen::testing {
namespace {

const QString kPart = QChar(254);

constexpr GridColumn kGridColumns[] = {{patients::name, u"氏名"}};
constexpr Row kListRows[] = {
    Grid{.name = u"DBGrid1", .caption = u"一覧", .columns = kGridColumns},
    TextField{.name = u"Text1", .caption = u"職業:", .bind = patients::occupation},
};
constexpr ScreenRow kListScreen{.name = u"見本一覧",
                                .caption = u"見本一覧",
                                .rows = kListRows,
                                .sources = patients::table,
                                .functionKeys = true};

class SampleList : public ListScreen {
 public:
  SampleList(Services& services, const QString& file) : ListScreen(kListScreen, services), m_file(file) {}
  void onLoad() override { openWhole(); }
  bool openWhole() override { return source().open(m_file); }
  QString noRowsText() const override { return "０件です"; }
  QString noRowsToSortText() const override { return "並び替える行がありません"; }
  QStringList rowOnView() const override { return {source().positionText(), source().rows().value("氏名")}; }
  QStringList countOnView() const override { return {QString::number(source().rows().recordCount())}; }
  void setChanged(const QString& done) override {
    ++changes;
    ListScreen::setChanged(done);
  }
  QStringList names() const {
    QStringList names;
    for (int row = 0; row < source().rows().recordCount(); ++row)
      names << source().rows().valueAt(row, "氏名");
    return names;
  }
  int changes = 0;

 private:
  QString m_file;
};

constexpr ColumnChoice kColumns[] = {
    {u"お名前", patients::name}, {u"印", patients::spareMark[1]}, ColumnChoice::missing(u"ない項目")};
constexpr ExtractRow kExtract[] = {{.name = u"抽出見本",
                                    .caption = u"抽出",
                                    .list = u"見本一覧",
                                    .columns = kColumns,
                                    .wordCaption = u"抽出する文字",
                                    .go = u"抽出の開始"},
                                   {.name = u"抽出見本2",
                                    .caption = u"抽出",
                                    .list = u"見本一覧",
                                    .columns = kColumns,
                                    .wordCaption = u"抽出する文字",
                                    .go = u"抽出の開始",
                                    .blankDoesNothing = false}};
constexpr SortRow kSort[] = {{.name = u"ソート見本", .list = u"見本一覧", .columns = kColumns}};

class ListDialogs : public ::testing::Test {
 protected:
  void SetUp() override {
    file = harness.folder.filePath("臨床QV2000N.mdb");
    ASSERT_TRUE(store::createFresh(file, "臨床QV2000N.mdb"));
    harness.registry.add("見本一覧",
                         [this](Services& all) { return std::make_unique<SampleList>(all, file); });
    addExtractDialogs(harness.registry, kExtract);
    addSortDialogs(harness.registry, kSort);
  }
  /// Rows of 氏名 and the yes/no column.
  void add(const QList<std::pair<QString, QString>>& rows) {
    ASSERT_TRUE(store::addRows(file, "臨床QV", static_cast<int>(rows.size()), [&](int row) {
      return QHash<QString, store::Value>{{"氏名", rows[row].first}, {"yn1", rows[row].second}};
    }));
  }
  void addThree() { add({{"見本 う", "-1"}, {"例示 い", "0"}, {"見本 あ", "-1"}}); }
  SampleList& list() { return dynamic_cast<SampleList&>(*harness.navigator.load("見本一覧")); }
  Screen& dialog(const QString& name) { return *harness.navigator.show(name); }
  void extract(const QString& column, const QString& word, const QString& name = "抽出見本") {
    Screen& screen = dialog(name);
    screen.setText("Combo1", column);
    screen.setText("Text1", word);
    screen.trigger("Command1");
  }
  void sort(const QString& column, const QString& button) {
    Screen& screen = dialog("ソート見本");
    screen.setText("Combo1", column);
    screen.trigger(button);
  }
  bool isOpen(const QString& name) { return harness.navigator.isShown(name); }
  QStringList told() {
    const QStringList texts = harness.messages.texts();
    harness.messages.forget();
    return texts;
  }

  Harness harness;
  QString file;
};

TEST_F(ListDialogs, OfferTheColumnsByTheirCaptionsTheFirstChosen) {
  for (const QString& name : {QString("抽出見本"), QString("ソート見本")}) {
    EXPECT_EQ(dialog(name).items("Combo1"), (QStringList{"お名前", "印", "ない項目"}));
    EXPECT_EQ(dialog(name).text("Combo1"), "お名前");
    ScreenProbe probe(dialog(name), harness.spy);
    probe.open();
    EXPECT_EQ(probe.faults(), QStringList()) << name.toStdString();
  }
}

TEST_F(ListDialogs, ExtractionNarrowsShowsTheListAndCloses) {
  addThree();
  extract("お名前", "見本");
  EXPECT_EQ(list().names(), (QStringList{"見本 う", "見本 あ"}));
  EXPECT_TRUE(isOpen("見本一覧"));
  EXPECT_FALSE(isOpen("抽出見本"));
  EXPECT_EQ(list().changes, 1);
  EXPECT_TRUE(harness.spy.said().contains("抽出しました" + kPart + "2"));
  EXPECT_EQ(list().focused(), "DBGrid1");
  extract("お名前", "あ");
  EXPECT_EQ(list().names(), QStringList{"見本 あ"}) << "the second searches what is on view";
  EXPECT_EQ(told(), QStringList());
}

TEST_F(ListDialogs, NoHitIsToldAndTheDialogKeepsWhatWasTyped) {
  addThree();
  list().source().moveTo(1);
  extract("お名前", "架空");
  EXPECT_EQ(harness.messages.titles(), QStringList{"Not found"});
  EXPECT_EQ(told(), QStringList{"該当がありません。"});
  EXPECT_TRUE(isOpen("抽出見本"));
  EXPECT_EQ(dialog("抽出見本").text("Text1"), "架空");
  EXPECT_EQ(list().names().size(), 3);
  EXPECT_EQ(list().source().rows().absolutePosition(), 1);
  EXPECT_EQ(list().changes, 0);
}

TEST_F(ListDialogs, WhatTheEngineRefusesIsToldInItsWordsAndTheDialogStays) {
  addThree();
  for (const auto& [column, word] : {std::pair("お名前", "'"), std::pair("ない項目", "見本")}) {
    extract(column, word);
    const QStringList texts = told();
    ASSERT_EQ(texts.size(), 1);
    EXPECT_TRUE(texts[0].startsWith(QString::fromUtf16(kDataControlText))) << texts[0].toStdString();
    EXPECT_TRUE(isOpen("抽出見本"));
    EXPECT_EQ(list().names().size(), 3);
  }
}

TEST_F(ListDialogs, YesAndNoMeanTheTwoValues) {
  EXPECT_EQ(yesNoText("Yes"), "-1");
  EXPECT_EQ(yesNoText("yes"), "-1");
  EXPECT_EQ(yesNoText("No"), "0");
  EXPECT_EQ(yesNoText("no"), "0");
  EXPECT_EQ(yesNoText("YES"), "YES");
  EXPECT_EQ(yesNoText("他"), "他");
  addThree();
  extract("印", "Yes");
  EXPECT_EQ(list().names(), (QStringList{"見本 う", "見本 あ"}));
  list().openWhole();
  extract("印", "no");
  EXPECT_EQ(list().names(), QStringList{"例示 い"});
}

TEST_F(ListDialogs, ABlankTextIsAskedForOrFitsEverything) {
  addThree();
  dialog("抽出見本");
  harness.spy.clear();
  extract("お名前", "");
  EXPECT_EQ(harness.spy.lastSaid(), "抽出する文字");
  EXPECT_TRUE(isOpen("抽出見本"));
  EXPECT_EQ(dialog("抽出見本").focused(), "Text1");
  extract("お名前", "", "抽出見本2");
  EXPECT_FALSE(isOpen("抽出見本2"));
  EXPECT_EQ(list().names().size(), 3);
  EXPECT_EQ(list().changes, 1);
}

TEST_F(ListDialogs, SortsBothWaysAndKeepsWhatIsNarrowed) {
  addThree();
  sort("お名前", "Command1");
  EXPECT_FALSE(isOpen("ソート見本"));
  const QStringList up = list().names();
  EXPECT_LT(up.indexOf("見本 あ"), up.indexOf("見本 う"));
  sort("お名前", "Command3");
  EXPECT_EQ(list().names(), QStringList(up.crbegin(), up.crend()));
  extract("お名前", "見本");
  EXPECT_EQ(list().names(), (QStringList{"見本 う", "見本 あ"})) << "the hits keep the order";
  sort("お名前", "Command1");
  EXPECT_EQ(list().names(), (QStringList{"見本 あ", "見本 う"}));
}

TEST_F(ListDialogs, AnUnknownColumnIsRefusedAndTheSortDialogStays) {
  addThree();
  sort("ない項目", "Command1");
  EXPECT_EQ(told().size(), 1);
  EXPECT_TRUE(isOpen("ソート見本"));
  EXPECT_EQ(dialog("ソート見本").text("Combo1"), "ない項目");
  EXPECT_EQ(list().names(), (QStringList{"見本 う", "例示 い", "見本 あ"}));
}

TEST_F(ListDialogs, AnEmptySetSaysSoInTheListsWords) {
  extract("お名前", "見本");
  EXPECT_EQ(told(), QStringList{"０件です"});
  EXPECT_TRUE(isOpen("抽出見本"));
  sort("お名前", "Command1");
  EXPECT_EQ(told(), QStringList{"並び替える行がありません"});
  EXPECT_TRUE(isOpen("ソート見本"));
}

TEST_F(ListDialogs, AMissingFileIsToldByNameInsteadOfAnEmptySet) {
  ASSERT_TRUE(QFile::remove(file));
  extract("お名前", "見本");
  const QStringList texts = told();
  EXPECT_FALSE(texts.isEmpty());
  for (const QString& text : texts) EXPECT_TRUE(text.contains("臨床QV2000N.mdb")) << text.toStdString();
}

TEST_F(ListDialogs, CancelLeavesTheListAlone) {
  addThree();
  for (const QString& name : {QString("抽出見本"), QString("ソート見本")}) {
    dialog(name).trigger("Command2");
    EXPECT_FALSE(isOpen(name));
  }
  EXPECT_EQ(list().changes, 0);
}

TEST_F(ListDialogs, RecordKeysSayTheRow) {
  addThree();
  list().goLast();
  EXPECT_EQ(harness.spy.lastSaid(), "ﾚｺｰﾄﾞ: 3" + kPart + "見本 あ");
  list().goNext();
  EXPECT_EQ(harness.spy.lastSaid(), "ﾚｺｰﾄﾞ: 3" + kPart + "見本 あ") << "stays at the end";
  list().goPrevious();
  EXPECT_EQ(harness.spy.lastSaid(), "ﾚｺｰﾄﾞ: 2" + kPart + "例示 い");
  list().goFirst();
  EXPECT_EQ(harness.spy.lastSaid(), "ﾚｺｰﾄﾞ: 1" + kPart + "見本 う");
}

// ---- The search that walks round ----

TEST_F(ListDialogs, FindRowGoesFromHitToHitAndRoundTheEnd) {
  addThree();
  QList<int> places;
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(findRow(list(), "氏名 like '*見本*' "));
    places << list().source().rows().absolutePosition();
  }
  EXPECT_EQ(places, (QList<int>{2, 0, 2})) << "the row on view comes last";
}

TEST_F(ListDialogs, TheOnlyHitIsFoundAgain) {
  addThree();
  for (int i = 0; i < 2; ++i) {
    EXPECT_TRUE(findRow(list(), "氏名 like '*例示*' "));
    EXPECT_EQ(list().source().rows().absolutePosition(), 1);
  }
}

TEST_F(ListDialogs, FindRowWithoutAHitKeepsTheRow) {
  addThree();
  list().source().moveTo(1);
  EXPECT_FALSE(findRow(list(), "氏名 like '*架空*' "));
  EXPECT_EQ(told(), QStringList{"該当がありません。"});
  EXPECT_FALSE(findRow(list(), "氏名 like '"));
  EXPECT_TRUE(told().value(0).startsWith(QString::fromUtf16(kDataControlText)));
  EXPECT_EQ(list().source().rows().absolutePosition(), 1);
}

TEST_F(ListDialogs, SettlingWritesAnEditAndDropsAnUnstoredRow) {
  addThree();
  list().setText("Text1", "自営");
  EXPECT_TRUE(commitOrDiscardRow(list().source()));
  EXPECT_EQ(list().source().rows().value("職業"), "自営");
  ASSERT_TRUE(list().source().addNew());
  list().setText("Text1", "会社員");
  EXPECT_TRUE(commitOrDiscardRow(list().source()));
  EXPECT_EQ(list().source().rows().recordCount(), 3);
  list().setText("Text1", QString(300, u'あ'));
  EXPECT_FALSE(commitOrDiscardRow(list().source()));
  EXPECT_EQ(told().size(), 1);
  EXPECT_EQ(list().text("Text1").size(), 300) << "what was typed stays";
}

}  // namespace
}  // namespace screen::testing
