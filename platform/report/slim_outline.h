#pragma once

#include <QByteArray>
#include <ft2build.h>
#include FT_FREETYPE_H

namespace report {

/// Units of one em in embedded fonts: at 14 points 1/40 mm, where a dot of a printer is 1/24 mm.
inline constexpr int kSlimEm = 200;

/// The outline as TrueType glyph data on the coarser grid, without points that no longer matter.
/// Empty for a blank.
QByteArray slimOutline(const FT_Outline& outline, int unitsPerEm);

}  // namespace report
