#pragma once

#include "platform/screen/control.h"

namespace screen {

class DataSource;
class GridModel;
class GridView;

/// A grid over a source's record set. Its row is the source's row; a cell says its column's caption and its
/// value when the arrow keys reach it.
class GridControl : public Control {
 public:
  GridControl(Screen& screen, const Grid& row, DataSource& source, QWidget* parent, voice::VoiceGuide& voice);

  QWidget* widget() const override;
  QList<QWidget*> focusWidgets() const override { return {widget()}; }
  void speak(voice::VoiceGuide& voice, QWidget* focus) const override;
  bool enter() override;
  QString text() const override;  ///< the current cell
  int sourceNumber() const { return m_number; }

  /// The source shows another row or set.
  void follow();

 private:
  void cellReached(int row, int rowBefore);
  QString cellSpeech() const;
  DataSource& m_source;
  int m_number;
  GridView* m_view;
  GridModel* m_model;
  voice::VoiceGuide& m_voice;
  bool m_fitted = false;
};

}  // namespace screen
