#pragma once

#include <QStringList>

#include "platform/screen/control.h"

class QComboBox;

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
  void setTip(const QString& tip) override;

 protected:
  void showText(const QString& text) override;
  void nameWidgets() override;

 private:
  void speakChoice(const QString& item);
  QComboBox* m_combo;
  voice::VoiceGuide& m_voice;
  int m_editedItem = -1;   ///< item that the last edit was reported for
  bool m_foreign = false;  ///< the last item is a stored value that the list lacks
};

}  // namespace screen
