#pragma once

#include "platform/screen/control.h"

class QButtonGroup;
class QGroupBox;

namespace screen {

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
  QStringList partCaptions() const override;
  void namePartsAlone(const QSet<QString>& captions) override;
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
  QSet<QString> m_alone;
  bool m_marksDirty;
};

}  // namespace screen
