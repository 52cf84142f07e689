#include "platform/screen/control_grid.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/data_source.h"
#include "platform/screen/grid_model.h"
#include "platform/screen/grid_view.h"
#include "platform/screen/screen.h"

namespace screen {

GridControl::GridControl(Screen& screen, const Grid& row, int source, QWidget* parent,
                         voice::VoiceGuide& voice)
    : CellsControl(screen, row.name, row.caption, parent, voice),
      m_source(screen.source(source)),
      m_number(source),
      m_rows(new GridModel(m_source.rows(), row.columns, m_view)) {
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
