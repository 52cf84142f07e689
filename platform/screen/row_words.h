#pragma once

#include <type_traits>
#include <utility>

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

/// The column a control is bound to: Column{u"氏名"}, or Column{u"a1", 2} for the screen's second source.
struct Column {
  const char16_t* name;
  int source;
  consteval Column(const char16_t* columnName, int sourceNumber = 1)
      : name(columnName), source(sourceNumber) {
    if (columnName == nullptr || columnName[0] == u'\0') throw "a bound control needs a column";
  }
};

/// No column, on purpose; the reason is for the reader.
struct Unbound {
  const char16_t* reason;
  consteval Unbound(const char16_t* why) : reason(why) {
    if (why == nullptr || why[0] == u'\0') throw "say why the control is not bound";
  }
};

class Binding {
 public:
  consteval Binding(Column column) : m_column(column.name), m_source(column.source) {}
  consteval Binding(Unbound) : m_column(nullptr), m_source(0) {}
  constexpr bool bound() const { return m_column != nullptr; }
  constexpr const char16_t* column() const { return m_column; }
  constexpr int source() const { return m_source; }

 private:
  const char16_t* m_column;
  int m_source;
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
