#pragma once

#include <QTableView>

namespace screen {

/// A table whose cells are walked with the arrow keys; Tab leaves it. Typing does not search in it: that
/// would read every row of the table.
class GridView : public QTableView {
 public:
  explicit GridView(QWidget* parent);
  void keyboardSearch(const QString&) override {}
  QSize sizeHint() const override;
  /// Gives each column room for its caption and for the texts of the first rows.
  void fitColumns();

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  /// The current row is strong in colour if the keyboard is in the table, pale elsewhere.
  void showKeyboard(bool here);
};

}  // namespace screen
