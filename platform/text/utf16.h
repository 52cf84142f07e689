#pragma once

#include <QString>

namespace text {

/// A constant text of the program as a QString; null for a null pointer.
inline QString utf16(const char16_t* literal) { return literal ? QString::fromUtf16(literal) : QString(); }

}  // namespace text
