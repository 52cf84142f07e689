#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace text {

/// One record of a quoted list: every field between double quotes, commas between, CR LF at the end. A
/// quote inside a field is doubled, so that any text reads back as it was written.
QString writeQuotedList(const QStringList& fields);

/// The records of a text. Read with tolerance, because these files are also edited by hand and by older
/// programs: unquoted fields (blanks around them do not count), LF alone at a line's end, no line end at
/// the end of the text, a single quote in the midst of a field, a last field that was never closed. A
/// quoted field may hold commas and line ends. A line without any character is no record.
QList<QStringList> readQuotedRecords(const QString& text);

/// All fields of a text in order; the end of a line ends a field like a comma does.
QStringList readQuotedList(const QString& text);

}  // namespace text
