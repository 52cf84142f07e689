#include "platform/screen/control_grid.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/data_source.h"
#include "platform/screen/grid_model.h"
#include "platform/screen/grid_view.h"

namespace screen {

GridControl::GridControl(Screen& screen, const Grid& row, DataSource& source, QWidget* parent,
                         voice::VoiceGuide& voice)
    : CellsControl(screen, row.name, row.caption, parent, voice),
      m_source(source),
      m_number(row.source),
      m_rows(new GridModel(source.rows(), row.columns, m_view)) {
  m_onEnter = row.onActivate;
  m_onEdit = row.onMove;
  say(row.say);
  show(*m_rows);
}

void GridControl::follow() {
  quietly([this] { m_rows->follow(); });
  standOn(m_source.rows().absolutePosition());
}

bool GridControl::rowReached(int row) { return m_source.moveTo(row); }

}  // namespace screen
