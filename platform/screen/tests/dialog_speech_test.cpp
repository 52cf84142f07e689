#include "platform/screen/dialog_speech.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets/QtWidgets>

#include "sample_screen.h"

namespace screen::testing {
namespace {

TEST(DialogSpeech, SaysTitleThenControlsAsTheFocusReachesThem) {
  Harness harness;
  QDialog dialog;
  dialog.setWindowTitle("ファイルの選択");
  auto* column = new QVBoxLayout(&dialog);
  auto* name = new QLineEdit("見本.mdb");
  name->setAccessibleName("ファイル名");
  auto* kind = new QComboBox;
  kind->addItem("Data");
  auto* label = new QLabel("種類:");
  label->setBuddy(kind);
  auto* accept = new QPushButton("OK");
  for (QWidget* widget : std::initializer_list<QWidget*>{name, label, kind, accept})
    column->addWidget(widget);
  letSpeak(dialog, harness.voice);
  dialog.show();
  QApplication::setActiveWindow(&dialog);
  (void)QTest::qWaitForWindowActive(&dialog);
  const QString part = QChar(254);
  EXPECT_EQ(harness.spy.heardWhole(), QStringList({"ファイルの選択", "ファイル名" + part + "見本.mdb"}));
  QTest::keyClick(name, Qt::Key_Tab);
  EXPECT_EQ(harness.spy.heardWhole(), QStringList{"種類:" + part + "Data"});
  QTest::keyClick(kind, Qt::Key_Tab);
  EXPECT_EQ(harness.spy.heardWhole(), QStringList{"OK"});
}

}  // namespace
}  // namespace screen::testing
