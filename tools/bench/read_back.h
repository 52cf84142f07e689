#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace bench {

/// Share of the printed texts, in percent, that pdftotext gives back from the document, page by page and
/// character by character (line breaks and blanks aside). -1 where pdftotext is not installed.
double readBack(const QString& pdf, const QVector<QStringList>& pages);

}  // namespace bench
