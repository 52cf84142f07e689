#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

constexpr Variant kDoctor[] = {{8, u"Name17"}, {kAnyLength, u"Name17_2"}};
constexpr Variant kDoctorAddress[] = {{17, u"Name18_1"}, {35, u"Name18_2"}, {kAnyLength, u"Name18_3"}};
constexpr Variant kConsented[] = {{10, u"Name20"}, {kAnyLength, u"Text369"}};

}  // namespace

void doctorBlock(Sheet& sheet) {
  if (!sheet.settings.on(Setting::Doctor)) return;
  sheet.fields.variant(kDoctor, sheet.value(u"同意医師氏名"));
  sheet.fields.variant(kDoctorAddress, sheet.value(u"同意医師住所"));
  sheet.fields.variant(kConsented, sheet.value(u"同意の傷病名"));
  showDate(sheet, QStringLiteral("14"), sheet.value(u"実際の同意の年月日"));
  showDate(sheet, QStringLiteral("15"), sheet.value(u"要加療期間1"));
  sheet.show(u"Name19", u"要加療期間2");
}

}  // namespace printing
