#include "records/screens/patient_parts.h"

namespace records {
namespace {

/// A field whose caption the practice may change, and the setting that holds it.
struct OwnCaption {
  int slot;
  const char16_t* control;
};
constexpr OwnCaption kOwnCaptions[] = {
    {frame::slot::kCaptionText1, u"txtFields(29)"},     {frame::slot::kCaptionText2, u"txtFields(30)"},
    {frame::slot::kCaptionText3, u"txtFields(31)"},     {frame::slot::kCaptionSymptom, u"txtFields(26)"},
    {frame::slot::kCaptionTreatment, u"txtFields(27)"},
};

/// 生年月日 and 初診日.
constexpr const char16_t* kDates[] = {u"txtF6", u"txtF24"};

QString name(const char16_t* control) { return QString::fromUtf16(control); }

}  // namespace

void applyOwnCaptions(screen::Screen& screen, const frame::SettingsSlots& settings) {
  for (const OwnCaption& own : kOwnCaptions) {
    const QString caption = settings[own.slot];
    if (!caption.isEmpty()) screen.setCaption(name(own.control), caption);
  }
}

void convertDates(screen::Screen& screen, const frame::EraDates& dates, const DateConversion& conversion) {
  for (const char16_t* field : kDates) {
    const QString before = screen.text(name(field));
    if (before.isEmpty()) continue;
    const QString after = (dates.*conversion.convert)(before);
    if (after != before) screen.setText(name(field), after);
  }
}

void sayDates(screen::Screen& screen, const DateConversion& conversion) {
  QStringList spoken{name(conversion.done)};
  for (const char16_t* field : kDates) spoken += screen.text(name(field));
  screen.say(spoken);
}

}  // namespace records
