#pragma once

#include "claims/core/claims_state.h"
#include "frame/core/run_state.h"
#include "platform/report/printer_choice.h"
#include "platform/report/report_operations.h"
#include "platform/screen/navigator_impl.h"

namespace printing {

/// What the printing screens work with, beside the services.
struct PrintingRoom {
  frame::RunState& run;
  claims::ClaimsState& claims;
  report::ReportOperations& engine;
  report::PrinterChoice& choice;  ///< of the engine
};

/// Lists the printing screens, and hands the claim form the choice of its printing screen and the printer's
/// dialog. The engine's own dialog is the screen プリンターオプション (printerDialog). `room` must outlive
/// the registry.
void registerScreens(screen::ScreenRegistry& registry, PrintingRoom& room);

/// Name of the screen that PR_PrinterSetupDlg shows.
inline constexpr char16_t kPrinterOptions[] = u"プリンターオプション";

}  // namespace printing
