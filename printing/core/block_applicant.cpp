#include "claims/core/insurance.h"
#include "claims/core/print_fields.h"
#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

constexpr ItemSize kApplicant[] = {{13, u"Name5_3"}, {kAnyLength, u"Name5_5"}};
constexpr ItemSize kMandator[] = {{13, u"Name5_6"}, {kAnyLength, u"Name5_7"}};
constexpr ItemSize kInsurer[] = {{12, u"Name48"}, {16, u"Name48_1"}, {kAnyLength, u"Name48_2"}};

/// The insured, or for a late-elderly claim, where the practice has chosen so, the person treated.
QString applicantName(const Sheet& sheet) {
  const QString flag = sheet.source.profile[frame::slot::kElderlyNamePrinted];
  const bool treated = sheet.lateElderly() && (flag == u"1" || flag == u"11" || flag == u"111");
  return sheet.value(treated ? claim::treatedName : claim::insuredName);
}

/// c6, the word behind the insurer's name; where it was never chosen, the one of the kind of insurance.
QString addressee(const Sheet& sheet) {
  const QString chosen = sheet.value(claim::addressee);
  return chosen.isEmpty() ? claims::defaultAddressee(sheet.value(claim::insuranceKind)) : chosen.trimmed();
}

}  // namespace

void fillInsured(Sheet& sheet) {
  const QString name = applicantName(sheet), address = sheet.value(claim::insuredAddress);
  const QString zip = claims::printFields(sheet.claim).value(claim::insuredZip);
  sheet.fit(kApplicant, name);
  sheet.print(u"Name12", address);
  if (!zip.isEmpty()) sheet.print(u"yuubin1", u'〒' + zip);
  sheet.copy(u"HHokenTel", claim::insuredTelephone);
  sheet.print(u"HHokenAdd", address);
  if (!sheet.settings.on(Setting::Mandate)) return;
  sheet.print(u"Name13", address);
  if (sheet.settings.on(Setting::MandateName)) sheet.fit(kMandator, name);
}

void fillInsurerName(Sheet& sheet) {
  const QString name = sheet.value(claim::municipalityName), word = addressee(sheet);
  if (sheet.insuranceIs({u"全国健康保険協会"}) && word == u"全国健康保険協会支部長")
    return sheet.print(u"Name48_1", QStringLiteral("全国健康保険協会%1支部長").arg(name));
  if (!name.isEmpty()) sheet.fit(kInsurer, name + word);
}

void fillWorkplace(Sheet& sheet) {
  sheet.copy(u"JigyouName", claim::employerName);
  sheet.copy(u"JigyouAdd", claim::employerAddress);
}

}  // namespace printing
