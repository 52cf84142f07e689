#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace program {

/// The rows of the table under a heading of docs/glossary.md, cell by cell, without the two lines of its head
/// and without the marks of code; empty where there is no such heading or table.
QList<QStringList> glossaryRows(const QString& heading);

/// The columns that a cell lists: "d1..d3, e1" gives d1, d2, d3, e1.
QStringList listedColumns(const QString& cell);

}  // namespace program
