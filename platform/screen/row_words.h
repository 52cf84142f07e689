#pragma once

#include <optional>
#include <type_traits>
#include <utility>

#include "platform/route/route.h"
#include "platform/store/column.h"

// What rows are written with: texts, names, columns and actions. These types have no default constructor and
// refuse empty text at compile time.

namespace screen {

class Screen;

/// Text that is never empty.
class Words {
 public:
  consteval Words(const char16_t* text) : m_text(text) {
    if (text == nullptr || text[0] == u'\0') throw "a row needs a text here";
  }
  consteval Words(const ScreenName& screen) : m_text(screen.get()) {}
  constexpr const char16_t* get() const { return m_text; }

 private:
  const char16_t* m_text;
};

/// objectName of a control: {u"txtFields", 4} is "txtFields(4)", {u"cmdUpdate"} is "cmdUpdate".
class ControlName {
 public:
  consteval ControlName(const char16_t* name) : m_family(name), m_index(-1) { refuseEmpty(); }
  consteval ControlName(const char16_t* family, int index) : m_family(family), m_index(index) {
    refuseEmpty();
  }
  constexpr const char16_t* family() const { return m_family; }
  constexpr int index() const { return m_index; }

 private:
  consteval void refuseEmpty() const {
    if (m_family == nullptr || m_family[0] == u'\0') throw "a control needs a name";
  }
  const char16_t* m_family;
  int m_index;
};

/// No column, on purpose; the reason is for the reader.
struct Unbound {
  const char16_t* reason;
  consteval Unbound(const char16_t* why) : reason(why) {
    if (why == nullptr || why[0] == u'\0') throw "say why the control is not bound";
  }
};

/// What a control shows and stores: a column of one of the screen's tables (patients::name), the columns of a
/// series for a family of fields (claim::dayCode), or nothing. Which source of the screen holds the column
/// follows from its table.
class Binding {
 public:
  consteval Binding(const store::Column& column)
      : m_table(&column.table()), m_column(column.name()), m_count(1) {}
  consteval Binding(const store::Series& series)
      : m_table(&series.table()),
        m_column(series[series.first()].name()),
        m_count(series.count()),
        m_series(series) {}
  consteval Binding(Unbound) {}
  constexpr bool bound() const { return m_column != nullptr; }
  constexpr const store::Table* table() const { return m_table; }
  constexpr const char16_t* column() const { return m_column; }
  /// Number of columns: of a family of fields each has its own.
  constexpr int count() const { return m_count; }
  /// The name of the column of a number of the series.
  constexpr const char16_t* column(int number) const {
    return m_series ? (*m_series)[number].name() : m_column;
  }

 private:
  const store::Table* m_table = nullptr;
  const char16_t* m_column = nullptr;
  int m_count = 0;
  std::optional<store::Series> m_series;
};

/// A handler: the screen and the index of the control in its family (-1: no family).
using Handler = void (*)(Screen&, int);

namespace detail {
template <class T>
struct MethodClass;
template <class C>
struct MethodClass<void (C::*)()> {
  using Type = C;
};
template <class C>
struct MethodClass<void (C::*)(int)> {
  using Type = C;
};
template <auto Method>
void thunk(Screen& screen, int index) {
  using Type = typename MethodClass<decltype(Method)>::Type;
  if constexpr (std::is_invocable_v<decltype(Method), Type&, int>)
    (static_cast<Type&>(screen).*Method)(index);
  else
    (static_cast<Type&>(screen).*Method)();
}
}  // namespace detail

/// An action that a row must have: .run = run<&PatientScreen::store>. The method takes nothing or the
/// control's index.
class Run {
 public:
  consteval explicit Run(Handler handler) : m_handler(handler) {
    if (handler == nullptr) throw "a command needs an action";
  }
  constexpr Handler handler() const { return m_handler; }

 private:
  Handler m_handler;
};
template <auto Method>
inline constexpr Run run{&detail::thunk<Method>};

/// An optional handler: .onEnter = call<&PatientScreen::refreshAge>.
template <auto Method>
inline constexpr Handler call = &detail::thunk<Method>;

}  // namespace screen
