#include "platform/screen/testing/screen_probe.h"
#include "platform/store/bulk.h"
#include "platform/store/database.h"
#include "printing/tests/screens/print_room_fixture.h"

namespace printing::tests {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr char16_t kScreen[] = u"同意期限一ヶ月";
constexpr char16_t kPrompt[] =
    u"現在表示している一覧の印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。";
constexpr char16_t kNobody[] = u"同意期限が一ヶ月以内の患者はいません。";

class ConsentWatchRoom : public PrintRoom {
 protected:
  void SetUp() override {
    run.folders[frame::folder::kClaims1] = path();
    ASSERT_TRUE(store::createFresh(path(), u"保険申請2000_1.mdb"_s).ok());
  }
  QString path() const { return folder.filePath(u"保険申請2000_1.mdb"_s); }
  void add(const QString& name, const QString& end) {
    ASSERT_TRUE(store::addRows(path(), u"保険申請"_s,
                               {{{u"氏名"_s, name},
                                 {u"要加療期間2"_s, end},
                                 {u"保険の種類"_s, u"国保"_s},
                                 {u"施術内容"_s, u"鍼灸"_s}}})
                    .ok());
  }
  void addMany(int count) {
    ASSERT_TRUE(store::addRows(path(), u"保険申請"_s, count, [](int number) {
                  return QHash<QString, store::Value>{{u"氏名"_s, u"見本　%1号"_s.arg(number)},
                                                      {u"要加療期間2"_s, u"2024/11/20"_s}};
                }).ok());
  }
  QTableView* view(screen::Screen& screen) { return screen.findChild<QTableView*>(u"List1"_s); }
  QString spoken() const { return channel.said().join(u'|'); }

