// Entry of every test program that makes widgets: an offscreen application, then the tests.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFileInfo>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // Program folders of the tests lie in memory where there is one: each test makes its database files anew
  // and syncs some fifty times, and a disk that is busy with other work would take a minute over that.
  if (qEnvironmentVariableIsEmpty("TMPDIR") && QFileInfo(QStringLiteral("/dev/shm")).isWritable())
    qputenv("TMPDIR", "/dev/shm");
  QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
