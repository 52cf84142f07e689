#pragma once

#include <QString>
#include <QStringList>
#include <cstddef>
#include <span>
#include <string_view>

namespace claims {

/// The name of a check box and the member of Ticks, a struct of bools, that it sets.
template <class Ticks>
struct TickName {
  const char16_t* control;
  bool Ticks::*tick;
};

/// Whether a table of tick names holds every member of Ticks once, under a name of its own.
template <class Ticks, std::size_t N>
consteval bool namesEveryTick(const TickName<Ticks> (&rows)[N]) {
  for (std::size_t i = 0; i < N; ++i)
    for (std::size_t j = 0; j < i; ++j)
      if (rows[i].tick == rows[j].tick ||
          std::u16string_view(rows[i].control) == std::u16string_view(rows[j].control))
        return false;
  return sizeof(Ticks) == N;
}

/// Sets the tick of this name. False where the table lacks the name.
template <class Ticks>
bool setTick(Ticks& ticks, std::span<const TickName<Ticks>> rows, const QString& control) {
  for (const TickName<Ticks>& row : rows) {
    if (control != QStringView(row.control)) continue;
    ticks.*row.tick = true;
    return true;
  }
  return false;
}

/// Names of the ticks that are set, in the order of the table.
template <class Ticks>
QStringList namesOfSet(const Ticks& ticks, std::span<const TickName<Ticks>> rows) {
  QStringList names;
  for (const TickName<Ticks>& row : rows)
    if (ticks.*row.tick) names << QString::fromUtf16(row.control);
  return names;
}

}  // namespace claims
