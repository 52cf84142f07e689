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
  bool settings = false;  ///< qv.dat; otherwise a database file
};

/// Files whose copies must be of the same moment: the two halves of the claims, otherwise one file alone.
using BackupGroup = std::vector<BackupFile>;

/// All twelve, in the order in which they are copied.
std::vector<BackupGroup> backupGroups(const RunState& run);

/// A copy next to its target, not yet in its place.
struct FreshCopy {
  BackupFile file;
  QString target;
  text::Result<QByteArray> sum;  ///< the fault names the file
  bool whole;                    ///< the copy can be used; otherwise the sum is a fault
};

/// Copies all files next to their targets in the folder (`nameOf` gives the name there), the files of a group
/// at one moment, and checks whether each copy is whole: a damaged file is a fault, and its copy is removed.
/// Group by group.
std::vector<std::vector<FreshCopy>> copyGroups(const std::vector<BackupGroup>& groups, const QString& folder,
                                               const std::function<QString(const BackupFile&)>& nameOf,
                                               const store::CopyWatch& watch);

/// Whether a file of this kind can be used: an intact database, settings that can be read whole.
bool isWhole(const BackupFile& file, const QString& copy);

}  // namespace frame
