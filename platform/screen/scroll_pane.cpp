#include "platform/screen/scroll_pane.h"

#include <QtWidgets/QtWidgets>

namespace screen {

ScrollPane::ScrollPane(QWidget* parent) : QScrollArea(parent) {
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
}

QSize ScrollPane::sizeHint() const {
  // The whole content; the window is held to the display's size when it is first shown.
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  return widget() ? widget()->sizeHint() + QSize(bar, bar) : QScrollArea::sizeHint();
}

void bringIntoView(QWidget* widget) {
  const int margin = 3 * widget->fontMetrics().lineSpacing();
  for (QWidget* around = widget->parentWidget(); around; around = around->parentWidget()) {
    auto* pane = dynamic_cast<ScrollPane*>(around);
    if (pane && pane->widget() && pane->widget()->isAncestorOf(widget))
      pane->ensureWidgetVisible(widget, margin, margin);
  }
}

}  // namespace screen
