#pragma once

#include <QStringList>

#include "platform/screen/control.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGroupBox;

namespace screen {

/// A list to choose from, editable or not.
class ComboControl : public Control {
 public:
  ComboControl(Screen& screen, const Combo& row, QWidget* parent, voice::VoiceGuide& voice);

  QWidget* widget() const override;
  QList<QWidget*> focusWidgets() const override { return {widget()}; }
  void speak(voice::VoiceGuide& voice, QWidget* focus) const override;
  QString text() const override;
  QStringList items() const override;
  void setItems(const QStringList& items) override;
  int chosenItem() const override;

 protected:
  void showText(const QString& text) override;
  void nameWidgets() override;

 private:
  void speakChoice(const QString& item);
  QComboBox* m_combo;
  voice::VoiceGuide& m_voice;
  bool m_foreign = false;  ///< the last item is a stored value that the list lacks
};

/// A tick. Says its state as "チェック有り" or "チェック無し".
class CheckControl : public Control {
 public:
  CheckControl(Screen& screen, const Check& row, QWidget* parent);

  QWidget* widget() const override;
  QList<QWidget*> focusWidgets() const override { return {widget()}; }
  void speak(voice::VoiceGuide& voice, QWidget* focus) const override;
  QString text() const override;  ///< the stored text of the present state
  void setCaption(const QString& caption) override;
  void setPrefix(const QString& prefix) override;
  bool checked() const;
  void setChecked(bool on);

 protected:
  void showText(const QString& text) override;

 private:
  QCheckBox* m_box;
  QString m_on, m_off, m_group;
  bool m_marksDirty;
};

/// A group of option buttons of which one is chosen; its text is the stored value of the chosen one.
class OptionsControl : public Control {
 public:
  OptionsControl(Screen& screen, const Options& row, QWidget* parent);

  QWidget* widget() const override;
  QList<QWidget*> focusWidgets() const override;
  void speak(voice::VoiceGuide& voice, QWidget* focus) const override;
  QString text() const override;
  void setCaption(const QString& caption) override;
  void setPrefix(const QString& prefix) override;
  /// The arrow keys choose the next or the previous button, however the buttons lie on the screen.
  bool key(int key) override;

 protected:
  void showText(const QString& text) override;

 private:
  void nameButtons();
  void chooseTabStop();
  std::span<const Choice> m_choices;
  QGroupBox* m_frame;
  QButtonGroup* m_buttons;
  bool m_marksDirty;
};

}  // namespace screen
