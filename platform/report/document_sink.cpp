#include "platform/report/document_sink.h"

#include <QFileInfo>
#include <QSaveFile>

#include "platform/report/file_printer.h"
#include "platform/report/spooler.h"

namespace report {

namespace {

/// The spooler, and the file printer as fallback for a document that the spooler refuses.
class SpoolerOrFile final : public DocumentSink {
 public:
  SpoolerOrFile(const PrinterChoice& choice, const QString& folder) : m_spooler(choice), m_file(folder) {}

  bool open(const QString& title) override {
    m_title = title;
    return m_spooler.open(title) || m_file.open(title);
  }
  text::Done take(const QByteArray& pdf) override {
    const text::Done spooled = m_spooler.take(pdf);
    // Both refuse: the printer that was chosen is what the user can look after.
    if (spooled || !m_file.open(m_title) || !m_file.take(pdf)) return spooled;
    return {};
  }

 private:
  QString m_title;
  Spooler m_spooler;
  FilePrinter m_file;
};

}  // namespace

OpenSink printerSinks(const QString& programFolder) {
  return [programFolder](const PrinterChoice& choice) -> std::unique_ptr<DocumentSink> {
    PrinterChoice resolved = choice;
    if (resolved.printer.isEmpty()) resolved.printer = defaultPrinter();
    if (resolved.printer == kFilePrinter) return std::make_unique<FilePrinter>(programFolder);
    return std::make_unique<SpoolerOrFile>(resolved, programFolder);
  };
}

bool FileSink::open(const QString&) {
  QSaveFile file(m_path);
  return file.open(QIODevice::WriteOnly);
}

text::Done FileSink::take(const QByteArray& pdf) {
  QSaveFile file(m_path);
  if (file.open(QIODevice::WriteOnly) && file.write(pdf) == pdf.size() && file.commit()) return {};
  return text::Fault{QStringLiteral("「%1」に書き込めません。").arg(QFileInfo(m_path).fileName())};
}

}  // namespace report
