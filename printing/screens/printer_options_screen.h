#pragma once

#include <vector>

#include "platform/report/printer_choice.h"
#include "platform/screen/screen.h"

namespace printing {

/// プリンターオプション: printer, paper, copies, orientation and sides of the coming print jobs. What is set
/// here holds for the rest of the run.
class PrinterOptionsScreen : public screen::Screen {
 public:
  /// Lists what can be chosen; tests hand in lists of their own.
  struct Lists {
    std::vector<report::PrinterEntry> (*printers)() = report::listPrinters;
    std::vector<report::MediaSize> (*media)(const QString&) = report::listMedia;
    QString (*usual)() = report::defaultPrinter;
  };

  PrinterOptionsScreen(screen::Services& services, report::PrinterChoice& choice);
  PrinterOptionsScreen(screen::Services& services, report::PrinterChoice& choice, Lists lists);

  void onLoad() override;

  void printerChosen();
  void accept();
  void cancel();

 private:
  QString chosenPrinter() const;
  void showMedia();

  report::PrinterChoice& m_choice;
  const Lists m_lists;
  std::vector<report::PrinterEntry> m_printers;
  std::vector<report::MediaSize> m_media;
};

}  // namespace printing
