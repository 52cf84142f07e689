#pragma once

#include <span>

#include "platform/screen/cell_model.h"
#include "platform/screen/rows.h"
#include "platform/store/record_set.h"

namespace screen {

/// What a cell shows and says whose row cannot be read.
inline constexpr char16_t kUnreadableText[] = u"読めません";

/// The rows of a record set as a grid asks for them: a row is read when it is looked at, never before. One
/// that cannot be read says so in its cells and is read again at the next follow().
class GridModel : public CellModel {
 public:
  GridModel(const store::RecordSet& rows, std::span<const GridColumn> columns, QObject* parent);

  QString columnCaption(int column) const override;
  QString cell(int row, int column) const override;

  /// The record set changed: rows came, went, or hold other values.
  void follow();

 protected:
  int rows() const override { return m_count; }
  int columns() const override { return static_cast<int>(m_columns.size()); }

 private:
  const store::RecordSet& m_rows;
  std::span<const GridColumn> m_columns;
  int m_count = 0;
};

}  // namespace screen
