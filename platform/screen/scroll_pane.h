#pragma once

#include <QScrollArea>

namespace screen {

/// A scrolling area that takes no focus itself; the focus watch scrolls it to the control with the focus.
class ScrollPane : public QScrollArea {
 public:
  explicit ScrollPane(QWidget* parent);
  QSize sizeHint() const override;
};

/// Scrolls every pane around the widget so that it and its label are seen.
void bringIntoView(QWidget* widget);

}  // namespace screen
