#include "records/screens/records_screens.h"

#include "frame/core/routes.h"
#include "platform/screen/prompt_list.h"
#include "platform/text/utf16.h"
#include "records/screens/acupoint_screen.h"
#include "records/screens/chart1_screen.h"
#include "records/screens/new_visit_prompt.h"
#include "records/screens/patient_extract_screen.h"
#include "records/screens/patient_list_dialogs.h"
#include "records/screens/patient_list_screen.h"
#include "records/screens/patient_screen.h"
#include "records/screens/phrase_screen.h"
#include "records/screens/prompts.h"
#include "records/screens/search_screen.h"
#include "records/screens/visit_dialogs.h"
#include "records/screens/visit_ledger_screen.h"

namespace records {

void registerScreens(screen::ScreenRegistry& registry, frame::RunState& run,
                     report::ReportOperations& engine) {
  registry.add<routes::PatientSearch, SearchScreen>(run);
  registry.add<routes::PatientRegister, PatientScreen>(run);
  registry.add<routes::PatientList, PatientListScreen>(run, engine);
  registry.add<routes::ExtractPatients, PatientExtractScreen>();
  screen::addExtractDialogs(registry, patientExtractDialogs());
  screen::addSortDialogs(registry, patientSortDialogs());
  registry.add<routes::Acupoints, AcupointScreen>(run);
  for (const DictionaryRow& row : phraseDictionaries()) {
    registry.add(text::utf16(row.screen.name.get()), [&row, &run](screen::Services& services) {
      return std::make_unique<PhraseScreen>(row, services, run);
    });
  }
  registry.add<routes::PatientTexts, Chart1Screen>(run);
  screen::addExtractDialogs(registry, visitExtractDialogs());
  screen::addSortDialogs(registry, visitSortDialogs());
  registry.add(routes::VisitLedger::screen,
               [&run, previous = std::make_shared<PreviousVisit>()](screen::Services& services) {
                 return std::make_unique<VisitLedgerScreen>(services, run, *previous);
               });
  registry.add<routes::AskFirstVisit, NewVisitPrompt>();
  screen::addPrompts(registry, prompts(), promptActions(run));
}

}  // namespace records
