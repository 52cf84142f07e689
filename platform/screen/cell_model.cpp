#include "platform/screen/cell_model.h"

namespace screen {

int CellModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows(); }

int CellModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columns(); }

QVariant CellModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)) return {};
  return cell(index.row(), index.column());
}

QVariant CellModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return {};
  if (orientation == Qt::Vertical) return section + 1;
  return columnCaption(section);
}

}  // namespace screen
