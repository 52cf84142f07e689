#pragma once

#include <set>

#include "platform/report/font.h"

namespace report {

/// A TrueType file with these glyphs of the font, under our numbers; all other numbers are blanks.
QByteArray trueTypeFile(const Font& font, const std::set<unsigned>& numbers);

}  // namespace report
