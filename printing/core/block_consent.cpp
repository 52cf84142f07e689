#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

constexpr ItemSize kDoctor[] = {{8, u"Name17"}, {kAnyLength, u"Name17_2"}};
constexpr ItemSize kDoctorAddress[] = {{17, u"Name18_1"}, {35, u"Name18_2"}, {kAnyLength, u"Name18_3"}};
constexpr ItemSize kConsented[] = {{10, u"Name20"}, {kAnyLength, u"Text369"}};

constexpr DateItems kConsentDate = {u"GG14", u"YY14", u"MM14", u"DD14"};
constexpr DateItems kCareFrom = {u"GG15", u"YY15", u"MM15", u"DD15"};

}  // namespace

void fillDoctor(Sheet& sheet) {
  if (!sheet.settings.on(Setting::Doctor)) return;
  sheet.fit(kDoctor, sheet.value(claim::doctorName));
  sheet.fit(kDoctorAddress, sheet.value(claim::doctorAddress));
  sheet.fit(kConsented, sheet.value(claim::consentDisease));
  printDate(sheet, kConsentDate, sheet.value(claim::consentDate));
  printDate(sheet, kCareFrom, sheet.value(claim::consentFrom));
  sheet.copy(u"Name19", claim::consentUntil);
}

}  // namespace printing
