#include "platform/screen/grid_model.h"

namespace screen {

GridModel::GridModel(const store::RecordSet& rows, std::span<const GridColumn> columns, QObject* parent)
    : CellModel(parent), m_rows(rows), m_columns(columns) {}

QString GridModel::columnCaption(int column) const {
  if (column < 0 || column >= columns()) return {};
  return QString::fromUtf16(m_columns[static_cast<size_t>(column)].caption);
}

QString GridModel::cell(int row, int column) const {
  if (!has(row, column)) return {};
  const store::Column& asked = m_columns[static_cast<size_t>(column)].column;
  const store::Result<store::Value> value = m_rows.readAt(row, asked);
  if (!value) return QString::fromUtf16(kUnreadableText);
  if (!m_rows.isYesNo(asked)) return *value;
  return *value == u"-1" ? QStringLiteral("Yes") : QStringLiteral("No");
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
