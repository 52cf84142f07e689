// layout PROGRAMFOLDER DATAFOLDER TEMPLATESFOLDER: lays out a program folder, never over data.

#include <QCoreApplication>
#include <cstdio>

#include "frame/core/installation.h"

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const QStringList arguments = application.arguments().mid(1);
  if (arguments.size() != 3) {
    std::fputs("layout PROGRAMFOLDER DATAFOLDER TEMPLATESFOLDER\n", stderr);
    return 2;
  }
  const auto made = frame::layOut(arguments[0], arguments[1], arguments[2]);
  if (!made) {
    std::fprintf(stderr, "%s\n", qUtf8Printable(made.fault().message));
    return 1;
  }
  for (const QString& name : *made) std::printf("%s\n", qUtf8Printable(name));
  return 0;
}
