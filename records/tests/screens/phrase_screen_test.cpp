#include <QLineEdit>

#include "platform/screen/testing/screen_probe.h"
#include "records/tests/screens/dictionary_fixture.h"

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

struct PhraseCase {
  QString screen, caption, file, table, column, shipped;
};

const PhraseCase kCases[] = {
    {u"frmCLmoji"_s, u"クリップ文字"_s, u"CLmoji2000.mdb"_s, u"CLmoji"_s, u"moji"_s, u"phrases1.csv"_s},
    {u"frmCl2moji"_s, u"クリップ文字２"_s, u"CL2moji2000.mdb"_s, u"CL2moji"_s, u"setu1"_s, u"phrases2.csv"_s},
};

const QString kField = u"txtFields(0)"_s;

class PhraseScreenTest : public test::DictionaryFixture, public testing::WithParamInterface<PhraseCase> {
 protected:
  screen::Screen& phrases() {
    screen::Screen* screen = navigator.show(GetParam().screen);
    EXPECT_NE(screen, nullptr);
    return *screen;
  }
  /// The table with three phrases of the test's own.
  screen::Screen& threePhrases() {
    empty(GetParam().file, GetParam().table);
    for (const QString& phrase : {u"見本一"_s, u"見本二"_s, u"見本三"_s}) addRow(phrase);
    return phrases();
  }
  void addRow(const QString& phrase) {
    store::RecordSet rows = open(GetParam().file, GetParam().table);
    ASSERT_TRUE(rows.addNew());
    ASSERT_TRUE(rows.setValue(GetParam().column, phrase));
    ASSERT_TRUE(rows.update());
  }
  QStringList stored() const {
    const store::RecordSet rows = open(GetParam().file, GetParam().table);
    QStringList all;
    for (int i = 0; i < rows.recordCount(); ++i) all << rows.valueAt(i, GetParam().column);
    return all;
  }
};

TEST_P(PhraseScreenTest, AllShippedPhrasesAreListed) {
  const auto shipped = frame::readCsvTable(QStringLiteral(SOURCE_FOLDER "/data/") + GetParam().shipped);
  ASSERT_TRUE(shipped);
  ASSERT_EQ(shipped->rows.size(), 60);
  QStringList all;
  for (const QStringList& row : shipped->rows) all << row[0];
  EXPECT_EQ(stored(), all);
  screen::Screen& screen = phrases();
  EXPECT_EQ(screen.windowTitle(), GetParam().caption);
  EXPECT_EQ(screen.text(kField), all.first());
  EXPECT_EQ(screen.caption(kField), u"書き込み文字の変更と新規の書き込み"_s);
}

TEST_P(PhraseScreenTest, EveryControlIsNamedSpokenAndReached) {
  screen::Screen& screen = phrases();
  screen::testing::ScreenProbe probe(screen, channel);
  probe.open();
  EXPECT_EQ(probe.faults(), QStringList());
  EXPECT_EQ(probe.unknownColumns({GetParam().file}), QStringList());
}

TEST_P(PhraseScreenTest, OpeningLeavesTheClipboardAlone) {
  desktop.copyText(u"前の文字"_s);
  phrases();
  EXPECT_EQ(desktop.copiedText(), u"前の文字"_s);
}

TEST_P(PhraseScreenTest, MovingInTheListCopiesAndSaysThePhrase) {
  screen::Screen& screen = threePhrases();
  screen::testing::ScreenProbe(screen, channel).open();
  screen.focusOn(u"DBGrid1"_s);
  for (const QString& phrase : {u"見本二"_s, u"見本三"_s}) {
    press(screen, Qt::Key_Down);
    EXPECT_EQ(desktop.copiedText(), phrase);
    EXPECT_TRUE(channel.lastSaid().endsWith(phrase)) << channel.lastSaid().toStdString();
  }
  press(screen, Qt::Key_F1);
  EXPECT_EQ(desktop.copiedText(), u"見本一"_s);
  EXPECT_EQ(channel.lastSaid(), u"見本一"_s);
}

