#include "platform/screen/grid_view.h"

#include <QtWidgets/QtWidgets>

namespace screen {
namespace {

/// Frames the current cell while the table has the keyboard: the row's colour alone does not show the column.
class CellFrame : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyledItemDelegate::paint(painter, option, index);
    if (!option.state.testFlag(QStyle::State_HasFocus)) return;
    constexpr int kThickness = 2;
    painter->save();
    painter->setPen(QPen(option.palette.highlightedText(), kThickness));
    painter->drawRect(option.rect.adjusted(kThickness, kThickness, -kThickness, -kThickness));
    painter->restore();
  }
};

}  // namespace

GridView::GridView(QWidget* parent) : QTableView(parent) {
  setItemDelegate(new CellFrame(this));
  showKeyboard(false);
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

void GridView::focusInEvent(QFocusEvent* event) {
  showKeyboard(true);
  QTableView::focusInEvent(event);
  // Screen readers hear of the table first; its cell is what they read.
  const auto tellCell = [this] {
    if (hasFocus() && currentIndex().isValid()) QTableView::currentChanged(currentIndex(), currentIndex());
  };
  QMetaObject::invokeMethod(this, tellCell, Qt::QueuedConnection);
}

void GridView::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  showKeyboard(hasFocus());
}

// A table reports to screen readers that the focus is on its new cell even if it is elsewhere, and they
// follow.
void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  if (hasFocus()) return QTableView::currentChanged(current, previous);
  QAbstractItemView::currentChanged(current, previous);
}

void GridView::showKeyboard(bool here) {
  if (here) return setPalette(QPalette());
  QPalette pale;
  pale.setBrush(QPalette::Highlight, pale.brush(QPalette::Midlight));
  pale.setBrush(QPalette::HighlightedText, pale.brush(QPalette::Text));
  setPalette(pale);
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
