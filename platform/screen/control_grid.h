#pragma once

#include "platform/screen/control_cells.h"

namespace screen {

class DataSource;
class GridModel;

/// A grid over a source's record set. Its row is the source's row.
class GridControl : public CellsControl {
 public:
  /// `source` is the number of the screen's source whose rows are listed.
  GridControl(Screen& screen, const Grid& row, int source, QWidget* parent, voice::VoiceGuide& voice);

  int sourceNumber() const { return m_number; }

  /// The source shows another row or set.
  void follow() override;

 protected:
  bool rowReached(int row) override;

 private:
  DataSource& m_source;
  int m_number;
  GridModel* m_rows;
};

}  // namespace screen
