#pragma once

#include "printing/core/sheet.h"

// The steps of the claim form's mapping, by block of the paper. Each fills its items from the source, and
// prints nothing where the source is blank.

namespace printing {

// Title and upper part.
void printDate(Sheet& sheet);
void claimMonth(Sheet& sheet);
void insurerNumber(Sheet& sheet);
void institutionCode(Sheet& sheet);
void publicExpenseNumbers(Sheet& sheet);
void kindOfInsurance(Sheet& sheet);
void leftMargin(Sheet& sheet);

// 被保険者欄.
void cardLine(Sheet& sheet);
void relation(Sheet& sheet);
void treatedPerson(Sheet& sheet);
void onset(Sheet& sheet);
void consentedIllness(Sheet& sheet);
void cause(Sheet& sheet);
void placeOfTreatment(Sheet& sheet);

// 施術内容欄.
void firstTreatment(Sheet& sheet);
void treatmentPeriod(Sheet& sheet);
void requestAndOutcome(Sheet& sheet);
void diseases(Sheet& sheet);
void symptoms(Sheet& sheet);
void electricDevices(Sheet& sheet);
void firstTreatmentKind(Sheet& sheet);
void bodyPartCounts(Sheet& sheet);
void previousReport(Sheet& sheet);
void amountBoxes(Sheet& sheet);
void share(Sheet& sheet);
void noteLines(Sheet& sheet);
void dayGrid(Sheet& sheet);
void visitReason(Sheet& sheet);

// 施術証明欄, 申請欄, 支払機関欄, 同意記録, the mandate.
void practitionerNumber(Sheet& sheet);
void healthOffice(Sheet& sheet);
void practitionerBlock(Sheet& sheet);
void proxy(Sheet& sheet);
void datesOfSigning(Sheet& sheet);
void bankBlock(Sheet& sheet);
void insuredBlock(Sheet& sheet);
void insurerName(Sheet& sheet);
void workplace(Sheet& sheet);
void doctorBlock(Sheet& sheet);

// What overrides the blocks, at the end.
void optionHides(Sheet& sheet);
void chibaPeriod(Sheet& sheet);
void saitamaPeriod(Sheet& sheet);
void aichiVisitingPractice(Sheet& sheet);
void attachmentNote(Sheet& sheet);
void labelsOnPreprinted(Sheet& sheet);
void sealsRemoved(Sheet& sheet);

}  // namespace printing
