#include "frame/core/backup_generations.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <future>

#include "frame/core/backup_files.h"
#include "frame/core/backup_list.h"

namespace frame {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kGenerations = 3;

QString nameOf(int digit, const BackupFile& file) { return QString::number(digit) + u'_' + file.name; }

/// One file with its new copy, about to be rotated through its places, 1 the newest. A place has the digit of
/// its number; only where a copy is worked with where it lies (the folders of the files may point to it) is
/// its digit passed over, so that the live file is never written over by an older one.
struct Rotation {
  BackupFile file;
  QByteArray newSum;
  int liveDigit = 0;  ///< of the generation that is worked with as the live file itself; 0: none
  std::array<QByteArray, kGenerations + 1> sums;  ///< by place; "" where it is missing or damaged
  bool pushedBefore = false;                      ///< a run that was cut off has moved the older ones already

  int places() const { return liveDigit == 0 ? kGenerations : kGenerations - 1; }
  QString name(int place) const { return nameOf(place + (liveDigit != 0 && place >= liveDigit), file); }
};

class Generations {
 public:
  Generations(QString folder, const store::CopyWatch& watch)
      : m_folder(std::move(folder)), m_watch(watch), m_list(BackupList::read(m_folder)) {
    m_list.keepStanding(m_folder);
  }

  void rotate(const std::vector<BackupGroup>& groups) {
    const auto toFirst = [this](const BackupFile& file) {
      return nameOf(liveDigit(file) == 1 ? 2 : 1, file);
    };
    for (const auto& copies : copyGroups(groups, m_folder, toFirst, m_watch)) take(copies);
    if (m_rotations.empty()) return;
    for (Rotation& rotation : m_rotations) lookAtOlder(rotation);
    for (Rotation& rotation : m_rotations) push(rotation, 2);
    for (Rotation& rotation : m_rotations) push(rotation, 1);
    store::syncFolder(m_folder);
    // From here on the list fits generations 2 and 3; it fits 1 until the new copies take its place.
    for (const Rotation& rotation : m_rotations) listOlder(rotation);
    if (!m_list.write(m_folder)) return dropNewCopies();
    for (Rotation& rotation : m_rotations)
      if (store::putInPlace(pathOf(1, rotation), m_watch)) {
        store::dropJournal(pathOf(1, rotation));
        m_list.put(rotation.name(1), rotation.newSum);
      }
    store::syncFolder(m_folder);
    m_list.forgetAnnounced();
    m_list.keepStanding(m_folder);
    // The copies are whole without it: the list of before names sums that fit older copies alone, and the
    // next rotation writes it anew.
    (void)m_list.write(m_folder);
  }

 private:
  QString pathOf(int place, const Rotation& rotation) const { return m_folder + u'/' + rotation.name(place); }
  int liveDigit(const BackupFile& file) const {
    const auto real = [](const QString& path) { return QFileInfo(path).canonicalFilePath(); };
    for (int digit = 1; digit <= kGenerations; ++digit)
      if (const QString path = real(m_folder + u'/' + nameOf(digit, file));
          !path.isEmpty() && path == real(file.path))
        return digit;
    return 0;
  }

  /// The halves of the claims are replaced together or not at all.
  void take(const std::vector<FreshCopy>& copies) {
    std::vector<Rotation> whole;
    for (const FreshCopy& copy : copies)
      if (copy.sum) whole.push_back({copy.file, *copy.sum, liveDigit(copy.file), {}, false});
    if (whole.size() == copies.size())
      m_rotations.insert(m_rotations.end(), whole.begin(), whole.end());
    else
      for (const FreshCopy& copy : copies) QFile::remove(store::besideName(copy.target));
  }

  /// Without a list that fits them they would only take space, on a disk that may have none left.
  void dropNewCopies() const {
    for (const Rotation& rotation : m_rotations) QFile::remove(store::besideName(pathOf(1, rotation)));
  }

  /// The sum of a generation that may be moved on. One that no list has was put there by hand, or its list
  /// is lost: it counts if it can be used.
  QByteArray sumOfWhole(const BackupFile& file, const QString& path, const QSet<QByteArray>& known) const {
    if (!QFileInfo(path).isFile()) return {};
    const auto sum = store::sumOf(path);
    if (!sum) return {};
    return (known.isEmpty() ? isWhole(file, path) : known.contains(*sum)) ? *sum : QByteArray();
  }

  void lookAtOlder(Rotation& rotation) const {
    const BackupFile& file = rotation.file;
    // A run that was cut off may have moved a generation after its sum was listed under another digit.
    const QSet<QByteArray> known = m_list.sumsOfAny({nameOf(1, file), nameOf(2, file), nameOf(3, file)});
    rotation.pushedBefore = store::isSameFile(pathOf(1, rotation), pathOf(2, rotation));
    const auto look = [&](int place) { return sumOfWhole(file, pathOf(place, rotation), known); };
    auto second = std::async(std::launch::async, look, 2);
    rotation.sums[1] = look(1);
    rotation.sums[2] = second.get();
    // What is pushed onto the third need not be looked at there.
    if (rotation.places() > 2 && (rotation.pushedBefore || rotation.sums[2].isEmpty()))
      rotation.sums[3] = look(3);
  }

  /// Moves a generation one on: 1 onto 2, 2 onto 3.
  void push(Rotation& rotation, int place) {
    const QByteArray& sum = rotation.sums[static_cast<size_t>(place)];
    if (sum.isEmpty() || rotation.pushedBefore || place == rotation.places()) return;
    const QString from = pathOf(place, rotation), to = pathOf(place + 1, rotation);
    if (!store::isSameFile(from, to) && !store::pushOnto(from, to, m_watch)) return;
    store::dropJournal(to);
    rotation.sums[static_cast<size_t>(place) + 1] = sum;
  }

  void listOlder(const Rotation& rotation) {
    for (const int place : {2, 3})  // a damaged one is listed with the sum that it does not fit
      if (const QByteArray& sum = rotation.sums[static_cast<size_t>(place)]; !sum.isEmpty())
        m_list.put(rotation.name(place), sum);
    // If generation 1 is missing or damaged, the sum of the new copy is listed instead.
    m_list.put(rotation.name(1), rotation.sums[1].isEmpty() ? rotation.newSum : rotation.sums[1]);
    m_list.announce(rotation.name(1), rotation.newSum);
    if (rotation.liveDigit != 0) m_list.takeOut(nameOf(rotation.liveDigit, rotation.file));
  }

  QString m_folder;
  const store::CopyWatch& m_watch;
  BackupList m_list;
  std::vector<Rotation> m_rotations;
};

}  // namespace

bool endsWithBackup(const RunState& run) { return run.runCounter % 10 == 0; }

void backUpGenerations(const RunState& run, const store::CopyWatch& watch) {
  const QString folder = run.programFolder + u"/backup"_s;
  QDir().mkpath(folder);
  Generations(folder, watch).rotate(backupGroups(run));
}

}  // namespace frame
