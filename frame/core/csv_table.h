#pragma once

#include <QList>
#include <QStringList>

#include "platform/text/result.h"

namespace frame {

/// A shipped table: UTF-8, its first record the names of the columns.
struct CsvTable {
  QStringList columns;
  QList<QStringList> rows;  ///< each as long as the columns
};

/// Reads a shipped table. A row of another length is a fault with the file's name and the row's number.
text::Result<CsvTable> readCsvTable(const QString& path);

}  // namespace frame
