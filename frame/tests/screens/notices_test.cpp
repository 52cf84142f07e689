#include <QCheckBox>
#include <QComboBox>

#include "frame/tests/screens/frame_fixture.h"

namespace frame {
namespace {

using namespace Qt::Literals::StringLiterals;

class NoticesTest : public test::FrameFixture {};

TEST_F(NoticesTest, NewsAreSpokenInOrderOnOpeningAndByTheButton) {
  screen::Screen& topics = shown(u"topics");
  QStringList labels;
  for (int i = 1; i <= 9; ++i) labels << topics.caption(u"Label%1"_s.arg(i));
  EXPECT_FALSE(labels.contains(QString()));
  const auto inOrder = [&](const QString& said) {
    int at = -1;
    for (const QString& label : labels) {
      const int next = said.indexOf(label, at + 1);
      EXPECT_GT(next, at) << label.toStdString();
      at = next;
    }
  };
  inOrder(channel.said().join(u' '));
  channel.clear();
  topics.trigger(u"Command2"_s);
  inOrder(channel.said().join(u' '));
}

TEST_F(NoticesTest, TickSilencesTheNewsAndClearingCountsAnew) {
  screen::Screen& topics = shown(u"topics");
  auto* box = topics.findChild<QCheckBox*>(u"Check1"_s);
  box->toggle();
  EXPECT_EQ(run.settings[slot::kTopics], u"15"_s);
  box->toggle();
  EXPECT_EQ(run.settings[slot::kTopics], u"0"_s);
  topics.trigger(u"Command1"_s);
  EXPECT_FALSE(isShown(u"topics"));
}

TEST_F(NoticesTest, SystemInformationIsTurnedDownWhereNoProgramForItIsInstalled) {
  const QByteArray before = qgetenv("PATH");
  qputenv("PATH", "/nonexistent");
  shown(u"frmAbout").trigger(u"cmdSysInfo"_s);
  qputenv("PATH", before);
  EXPECT_EQ(lastMessage(), u"現時点ではｼｽﾃﾑ情報を使用できません"_s);
  EXPECT_TRUE(desktop.opened().isEmpty());
  shown(u"frmAbout").trigger(u"cmdOK"_s);
  EXPECT_FALSE(isShown(u"frmAbout"));
}

TEST_F(NoticesTest, RestartNoticeLeadsToTheEnd) {
  shown(u"qvchkbox2").trigger(u"Command1"_s);
  EXPECT_FALSE(isShown(u"qvchkbox2"));
  EXPECT_TRUE(isShown(u"終了1"));
}

TEST_F(NoticesTest, MenuOpensHelpFilesAndWebPages) {
  screen::Screen& menu = shown(u"選択3");
  QFile help(path(u"help.txt"_s));
  ASSERT_TRUE(help.open(QIODevice::WriteOnly));
  help.close();
  menu.trigger(u"Men_HTH"_s);
  menu.trigger(u"Men_HHPQVTOP"_s);
  ASSERT_EQ(desktop.opened().size(), 2);
  EXPECT_TRUE(desktop.opened().at(0).endsWith(u"help.txt"_s));
  EXPECT_TRUE(desktop.opened().at(1).startsWith(u"https://"_s));
  menu.trigger(u"Command15"_s);  // help.PDF is not there
  EXPECT_TRUE(lastMessage().contains(u"help.PDF"_s)) << lastMessage().toStdString();
}

TEST_F(NoticesTest, TextHelpIsReadChapterByChapter) {
  QFile help(path(u"help.txt"_s));
  ASSERT_TRUE(help.open(QIODevice::WriteOnly));
  help.write(u"題名\n\n第１章　甲\n甲の説明\n第二の行\n\n第１２章　乙\n乙の説明\n"_s.toUtf8());
  help.close();
  screen::Screen& reader = shown(u"テキストヘルプ");
  EXPECT_EQ(reader.items(u"Combo1"_s), (QStringList{u"題名"_s, u"第１章　甲"_s, u"第１２章　乙"_s}));
  EXPECT_EQ(reader.text(u"Text1"_s), u"題名"_s);
  reader.findChild<QComboBox*>(u"Combo1"_s)->setCurrentIndex(1);
  EXPECT_EQ(reader.text(u"Text1"_s), u"第１章　甲\n甲の説明\n第二の行"_s);
}

class FeeTest : public NoticesTest {
 protected:
  void SetUp() override {
    NoticesTest::SetUp();
    makeFile(u"料金設定2000.mdb"_s);
    auto rows = open();
    addRow(rows, u"1000"_s);
    addRow(rows, u"1550"_s);
  }
  store::RecordSet open() {
    return std::move(
        store::RecordSet::open(store::Database::open(path(u"料金設定2000.mdb"_s)).value(), u"料金設定"_s)
            .value());
  }
  void addRow(store::RecordSet& rows, const QString& hari) {
    ASSERT_TRUE(rows.addNew());
    ASSERT_TRUE(rows.setValue(u"はり"_s, hari));
    ASSERT_TRUE(rows.setValue(u"突発的な往療"_s, u"2300"_s));
    ASSERT_TRUE(rows.setValue(u"特別地域"_s, u"250"_s));
    ASSERT_TRUE(rows.setValue(u"加算往診料16K"_s, u"480"_s));
    ASSERT_TRUE(rows.update());
  }
  void fill(screen::Screen& fees) {
    for (int i = 1; i <= 25; ++i) fees.setText(u"Text1(%1)"_s.arg(i), QString::number(i * 10));
  }
};

TEST_F(FeeTest, ShowsTheRowWithTheHighestId) {
  screen::Screen& fees = shown(u"料金変更");
  EXPECT_EQ(fees.text(u"Text1(1)"_s), u"1550"_s);
  EXPECT_EQ(fees.text(u"Text1(17)"_s), u"2300"_s);
  EXPECT_EQ(fees.text(u"Text1(24)"_s), u"250"_s);
  EXPECT_EQ(fees.text(u"Text1(25)"_s), u"480"_s);
  EXPECT_EQ(fees.caption(u"Text1(10)"_s), u"はりと灸の2術りの初回"_s);
  EXPECT_FALSE(fees.isControlShown(u"Command1"_s));
}

/// The columns in the order of the boxes. Kept: saving writes boxes 17 and 24 into other columns.
const QStringList kFeeColumns{
    u"はり"_s,         u"はり初回"_s,       u"はり電療"_s,        u"はり電療初回"_s, u"灸"_s,
    u"灸初回"_s,       u"灸電療"_s,         u"灸電療初回"_s,      u"はり灸"_s,       u"はり灸初回"_s,
    u"はり灸電療"_s,   u"はり灸電療初回"_s, u"マッサージ1局所"_s, u"温罨法"_s,       u"電気光線器具併用"_s,
    u"徒手矯正術"_s,   u"突発的な往療"_s,   u"加算往診料2K"_s,    u"加算往診料4K"_s, u"加算往診料6K"_s,
    u"加算往診料8K"_s, u"加算往診料10K"_s,  u"加算往診料12K"_s,   u"特別地域"_s,     u"加算往診料16K"_s};

TEST_F(FeeTest, EachBoxShowsItsColumn) {
  auto rows = open();
  ASSERT_TRUE(rows.addNew());
  for (int box = 1; box <= 25; ++box)
    ASSERT_TRUE(rows.setValue(kFeeColumns[box - 1], QString::number(1000 + box)));
  ASSERT_TRUE(rows.update());
  screen::Screen& fees = shown(u"料金変更");
  for (int box = 1; box <= 25; ++box)
    EXPECT_EQ(fees.text(u"Text1(%1)"_s.arg(box)), QString::number(1000 + box)) << box;
}

TEST_F(FeeTest, SavingWritesEachBoxIntoItsColumn) {
  screen::Screen& fees = shown(u"料金変更");
  fill(fees);
  answer({true});
  fees.trigger(u"Command1"_s);
  QStringList saved = kFeeColumns;
  saved[16] = u"往診料2Kまで"_s;
  saved[23] = u"加算往診料14K"_s;
  const auto rows = open();
  for (int box = 1; box <= 25; ++box)
    EXPECT_EQ(rows.valueAt(0, saved[box - 1]), QString::number(box * 10)) << box;
}

TEST_F(FeeTest, NotesAreReadOutByTheButton) {
  screen::Screen& fees = shown(u"料金変更");
  channel.clear();
  fees.trigger(u"Command3"_s);
  const QString said = channel.said().join(u' ');
  EXPECT_TRUE(said.contains(u"※この表示は、2024年10月施術分以降のデータです。"_s));
  EXPECT_TRUE(said.contains(u"必ず最新バージョンへアップデートしてください。"_s));
  EXPECT_TRUE(said.contains(u"音声の場合は、タブ移動で項目ごとに確認できます。"_s));
}

TEST_F(FeeTest, SavingRefusesBlankAndWrongBoxesByTheirLabels) {
  screen::Screen& fees = shown(u"料金変更");
  fill(fees);
  fees.setText(u"Text1(3)"_s, u""_s);
  answer({true});
  fees.trigger(u"Command1"_s);
  EXPECT_EQ(messages.texts(),
            (QStringList{u"料金設定を上書き保存します"_s, u"1術の電療の料金が入力されていません"_s}));
  fees.setText(u"Text1(3)"_s, u"１００"_s);
  answer({true});
  fees.trigger(u"Command1"_s);
  EXPECT_EQ(lastMessage(), u"1術の電療の料金が正しくありません"_s);
}

// Kept: boxes 17 and 24 save into other columns than they show, and every row of the file changes.
TEST_F(FeeTest, SavingWritesTheColumnsInTheirOwnOrderIntoEveryRow) {
  screen::Screen& fees = shown(u"料金変更");
  fill(fees);
  answer({true});
  fees.trigger(u"Command1"_s);
  EXPECT_EQ(lastMessage(), u"料金設定の変更が終了しました"_s);
  auto rows = open();
  ASSERT_EQ(rows.recordCount(), 2);
  for (rows.moveFirst(); !rows.eof(); rows.moveNext()) {
    EXPECT_EQ(rows.value(u"はり"_s), u"10"_s);
    EXPECT_EQ(rows.value(u"往診料2Kまで"_s), u"170"_s);
    EXPECT_EQ(rows.value(u"突発的な往療"_s), u"2300"_s);
    EXPECT_EQ(rows.value(u"加算往診料14K"_s), u"240"_s);
    EXPECT_EQ(rows.value(u"特別地域"_s), u"250"_s);
    EXPECT_EQ(rows.value(u"加算往診料16K"_s), u"250"_s);
  }
}

TEST_F(FeeTest, RefusedQuestionSavesNothing) {
  screen::Screen& fees = shown(u"料金変更");
  fill(fees);
  answer({false});
  fees.trigger(u"Command1"_s);
  auto rows = open();
  rows.moveLast();
  EXPECT_EQ(rows.value(u"はり"_s), u"1550"_s);
}

TEST_F(NoticesTest, MissingFeeFileIsReportedAndTheScreenWorks) {
  screen::Screen& fees = shown(u"料金変更");
  EXPECT_TRUE(lastMessage().startsWith(QString::fromUtf16(screen::kDataControlText)));
  EXPECT_TRUE(lastMessage().contains(u"料金設定2000.mdb"_s));
  EXPECT_EQ(fees.text(u"Text1(1)"_s), u""_s);
}

}  // namespace
}  // namespace frame
