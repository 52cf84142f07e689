#pragma once

#include "platform/screen/control.h"

class QAction;
class QLabel;
class QPushButton;

namespace screen {

/// A command: a button, its menu twin, or a menu entry alone. One row, one action, so twins cannot drift.
class CommandControl : public Control {
 public:
  CommandControl(Screen& screen, const ControlName& name, const QString& caption, Handler action);

  void makeButton(QWidget* parent);
  /// `caption` is the entry's own if it differs from the button's.
  void setAction(QAction* action, const char16_t* caption);
  void setKey(const QString& key);

  QWidget* widget() const override;
  QAction* action() const { return m_action; }
  QList<QWidget*> focusWidgets() const override;
  void speak(voice::VoiceGuide& voice, QWidget* focus) const override;
  bool enter() override;
  void setCaption(const QString& caption) override;
  void setShown(bool shown) override;
  void setEnabled(bool enabled) override;
  /// Runs the action unless the command is disabled.
  void run();

 private:
  Handler m_run;
  QPushButton* m_button = nullptr;
  QAction* m_action = nullptr;
  bool m_ownEntryCaption = false;
  bool m_enabled = true;
};

}  // namespace screen
