#pragma once

#include "platform/screen/control_cells.h"

namespace screen {

class TableModel;

/// A table of rows that the screen puts into it.
class TableControl : public CellsControl {
 public:
  TableControl(Screen& screen, const Table& row, QWidget* parent, voice::VoiceGuide& voice);

  /// Replaces the rows, texts in the order of the columns; the first becomes current.
  void setRows(const QList<QStringList>& rows) override;
  /// The current row, -1 if there is none.
  int chosenItem() const override;

 protected:
  void follow() override {}

 private:
  TableModel* m_rows;
};

}  // namespace screen
