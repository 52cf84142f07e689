#pragma once

#include <vector>

#include "platform/screen/list_screen.h"
#include "platform/screen/navigator_impl.h"

namespace screen {

/// A dialog that asks for a column and a part of its text, and narrows a list by them: 抽出2, カルテ2の抽出,
/// ...
struct ExtractRow {
  Words name;
  Words caption;
  Words list;  ///< name of the list screen
  std::span<const ColumnChoice> columns;
  Words wordCaption;                 ///< label of the text
  Words go;                          ///< caption of the button that searches
  std::span<const Note> notes = {};  ///< next to the text
  bool blankDoesNothing = true;      ///< a blank text asks for one; otherwise it fits every text
};

namespace detail {
struct ExtractDeclaration {
  explicit ExtractDeclaration(const ExtractRow& row);
  std::vector<const char16_t*> captions;
  std::vector<Row> rows;
  ScreenRow screenRow;
};
}  // namespace detail

/// Made from one ExtractRow. If the list refuses, which it reports, the dialog stays with what was typed.
class ExtractDialog : private detail::ExtractDeclaration, public Screen {
 public:
  ExtractDialog(const ExtractRow& row, Services& services);

  void onLoad() override;
  void extract();
  void cancel();

 private:
  const ExtractRow& m_row;
};

/// Lists the dialogs of a table among the screens.
void addExtractDialogs(ScreenRegistry& registry, std::span<const ExtractRow> rows);

/// What a typed text means in a yes/no column: "Yes" and "yes" the true value "-1", "No" and "no" "0",
/// anything else itself.
QString yesNoText(const QString& typed);

}  // namespace screen
