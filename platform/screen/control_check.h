#pragma once

#include "platform/screen/control.h"

class QCheckBox;

namespace screen {

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

}  // namespace screen
