#include <QFileInfo>

#include "claims/core/kinds.h"
#include "claims/screens/claim_form_prints_rows.h"
#include "claims/screens/claim_form_texts.h"
#include "claims/screens/claim_form_treatment_rows.h"
#include "frame/core/routes.h"
#include "frame/core/routes_unbuilt.h"
#include "platform/text/utf16.h"

// The screens that open from the claim form.

namespace claims {

using namespace Qt::StringLiterals;
using text::utf16;
namespace unbuilt = routes::unbuilt;

namespace {

constexpr screen::FamilyRef kGuides = screen::family(form::kPrints, u"LabelGuide");

}  // namespace

void ClaimFormScreen::showHelp() {
  applyMonth();
  navigator().show(m_flags.isAfter202410   ? routes::FillingHelp2024::screen
                   : m_flags.isAfter202012 ? routes::FillingHelp2018::screen
                                           : routes::FillingHelp::screen);
}

bool ClaimFormScreen::mayOpenSingle(screen::ScreenName name, bool since201810) {
  if (m_id == 0) return false;
  applyMonth();
  if (dirty()) return false;
  const QStringList open = openWindows();
  if (since201810 && m_flags.month && !m_flags.isAfter201810)
    messages().tell(utf16(says::kClosedBefore2018));
  else if (open.contains(name.text()))
    messages().tell(openWindowMessage({name}) + utf16(says::kTwice));
  else if (const QString message = openWindowMessage(open); !message.isNull())
    messages().tell(message);
  else
    return true;
  return false;
}

void ClaimFormScreen::openReport() { openSingle(unbuilt::TreatmentReport{.claim = m_id}, true); }
void ClaimFormScreen::openVisitTable() { openSingle(unbuilt::VisitBreakdown{.claim = m_id}, true); }
void ClaimFormScreen::openReasons() {
  if (kindOf(m_read.get(claim::treatmentKind)) == Kind::Massage)
    openSingle(unbuilt::ReasonSheetMassage{.claim = m_id}, false);
  else
    openSingle(unbuilt::ReasonSheetAcupuncture{.claim = m_id}, false);
}

void ClaimFormScreen::openPictureChart() {
  if (m_id == 0) return;
  const QString serial = m_read.get(claim::patientSerial);
  navigator().show(routes::PatientRegister{.who = routes::PatientRegister::BySerial{serial}});
  const QString picture = m_run.folders[frame::folder::kPictures] + u'/' + serial + u"01.bmp"_s;
  if (QFileInfo::exists(picture)) return;
  if (messages().ask(utf16(says::kNewPictureQuestion)))
    navigator().show(unbuilt::PictureChart{.serial = serial});
}

void ClaimFormScreen::speakPrintGuide() {
  QStringList texts;
  for (const screen::ControlRef& note :
       {kGuides[0], kGuides[1], kGuides[2], screen::ref(form::kTreatment, u"LabelClosed")})
    if (isControlShown(note)) texts << caption(note);
  voice().speakHeading(texts);
}

}  // namespace claims
