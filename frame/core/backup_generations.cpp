#include "frame/core/backup_generations.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <future>

#include "frame/core/backup_files.h"
#include "frame/core/backup_list.h"

namespace frame {
namespace {

constexpr int kGenerations = 3;

QString nameOf(int generation, const BackupFile& file) {
  return QString::number(generation) + u'_' + file.name;
}

/// One file with its new copy, about to be rotated.
struct Rotation {
  BackupFile file;
  QByteArray newSum;
  std::array<QByteArray, kGenerations + 1> sums;  ///< by generation; "" where it is missing or damaged
  bool pushedBefore = false;                      ///< a run that was cut off has moved the older ones already
};

class Generations {
 public:
  Generations(QString folder, const store::CopyWatch& watch)
      : m_folder(std::move(folder)), m_watch(watch), m_list(BackupList::read(m_folder)) {
    m_list.keepStanding(m_folder);
  }

  void rotate(const std::vector<BackupGroup>& groups) {
    const auto toFirst = [](const BackupFile& file) { return nameOf(1, file); };
    for (const auto& copies : copyGroups(groups, m_folder, toFirst, m_watch)) take(copies);
    if (m_rotations.empty()) return;
    for (Rotation& rotation : m_rotations) lookAtOlder(rotation);
    for (Rotation& rotation : m_rotations) push(rotation, 2);
    for (Rotation& rotation : m_rotations) push(rotation, 1);
    store::syncFolder(m_folder);
    // From here on the list fits generations 2 and 3; it fits 1 until the new copies take its place.
    for (const Rotation& rotation : m_rotations) listOlder(rotation);
    if (!m_list.write(m_folder)) return;
    for (Rotation& rotation : m_rotations)
      if (store::putInPlace(pathOf(1, rotation.file), m_watch))
        m_list.put(nameOf(1, rotation.file), rotation.newSum);
    store::syncFolder(m_folder);
    m_list.forgetAnnounced();
    m_list.keepStanding(m_folder);
    (void)m_list.write(m_folder);
  }

 private:
  QString pathOf(int generation, const BackupFile& file) const {
    return m_folder + u'/' + nameOf(generation, file);
  }

  /// The halves of the claims come together or not at all.
  void take(const std::vector<FreshCopy>& copies) {
    std::vector<Rotation> whole;
    for (const FreshCopy& copy : copies)
      if (copy.sum) whole.push_back({copy.file, *copy.sum, {}, false});
    if (whole.size() == copies.size())
      m_rotations.insert(m_rotations.end(), whole.begin(), whole.end());
    else
      for (const FreshCopy& copy : copies) QFile::remove(store::besideName(copy.target));
  }

  /// The sum of a generation that may be moved on. One that no list knows was put there by hand or by a list
  /// that is lost: it counts when it can be used.
  QByteArray sumOfWhole(int generation, const BackupFile& file, const QSet<QByteArray>& known) const {
    const QString path = pathOf(generation, file);
    if (!QFileInfo(path).isFile()) return {};
    const auto sum = store::sumOf(path);
    if (!sum) return {};
    return (known.isEmpty() ? isWhole(file, path) : known.contains(*sum)) ? *sum : QByteArray();
  }

  void lookAtOlder(Rotation& rotation) const {
    const BackupFile& file = rotation.file;
    // A run that was cut off may have moved a generation after its sum was listed under another digit.
    const QSet<QByteArray> known = m_list.sumsOfAny({nameOf(1, file), nameOf(2, file), nameOf(3, file)});
    rotation.pushedBefore = store::isSameFile(pathOf(1, file), pathOf(2, file));
    const auto look = [&](int generation) { return sumOfWhole(generation, file, known); };
    auto second = std::async(std::launch::async, look, 2);
    rotation.sums[1] = look(1);
    rotation.sums[2] = second.get();
    // What is pushed onto the third need not be looked at there.
    if (rotation.pushedBefore || rotation.sums[2].isEmpty()) rotation.sums[3] = look(3);
  }

  /// Moves a generation one on: 1 onto 2, 2 onto 3.
  void push(Rotation& rotation, int generation) {
    QByteArray& sum = rotation.sums[static_cast<size_t>(generation)];
    if (sum.isEmpty() || rotation.pushedBefore) return;
    const QString from = pathOf(generation, rotation.file), to = pathOf(generation + 1, rotation.file);
    if (store::isSameFile(from, to) || store::pushOnto(from, to, m_watch))
      rotation.sums[static_cast<size_t>(generation) + 1] = sum;
  }

  void listOlder(const Rotation& rotation) {
    const BackupFile& file = rotation.file;
    for (const int generation : {2, 3})  // a damaged one keeps the sum that it does not fit
      if (const QByteArray& sum = rotation.sums[static_cast<size_t>(generation)]; !sum.isEmpty())
        m_list.put(nameOf(generation, file), sum);
    // Where nothing whole stands in the first place, the list fits what is about to come.
    m_list.put(nameOf(1, file), rotation.sums[1].isEmpty() ? rotation.newSum : rotation.sums[1]);
    m_list.announce(nameOf(1, file), rotation.newSum);
  }

  QString m_folder;
  const store::CopyWatch& m_watch;
  BackupList m_list;
  std::vector<Rotation> m_rotations;
};

}  // namespace

bool endsWithBackup(const RunState& run) { return run.runCounter % 10 == 0; }

void backUpGenerations(const RunState& run, const store::CopyWatch& watch) {
  const QString folder = run.programFolder + QStringLiteral("/backup");
  QDir().mkpath(folder);
  Generations(folder, watch).rotate(backupGroups(run));
}

}  // namespace frame
