#include "frame/core/settings_slots.h"
#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

constexpr ItemSize kAddress[] = {{26, u"Name57_3"}, {kAnyLength, u"Name57"}};
constexpr ItemSize kProxyName[] = {{20, u"Name11_2"}, {kAnyLength, u"Name11_3"}};
constexpr DateItems kReceived = {u"GG11", u"YY11", u"MM11", u"DD11"};
constexpr DateItems kClaimed = {u"GG12", u"YY12", u"MM12", u"DD12"};
constexpr DateItems kMandated = {u"GG13", u"YY13", u"MM13", u"DD13"};
constexpr char16_t kLicencePrinted[] = u"2";  ///< 免許番号 in the place of 登録記号番号

/// Columns of the person named on the paper: the practitioner or the representative.
struct Signer {
  store::Column name, zip, address, telephone;
};
constexpr Signer kPractitioner = {claim::practitionerName, claim::clinicZip, claim::clinicAddress,
                                  claim::clinicTelephone};
constexpr Signer kRepresentative = {claim::agentName, claim::agentZip, claim::agentAddress,
                                    claim::agentTelephone};

const Signer* signer(Switch choice) {
  if (choice == Switch::Empty) return nullptr;
  return choice == Switch::On ? &kPractitioner : &kRepresentative;
}

QString licenceNumbers(const Sheet& sheet) {
  const frame::ClinicProfile& profile = sheet.source.profile;
  if (!sheet.source.acupuncture()) return profile[frame::slot::kLicenceMassage];
  const QString hari = profile[frame::slot::kLicenceHari], kyu = profile[frame::slot::kLicenceKyu];
  return hari.isEmpty() || kyu.isEmpty() ? hari + kyu : hari + u'　' + kyu;
}

bool delegated(const Sheet& sheet) { return sheet.source.form.delegated || sheet.ticked(claim::delegated); }

QString numberOfPractitioner(const Sheet& sheet) {
  const frame::ClinicProfile& profile = sheet.source.profile;
  if (delegated(sheet))
    return sheet.insuranceIs({u"共済", u"組合"}) ? licenceNumbers(sheet)
                                                 : profile[frame::slot::kPractitionerNumber];
  if (profile[frame::slot::kPrintLicence] == kLicencePrinted) return licenceNumbers(sheet);
  return profile[frame::slot::kRegistration];
}

}  // namespace

void fillPractitionerNumber(Sheet& sheet) { sheet.print(u"sejutuNO", numberOfPractitioner(sheet)); }

void markHealthOffice(Sheet& sheet) {
  const QString kind = sheet.source.profile[frame::slot::kHealthOffice];
  sheet.markIf(kind == u"施術所所在地", u"tkkubun1");
  sheet.markIf(kind == u"出張専門施術者住所地", u"tkkubun2");
}

void fillPractitioner(Sheet& sheet) {
  sheet.copy(u"semeisyou1", claim::clinicName);
  const Signer* who = signer(sheet.settings.of(Setting::Proof));
  if (who == nullptr) return;
  const QString zip = sheet.value(who->zip);
  if (!zip.isEmpty()) sheet.print(u"yuubin2", u'〒' + zip);
  sheet.fit(kAddress, sheet.value(who->address));
  sheet.copy(u"Name58", who->telephone);
  sheet.copy(u"Name11", who->name);
}

void fillProxy(Sheet& sheet) {
  // The proxy is whose account is named in 支払機関欄.
  const Signer* who = signer(sheet.settings.of(Setting::Bank));
  if (who == nullptr || !sheet.settings.on(Setting::ApplicantName) || !sheet.settings.on(Setting::Mandate))
    return;
  sheet.copy(u"Name56", who->address);
  sheet.fit(kProxyName, sheet.value(who->name));
}

void fillDatesOfSigning(Sheet& sheet) {
  if (!sheet.settings.on(Setting::Dates)) return;
  printDate(sheet, kReceived, sheet.value(claim::receiptDate));
  printDate(sheet, kClaimed, sheet.value(claim::requestDate));
  if (sheet.settings.on(Setting::Mandate)) printDate(sheet, kMandated, sheet.value(claim::requestDate));
}

}  // namespace printing
