#include "claims/core/carry_forward.h"
#include "platform/store/tables/claims.h"

namespace claims {
namespace {

// The pages 保険証, 同意書 and 申請者の確認, the sickness columns and the claim's keys. The print settings
// follow from their own table.
// clang-format off
constexpr store::Column kCarried[] = {
    // keys
    claim::patientSerial, claim::flag4, claim::flag5, claim::chartNumber, claim::name, claim::birth, claim::treatmentKind, claim::insuranceOrder,
    claim::cardNumber1, claim::summaryCode,
    // 保険証
    claim::insuranceKind, claim::notHead, claim::printedInsurance, claim::shareRate, claim::shareTicks, claim::isInsured, claim::isFamily, claim::isPreschool,
    claim::elderly[7], claim::elderly[8], claim::elderly[9], claim::publicAid, claim::insurerName, claim::insurerNumber, claim::insurerAddress, claim::cardSymbol1,
    claim::cardSymbol2, claim::cardNumber, claim::qualifiedFrom, claim::validUntil, claim::municipalityNumber, claim::recipientNumber,
    claim::municipalityName, claim::publicAidNumber, claim::publicAidRecipient, claim::associationName, claim::insuredKana,
    claim::insuredName, claim::insuredBirth, claim::insuredSex, claim::insuredZip, claim::insuredAddress,
    claim::insuredAddressKana, claim::insuredTelephone, claim::relation, claim::employerName,
    claim::employerAddress, claim::treatedName, claim::treatedKana, claim::treatedBirth,
    claim::treatedSex, claim::treatedZip, claim::treatedAddress,
    claim::treatedAddressKana, claim::treatedTelephone, claim::addressee, claim::summaryKind, claim::publicAidAddressee, claim::delegated,
    // 同意書
    claim::disease, claim::diseaseTick[1], claim::diseaseTick[2], claim::diseaseTick[3], claim::diseaseTick[4], claim::diseaseTick[5], claim::diseaseTick[6], claim::diseaseOther,
    claim::diseaseNote, claim::onset, claim::cause, claim::firstTreatment, claim::consentDateKept,
    claim::consentDate, claim::consentDisease, claim::consentSymptom, claim::consentNote, claim::doctorName,
    claim::doctorKana, claim::doctorAddress, claim::doctorTelephone, claim::hospital, claim::consentFrom,
    claim::consentUntil, claim::consentToPractitioner, claim::consentToPatient, claim::trunk, claim::rightArm, claim::leftArm, claim::rightLeg, claim::leftLeg,
    claim::limbRightArm, claim::limbLeftArm, claim::limbRightLeg, claim::limbLeftLeg, claim::warm, claim::warmLight, claim::hospitalFrom,
    claim::hospitalUntil, claim::hospitalDays, claim::remark[1], claim::remark[2], claim::remark[3], claim::remark[4], claim::remark[5], claim::remark[6],
    // 既往症 to 備考
    claim::history, claim::mainSymptoms, claim::course, claim::findings, claim::remarks,
    // 申請者の確認
    claim::practitionerName, claim::practitionerKana, claim::clinicName, claim::clinicAddress, claim::clinicAddressKana,
    claim::clinicZip, claim::clinicTelephone, claim::institutionNumber, claim::payment, claim::bank,
    claim::bankKind, claim::branch, claim::branchKind, claim::deposit, claim::account, claim::accountHolder,
    claim::accountHolderKana, claim::postOffice, claim::agentName, claim::agentKana, claim::agentZip, claim::agentAddress,
    claim::agentAddressKana, claim::agentTelephone, claim::agentBank, claim::agentBankKind,
    claim::agentBranch, claim::agentBranchKind, claim::agentDeposit, claim::agentAccount, claim::agentAccountHolder,
    claim::agentAccountHolderKana, claim::agentPostOffice, claim::registrationHari, claim::registrationMassage,
};
// clang-format on

}  // namespace

std::span<const store::Column> carriedColumns() { return kCarried; }

}  // namespace claims