TEST_P(PhraseScreenTest, TheButtonCopiesWhatTheFieldShows) {
  screen::Screen& screen = threePhrases();
  screen::testing::ScreenProbe(screen, channel).open();
  screen.focusOn(u"Command1"_s);
  EXPECT_EQ(channel.lastSaid(), u"選択文字をクリップボードにコピーします"_s);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(desktop.copiedText(), u"見本一"_s);
  EXPECT_TRUE(channel.lastSaid().startsWith(u"見本一"_s));
  screen.setText(kField, u"書きかけ"_s);
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(desktop.copiedText(), u"書きかけ"_s);
}

TEST_P(PhraseScreenTest, TheFieldTakesTwoHundredCharacters) {
  screen::Screen& screen = threePhrases();
  screen::testing::ScreenProbe probe(screen, channel);
  probe.open();
  screen.focusOn(kField);
  screen.setText(kField, QString());
  probe.type(QString(199, u'あ') + u"𠮷野"_s);
  EXPECT_EQ(screen.text(kField), QString(199, u'あ') + u"𠮷"_s);
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored().first(), QString(199, u'あ') + u"𠮷"_s);
}

TEST_P(PhraseScreenTest, AddingMakesARowOfTheTypedText) {
  screen::Screen& screen = threePhrases();
  screen.setText(kField, u"新しい文字"_s);
  screen.trigger(u"cmdAdd"_s);
  EXPECT_EQ(stored(), (QStringList{u"見本一"_s, u"見本二"_s, u"見本三"_s, u"新しい文字"_s}));
  EXPECT_EQ(screen.text(kField), u"新しい文字"_s);
  EXPECT_EQ(screen.source().rows().absolutePosition(), 3) << "the list moved on to it";
  EXPECT_TRUE(channel.lastSaid().endsWith(u"新しい文字"_s));
}

TEST_P(PhraseScreenTest, AddingToAnEmptyTableMakesItsFirstRow) {
  empty(GetParam().file, GetParam().table);
  screen::Screen& screen = phrases();
  screen.setText(kField, u"初めの文字"_s);
  screen.trigger(u"cmdAdd"_s);
  EXPECT_EQ(stored(), QStringList(u"初めの文字"_s));
  EXPECT_EQ(screen.text(kField), u"初めの文字"_s);
}

TEST_P(PhraseScreenTest, StoringIntoAnEmptyTableMakesItsFirstRow) {
  empty(GetParam().file, GetParam().table);
  screen::Screen& screen = phrases();
  screen.setText(kField, u"初めの文字"_s);
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(), QStringList(u"初めの文字"_s));
}

TEST_P(PhraseScreenTest, ABlankFieldStartsARowThatIsDroppedIfNothingIsTyped) {
  screen::Screen& screen = threePhrases();
  screen.setText(kField, QString());
  screen.trigger(u"cmdAdd"_s);
  EXPECT_TRUE(screen.source().rows().adding());
  screen.source().moveFirst();
  EXPECT_EQ(stored(), (QStringList{u"見本一"_s, u"見本二"_s, u"見本三"_s}));
  screen.setText(kField, QString());
  screen.trigger(u"cmdAdd"_s);
  screen.setText(kField, u"後から"_s);
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored().last(), u"後から"_s);
  EXPECT_EQ(stored().size(), 4);
}

TEST_P(PhraseScreenTest, ABlankNewRowIsNotStored) {
  screen::Screen& screen = threePhrases();
  screen.setText(kField, QString());
  screen.trigger(u"cmdAdd"_s);
  channel.clear();
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(channel.lastSaid(), u"新しい文字を書き込んでから、更新ボタンを押してください"_s);
  EXPECT_EQ(screen.focused(), kField);
  EXPECT_EQ(stored().size(), 3);
  EXPECT_TRUE(screen.source().rows().adding()) << "it waits for its text";
}

TEST_P(PhraseScreenTest, WithNothingToCopyTheClipboardIsClearedAndThatIsSaid) {
  empty(GetParam().file, GetParam().table);
  desktop.copyText(u"前の文字"_s);
  screen::Screen& screen = phrases();
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(desktop.copiedText(), QString());
  EXPECT_EQ(channel.lastSaid(), u"コピーする文字がありません"_s);
}

