#pragma once

#include <QString>
#include <any>
#include <concepts>

namespace screen {

/// The name of a screen, its objectName: 治療台帳4. Names are written down in routes alone.
class ScreenName {
 public:
  consteval explicit ScreenName(const char16_t* name) : m_name(name) {
    if (name == nullptr || name[0] == u'\0') throw "a screen needs a name";
  }
  constexpr const char16_t* get() const { return m_name; }
  QString text() const { return QString::fromUtf16(m_name); }
  operator QString() const { return text(); }
  friend bool operator==(const ScreenName& a, const ScreenName& b) { return a.text() == b.text(); }

 private:
  const char16_t* m_name;
};

/// A way to a screen: its name, and as members what the opener hands over.
template <class R>
concept Route = requires {
  { R::screen } -> std::convertible_to<ScreenName>;
};

/// What a screen is opened with: the route that was taken, or nothing if it is only shown again.
class Request {
 public:
  Request() = default;
  template <Route R>
  Request(R route) : m_route(std::move(route)) {}

  /// The route, if it is of this kind.
  template <Route R>
  const R* as() const {
    return std::any_cast<R>(&m_route);
  }
  bool isEmpty() const { return !m_route.has_value(); }

 private:
  std::any m_route;
};

}  // namespace screen
