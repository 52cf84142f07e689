// bench: workloads for measuring. One line a figure: name, value, unit.

#include <QCoreApplication>
#include <QGuiApplication>
#include <cstdio>
#include <memory>

#include "tools/bench/commands.h"

namespace bench {

void figure(const char* name, double value, const char* unit) {
  std::printf("%s %.6g %s\n", name, value, unit);
  std::fflush(stdout);
}

namespace {

struct CommandRow {
  const char* name;
  int (*run)(const QStringList&);
};

constexpr CommandRow kCommands[] = {
    {"print", print},         {"jobs", jobs}, {"make", make},         {"find", find},     {"list", list},
    {"recompute", recompute}, {"pair", pair}, {"settings", settings}, {"backup", backup}, {"day", day},
};

/// The print workloads are held against the toolkit's PDF writer, which needs its fonts; all others do
/// without.
std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv) {
  const bool prints = argc > 1 && (qstrcmp(argv[1], "print") == 0 || qstrcmp(argv[1], "jobs") == 0);
  if (!prints) return std::make_unique<QCoreApplication>(argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  return std::make_unique<QGuiApplication>(argc, argv);
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) {
  const auto application = bench::makeApplication(argc, argv);
  QStringList arguments = QCoreApplication::arguments().mid(1);
  if (!arguments.isEmpty()) {
    const QString word = arguments.takeFirst();
    for (const bench::CommandRow& row : bench::kCommands) {
      if (word == QLatin1String(row.name)) return row.run(arguments);
    }
  }
  std::fputs(
      "usage: bench print N OUT.pdf | jobs N DIR | make DIR PATIENTS VISITS CLAIMS BOOKINGS | find DIR |\n"
      "       list DIR | recompute DIR N | day DIR | backup DIR | pair make|store|check DIR [STAMP] |\n"
      "       settings make|store|check DIR [STAMP]\n",
      stderr);
  return 2;
}
