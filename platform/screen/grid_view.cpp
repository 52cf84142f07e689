#include "platform/screen/grid_view.h"

#include <QtWidgets/QtWidgets>

namespace screen {

GridView::GridView(QWidget* parent) : QTableView(parent) {
  setTabKeyNavigation(false);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setWordWrap(false);
  setAlternatingRowColors(true);
  verticalHeader()->setVisible(false);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() + 8);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setStretchLastSection(true);
  setMinimumHeight(6 * (fontMetrics().lineSpacing() + 8));
}

QSize GridView::sizeHint() const {
  constexpr int kRowsShown = 14;
  const int row = verticalHeader()->defaultSectionSize();
  return {std::max(QTableView::sizeHint().width(), horizontalHeader()->length() + 2 * row), kRowsShown * row};
}

void GridView::fitColumns() {
  constexpr int kSampleRows = 20;
  const int widest = 24 * fontMetrics().horizontalAdvance(u'あ');
  for (int column = 0; column < model()->columnCount(); ++column) {
    const QString caption = model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    int width = fontMetrics().horizontalAdvance(caption);
    for (int row = 0; row < std::min(kSampleRows, model()->rowCount()); ++row) {
      const QString cell = model()->index(row, column).data().toString();
      width = std::max(width, fontMetrics().horizontalAdvance(cell));
    }
    setColumnWidth(column, std::min(width, widest) + 2 * fontMetrics().horizontalAdvance(u'あ'));
  }
}

}  // namespace screen
