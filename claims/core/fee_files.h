#pragma once

#include <QDate>
#include <QString>
#include <optional>

#include "frame/core/data_folders.h"

namespace claims {

/// The national fees, and the set of one association in Osaka.
enum class FeeSet { National, Osaka };

/// pickFeeFile: the file name whose edition a claim month is computed with (料金設定2024.mdb). The name's
/// year is the year in which the edition ended. 料金設定2019.mdb is never picked: it was tested with the
/// same date as 2018 and so never stayed chosen; kept.
QString pickFeeFile(QDate claimMonth, FeeSet set = FeeSet::National);

/// Where fee files lie: the current national edition at its data-folder path, all others beside the program.
struct FeeFiles {
  QString programFolder;
  QString current;  ///< path of the current national edition

  FeeFiles(QString folder, const frame::DataFolders& folders);
  FeeFiles(QString folder, QString currentPath)
      : programFolder(std::move(folder)), current(std::move(currentPath)) {}

  QString path(QDate claimMonth, FeeSet set = FeeSet::National) const;
};

}  // namespace claims
