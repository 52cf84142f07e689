#include "platform/screen/accessibility.h"

#include <gtest/gtest.h>

#include <QtWidgets/QtWidgets>

#include "platform/screen/scroll_pane.h"
#include "sample_screen.h"

namespace screen::testing {
namespace {

TEST(AccessibilityBridge, IsSwitchedOnByTheProgramItself) {
  qunsetenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON");
  enableAccessibility();
  EXPECT_EQ(qgetenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), "1");
}

/// Whether all of the widget lies inside the window's visible part.
bool isInView(const QWidget* widget, const QWidget* window) {
  const QRect place(widget->mapTo(window, QPoint(0, 0)), widget->size());
  for (const QWidget* around = widget->parentWidget(); around; around = around->parentWidget()) {
    if (!around->rect().contains(QRect(widget->mapTo(around, QPoint(0, 0)), widget->size())) &&
        qobject_cast<const QAbstractScrollArea*>(around->parentWidget()))
      return false;
  }
  return window->rect().contains(place);
}

// The notifications themselves are heard only on a desktop with accessibility: the journeys listen there.
TEST(UntoldChanges, EndWithTheHandlerThatWasThere) {
  const auto handler = [](QAccessibleEvent*) {};
  const QAccessible::UpdateHandler before = handler;
  QAccessible::installUpdateHandler(before);
  {
    const UntoldChange untold;
    const QAccessible::UpdateHandler meanwhile = QAccessible::installUpdateHandler(nullptr);
    EXPECT_NE(meanwhile, nullptr);
    EXPECT_NE(meanwhile, before);
    QAccessible::installUpdateHandler(meanwhile);
  }
  EXPECT_EQ(QAccessible::installUpdateHandler(nullptr), before);
}

TEST(SmallWindow, ScrollsToTheControlWithTheFocus) {
  Harness harness;
  SampleScreen screen(harness.services);
  ScreenProbe probe(screen, harness.spy);
  probe.open();
  screen.resize(420, 240);
  ASSERT_LT(screen.height(), screen.sizeHint().height());
  QCoreApplication::processEvents();
  for (const char* name : {"txtFields(6)", "Check2", "txtFields(4)", "cmdUpdate"}) {
    screen.focusOn(name);
    EXPECT_TRUE(isInView(screen.findChild<QWidget*>(name), &screen)) << name;
  }
}

}  // namespace
}  // namespace screen::testing
