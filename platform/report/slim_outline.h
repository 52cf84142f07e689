#pragma once

#include <ft2build.h>

#include <QByteArray>
#include FT_FREETYPE_H

namespace report {

/// Units of one em in embedded fonts: at 14 points 1/29 mm, where a dot of a printer is 1/24 mm.
inline constexpr int kSlimEm = 144;

/// The outline as TrueType glyph data on this coarser grid, without hints for screens and without points
/// that no longer matter: a third of the bytes, and a claim in a file of its own is nearly all outlines.
/// Empty for a blank.
QByteArray slimOutline(FT_Outline& outline, int unitsPerEm);

}  // namespace report
