#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace report {

/// The printer that is always there: the document becomes a file in the folder 印刷 of the program folder.
inline const QString kFilePrinter = QStringLiteral("PDF");

enum class Orientation { AsForm, Portrait, Landscape };
enum class Sides { AsPrinter, One, LongEdge, ShortEdge };

/// What the user chose in the printer dialog. It holds for the rest of the run.
struct PrinterChoice {
  QString printer;  ///< empty: the system's default printer
  QString media;    ///< as the print service names it, e.g. "iso_a4_210x297mm"; empty: the form's own paper
  int copies = 1;
  Orientation orientation = Orientation::AsForm;
  Sides sides = Sides::AsPrinter;

  bool operator==(const PrinterChoice&) const = default;
};

struct MediaSize {
  QString media;    ///< name for PrinterChoice::media
  QString caption;  ///< for people, e.g. "A4", "B5 (JIS)"
};

struct PrinterEntry {
  QString name;
  QString description;
  bool isDefault = false;
};

/// The printers of the print service, the file printer last. Never empty.
std::vector<PrinterEntry> listPrinters();
/// The sizes that the printer takes; for the file printer and for a printer that reports none, those
/// that the forms know.
std::vector<MediaSize> listMedia(const QString& printer);
/// The printer that an empty choice means: the system's default one, or the file printer.
QString defaultPrinter();

}  // namespace report
