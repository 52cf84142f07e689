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
  sheet.fit(kDoctor, sheet.value(u"同意医師氏名"));
  sheet.fit(kDoctorAddress, sheet.value(u"同意医師住所"));
  sheet.fit(kConsented, sheet.value(u"同意の傷病名"));
  printDate(sheet, kConsentDate, sheet.value(u"実際の同意の年月日"));
  printDate(sheet, kCareFrom, sheet.value(u"要加療期間1"));
  sheet.copy(u"Name19", u"要加療期間2");
}

}  // namespace printing
