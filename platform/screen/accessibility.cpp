#include "platform/screen/accessibility.h"

#include <QByteArray>

namespace screen {

void enableAccessibility() { qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", QByteArrayLiteral("1")); }

UntoldChange::UntoldChange() : m_handler(QAccessible::installUpdateHandler([](QAccessibleEvent*) {})) {}

UntoldChange::~UntoldChange() { QAccessible::installUpdateHandler(m_handler); }

}  // namespace screen
