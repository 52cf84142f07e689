// bench backup DIR: a backup to a folder and a generation backup, each beside a plain copy of the same files.
// DIR is a program folder; what it lacks to 200 MB is filled up with picture charts.

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "frame/core/backup_folder.h"
#include "frame/core/backup_generations.h"
#include "tools/bench/commands.h"
#include "tools/bench/plain_query.h"

namespace bench {
namespace {

constexpr qint64 kWanted = 200'000'000;
constexpr qint64 kPicture = 400'000;
constexpr int kRuns = 5;

void fillUp(const frame::RunState& run) {
  QByteArray picture(kPicture, Qt::Uninitialized);
  unsigned state = 1;
  for (char& byte : picture) byte = static_cast<char>((state = state * 1664525u + 1013904223u) >> 24);
  const qint64 missing = kWanted - frame::backupSize(run);
  for (qint64 number = 0; number < missing / kPicture; ++number) {
    const QString folder =
        QStringLiteral("%1/%2").arg(run.folders[frame::folder::kPictures]).arg(number / 20);
    QDir().mkpath(folder);
    QFile file(QStringLiteral("%1/%2.bmp").arg(folder).arg(number));
    if (file.open(QIODevice::WriteOnly)) file.write(picture);
  }
}

/// All that a folder holds, read and written again file by file, without any check.
void plainCopy(const QString& from, const QString& to) {
  QByteArray part(1 << 20, Qt::Uninitialized);
  QDirIterator place(from, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
  while (place.hasNext()) {
    QFile source(place.next());
    QFile copy(to + source.fileName().mid(from.size()));
    QDir().mkpath(QFileInfo(copy).path());
    if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ||
        !copy.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
      continue;
    for (qint64 count; (count = source.read(part.data(), part.size())) > 0;)
      copy.write(part.constData(), count);
  }
}

}  // namespace

int backup(const QStringList& arguments) {
  if (arguments.size() != 1) {
    std::fputs("bench backup DIR\n", stderr);
    return 2;
  }
  const QString& folder = arguments[0];
  frame::RunState run;
  if (const auto read = frame::readRun(QDir(folder).absolutePath(), run); !read) {
    std::fprintf(stderr, "%s\n", qUtf8Printable(read.fault().message));
    return 1;
  }
  fillUp(run);
  const QString work = run.programFolder + QStringLiteral("/copies");
  const QString copies = work + QStringLiteral("/backup"), plain = work + QStringLiteral("/plain");
  QDir().mkpath(copies);
  bool whole = true;
  // Both in turn onto what stands, so that the disk treats them alike; the first of each is not counted.
  std::vector<double> times, floors, unsynced, generations;
  for (int number = 0; number <= kRuns; ++number) {
    times.push_back(middleMilliseconds(1, [&] { whole &= frame::backUpToFolder(run, copies).whole(); }));
    floors.push_back(middleMilliseconds(1, [&] {
      plainCopy(copies, plain);
      store::syncDisk(plain);
    }));
    unsynced.push_back(middleMilliseconds(1, [&] { plainCopy(copies, plain); }));
    store::syncDisk(plain);
  }
  // Three copies of each file are what the rotation amounts to.
  for (int number = 0; number <= kRuns; ++number)
    generations.push_back(middleMilliseconds(1, [&] { frame::backUpGenerations(run); }));
  const auto middle = [](std::vector<double>& all) {
    std::sort(all.begin() + 1, all.end());
    return all[1 + kRuns / 2];
  };
  const double floor = middle(floors);
  figure("backup_size", static_cast<double>(frame::backupSize(run)) / 1e6, "MB");
  besideFloor("backup_folder", middle(times), floor);
  figure("backup_copy_without_sync", middle(unsynced), "ms");
  besideFloor("backup_generations", middle(generations), 3 * floor);
  QDir(work).removeRecursively();
  if (!whole) std::fputs("the backup is not whole\n", stderr);
  return whole ? 0 : 1;
}

}  // namespace bench
