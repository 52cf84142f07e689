#pragma once

#include "platform/screen/rows.h"
#include "platform/screen/screen.h"

namespace screen {

namespace detail {
template <Route R>
void openThunk(Screen& screen, int) {
  screen.navigator().show(R{});
}
}  // namespace detail

/// The action of a command that does nothing but open another screen: .run = opens<routes::Profile>.
template <Route R>
inline constexpr Run opens{&detail::openThunk<R>};

}  // namespace screen
