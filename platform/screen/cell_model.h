#pragma once

#include <QAbstractTableModel>

namespace screen {

/// Cells of texts under captions, as a view asks for them. Kinds add where the texts come from.
class CellModel : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// Blank outside of the columns.
  virtual QString columnCaption(int column) const = 0;
  /// Blank outside of the rows and columns.
  virtual QString cell(int row, int column) const = 0;

 protected:
  virtual int rows() const = 0;
  virtual int columns() const = 0;
  bool has(int row, int column) const {
    return row >= 0 && row < rows() && column >= 0 && column < columns();
  }
};

}  // namespace screen
