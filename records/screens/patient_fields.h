#pragma once

#include <QString>

namespace records {

// Fields of the patient screen that its handlers read.
inline constexpr char16_t kBirth[] = u"txtF6";
inline constexpr char16_t kFirstVisit[] = u"txtF24";
inline constexpr char16_t kSerial[] = u"Text2";
inline constexpr char16_t kName[] = u"txtFields(4)";
inline constexpr char16_t kAge[] = u"txtFields(7)";

/// The object name of a control.
inline QString name(const char16_t* control) { return QString::fromUtf16(control); }

}  // namespace records
