#pragma once

#include <QStringList>

#include "frame/core/run_state.h"
#include "platform/store/file_copy.h"

namespace frame {

/// What a backup to a folder came to.
struct BackupReport {
  QStringList copied;               ///< names of the files that were copied whole
  int pictures = 0;                 ///< files of the picture folder that were
  std::vector<text::Fault> faults;  ///< each names its file
  std::vector<text::Fault> pictureFaults;

  bool whole() const { return faults.empty() && pictureFaults.empty(); }
  /// The report when not everything was copied: the names of what was not, and what was.
  QString shortfall() const;
};

/// Refuses a folder that cannot take copies: one that cannot be written to, that contains the files
/// themselves or the generations, or that lies among the pictures, which would be copied into themselves.
text::Done checkBackupFolder(const RunState& run, const QString& folder);

/// Bytes that a backup copies now.
qint64 backupSize(const RunState& run);

/// Copies the eleven database files and qv.dat under their own names, and the picture folder with its
/// contents, over what is in the folder, and adds the list of sums. One file that fails does not stop the
/// others.
BackupReport backUpToFolder(const RunState& run, const QString& folder, const store::CopyWatch& watch = {});

}  // namespace frame