  QTemporaryDir folder;
};

TEST_F(ConsentWatchRoom, ShowsAndCountsThePatients) {
  add(u"見本　太郎"_s, u"令和6年11月20日"_s);
  add(u"例示　花子"_s, u"2024/11/9"_s);
  add(u"架空　次郎"_s, u"令和6年12月6日"_s);
  add(u"見本　太郎"_s, u"令和7年5月20日"_s);
  screen::Screen& screen = open(kScreen);
  EXPECT_EQ(screen.windowTitle(), u"同意期限一ヶ月以内"_s);
  const QAbstractItemModel& model = *view(screen)->model();
  ASSERT_EQ(model.rowCount(), 2);
  QStringList headers, first;
  for (int column = 0; column < model.columnCount(); ++column) {
    headers << model.headerData(column, Qt::Horizontal).toString();
    first << model.index(0, column).data().toString();
  }
  EXPECT_EQ(headers,
            QStringList({u"氏名"_s, u"保険の種類"_s, u"同意期限"_s, u"施術内容"_s, u"その後の同意期限"_s}));
  EXPECT_EQ(first, QStringList({u"例示　花子"_s, u"国保"_s, u"2024年11月9日"_s, u"鍼灸"_s, u""_s}));
  EXPECT_EQ(model.index(1, 4).data().toString(), u"2025年5月20日"_s) << "renewed, and told all the same";
  EXPECT_TRUE(spoken().contains(u"同意期限が一ヶ月以内の患者は、2名です。"_s));
  EXPECT_TRUE(spoken().contains(u"要加療期間2"_s)) << "the way without the list is told";
}

TEST_F(ConsentWatchRoom, NobodyIsSaidToo) {
  screen::Screen& screen = open(kScreen);
  EXPECT_EQ(view(screen)->model()->rowCount(), 0);
  EXPECT_TRUE(spoken().contains(QString::fromUtf16(kNobody)));
  EXPECT_EQ(messages.texts(), QStringList());
}

TEST_F(ConsentWatchRoom, IsSoundForTheEar) {
  add(u"見本　太郎"_s, u"令和6年11月20日"_s);
  screen::Screen& screen = open(kScreen);
  screen::testing::ScreenProbe probe(screen, channel);
  probe.open();
  EXPECT_EQ(screen.focused(), u"List1"_s);
  EXPECT_EQ(probe.faults(), QStringList());
  screen.focusOn(u"List1"_s);
  probe.press(Qt::Key_Right);
  probe.press(Qt::Key_Right);
  EXPECT_EQ(channel.lastSaid(), u"同意期限"_s + voice::kSpeechSeparator + u"2024年11月20日"_s);
}

TEST_F(ConsentWatchRoom, OpenedAgainItReadsAndCountsAgain) {
  screen::Screen& screen = open(kScreen);
  add(u"見本　太郎"_s, u"令和6年11月20日"_s);
  channel.clear();
  EXPECT_EQ(&open(kScreen), &screen);
  EXPECT_EQ(view(screen)->model()->rowCount(), 1);
  EXPECT_TRUE(spoken().contains(u"1名です。"_s));
}

TEST_F(ConsentWatchRoom, PrintsAfterThePrompt) {
  add(u"見本　太郎"_s, u"令和6年11月20日"_s);
  screen::Screen& screen = open(kScreen);
  messages.answerFromQueue({true});
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(messages.texts(), QStringList{QString::fromUtf16(kPrompt)});
  EXPECT_EQ(
      engine.calls.mid(0, 4),
      QStringList({u"PR_GetPrinterDC"_s, u"PR_StartDC %1 7 同意期限一ヶ月以内 262144"_s.arg(screen.winId()),
                   u"PR_SetMargin 240 300"_s, u"PR_SetScale"_s}));
  EXPECT_TRUE(engine.calls.contains(u"PR_Output 0 22 見本　太郎"_s));
  EXPECT_EQ(engine.calls.mid(engine.calls.size() - 2), QStringList({u"PR_EndPage"_s, u"PR_EndDoc"_s}));
  EXPECT_EQ(channel.lastSaid(), u"印刷に送りました。"_s);
  EXPECT_TRUE(isLoaded(kScreen)) << "the list stays";
}

TEST_F(ConsentWatchRoom, APrinterThatDoesNotTakeTheListIsReported) {
  add(u"見本　太郎"_s, u"令和6年11月20日"_s);
  screen::Screen& screen = open(kScreen);
  engine.documentResult = text::Fault{u"プリンタの断り"_s};
  messages.answerFromQueue({true});
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(messages.texts().last(), u"プリンタの断り"_s);
  EXPECT_FALSE(channel.said().contains(u"印刷に送りました。"_s));
  EXPECT_EQ(channel.lastSaid(), u"プリンタの断り"_s);
}

TEST_F(ConsentWatchRoom, TheThirtySeventhRowBeginsAPage) {
  addMany(37);
  screen::Screen& screen = open(kScreen);
  messages.answerFromQueue({true});
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(engine.calls.count(u"PR_EndPage"_s), 2);
  EXPECT_EQ(engine.calls.count(u"PR_Output 37 -5 同意期限一ヶ月データ一覧"_s), 2);
  EXPECT_EQ(engine.calls.count(u"PR_SetScale"_s), 1);
}

TEST_F(ConsentWatchRoom, RefusedPromptPrintsNothing) {
  add(u"見本　太郎"_s, u"令和6年11月20日"_s);
  screen::Screen& screen = open(kScreen);
  messages.answerFromQueue({false});
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(engine.calls, QStringList());
  EXPECT_TRUE(isLoaded(kScreen));
}

TEST_F(ConsentWatchRoom, AnEmptyListIsNotPrinted) {
  screen::Screen& screen = open(kScreen);
  messages.answerFromQueue({true});
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(messages.texts(), QStringList{u"印刷するデータがありません。"_s});
  EXPECT_EQ(engine.calls, QStringList());
}

TEST_F(ConsentWatchRoom, APrinterThatRefusesIsSaidWithoutAMessage) {
  add(u"見本　太郎"_s, u"令和6年11月20日"_s);
  engine.startResult = 11;
  screen::Screen& screen = open(kScreen);
  messages.answerFromQueue({true});
  screen.trigger(u"Command1"_s);
  EXPECT_EQ(messages.texts().size(), 1);
  EXPECT_TRUE(engine.calls.last().startsWith(u"PR_StartDC"));
  EXPECT_FALSE(channel.said().contains(u"印刷に送りました。"_s));
  EXPECT_EQ(channel.lastSaid(), u"印刷を開始できませんでした。プリンタを確認して下さい。"_s);
}

TEST_F(ConsentWatchRoom, AFileThatCannotBeReadIsToldByName) {
  ASSERT_TRUE(QFile::remove(path()));
  screen::Screen& screen = open(kScreen);
  QCoreApplication::processEvents();
  screen.onActivate();
  QCoreApplication::processEvents();
  ASSERT_EQ(messages.texts().size(), 1) << "once";
  EXPECT_TRUE(messages.texts()[0].contains(u"保険申請2000_1.mdb"_s));
  EXPECT_FALSE(spoken().contains(QString::fromUtf16(kNobody))) << "not known is not nobody";
}

TEST_F(ConsentWatchRoom, PrinterOptionsAndClose) {
  screen::Screen& screen = open(kScreen);
  screen.trigger(u"Command2"_s);
  EXPECT_TRUE(engine.calls.last().startsWith(u"PR_PrinterSetupDlg "));
  screen.trigger(u"Command3"_s);
  EXPECT_FALSE(isLoaded(kScreen));
}

}  // namespace
}  // namespace printing::tests
