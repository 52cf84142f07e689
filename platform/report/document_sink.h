#pragma once

#include <QByteArray>
#include <functional>
#include <memory>

#include "platform/report/printer_choice.h"
#include "platform/text/result.h"

namespace report {

/// Where a finished document goes. One sink takes one document.
class DocumentSink {
 public:
  virtual ~DocumentSink() = default;
  /// Called before the first page. False: this target can take no document now.
  [[nodiscard]] virtual bool open(const QString& title) = 0;
  /// The whole document as PDF. A fault says in words for the user why it was not taken.
  [[nodiscard]] virtual text::Done take(const QByteArray& pdf) = 0;
};

using OpenSink = std::function<std::unique_ptr<DocumentSink>(const PrinterChoice&)>;

/// The sink of the chosen printer: the print service, or the file printer when there is no printer or
/// "PDF" is chosen. A document that the print service refuses becomes a file, so that it is not lost.
OpenSink printerSinks(const QString& programFolder);

/// A document in a file of this name, replacing what was there.
class FileSink final : public DocumentSink {
 public:
  explicit FileSink(const QString& path) : m_path(path) {}
  bool open(const QString& title) override;
  text::Done take(const QByteArray& pdf) override;

 private:
  QString m_path;
};

/// Documents kept in memory, for tests.
class MemorySink final : public DocumentSink {
 public:
  struct Document {
    QString title;
    QByteArray pdf;
  };
  explicit MemorySink(std::vector<Document>& documents) : m_documents(documents) {}
  bool open(const QString& title) override {
    m_title = title;
    return true;
  }
  text::Done take(const QByteArray& pdf) override {
    m_documents.push_back({m_title, pdf});
    return {};
  }

 private:
  QString m_title;
  std::vector<Document>& m_documents;
};

}  // namespace report