TEST_P(PhraseScreenTest, StoringStaysOnTheStoredRow) {
  screen::Screen& screen = threePhrases();
  screen.goNext();
  screen.setText(kField, u"直した文字"_s);
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(), (QStringList{u"見本一"_s, u"直した文字"_s, u"見本三"_s}));
  EXPECT_EQ(screen.source().rows().absolutePosition(), 1);
  EXPECT_EQ(screen.text(kField), u"直した文字"_s);
}

TEST_P(PhraseScreenTest, DeletingAsksAndGoesToTheNextRowOrTheLast) {
  screen::Screen& screen = threePhrases();
  screen.goNext();
  answer({false});
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(stored().size(), 3);
  EXPECT_EQ(messages.texts().last(), u"表示のデ－タの削除をしてもいいですか？"_s);
  EXPECT_EQ(messages.titles().last(), u"削除"_s);
  answer({true, true, true});
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(stored(), (QStringList{u"見本一"_s, u"見本三"_s}));
  EXPECT_EQ(screen.text(kField), u"見本三"_s) << "the next row";
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(screen.text(kField), u"見本一"_s) << "the last one at the end";
  screen.trigger(u"cmdDelete"_s);
  EXPECT_TRUE(stored().isEmpty());
  EXPECT_EQ(screen.text(kField), QString());
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(lastMessage(), u"削除するデータがありません。"_s);
}

TEST_P(PhraseScreenTest, ClosingStoresWhatWasTyped) {
  threePhrases().setText(kField, u"一の直し"_s);
  navigator.loaded(GetParam().screen)->trigger(u"cmdClose"_s);
  EXPECT_EQ(navigator.loaded(GetParam().screen), nullptr);
  EXPECT_EQ(stored().first(), u"一の直し"_s);
  phrases().setText(kField, u"一の再度"_s);
  navigator.unload(GetParam().screen);  // as the chart closes its windows
  EXPECT_EQ(stored().first(), u"一の再度"_s);
}

TEST_P(PhraseScreenTest, StoringARowThatIsGoneIsReportedAndTheTextStays) {
  screen::Screen& screen = threePhrases();
  screen.setText(kField, u"一の直し"_s);
  {
    store::RecordSet other = open(GetParam().file, GetParam().table);
    ASSERT_TRUE(other.remove());
  }
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_TRUE(lastMessage().startsWith(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :"_s));
  EXPECT_EQ(screen.text(kField), u"一の直し"_s);
  answer({false, true});
  screen.trigger(u"cmdClose"_s);
  ASSERT_EQ(navigator.loaded(GetParam().screen), &screen) << "kept open, so that the text can be saved";
  screen.trigger(u"cmdClose"_s);
  EXPECT_EQ(navigator.loaded(GetParam().screen), nullptr);
  EXPECT_EQ(stored(), (QStringList{u"見本二"_s, u"見本三"_s}));
}

TEST_P(PhraseScreenTest, AMissingFileIsReportedByNameAndNothingBreaks) {
  QFile::remove(path(GetParam().file));
  screen::Screen& screen = phrases();
  EXPECT_TRUE(lastMessage().startsWith(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :"_s));
  EXPECT_TRUE(lastMessage().contains(GetParam().file));
  for (const QString& command : {u"cmdAdd"_s, u"cmdDelete"_s, u"cmdUpdate"_s}) {
    messages.forget();
    screen.trigger(command);
    ASSERT_EQ(messages.texts().size(), 1) << "told again where it is needed";
    EXPECT_TRUE(lastMessage().contains(GetParam().file));
  }
  screen.trigger(u"cmdClose"_s);
  EXPECT_EQ(messages.texts().size(), 1);
  EXPECT_FALSE(QFile::exists(path(GetParam().file)));
}

INSTANTIATE_TEST_SUITE_P(Both, PhraseScreenTest, testing::ValuesIn(kCases),
                         [](const auto& info) { return info.param.table.toStdString(); });

}  // namespace
}  // namespace records
