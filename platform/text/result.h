#pragma once

#include <QString>
#include <optional>
#include <utility>
#include <variant>

namespace text {

/// What went wrong, in the words for the user (the database's own text for its faults).
struct Fault {
  QString message;
};

/// A value or a fault. Rooms below the screens never show a message; they return one of these.
template <class T>
class [[nodiscard]] Result {
 public:
  Result(T value) : m_content(std::move(value)) {}
  Result(Fault fault) : m_content(std::move(fault)) {}

  bool ok() const { return std::holds_alternative<T>(m_content); }
  explicit operator bool() const { return ok(); }
  T& value() { return std::get<T>(m_content); }
  const T& value() const { return std::get<T>(m_content); }
  T* operator->() { return &value(); }
  const T* operator->() const { return &value(); }
  T& operator*() { return value(); }
  const T& operator*() const { return value(); }
  const Fault& fault() const { return std::get<Fault>(m_content); }

 private:
  std::variant<T, Fault> m_content;
};

/// Done, or a fault.
template <>
class [[nodiscard]] Result<void> {
 public:
  Result() = default;
  Result(Fault fault) : m_fault(std::move(fault)) {}

  bool ok() const { return !m_fault; }
  explicit operator bool() const { return ok(); }
  const Fault& fault() const { return *m_fault; }

 private:
  std::optional<Fault> m_fault;
};

using Done = Result<void>;

}  // namespace text
