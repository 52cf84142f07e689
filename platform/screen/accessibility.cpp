#include "platform/screen/accessibility.h"

#include <QByteArray>

namespace screen {

void enableAccessibility() { qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", QByteArrayLiteral("1")); }

}  // namespace screen
