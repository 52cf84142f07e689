#pragma once

#include "claims/core/claims_state.h"
#include "frame/core/run_state.h"
#include "platform/report/printer_choice.h"
#include "platform/report/report_operations.h"
#include "platform/screen/navigator_impl.h"
#include "printing/core/print_button.h"

namespace printing {

/// What the printing screens work with, beside the services.
struct PrintingRoom {
  frame::RunState& run;
  claims::ClaimsState& claims;
  report::ReportOperations& engine;
  report::PrinterChoice& choice;  ///< of the engine
  PrintButtons buttons{run, engine};
};

/// Lists the printing screens, and hands the claim screens their print buttons. The engine's own dialog is
/// the screen プリンターオプション (printerDialog). `room` must outlive the registry and stay in its place.
void registerScreens(screen::ScreenRegistry& registry, PrintingRoom& room);

}  // namespace printing
