#include "records/screens/records_screens.h"

#include "platform/screen/prompt_list.h"
#include "records/screens/acupoint_screen.h"
#include "records/screens/patient_screen.h"
#include "records/screens/phrase_screen.h"
#include "records/screens/prompts.h"
#include "records/screens/search_screen.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

void registerScreens(screen::ScreenRegistry& registry, frame::RunState& run, report::ReportOperations&) {
  registry.add<SearchScreen>(u"選択4"_s, run);
  registry.add<PatientScreen>(u"治療台帳4"_s, run);
  registry.add<AcupointScreen>(u"frm経穴"_s, run);
  for (const DictionaryRow& row : phraseDictionaries()) {
    registry.add(QString::fromUtf16(row.screen.name.get()), [&row, &run](screen::Services& services) {
      return std::make_unique<PhraseScreen>(row, services, run);
    });
  }
  screen::addPrompts(registry, prompts(), promptActions(run));
}

}  // namespace records
