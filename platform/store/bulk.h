#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

#include "platform/store/record_set.h"

namespace store {

/// Adds many rows to a table in one transaction; a row may carry its own ID. Columns that the table lacks are
/// left out, and a refused value takes all back. For fresh files and for test data.
Done addRows(const QString& path, const QString& table, const QList<QHash<QString, Value>>& rows);

/// The same with rows made one after another, for many of them.
Done addRows(const QString& path, const QString& table, int count,
             const std::function<QHash<QString, Value>(int number)>& rowOf);

/// The same for very many rows that all fill the same columns: `fill` gives the values of row `number`, in
/// the order of the columns. An unknown column is a fault.
Done addRows(const QString& path, const QString& table, const QStringList& columns, int count,
             const std::function<void(int number, QStringList& values)>& fill);

/// Adds those of the rows, each with its ID, whose ID is higher than every ID of the table, in one
/// transaction: programs that do so at once add each row once. A column that the table lacks is a fault.
/// Gives their number; nothing is written to a table that has them all.
Result<int> addNewerRows(const QString& path, const QString& table, const QList<QHash<QString, Value>>& rows);

}  // namespace store
