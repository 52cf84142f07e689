#pragma once

#include "printing/core/sheet.h"

// The steps of the claim form's mapping, by block of the paper. Each fills its items from the source, and
// prints nothing where the source is blank.

namespace printing {

// Title and upper part.
void fillPrintDate(Sheet& sheet);
void fillClaimMonth(Sheet& sheet);
void fillInsurerNumber(Sheet& sheet);
void fillInstitutionCode(Sheet& sheet);
void fillPublicExpenseNumbers(Sheet& sheet);
void markKindOfInsurance(Sheet& sheet);
void fillLeftMargin(Sheet& sheet);

// 被保険者欄.
void fillCardLine(Sheet& sheet);
void fillRelation(Sheet& sheet);
void fillTreatedPerson(Sheet& sheet);
void fillOnset(Sheet& sheet);
void fillConsentedIllness(Sheet& sheet);
void fillCause(Sheet& sheet);
void fillPlaceOfTreatment(Sheet& sheet);

// 施術内容欄.
void fillFirstTreatment(Sheet& sheet);
void fillTreatmentPeriod(Sheet& sheet);
void markRequestAndOutcome(Sheet& sheet);
void fillDiseases(Sheet& sheet);
void fillSymptoms(Sheet& sheet);
void markElectricDevices(Sheet& sheet);
void markFirstTreatmentKind(Sheet& sheet);
void fillBodyPartCounts(Sheet& sheet);
void fillPreviousReport(Sheet& sheet);
void fillAmountBoxes(Sheet& sheet);
void fillShare(Sheet& sheet);
void fillNoteLines(Sheet& sheet);
void fillDayGrid(Sheet& sheet);
void fillVisitReason(Sheet& sheet);

// 施術証明欄, 申請欄, 支払機関欄, 同意記録, the mandate.
void fillPractitionerNumber(Sheet& sheet);
void markHealthOffice(Sheet& sheet);
void fillPractitioner(Sheet& sheet);
void fillProxy(Sheet& sheet);
void fillDatesOfSigning(Sheet& sheet);
void fillBank(Sheet& sheet);
void fillInsured(Sheet& sheet);
void fillInsurerName(Sheet& sheet);
void fillWorkplace(Sheet& sheet);
void fillDoctor(Sheet& sheet);

// What overrides the blocks, at the end.
void applySettings(Sheet& sheet);
void fillPeriodOfChiba(Sheet& sheet);
void fillPeriodOfSaitama(Sheet& sheet);
void relabelVisitingPracticeOfAichi(Sheet& sheet);
void markAttachment(Sheet& sheet);
void fillLabelsOnPreprinted(Sheet& sheet);
void hideSeals(Sheet& sheet);

}  // namespace printing
