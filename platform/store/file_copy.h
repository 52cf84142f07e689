#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "platform/text/result.h"

namespace store::parts {
class SumThread;
}

namespace store {

using text::Done;
using text::Fault;
using text::Result;

/// Copies of whole files: taken of one moment, written beside the target, read back and compared, synced, and
/// only then put in the target's place by a rename. Whoever reads the target finds the old copy or the new.

enum class DiskStep { Create, Write, Sync, ReadBack, Link, Rename };

/// Who looks on while files are copied.
struct CopyWatch {
  /// The bytes that came to stand in copies since the last call; 0 from time to time while the disk syncs.
  std::function<void(qint64 bytes)> copied;
  /// Asked before each step on the disk; a number other than 0 is the errno that the step fails with. Tests
  /// cut the power here, fill the disk, or take the target away.
  std::function<int(DiskStep step, const QString& path)> before;
};

/// A file that stands still while it is copied.
class HeldFile {
 public:
  /// A database file under a read lock: unfinished writes of a program that died are taken back first, other
  /// programs may read on, and one that writes waits, or has us wait. A missing, empty, alien or torn file is
  /// reported by name. Two files that are written together stand at one moment while both are held; take them
  /// in the order in which they are written.
  static Result<std::unique_ptr<HeldFile>> database(const QString& path);
  /// Any other file; whoever replaces it does so by a rename.
  static Result<std::unique_ptr<HeldFile>> plain(const QString& path);
  virtual ~HeldFile() = default;

  const QString& path() const { return m_path; }
  virtual qint64 size() const = 0;
  /// Reads `count` bytes from the place `at`; the errno of the fault, 0: read.
  virtual int read(qint64 at, char* to, qint64 count) const = 0;

 protected:
  explicit HeldFile(QString path) : m_path(std::move(path)) {}

 private:
  QString m_path;
};

/// Where a copy stands until it takes the target's place. One name serves for ever, so that copies that were
/// cut off leave nothing that piles up.
QString besideName(const QString& target);

/// Copies of several files, made beside their targets on one disk.
class CopyBatch {
 public:
  explicit CopyBatch(CopyWatch watch = {});
  ~CopyBatch();
  CopyBatch(const CopyBatch&) = delete;
  CopyBatch& operator=(const CopyBatch&) = delete;

  /// Writes the copy. The source need not be held any longer then; the sum is worked out on another core
  /// while the next file is copied.
  void add(const HeldFile& source, const QString& target);
  /// Syncs all copies at once; until finish() they may be looked at beside their targets.
  void sync();
  /// Waits until the copies were read back, after syncing them. Each copy's sum, in the order in which they
  /// were added, or a fault that names the file; a copy that failed leaves nothing.
  std::vector<Result<QByteArray>> finish();

 private:
  class Copying;
  const CopyWatch m_watch;
  std::unique_ptr<parts::SumThread> m_sums;
  std::vector<std::unique_ptr<Copying>> m_copies;  ///< end before the thread that follows them
  bool m_synced = false;
};

/// The copy beside takes the place of the target.
Done putInPlace(const QString& target, const CopyWatch& watch = {});

/// For a database file that was put in place of another: a journal that a program left beside the old one
/// would be taken back into the new one by whoever opens it first.
void dropJournal(const QString& target);

/// The target becomes the same file as the one that stands: by a hard link where the file system has them,
/// else as a copy. The file that stands stays.
Done pushOnto(const QString& standing, const QString& target, const CopyWatch& watch = {});
/// Whether both names are names of one file.
bool isSameFile(const QString& one, const QString& other);

/// New names of a folder outlast a power cut from here on. Folders that know no sync go on without.
void syncFolder(const QString& folder);
/// The same for all that was written to the disk of the folder.
void syncDisk(const QString& folder);

/// The sum of a whole file, BLAKE2b of 512 bits in hexadecimal digits, as b2sum writes it.
Result<QByteArray> sumOf(const QString& path);

/// Checks every B-tree page of a database file that nobody has open: each in its place, once. The values of
/// the rows are not looked at, which makes it ten times as fast as the engine's own quick check.
bool isIntactDatabase(const QString& path);

}  // namespace store
