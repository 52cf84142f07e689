#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/declare.h"
#include "platform/screen/record_screen.h"

namespace records {

/// A dictionary: its screen, its file and what differs between them.
struct DictionaryRow {
  const screen::ScreenRow& screen;
  screen::ControlRef entry;  ///< the field whose text is copied and spoken
  int folder;                ///< index of its file's path in DataFolders
  const char16_t* newRow;    ///< says how a new row is filled
};

/// Base of the small windows that are open next to the chart: a list of rows, the fields of the row on view,
/// and a button that copies. They write nothing into the chart; the user pastes what they put on the
/// clipboard.
class DictionaryScreen : public screen::RecordScreen {
 public:
  DictionaryScreen(const DictionaryRow& row, screen::Services& services, frame::RunState& run);

  void onLoad() override;
  bool onCloseBox() override;
  void onClosed() override;
  void copy();
  void finish();

 protected:
  QStringList rowInWords() const override { return {entry()}; }
  /// A blank new row is not stored: its first field is asked for.
  bool readyToStore() override;
  /// A blank new row is dropped, what was typed is stored. False: reported.
  bool mayLeaveRow() override;
  /// The row after the deleted one comes on view.
  bool removeOnView() override;
  /// The text that is copied.
  QString entry() const;
  /// Puts the text on the clipboard in place of what was there.
  void copyEntry();
  /// Goes to the first field of a new row and says how it is filled.
  void askForEntry();

 private:
  /// A new row into which nothing was typed yet.
  bool blankNewRow();
  const DictionaryRow& m_row;
  frame::RunState& m_run;
};

}  // namespace records
