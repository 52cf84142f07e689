#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace records {

/// A dictionary: its screen, its table, and the entry of DataFolders that its file lies under.
struct DictionaryRow {
  const screen::ScreenRow& screen;
  int folder;
  const char16_t* table;
  const char16_t* newRow;  ///< says how a new row is filled
};

/// Base of the small windows that stand open beside the chart: a list of rows, the fields of the row on view,
/// and a button that copies. They write nothing into the chart; what they put on the clipboard is pasted.
///
/// The first field is the text that is copied and spoken.
class DictionaryScreen : public screen::Screen {
 public:
  DictionaryScreen(const DictionaryRow& row, screen::Services& services, frame::RunState& run);

  void onLoad() override;
  bool onCloseBox() override;
  void onClosed() override;
  void goFirst() override;
  void goPrevious() override;
  void goNext() override;
  void goLast() override;

  /// Another row was reached, by the list or by the record keys.
  virtual void rowReached() {}
  void remove();
  void store();
  void copy();
  void finish();

 protected:
  /// What is heard of the row on view.
  virtual QStringList onView() const { return {entry()}; }
  /// The text that is copied.
  QString entry() const;
  /// Puts the text on the clipboard in place of what was there.
  void copyEntry();
  /// Goes to the first field of a new row and says how it is filled.
  void askForEntry();
  /// Before the row changes: a new row that is still blank is dropped, what was typed is stored. False: told.
  bool leaveRow();

 private:
  void step(void (screen::DataSource::*move)());
  /// A new row into which nothing was typed yet.
  bool blankNewRow();
  const DictionaryRow& m_row;
  frame::RunState& m_run;
};

}  // namespace records
