#include "claims/core/new_claim.h"

#include "claims/core/insurance.h"
#include "claims/core/print_settings.h"
#include "platform/store/tables/claims.h"
#include "platform/text/utf16.h"

namespace claims {

using namespace Qt::StringLiterals;

namespace {

/// A member of the patient and the columns that take it: of the person treated and of the insured person.
struct PersonRow {
  QString frame::Patient::*value;
  store::Column treated, insured;
};
constexpr PersonRow kPerson[] = {
    {&frame::Patient::kana, claim::treatedKana, claim::insuredKana},
    {&frame::Patient::name, claim::treatedName, claim::insuredName},
    {&frame::Patient::birth, claim::treatedBirth, claim::insuredBirth},
    {&frame::Patient::sex, claim::treatedSex, claim::insuredSex},
    {&frame::Patient::zip, claim::treatedZip, claim::insuredZip},
    {&frame::Patient::telephone, claim::treatedTelephone, claim::insuredTelephone},
};

/// The columns that join a claim to its patient.
constexpr store::Field<frame::Patient> kRegister[] = {
    {claim::chartNumber, &frame::Patient::chartNumber},
    {claim::name, &frame::Patient::name},
    {claim::birth, &frame::Patient::birth},
    {claim::patientSerial, &frame::Patient::serial},
};

constexpr store::Column kRepresentative[] = {
    claim::agentName,          claim::agentKana,
    claim::agentZip,           claim::agentAddress,
    claim::agentAddressKana,   claim::agentTelephone,
    claim::agentBank,          claim::agentBankKind,
    claim::agentBranch,        claim::agentBranchKind,
    claim::agentDeposit,       claim::agentAccount,
    claim::agentAccountHolder, claim::agentAccountHolderKana,
    claim::agentPostOffice,
};

void setDefaults(ClaimRecord& claim) {
  claim.set(claim::workRelated, u"その他"_s);
  claim.set(claim::thirdParty, u"いいえ"_s);
  claim.set(claim::hospitalised, u"入院外"_s);
  for (const PrintSetting& setting : kPrintSettings)
    if (setting.newClaim) claim.set(setting.column, text::utf16(setting.newClaim));
}

void setPersons(ClaimRecord& claim, const frame::Patient& patient, bool insuredToo) {
  for (const store::Field<frame::Patient>& field : kRegister) claim.set(field.column, patient.*(field.text));
  for (const PersonRow& row : kPerson) {
    claim.set(row.treated, patient.*(row.value));
    if (insuredToo) claim.set(row.insured, patient.*(row.value));
  }
  claim.set(claim::treatedAddress, frame::wholeAddress(patient));
  if (insuredToo) claim.set(claim::insuredAddress, frame::wholeAddress(patient));
}

}  // namespace

ClaimRecord newClaim(const frame::Patient& patient, const NewClaimChoice& choice,
                     const frame::ClinicProfile& profile) {
  ClaimRecord claim;
  const bool insured = choice.holder != CardHolder::Family;
  setPersons(claim, patient, insured);
  claim.set(claim::treatmentKind, choice.treatment == Kind::Massage ? u"あマ"_s : u"鍼灸"_s);
  if (insured) claim.set(claim::relation, u"本人"_s);
  if (choice.holder == CardHolder::InsuredNotHead) claim.set(claim::notHead, u"-1"_s);
  claim.set(claim::insuranceKind, choice.insurance);
  claim.set(claim::insuranceOrder, insuranceOrder(choice.insurance));
  claim.set(claim::summaryCode, summaryCode(choice.insurance, claim.get(claim::relation)));
  for (const frame::ProfileField& field : frame::profileFields())
    if (field.claimColumn) claim.set(*field.claimColumn, profile[field.slot]);
  claim.set(claim::registrationHari, profile[frame::slot::kElderlyHari]);
  claim.set(claim::registrationMassage, profile[frame::slot::kElderlyMassage]);
  setDefaults(claim);
  return claim;
}

std::span<const store::Column> representativeColumns() { return kRepresentative; }

}  // namespace claims
