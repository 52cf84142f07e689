#pragma once

#include "platform/screen/declare.h"

// The rows of the claim form are one table a page, claim_form_<page>_rows.h. The short makers below keep a
// page readable as a table: control, caption, column.

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

namespace form {

namespace detail {

/// The name of the control that a row binds to the column; nullptr: it binds none.
constexpr const screen::ControlName* nameBound(const screen::Row& row, const store::Column& column) {
  return std::visit(
      [&column](const auto& kind) -> const screen::ControlName* {
        if constexpr (requires { kind.bind; }) {
          if (kind.bind.count() == 1 && kind.bind.table() == &column.table() &&
              store::detail::equal(kind.bind.column(), column.name()))
            return &kind.name;
        }
        return nullptr;
      },
      row);
}

}  // namespace detail

/// The control of a page that is bound to a column. A column that the page lacks does not compile.
consteval screen::ControlRef on(screen::Rows page, const store::Column& column) {
  for (const screen::Row& row : page)
    if (const screen::ControlName* name = detail::nameBound(row, column))
      return screen::ref(page, name->family(), name->index());
  throw "no control of the page is bound to the column";
}

}  // namespace form

/// The whole screen.
extern const screen::ScreenRow kClaimFormScreen;

}  // namespace claims
