#pragma once

#include "platform/screen/control.h"

class QLineEdit;
class QPlainTextEdit;

namespace screen {

/// A one-line text field.
class LineControl : public Control {
 public:
  LineControl(Screen& screen, const ControlName& name, const QString& caption, int offset, QWidget* parent);

  QWidget* widget() const override;
  QList<QWidget*> focusWidgets() const override { return {widget()}; }
  QString text() const override;
  void setLook(int limit, int width, bool readOnly);

 protected:
  void showText(const QString& text) override;

 private:
  QLineEdit* m_edit;
};

/// A text field of several lines; Tab leaves it.
class MemoControl : public Control {
 public:
  MemoControl(Screen& screen, const ControlName& name, const QString& caption, QWidget* parent);

  QWidget* widget() const override;
  QList<QWidget*> focusWidgets() const override { return {widget()}; }
  QString text() const override;
  bool keepsEnter() const override { return true; }
  void setLook(int limit, int width, int lines, bool readOnly);

 protected:
  void showText(const QString& text) override;

 private:
  void changedByUser();
  void cutToLimit();
  QPlainTextEdit* m_edit;
  int m_limit = 0;
  int m_countBefore = 0;
  bool m_carriageReturns = false;
};

}  // namespace screen
