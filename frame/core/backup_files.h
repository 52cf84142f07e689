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
  text::Result<QByteArray> sum;  ///< the fault names the file
  bool whole;                    ///< the copy can be used; else the sum is a fault
};

/// Copies all files beside their targets in the folder (`nameOf` gives the name there), each group held
/// together, and looks whether each copy is whole: a damaged file is a fault, and its copy is taken away
/// again. Group by group.
std::vector<std::vector<FreshCopy>> copyGroups(const std::vector<BackupGroup>& groups, const QString& folder,
                                               const std::function<QString(const BackupFile&)>& nameOf,
                                               const store::CopyWatch& watch);

/// Whether a file of this kind can be used: a database whose trees are whole, settings that read whole.
bool isWhole(const BackupFile& file, const QString& copy);

}  // namespace frame
