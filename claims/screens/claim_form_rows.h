#pragma once

#include "platform/screen/rows.h"

// The rows of the claim form, one table a page. The short makers below keep a page readable as a table:
// control, caption, column.

namespace claims {

namespace rows {

/// Characters of a long text column (memo).
inline constexpr int kLongText = 32000;

/// A text field on a column.
constexpr screen::TextField field(screen::ControlName name, screen::Words caption, screen::Binding bind,
                                  int width = 20, const char16_t* tip = nullptr) {
  screen::TextField row{name, caption, bind};
  row.width = width;
  row.tip = tip;
  return row;
}
/// The same without a chance to type.
constexpr screen::TextField shown(screen::ControlName name, screen::Words caption, screen::Binding bind) {
  screen::TextField row{name, caption, bind};
  row.readOnly = true;
  return row;
}
/// The same over several lines.
constexpr screen::TextField memo(screen::ControlName name, screen::Words caption, screen::Binding bind,
                                 int limit = 255, int lines = 2) {
  screen::TextField row = field(name, caption, bind, 60);
  row.limit = limit;
  row.lines = lines;
  return row;
}
/// A list whose text may also be typed.
constexpr screen::Combo list(screen::ControlName name, screen::Words caption, screen::Binding bind,
                             screen::Handler chosen = nullptr) {
  screen::Combo row{name, caption, bind};
  row.editable = true;
  row.onEdit = chosen;
  return row;
}
/// A tick that marks the claim as changed.
constexpr screen::Check tick(screen::ControlName name, screen::Words caption, screen::Binding bind,
                             const char16_t* group = nullptr, screen::Handler toggled = nullptr) {
  screen::Check row{name, caption, bind};
  row.group = group;
  row.marksDirty = true;
  row.onToggle = toggled;
  return row;
}
/// The same on a text column that holds "1" or "0".
constexpr screen::Check flag(screen::ControlName name, screen::Words caption, screen::Binding bind) {
  screen::Check row = tick(name, caption, bind);
  row.on = u"1";
  row.off = u"0";
  return row;
}

}  // namespace rows

// In the order of the screen.
screen::Rows claimHeadRows();           ///< name, month, kind and the commands, above the pages
screen::Rows claimInsuranceRows();      ///< page 保険証
screen::Rows claimConsentRows();        ///< page 同意書
screen::Rows claimTreatmentRows();      ///< page 治療
screen::Rows claimVisitTableRows();     ///< page 治療, the rows of 往療内訳
screen::Rows claimPrintsRows();         ///< page 各種印刷
screen::Rows claimPrintSettingsRows();  ///< page 印刷設定
screen::Rows claimHistoryRows();        ///< page 既往症
screen::Rows claimReserveRows();        ///< page 既往症, the reserve columns
screen::Rows claimApplicantRows();      ///< page 申請者の確認

/// The whole screen.
const screen::ScreenRow& claimFormDeclaration();

}  // namespace claims
