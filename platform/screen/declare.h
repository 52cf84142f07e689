#pragma once

#include <vector>

#include "platform/screen/rows.h"

// What a row table is held against at compile time, and references to its controls.

namespace screen {
namespace detail {

/// A name of a control of a row table; `count` of a family of fields.
struct NamedControl {
  const char16_t* family;
  int index;
  int count = 1;
};

/// Calls `take` with every name that a row gives: its own, its menu twin's, those of its option buttons.
template <class Take>
constexpr void eachName(const Row& row, Take take) {
  std::visit(
      [&take](const auto& kind) {
        using Kind = std::decay_t<decltype(kind)>;
        if constexpr (requires { kind.name; }) {
          NamedControl named{kind.name.family(), kind.name.index()};
          if constexpr (std::is_same_v<Kind, TextRun>) named.count = kind.count;
          take(named);
        }
        if constexpr (std::is_same_v<Kind, Command>) {
          if (kind.menu != nullptr) take(NamedControl{kind.menu, -1});
        }
        if constexpr (std::is_same_v<Kind, Options>) {
          for (const Choice& choice : kind.choices)
            take(NamedControl{choice.name.family(), choice.name.index()});
        }
      },
      row);
}

constexpr bool overlap(const NamedControl& a, const NamedControl& b) {
  return a.index < b.index + b.count && b.index < a.index + a.count &&
         store::detail::equal(a.family, b.family);
}

constexpr bool doubledName(Rows rows) {
  std::vector<NamedControl> names;
  for (const Row& row : rows) eachName(row, [&names](const NamedControl& name) { names.push_back(name); });
  for (std::size_t i = 0; i < names.size(); ++i)
    for (std::size_t k = i + 1; k < names.size(); ++k)
      if (overlap(names[i], names[k])) return true;
  return false;
}

/// A row that binds a column of none of the screen's tables, or a family of fields with too few columns.
constexpr bool strayBinding(const Row& row, const Sources& sources) {
  return std::visit(
      [&sources](const auto& kind) {
        using Kind = std::decay_t<decltype(kind)>;
        if constexpr (std::is_same_v<Kind, TextRun>) {
          if (kind.bind.bound() && kind.bind.count() < kind.count) return true;
        }
        if constexpr (requires { kind.bind; }) {
          return kind.bind.bound() && sources.numberOf(kind.bind.table()) == 0;
        } else if constexpr (std::is_same_v<Kind, Grid>) {
          for (const GridColumn& column : kind.columns)
            if (&column.column.table() != &kind.columns[0].column.table()) return true;
          return kind.columns.empty() || sources.numberOf(&kind.columns[0].column.table()) == 0;
        } else {
          return false;
        }
      },
      row);
}

}  // namespace detail

/// A declaration without a fault: one with a doubled control, or with a column that the screen's tables lack,
/// does not compile.
consteval ScreenRow declare(ScreenRow screen) {
  if (detail::doubledName(screen.rows)) throw "two controls of one name";
  for (const Row& row : screen.rows)
    if (detail::strayBinding(row, screen.sources)) throw "a column of none of the screen's sources";
  return screen;
}

/// A control of a screen, found in its row table at compile time: a handler reaches its controls by these.
///
///     inline constexpr ControlRef kName = ref(kRows, u"txtFields", 4);
///     ... text(kName)
class ControlRef {
 public:
  constexpr const char16_t* family() const { return m_family; }
  constexpr int index() const { return m_index; }
  /// The objectName: "txtFields(4)".
  QString name() const;
  operator QString() const { return name(); }

 private:
  friend class FamilyRef;
  friend consteval ControlRef ref(Rows rows, const char16_t* family, int index);
  constexpr ControlRef(const char16_t* family, int index) : m_family(family), m_index(index) {}
  const char16_t* m_family;
  int m_index;
};

/// The control of a name. A name that the table lacks, or has twice, does not compile.
consteval ControlRef ref(Rows rows, const char16_t* family, int index = -1) {
  int found = 0;
  const detail::NamedControl wanted{family, index};
  for (const Row& row : rows)
    detail::eachName(row, [&](const detail::NamedControl& name) { found += detail::overlap(name, wanted); });
  if (found != 1) throw "the row table has no such control, or two";
  return ControlRef(family, index);
}

/// The controls of one family, by their index.
class FamilyRef {
 public:
  /// The control of an index. One that the table lacks is reported when it is looked for on the screen.
  constexpr ControlRef operator[](int index) const { return ControlRef(m_family, index); }

 private:
  friend consteval FamilyRef family(Rows rows, const char16_t* name);
  constexpr explicit FamilyRef(const char16_t* family) : m_family(family) {}
  const char16_t* m_family;
};

/// The family of a name; one that the table lacks does not compile.
consteval FamilyRef family(Rows rows, const char16_t* name) {
  bool found = false;
  for (const Row& row : rows)
    detail::eachName(row, [&](const detail::NamedControl& control) {
      found = found || (control.index >= 0 && store::detail::equal(control.family, name));
    });
  if (!found) throw "the row table has no such family";
  return FamilyRef(name);
}

/// The rows of several tables after each other, for a screen that is declared page by page.
template <std::size_t... Sizes>
consteval auto joined(const Row (&... tables)[Sizes]) {
  std::vector<Row> rows;
  (rows.insert(rows.end(), std::begin(tables), std::end(tables)), ...);
  return [&rows]<std::size_t... At>(std::index_sequence<At...>) {
    return std::array<Row, sizeof...(At)>{rows[At]...};
  }
  (std::make_index_sequence<(Sizes + ...)>());
}

/// Grid columns that are captioned by their own names.
template <class... Columns>
consteval std::array<GridColumn, sizeof...(Columns)> gridOf(const Columns&... columns) {
  return {GridColumn{columns, columns.name()}...};
}

}  // namespace screen
