#include "frame/core/clinic_profile.h"

#include "platform/store/tables/claims.h"

namespace frame {
namespace {

constexpr ProfileField kFields[] = {
    {slot::kPractitioner, claim::practitionerName},
    {slot::kPractitionerKana, claim::practitionerKana},
    {slot::kClinicAddress, claim::clinicAddress},
    {slot::kClinicAddressKana, claim::clinicAddressKana},
    {slot::kClinicName, claim::clinicName},
    {slot::kClinicZip, claim::clinicZip},
    {slot::kClinicTelephone, claim::clinicTelephone},
    {slot::kPayment, claim::payment},
    {slot::kDeposit, claim::deposit},
    {slot::kBank, claim::bank},
    {slot::kBankKind, claim::bankKind},
    {slot::kBranch, claim::branch},
    {slot::kBranchKind, claim::branchKind},
    {slot::kPostOffice, claim::postOffice},
    {slot::kBankCode},
    {slot::kInstitution, claim::institutionNumber},
    {slot::kInstitutionHari},
    {slot::kInstitutionMassage},
    {slot::kAccountHolderKana, claim::accountHolderKana},
    {slot::kAccountHolder, claim::accountHolder},
    {slot::kAccount, claim::account},
    {slot::kAgentKana, claim::agentKana},
    {slot::kAgent, claim::agentName},
    {slot::kAgentAddressKana, claim::agentAddressKana},
    {slot::kAgentAddress, claim::agentAddress},
    {slot::kAgentZip, claim::agentZip},
    {slot::kAgentTelephone, claim::agentTelephone},
    {slot::kAgentDeposit, claim::agentDeposit},
    {slot::kAgentBank, claim::agentBank},
    {slot::kAgentBankKind, claim::agentBankKind},
    {slot::kAgentBranch, claim::agentBranch},
    {slot::kAgentBranchKind, claim::agentBranchKind},
    {slot::kAgentPostOffice, claim::agentPostOffice},
    {slot::kAgentBankCode},
    {slot::kAgentAccountHolderKana, claim::agentAccountHolderKana},
    {slot::kAgentAccountHolder, claim::agentAccountHolder},
    {slot::kAgentAccount, claim::agentAccount},
    {slot::kAssociation, claim::associationName},
    {slot::kPresident},
    {slot::kPractitionerNumber},
    {slot::kMarginNumber},
    {slot::kElderlyHari},
    {slot::kElderlyMassage},
    {slot::kHealthOffice},
    {slot::kMail},
    {slot::kRegistration},
    {slot::kRelationPrinted},
    {slot::kElderlyNamePrinted},
    {slot::kPrintApplicantName},
    {slot::kMassageToo},
    {slot::kAichi},
    {slot::kTokyo},
};

}  // namespace

std::span<const ProfileField> profileFields() { return kFields; }

}  // namespace frame
