#include "printing/core/claim_form_900.h"

#include "printing/core/claim_blocks.h"
#include "printing/core/form_items.h"

namespace printing {

namespace {

using Step = void (*)(Sheet&);

/// The mapping, step by step. Only the last ones override what stands before them.
constexpr Step kSteps[] = {
    fillPrintDate,
    fillClaimMonth,
    fillInsurerNumber,
    fillPractitionerNumber,
    fillInstitutionCode,
    fillCardLine,
    fillRelation,
    fillTreatedPerson,
    fillOnset,
    fillConsentedIllness,
    fillPlaceOfTreatment,
    fillVisitReason,
    markHealthOffice,
    fillPractitioner,
    fillProxy,
    fillDatesOfSigning,
    fillBank,
    fillInsured,
    fillDoctor,
    fillInsurerName,
    fillNoteLines,
    fillCause,
    markKindOfInsurance,
    fillLeftMargin,
    fillShare,
    fillDiseases,
    fillSymptoms,
    fillFirstTreatment,
    fillTreatmentPeriod,
    markRequestAndOutcome,
    fillDayGrid,
    fillPublicExpenseNumbers,
    fillWorkplace,
    markElectricDevices,
    markFirstTreatmentKind,
    fillBodyPartCounts,
    fillPreviousReport,
    fillAmountBoxes,
    applySettings,
    fillPeriodOfChiba,
    fillPeriodOfSaitama,
    relabelVisitingPracticeOfAichi,
    markAttachment,
    fillLabelsOnPreprinted,
    hideSeals,
};

}  // namespace

void hideClaim900(ReportFields& fields, const PrintSource& source) {
  if (!source.form.itemsOnly) return;
  for (const Item item : {Item(u"T_seibetu2"), Item(u"GG4")}) fields.hide(item);
}

void fillClaim900(ReportFields& fields, const PrintSource& source, const frame::EraDates& dates,
                  claims::EraTable eras) {
  Sheet sheet(fields, source, dates, eras);
  for (const Step step : kSteps) step(sheet);
}

}  // namespace printing
