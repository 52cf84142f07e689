#pragma once

#include <QString>
#include <memory>
#include <span>
#include <vector>

#include "frame/core/run_state.h"
#include "platform/store/file_copy.h"

namespace frame {

/// One of the twelve files that backups copy.
struct BackupFile {
  QString path;           ///< where it lives
  QString name;           ///< its fixed name in the generations: the default name, whatever the path
  bool settings = false;  ///< qv.dat, else a database file
};

/// Files that must stand at one moment: the two halves of the claims, else one file alone.
using BackupGroup = std::vector<BackupFile>;

/// All twelve, in the order in which they are copied.
std::vector<BackupGroup> backupGroups(const RunState& run);

/// A copy beside its target, not yet in its place.
struct FreshCopy {
  BackupFile file;
  QString target;
  text::Result<store::PendingSum> made;  ///< the fault names the file

  text::Result<QByteArray> sum() const { return store::finishedSum(target, made); }
};
using FreshCopies = std::vector<FreshCopy>;

/// Copies each group beside its targets in the folder (`nameOf` gives the name there), all of it held
/// together, and looks whether each copy is whole: a damaged file is a fault, and its copy is taken away
/// again. `finish` gets the groups one by one, each while the sums of the next are on their way.
void copyGroups(const std::vector<BackupGroup>& groups, const QString& folder,
                const std::function<QString(const BackupFile&)>& nameOf, const store::CopyWatch& watch,
                const std::function<void(const FreshCopies&)>& finish);

/// Whether a file of this kind can be used: a database whose trees are whole, settings that read whole.
bool isWhole(const BackupFile& file, const QString& copy);

}  // namespace frame
