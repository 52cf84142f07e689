#pragma once

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QString>
#include <QTemporaryDir>

namespace report::testing {

/// Whether the program that reads PDF files is there; without it the tests of read-back are skipped.
inline bool canReadPdf() { return !QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty(); }

inline QString runOnPdf(const QString& program, const QStringList& options, const QByteArray& pdf,
                        const QStringList& after = {}) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("page.pdf"));
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size()) return {};
  file.close();
  QProcess process;
  process.start(program, options + QStringList{path} + after);
  process.waitForFinished(60000);
  return QString::fromUtf8(process.readAllStandardOutput() + process.readAllStandardError());
}

/// The text of a document, line by line as it was drawn.
inline QString textOf(const QByteArray& pdf, const QStringList& options = {QStringLiteral("-raw")}) {
  return runOnPdf(QStringLiteral("pdftotext"), options, pdf, {QStringLiteral("-")});
}

inline QStringList linesOf(const QByteArray& pdf) {
  QStringList lines;
  for (const QString& line : textOf(pdf).split(u'\n'))
    if (!line.trimmed().isEmpty() && line != u"\f") lines << QString(line).remove(u'\f');
  return lines;
}

inline QString infoOf(const QByteArray& pdf) { return runOnPdf(QStringLiteral("pdfinfo"), {}, pdf); }

}  // namespace report::testing
