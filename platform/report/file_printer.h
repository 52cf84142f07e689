#pragma once

#include <QTemporaryFile>

#include "platform/report/document_sink.h"
#include "platform/text/clock.h"

namespace report {

/// The printer of a machine without printers: each document becomes 印刷/<title>_<yyyymmdd_hhmmss>.pdf in
/// the program folder, with _2, _3, ... where that file exists already. Nothing is ever overwritten.
class FilePrinter final : public DocumentSink {
 public:
  explicit FilePrinter(const QString& programFolder, std::shared_ptr<const text::Clock> clock = nullptr);

  bool open(const QString& title) override;
  text::Done take(const QByteArray& pdf) override;

  /// Title made fit for a file name.
  static QString fileStem(const QString& title);

 private:
  QString m_folder;
  QString m_title;
  std::shared_ptr<const text::Clock> m_clock;
  std::unique_ptr<QTemporaryFile> m_file;
};

}  // namespace report
