#pragma once

#include "platform/report/text_shaper.h"

namespace report {

/// A line of text in its place; x and y in points from the upper left corner of the paper. Horizontal
/// lines start at their baseline, vertical ones at the middle of their upper edge.
struct PlacedLine {
  ShapedTextPtr text;
  double x = 0;
  double y = 0;
  double pt = 0;
};

/// Sets a text into the rectangle of its item: it wraps into the lines that the item allows, then shrinks,
/// down to a floor; what still does not fit is not drawn, but stays in the document as text.
std::vector<PlacedLine> fitText(TextShaper& shaper, const Item& item, const QString& text, Align align);

}  // namespace report
