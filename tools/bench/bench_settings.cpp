// bench settings make|store|check DIR [STAMP]: the crash test of qv.dat, stamped in the practitioner's name.

#include <QDir>
#include <cstdio>

#include "frame/core/run_state.h"
#include "tools/bench/commands.h"

namespace bench {
namespace {

int fault(const text::Fault& fault) {
  std::fprintf(stderr, "%s\n", qUtf8Printable(fault.message));
  return 1;
}

int makeSettings(const QString& folder) {
  QDir().mkpath(folder);
  frame::SettingsSlots fresh = frame::freshSettings();
  fresh[frame::slot::kPractitioner] = QStringLiteral("old");
  const auto written = frame::writeSettingsFile(frame::settingsPath(folder), fresh);
  return written ? 0 : fault(written.fault());
}

int storeSettings(const QString& folder, const QString& stamp) {
  frame::RunState run;
  if (const auto read = frame::readRun(folder, run); !read) return fault(read.fault());
  run.profile[frame::slot::kPractitioner] = stamp;
  if (const auto saved = frame::saveRun(run, frame::SettingsWriter::Profile); !saved)
    return fault(saved.fault());
  std::puts("stored");
  std::fflush(stdout);
  return 0;
}

int checkSettings(const QString& folder) {
  frame::RunState run;
  if (const auto read = frame::readRun(folder, run); !read) return fault(read.fault());
  std::printf("%s | %s\n", qUtf8Printable(run.profile[frame::slot::kPractitioner]),
              run.settings.readWhole ? "ok" : "short");
  return 0;
}

}  // namespace

int settings(const QStringList& arguments) {
  const QString work = arguments.value(0), folder = arguments.value(1), stamp = arguments.value(2);
  if (work == u"make" && !folder.isEmpty()) return makeSettings(folder);
  if (work == u"store" && !stamp.isEmpty()) return storeSettings(folder, stamp);
  if (work == u"check" && !folder.isEmpty()) return checkSettings(folder);
  std::fprintf(stderr, "bench settings make|store|check DIR [STAMP]\n");
  return 2;
}

}  // namespace bench
