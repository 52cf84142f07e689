#include "claims/core/area_boxes.h"
#include "claims/core/day_codes.h"
#include "claims/core/new_claim.h"
#include "claims/screens/claim_form_consent_rows.h"
#include "claims/screens/claim_form_head_rows.h"
#include "claims/screens/claim_form_insurance_rows.h"
#include "claims/screens/claim_form_texts.h"
#include "claims/screens/claim_form_treatment_rows.h"
#include "frame/core/routes.h"
#include "platform/text/utf16.h"

// Fields of the form: checks on leaving, siblings of the lists, ticks with a word of their own.

namespace claims {

using form::on;
using screen::ref;
using text::utf16;

namespace {

constexpr screen::FamilyRef kCodes = screen::family(form::kTreatment, u"Text5");
constexpr screen::FamilyRef kVisits = screen::family(form::kTreatment, u"Text6");
constexpr screen::ControlRef kAreasNote = ref(form::kConsent, u"LabelAreas");
constexpr screen::ControlRef kItemsOnly = ref(form::kHead, u"Check13");
constexpr screen::ControlRef kReport = on(form::kTreatment, claim::report);
constexpr screen::ControlRef kReceivers[] = {on(form::kConsent, claim::consentToPractitioner),
                                             on(form::kConsent, claim::consentToPatient)};
constexpr screen::ControlRef kPrintedInsurance = on(form::kInsurance, claim::printedInsurance);
constexpr screen::ControlRef kInsurerName = on(form::kInsurance, claim::insurerName);
constexpr screen::ControlRef kInsurerNumber = on(form::kInsurance, claim::insurerNumber);
constexpr screen::ControlRef kDoctorName = on(form::kConsent, claim::doctorName);

/// Dates that 西暦 and 和暦 turn. 生年月日 of the patient register stays: it joins the claim to the patient.
constexpr store::Column kDates[] = {claim::insuredBirth, claim::treatedBirth, claim::firstTreatment,
                                    claim::consentDateKept, claim::consentDate};

/// Whether the days of the month have more than one number of massage areas.
bool areasDiffer(const ClaimRecord& claim) {
  QSet<int> numbers;
  for (int number = 1; number <= 5; ++number)
    for (int each = 1; each <= 31; ++each) {
      const DayCode code(claim.code(each));
      if (code.has(u'g', number) || code.has(u'i', number) || code.has(u'j', number)) numbers.insert(number);
    }
  return numbers.size() > 1;
}

}  // namespace

void ClaimFormScreen::codeLeft(int day) {
  const QString message = codeEntryMessage(text(kCodes[day]), kindOf(m_read.get(claim::treatmentKind)));
  if (message.isNull()) return;
  keepFocus();
  messages().tell(message);
}

void ClaimFormScreen::visitLeft(int day) {
  const QString message = visitEntryMessage(text(kVisits[day]), m_flags.isAfter202410);
  if (message.isNull()) return;
  keepFocus();
  messages().tell(message);
}

void ClaimFormScreen::gridEdited() {
  m_treatmentChanged = true;
  refillBoxes();
}

void ClaimFormScreen::refillBoxes() {
  if (kindOf(m_read.get(claim::treatmentKind)) != Kind::Massage) return;
  const AreaBoxes boxes = areaBoxes(record());
  const auto fill = [this](const auto& counts, const store::Series& columns) {
    for (size_t i = 0; i < counts.size(); ++i) put(columns[columns.first() + int(i)], counts[i]);
  };
  fill(boxes.areas, claim::areaDays);
  fill(boxes.limbs, claim::limbDays);
  applyAreaWarning(true);
}

void ClaimFormScreen::applyAreaWarning(bool spoken) {
  const ClaimRecord claim = record();
  const bool differ = kindOf(claim.get(claim::treatmentKind)) == Kind::Massage && areasDiffer(claim);
  if (differ && spoken && !isControlShown(kAreasNote)) voice().speakText(caption(kAreasNote));
  setShown(kAreasNote, differ);
}

void ClaimFormScreen::insurerNumberLeft() {
  const QString message = insurerNumberMessage(text(kPrintedInsurance), text(kInsurerNumber));
  if (!message.isNull()) messages().tell(message);
}

void ClaimFormScreen::insurerNameChosen() {
  fillSiblings(kInsurerName, claim::insurerName, kInsurerRegister, m_lists.insurers);
}

void ClaimFormScreen::insurerNumberChosen() {
  fillSiblings(kInsurerNumber, claim::insurerNumber, kInsurerRegister, m_lists.insurers);
}

void ClaimFormScreen::doctorChosen() {
  fillSiblings(kDoctorName, claim::doctorName, kDoctorRegister, m_lists.doctors);
}

// The list position decides: two entries of one name are two rows of the register.
void ClaimFormScreen::fillSiblings(const screen::ControlRef& list, const store::Column& column,
                                   const Register& from, const RegisterRows& rows) {
  const int position = chosenItem(list);
  if (position < 0 || position >= rows.size()) return;  // typed, or the sentence of an empty register
  QStringList brought;
  for (size_t field = 0; field < from.fields.size(); ++field) {
    const store::Column& sibling = from.fields[field].claimColumn;
    if (sibling == column) continue;
    const QString value = rows[position][qsizetype(field)];
    put(sibling, value);
    if (!value.isEmpty()) brought << value;
  }
  // Heard after the list has said the entry itself: so two entries of one name can be distinguished.
  const auto tell = [this, brought] { voice().speakText(brought.join(voice::kSpeechSeparator)); };
  QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void ClaimFormScreen::consentReceiverToggled() {
  if (!checked(kReceivers[0]) && !checked(kReceivers[1])) messages().tell(utf16(kConsentTicksMessage));
}

void ClaimFormScreen::reportToggled() {
  if (checked(kReport)) messages().tell(utf16(kReportTickMessage));
}

void ClaimFormScreen::itemsOnlyToggled() {
  if (checked(kItemsOnly) && !m_run.itemsOnlyNoteSilenced) navigator().show(routes::ItemsOnlyNote{});
}

void ClaimFormScreen::datesToWestern() {
  convertDates(&frame::EraDates::seireki);
  voice().speakText(utf16(says::kWesternDone));
}

void ClaimFormScreen::datesToEra() {
  convertDates(&frame::EraDates::wareki);
  voice().speakText(utf16(says::kEraDone));
}

void ClaimFormScreen::convertDates(QString (frame::EraDates::*conversion)(const QString&) const) {
  const frame::EraDates era = m_run.eraDates();
  const ClaimRecord claim = record();
  for (const store::Column& date : kDates)
    if (!claim.blank(date)) put(date, (era.*conversion)(claim.get(date)));
}

void ClaimFormScreen::clearAgent() {
  if (!messages().ask(utf16(says::kClearAgentQuestion))) return;
  for (const store::Column& column : representativeColumns()) put(column, QString());
}

}  // namespace claims
