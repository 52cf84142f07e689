#include "platform/screen/control_table.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/cell_model.h"
#include "platform/screen/grid_view.h"

namespace screen {

/// Rows as they were given.
class TableModel : public CellModel {
 public:
  TableModel(std::span<const char16_t* const> captions, QObject* parent)
      : CellModel(parent), m_captions(captions) {}

  QString columnCaption(int column) const override {
    if (column < 0 || column >= columns()) return {};
    return QString::fromUtf16(m_captions[static_cast<size_t>(column)]);
  }
  QString cell(int row, int column) const override {
    return has(row, column) ? m_rows[row].value(column) : QString();
  }
  void setRows(const QList<QStringList>& rows) {
    beginResetModel();
    m_rows = rows;
    endResetModel();
  }

 protected:
  int rows() const override { return static_cast<int>(m_rows.size()); }
  int columns() const override { return static_cast<int>(m_captions.size()); }

 private:
  std::span<const char16_t* const> m_captions;
  QList<QStringList> m_rows;
};

TableControl::TableControl(Screen& screen, const Table& row, QWidget* parent, voice::VoiceGuide& voice)
    : CellsControl(screen, row.name, row.caption, parent, voice),
      m_rows(new TableModel(row.columns, m_view)) {
  m_onEnter = row.onActivate;
  m_onEdit = row.onMove;
  say(row.say);
  show(*m_rows);
}

void TableControl::setRows(const QList<QStringList>& rows) {
  quietly([&] { m_rows->setRows(rows); });
  standOn(0);
}

int TableControl::chosenItem() const { return m_view->currentIndex().row(); }

}  // namespace screen
