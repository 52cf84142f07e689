#pragma once

#include <QDate>
#include <QString>
#include <span>

#include "claims/core/rule_dates.h"
#include "frame/core/data_folders.h"

namespace claims {

/// The national fees, and the set of one association in Osaka.
enum class FeeSet { National, Osaka };

/// A fee file and the first claim month that it holds for.
struct FeeFileRow {
  rule::Date from;
  const char16_t* file;
};

/// The fee files of a set, newest first; the last row holds for all earlier months too.
std::span<const FeeFileRow> feeFileRows(FeeSet set = FeeSet::National);

/// The file of a claim month among the given rows.
QString pickFeeFile(QDate claimMonth, std::span<const FeeFileRow> rows);
/// pickFeeFile: the file name whose edition a claim month is computed with (料金設定2024.mdb).
QString pickFeeFile(QDate claimMonth, FeeSet set = FeeSet::National);

/// Where fee files lie: the current national edition at its data-folder path, all others beside the program.
struct FeeFiles {
  QString programFolder;
  QString current;                                       ///< path of the current national edition
  std::span<const FeeFileRow> national = feeFileRows();  ///< the national editions

  FeeFiles(QString folder, const frame::DataFolders& folders);
  FeeFiles(QString folder, QString currentPath)
      : programFolder(std::move(folder)), current(std::move(currentPath)) {}

  QString path(QDate claimMonth, FeeSet set = FeeSet::National) const;
};

}  // namespace claims
