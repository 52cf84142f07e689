#pragma once

#include "platform/screen/control.h"

class QTabBar;

namespace screen {

/// Tabs without pages. Its text is the chosen tab's caption.
class TabRowControl : public Control {
 public:
  TabRowControl(Screen& screen, const TabRow& row, QWidget* parent);

  QWidget* widget() const override;
  QList<QWidget*> focusWidgets() const override { return {widget()}; }
  QString text() const override;
  QStringList items() const override;
  int chosenItem() const override;

 protected:
  void showText(const QString& caption) override;

 private:
  QTabBar* m_bar;
};

}  // namespace screen
