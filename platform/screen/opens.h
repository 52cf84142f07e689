#pragma once

#include <QString>
#include <cstddef>

#include "platform/screen/rows.h"
#include "platform/screen/screen.h"

namespace screen {

/// A screen name as a template argument: opens<u"登録">.
template <std::size_t N>
struct RoomName {
  consteval RoomName(const char16_t (&name)[N]) {
    static_assert(N > 1, "a command that opens a screen needs its name");
    for (std::size_t i = 0; i < N; ++i) text[i] = name[i];
  }
  char16_t text[N];
};

namespace detail {
template <RoomName Name>
void openThunk(Screen& screen, int) {
  screen.navigator().show(QString::fromUtf16(Name.text));
}
}  // namespace detail

/// The action of a command that does nothing but open another screen: .run = opens<u"登録">.
template <RoomName Name>
inline constexpr Run opens{&detail::openThunk<Name>};

}  // namespace screen
