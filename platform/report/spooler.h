#pragma once

#include "platform/report/document_sink.h"

namespace report {

/// Hands a document to the print service as a job of the chosen printer. The job's title is the
/// document's; copies, paper, sides and orientation are those of the printer dialog.
class Spooler final : public DocumentSink {
 public:
  explicit Spooler(const PrinterChoice& choice) : m_choice(choice) {}

  /// False if the print service does not know the printer (any more).
  bool open(const QString& title) override;
  text::Done take(const QByteArray& pdf) override;

 private:
  PrinterChoice m_choice;
  QString m_title;
};

}  // namespace report
