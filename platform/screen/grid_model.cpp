#include "platform/screen/grid_model.h"

namespace screen {

GridModel::GridModel(const store::RecordSet& rows, std::span<const GridColumn> columns, QObject* parent)
    : QAbstractTableModel(parent), m_rows(rows), m_columns(columns) {}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_count; }

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)) return {};
  return cell(index.row(), index.column());
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return {};
  if (orientation == Qt::Vertical) return section + 1;
  return columnCaption(section);
}

QString GridModel::columnCaption(int column) const {
  if (column < 0 || column >= static_cast<int>(m_columns.size())) return {};
  return QString::fromUtf16(m_columns[static_cast<size_t>(column)].caption);
}

QString GridModel::cell(int row, int column) const {
  if (row < 0 || row >= m_count || column < 0 || column >= static_cast<int>(m_columns.size())) return {};
  return m_rows.valueAt(row, QString::fromUtf16(m_columns[static_cast<size_t>(column)].column));
}

void GridModel::follow() {
  const int count = m_rows.isOpen() ? m_rows.recordCount() : 0;
  if (count != m_count) {
    beginResetModel();
    m_count = count;
    endResetModel();
  } else if (m_count > 0 && !m_columns.empty()) {
    emit dataChanged(index(0, 0), index(m_count - 1, columnCount() - 1));
  }
}

}  // namespace screen
