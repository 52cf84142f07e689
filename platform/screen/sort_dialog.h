#pragma once

#include <vector>

#include "platform/screen/list_screen.h"
#include "platform/screen/navigator_impl.h"

namespace screen {

/// A dialog that asks by which column a list is put in order: ソート1, ソート2, ...
struct SortRow {
  Words name;
  Words list;  ///< name of the list screen
  std::span<const ColumnChoice> columns;
};

namespace detail {
struct SortDeclaration {
  explicit SortDeclaration(const SortRow& row);
  std::vector<const char16_t*> captions;
  std::vector<Row> rows;
  ScreenRow screenRow;
};
}  // namespace detail

/// Made from one SortRow. 昇順 and 降順 sort the list and come back to it; if the list refuses, which it
/// reports, the dialog stays.
class SortDialog : private detail::SortDeclaration, public Screen {
 public:
  SortDialog(const SortRow& row, Services& services);

  void onLoad() override;
  void ascending();
  void descending();
  void cancel();

 private:
  void sort(const QString& direction);
  const SortRow& m_row;
};

/// Lists the dialogs of a table among the screens.
void addSortDialogs(ScreenRegistry& registry, std::span<const SortRow> rows);

}  // namespace screen
