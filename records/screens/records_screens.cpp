#include "records/screens/records_screens.h"

#include "platform/screen/prompt_list.h"
#include "records/screens/acupoint_screen.h"
#include "records/screens/chart1_screen.h"
#include "records/screens/new_visit_prompt.h"
#include "records/screens/patient_extract_screen.h"
#include "records/screens/patient_list_rows.h"
#include "records/screens/patient_list_screen.h"
#include "records/screens/patient_screen.h"
#include "records/screens/phrase_screen.h"
#include "records/screens/prompts.h"
#include "records/screens/search_screen.h"
#include "records/screens/visit_dialogs.h"
#include "records/screens/visit_ledger_screen.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

void registerScreens(screen::ScreenRegistry& registry, frame::RunState& run,
                     report::ReportOperations& engine) {
  registry.add<SearchScreen>(u"選択4"_s, run);
  registry.add<PatientScreen>(u"治療台帳4"_s, run);
  registry.add<PatientListScreen>(u"一覧表"_s, run, engine);
  registry.add<PatientExtractScreen>(u"抽出3"_s);
  screen::addExtractDialogs(registry, patientListExtractions());
  screen::addSortDialogs(registry, patientListSorts());
  registry.add<AcupointScreen>(u"frm経穴"_s, run);
  for (const DictionaryRow& row : phraseDictionaries()) {
    registry.add(QString::fromUtf16(row.screen.name.get()), [&row, &run](screen::Services& services) {
      return std::make_unique<PhraseScreen>(row, services, run);
    });
  }
  registry.add<Chart1Screen>(u"治療台帳2"_s, run);
  screen::addExtractDialogs(registry, visitExtractDialogs());
  screen::addSortDialogs(registry, visitSortDialogs());
  registry.add(u"治療台帳3"_s,
               [&run, previous = std::make_shared<PreviousVisit>()](screen::Services& services) {
                 return std::make_unique<VisitLedgerScreen>(services, run, *previous);
               });
  registry.add<NewVisitPrompt>(u"カルテ2の新規"_s);
  screen::addPrompts(registry, prompts(), promptActions(run));
}

}  // namespace records
