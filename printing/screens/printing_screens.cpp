#include "printing/screens/printing_screens.h"

#include "frame/core/routes.h"
#include "printing/screens/claim_print_screen.h"
#include "printing/screens/consent_watch_screen.h"
#include "printing/screens/items_only_note_screen.h"
#include "printing/screens/print_forms.h"
#include "printing/screens/printer_options_screen.h"
#include "printing/screens/unbuilt_print_screen.h"

namespace printing {

using namespace Qt::Literals::StringLiterals;

void registerScreens(screen::ScreenRegistry& registry, PrintingRoom& room) {
  for (const PrintForm& form : claimPrintForms())
    registry.add<ClaimPrintScreen>(nameOf(form.screen), form, room.run, room.claims, room.engine);
  for (const PrintForm& form : unbuiltPrintForms())
    registry.add<UnbuiltPrintScreen>(nameOf(form.screen), form);
  registry.add<routes::ConsentWatch, ConsentWatchScreen>(room.run, room.engine);
  registry.add<routes::ItemsOnlyNote, ItemsOnlyNoteScreen>(room.run);
  registry.add<routes::PrinterOptions, PrinterOptionsScreen>(room.choice);
  room.claims.printing = &room.buttons;
}

}  // namespace printing
