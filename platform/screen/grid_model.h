#pragma once

#include <QAbstractTableModel>
#include <span>

#include "platform/screen/rows.h"
#include "platform/store/record_set.h"

namespace screen {

/// The rows of a record set as a grid asks for them: a row is read when it is looked at, never before.
class GridModel : public QAbstractTableModel {
 public:
  GridModel(const store::RecordSet& rows, std::span<const GridColumn> columns, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  QString columnCaption(int column) const;
  QString cell(int row, int column) const;

  /// The record set changed: rows came, went, or hold other values.
  void follow();

 private:
  const store::RecordSet& m_rows;
  std::span<const GridColumn> m_columns;
  int m_count = 0;
};

}  // namespace screen
