#include "printing/core/claim_form_900.h"

#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

using Step = void (*)(Sheet&);

/// The mapping, step by step. Only the last ones override what stands before them.
constexpr Step kSteps[] = {
    printDate,
    claimMonth,
    insurerNumber,
    practitionerNumber,
    institutionCode,
    cardLine,
    relation,
    treatedPerson,
    onset,
    consentedIllness,
    placeOfTreatment,
    visitReason,
    healthOffice,
    practitionerBlock,
    proxy,
    datesOfSigning,
    bankBlock,
    insuredBlock,
    doctorBlock,
    insurerName,
    noteLines,
    cause,
    kindOfInsurance,
    leftMargin,
    share,
    diseases,
    symptoms,
    firstTreatment,
    treatmentPeriod,
    requestAndOutcome,
    dayGrid,
    publicExpenseNumbers,
    workplace,
    electricDevices,
    firstTreatmentKind,
    bodyPartCounts,
    previousReport,
    amountBoxes,
    optionHides,
    chibaPeriod,
    saitamaPeriod,
    aichiVisitingPractice,
    attachmentNote,
    labelsOnPreprinted,
    sealsRemoved,
};

}  // namespace

void hideClaim900(ReportFields& fields, const PrintSource& source) {
  if (!source.itemsOnly) return;
  fields.hide(u"T_seibetu2");
  fields.hide(u"GG4");
}

void fillClaim900(ReportFields& fields, const PrintSource& source, const frame::EraDates& dates,
                  claims::EraTable eras) {
  Sheet sheet(fields, source, dates, eras);
  for (const Step step : kSteps) step(sheet);
}

}  // namespace printing
