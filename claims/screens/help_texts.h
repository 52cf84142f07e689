#pragma once

#include <span>

namespace claims::help {

// The lines of the help screens, in the order in which they are read out. One line is one thought, so that
// it can be heard again by itself.

std::span<const char16_t* const> before202012();  ///< 記入の仕方
std::span<const char16_t* const> before202410();  ///< 記入の仕方2018
std::span<const char16_t* const> from202410();    ///< 記入の仕方2024

}  // namespace claims::help
