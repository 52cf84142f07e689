#include "printing/screens/printing_screens.h"

#include "frame/core/routes.h"
#include "printing/core/print_button.h"
#include "printing/screens/claim_print_screen.h"
#include "printing/screens/consent_watch_screen.h"
#include "printing/screens/items_only_note_screen.h"
#include "printing/screens/printer_options_screen.h"
#include "printing/screens/unbuilt_print_screen.h"

namespace printing {

using namespace Qt::Literals::StringLiterals;

void registerScreens(screen::ScreenRegistry& registry, PrintingRoom& room) {
  registry.add<routes::ClaimPrint2024, ClaimPrintScreen>(room.run, room.claims, room.engine);
  registry.add<routes::ConsentWatch, ConsentWatchScreen>(room.run, room.engine);
  registry.add<routes::ItemsOnlyNote, ItemsOnlyNoteScreen>(room.run);
  registry.add<PrinterOptionsScreen>(QString::fromUtf16(kPrinterOptions), room.choice);
  for (const screen::ScreenRow& row : UnbuiltPrintScreen::declarations())
    registry.add(QString::fromUtf16(row.name.get()), [&row](screen::Services& services) {
      return std::make_unique<UnbuiltPrintScreen>(row, services);
    });

  room.claims.choosePrintScreen = printScreenChooser(room.run);
  room.claims.printerSetup = [&engine = room.engine](quintptr window) { engine.PR_PrinterSetupDlg(window); };
}

}  // namespace printing
