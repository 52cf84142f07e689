#include "platform/shell/desktop.h"

#include <gtest/gtest.h>

#include <QtWidgets/QtWidgets>

#include "platform/shell/file_picker.h"

namespace shell {
namespace {

TEST(DesktopQueue, PickersAnswerInOrderAndThenGiveUp) {
  Desktop desktop;
  desktop.answerFromQueue({"/a/見本.mdb", "/b"});
  EXPECT_EQ(desktop.pickFile("Data(*.mdb)|*.mdb"), QString("/a/見本.mdb"));
  EXPECT_EQ(desktop.pickFolder("フォルダの選択"), QString("/b"));
  EXPECT_TRUE(desktop.pickFile("Data(*.mdb)|*.mdb").isEmpty());
}

TEST(DesktopFiles, MissingFileIsAFaultThatNamesIt) {
  Desktop desktop;
  desktop.answerFromQueue();
  const text::Done done = desktop.openFile("/nonexistent/無い.PDF");
  ASSERT_FALSE(done);
  EXPECT_TRUE(done.fault().message.contains("無い.PDF"));
  EXPECT_TRUE(desktop.opened().isEmpty());
}

TEST(DesktopFiles, TextGoesToAFileThatOnlyTheUserReads) {
  Desktop desktop;
  desktop.answerFromQueue();
  ASSERT_TRUE(desktop.openText("見本メモ", "一行\n二行"));
  ASSERT_EQ(desktop.opened().size(), 1);
  QFile file(desktop.opened()[0]);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(QString::fromUtf8(file.readAll()), QString("一行\n二行"));
  EXPECT_FALSE(file.permissions() & (QFileDevice::ReadGroup | QFileDevice::ReadOther));
  file.remove();
}

TEST(DesktopClipboard, GivesBackWhatWasCopied) {
  Desktop desktop;
  desktop.copyText("令和6年4月1日");
  EXPECT_EQ(desktop.copiedText(), QString("令和6年4月1日"));
}

TEST(PickerFilters, ArePairsOfWordsAndPatterns) {
  EXPECT_EQ(nameFilters("Data(*.mdb)|*.mdb"), QStringList{"Data (*.mdb)"});
  EXPECT_EQ(nameFilters("絵(*.bmp;*.png)|*.bmp;*.png|全て|*.*"),
            QStringList({"絵 (*.bmp *.png)", "全て (*.*)"}));
  EXPECT_TRUE(nameFilters("").isEmpty());
}

TEST(PickerControls, HaveNamesInTheLanguageOfTheProgram) {
  FilePicker picker(nullptr, "フォルダの選択", QDir::tempPath());
  EXPECT_EQ(picker.windowTitle(), QString("フォルダの選択"));
  EXPECT_EQ(QDir(picker.directory()), QDir(QDir::tempPath()));
  for (const char* name :
       {"fileNameEdit", "listView", "treeView", "sidebar", "backButton", "toParentButton"}) {
    const auto* widget = picker.findChild<QWidget*>(name);
    ASSERT_NE(widget, nullptr) << name;
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << name;
  }
  for (const char* name : {"lookInCombo", "fileTypeCombo"}) {
    const auto labels = picker.findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
      return label->buddy() && label->buddy()->objectName() == name;
    })) << name;
  }
  for (const QPushButton* button : picker.findChildren<QPushButton*>())
    EXPECT_TRUE(button->text() == "OK" || button->text() == "キャンセル") << button->text().toStdString();
}

}  // namespace
}  // namespace shell
