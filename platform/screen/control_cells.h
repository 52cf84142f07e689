#pragma once

#include "platform/screen/control.h"

namespace screen {

class CellModel;
class GridView;

/// A view of cells that the arrow keys walk: a cell says its column's caption and its value when it is
/// reached, and with the focus the caption of the whole before it.
class CellsControl : public Control {
 public:
  QWidget* widget() const override;
  QList<QWidget*> focusWidgets() const override { return {widget()}; }
  void speak(voice::VoiceGuide& voice, QWidget* focus) const override;
  bool enter() override;
  QString text() const override;  ///< the current cell

 protected:
  /// Makes the view; the kind's constructor gives it its model by show().
  CellsControl(Screen& screen, const ControlName& name, const Words& caption, QWidget* parent,
               voice::VoiceGuide& voice);
  void show(CellModel& model);
  /// Another row was reached: false if the view has to go back to its own.
  virtual bool rowReached(int /*row*/) { return true; }
  /// The row that the view has to show as current.
  virtual void follow() = 0;
  /// Makes the row current without telling anybody; the column stays.
  void standOn(int row);

  GridView* m_view;

 private:
  void cellReached(int row, int rowBefore);
  QString cellSpeech() const;
  CellModel* m_model = nullptr;
  voice::VoiceGuide& m_voice;
  bool m_fitted = false;
};

}  // namespace screen
