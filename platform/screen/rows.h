#pragma once

#include <span>
#include <variant>

#include "platform/screen/row_words.h"

// The rows that a screen is declared with. Leaving out a row's name, caption, binding or action does not
// compile: their parts have no default constructor and refuse empty text at compile time.

class QDate;
class QString;

namespace screen {

/// Limit of a field that has none of its own. What its column cannot hold is refused with a message when the
/// row is stored: cutting it while it is typed or pasted would go unheard.
inline constexpr int kNoLimit = 1 << 20;

/// A text field, of one line or more. `lines` above 1 makes a memo.
struct TextField {
  ControlName name;
  Words caption;  ///< as on the screen, colon included; spoken and accessible name
  Binding bind;
  int limit = kNoLimit;  ///< characters that can be typed
  int width = 20;        ///< characters shown, a hint for the layout
  int lines = 1;
  bool readOnly = false;
  const char16_t* say = nullptr;  ///< spoken on focus instead of caption and value
  const char16_t* tip = nullptr;  ///< accessible description
  Handler onEnter = nullptr;      ///< Enter or Return in the field
  Handler onLeave = nullptr;      ///< focus leaves; may call keepFocus()
  Handler onEdit = nullptr;       ///< the user changed the text
};

/// A family of like text fields: names family(first) .. family(first+count-1); "%1" in the caption stands for
/// 1, 2, ... (`number` + n), and so does the number of the column in the series that the family is bound to.
struct TextRun {
  ControlName name;  ///< {u"txtFields", 60}: family and first index
  int count;
  Words caption;  ///< u"%1日 治療内容"
  Binding bind;   ///< claim::dayCode
  int limit = kNoLimit;
  int width = 4;
  int perLine = 7;  ///< fields side by side
  bool readOnly = false;
  int number = 1;  ///< what %1 is for the first field
  const char16_t* tip = nullptr;
  Handler onEnter = nullptr;
  Handler onLeave = nullptr;
  Handler onEdit = nullptr;
};

/// A list to choose from; editable: the text may also be typed.
struct Combo {
  ControlName name;
  Words caption;
  Binding bind;
  std::span<const char16_t* const> items = {};  ///< fixed items; further ones by setItems()
  bool editable = false;
  int limit = kNoLimit;
  int width = 16;
  const char16_t* say = nullptr;
  const char16_t* tip = nullptr;
  Handler onEdit = nullptr;  ///< chosen or typed by the user
  Handler onLeave = nullptr;
  Handler onEnter = nullptr;  ///< Enter or Return in the list
};

/// A tick. Bound to a yes/no column it stores -1/0, to a text column the two texts.
struct Check {
  ControlName name;
  Words caption;
  Binding bind;
  const char16_t* on = u"-1";
  const char16_t* off = u"0";
  const char16_t* tip = nullptr;
  const char16_t* group =
      nullptr;              ///< word put before the accessible name if the caption alone is not enough
  bool marksDirty = false;  ///< sets the screen's check flag (checkChanged) when the user changes it
  Handler onToggle = nullptr;
};

/// One button of a group of option buttons.
struct Choice {
  ControlName name;
  Words caption;
  const char16_t* value;  ///< stored text when chosen
};

/// Option buttons of which one is chosen. The accessible name of each carries the group's caption.
struct Options {
  ControlName name;  ///< the frame, e.g. {u"Frame1"}
  Words caption;
  Binding bind;
  std::span<const Choice> choices;
  const char16_t* tip = nullptr;
  bool marksDirty = false;
  Handler onChoose = nullptr;
};

/// A button and, if `under` is given, its menu twin of the same action.
struct Command {
  ControlName name;
  Words caption;
  Run run;
  const char16_t* menu = nullptr;         ///< objectName of the twin: u"Men_FU"
  const char16_t* under = nullptr;        ///< menu it belongs to: u"ファイル(&F)"
  const char16_t* menuCaption = nullptr;  ///< if it differs from the button's
  const char16_t* key = nullptr;          ///< key sequence, e.g. u"F1"
  const char16_t* say = nullptr;          ///< sentence of its own on focus
  const char16_t* tip = nullptr;
  bool standard = false;  ///< Enter anywhere that no field takes runs it
};

/// A menu entry without a button.
struct Entry {
  ControlName name;
  const char16_t* under;
  Words caption;
  Run run;
  const char16_t* key = nullptr;
};

/// A text on the screen that takes no focus. `spoken`: part of the heading that is spoken on load.
struct Note {
  ControlName name;
  Words caption;
  bool spoken = false;
};

/// Structure. A page of the tab strip, a titled group with fields in columns, a row of commands.
struct Page {
  Words caption;
};
/// Ends the pages: what follows is placed under the tab strip.
struct EndPages {};
struct Group {
  ControlName name;
  Words caption;
  int columns = 2;
};
struct EndGroup {};
struct Bar {};
struct EndBar {};

/// A column of a grid.
struct GridColumn {
  store::Column column;
  const char16_t* caption;
};

/// A grid over a source's record set: real item view, lazy, cells reachable by arrow keys and spoken as
/// column caption, separator, value. The source is the one of the table that the columns belong to.
struct Grid {
  ControlName name;
  Words caption;
  std::span<const GridColumn> columns;
  const char16_t* say = nullptr;  ///< spoken on focus before the cell instead of the caption
  Handler onActivate = nullptr;   ///< Enter or double click on a row
  Handler onMove = nullptr;       ///< current row changed
};

/// A grid over rows that the screen makes itself and puts in by setRows(): lists that are computed.
struct Table {
  ControlName name;
  Words caption;
  std::span<const char16_t* const> columns;  ///< captions
  const char16_t* say = nullptr;             ///< spoken on focus before the cell instead of the caption
  Handler onActivate = nullptr;              ///< Enter or double click on a row
  Handler onMove = nullptr;                  ///< current row changed
};

/// What a date cursor shows and says for a day: .dayText = dayTextOf<&CalendarScreen::dayText>.
using DayText = QString (*)(const Screen&, const QDate&);

namespace detail {
template <auto Method>
struct DayTextOf;
template <class C, QString (C::*Method)(const QDate&) const>
struct DayTextOf<Method> {
  static QString text(const Screen& screen, const QDate& date) {
    return (static_cast<const C&>(screen).*Method)(date);
  }
};
}  // namespace detail
template <auto Method>
inline constexpr DayText dayTextOf = &detail::DayTextOf<Method>::text;

/// A date cursor. The arrow keys move it by a day and a week, Page Up and Page Down by a month, Home and End
/// to the first and the last day of the month; each move and Enter say the day. A month sheet shows it to the
/// eye and takes the mouse.
struct Calendar {
  ControlName name;
  Words caption;
  DayText dayText;
};

/// Tabs without pages of their own, of which one is chosen with the arrow keys: the screen shows what belongs
/// to it, and says what came of it.
struct TabRow {
  ControlName name;
  Words caption;
  std::span<const char16_t* const> tabs;
  Handler onChoose;  ///< another tab was chosen, or Enter pressed on one
};

using Row = std::variant<TextField, TextRun, Combo, Check, Options, Command, Entry, Note, Page, EndPages,
                         Group, EndGroup, Bar, EndBar, Grid, Table, Calendar, TabRow>;
using Rows = std::span<const Row>;

/// The tables of a screen's data sources, in the order of their numbers: .sources = patients::table, or
/// {claim::firstHalf, claim::secondHalf}.
class Sources {
 public:
  constexpr Sources() = default;
  template <class... Tables>
  consteval Sources(const store::Table& first, const Tables&... others)
      : m_tables{&first, &others...}, m_count(1 + static_cast<int>(sizeof...(others))) {}
  constexpr int count() const { return m_count; }
  constexpr const store::Table* table(int number) const { return m_tables[number - 1]; }
  /// Number of the source of a table; 0: none of the screen's.
  constexpr int numberOf(const store::Table* table) const {
    for (int i = 0; i < m_count; ++i)
      if (m_tables[i] == table) return i + 1;
    return 0;
  }

 private:
  const store::Table* m_tables[3] = {};
  int m_count = 0;
};

/// A screen as it is declared: names, rows, and what it says when it opens. Made by declare(), which looks
/// through it at compile time.
struct ScreenRow {
  Words name;     ///< screen name, its objectName: 治療台帳4
  Words caption;  ///< window title
  Rows rows;
  Sources sources = {};               ///< tables of the data sources
  const char16_t* heading = nullptr;  ///< spoken when it opens, before the notes marked as spoken
  bool functionKeys = false;          ///< F1 to F4 are first, previous, next, last of source 1
};

}  // namespace screen
