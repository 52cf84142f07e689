#pragma once

#include <QString>
#include <QVector>

#include "platform/text/result.h"

namespace bench {

/// Claims of one month (acupuncture, form of 2024-10, every block filled), stored as rows of the two claim
/// files of a folder.
struct StoredClaims {
  QString first, second;  ///< paths of the files
  QVector<qint64> ids;
};

/// Makes the files in the folder and adds `count` different claims, the same ones at every run.
text::Result<StoredClaims> storeClaims(const QString& folder, int count);

/// The folder with templates and fee files.
QString programFolder();

}  // namespace bench
