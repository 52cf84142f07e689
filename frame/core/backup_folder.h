#pragma once

#include <QStringList>

#include "frame/core/run_state.h"
#include "platform/store/file_copy.h"

namespace frame {

/// What a backup to a folder came to.
struct BackupReport {
  QStringList copied;               ///< names of the files that stand whole in the folder
  int pictures = 0;                 ///< files of the picture folder that do
  std::vector<text::Fault> faults;  ///< each names its file
  std::vector<text::Fault> pictureFaults;

  bool whole() const { return faults.empty() && pictureFaults.empty(); }
  /// What is told where not everything was copied: by name what was not, and what was.
  QString shortfall() const;
};

/// Refuses a folder that is no place for copies: one that cannot be written to, that holds the files
/// themselves or the generations, or that lies among the pictures, which would be copied into themselves.
text::Done checkBackupFolder(const RunState& run, const QString& folder);

/// Bytes that a backup copies now.
qint64 backupSize(const RunState& run);

/// Copies the eleven database files and qv.dat under their own names, and the picture folder with all it
/// holds, over what stands in the folder; the list of sums lies beside them. One file that fails does not
/// keep the others from being copied.
BackupReport backUpToFolder(const RunState& run, const QString& folder, const store::CopyWatch& watch = {});

}  // namespace frame
