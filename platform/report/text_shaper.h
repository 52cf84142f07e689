#pragma once

#include <vector>

#include "platform/report/font_store.h"

namespace report {

struct PlacedGlyph {
  unsigned number = 0;  ///< the font's own, see Font
  double x = 0;         ///< from the start of the text, in em, to the right
  double y = 0;         ///< in em, downwards
};

/// Glyphs whose text is written as a whole, because it is not just the sum of theirs.
struct TextSpan {
  size_t first = 0;
  size_t count = 0;
  QString text;
};

/// Glyphs of one font.
struct Run {
  Font* font = nullptr;
  std::vector<PlacedGlyph> glyphs;
  std::vector<TextSpan> spans;
};

/// A line of text, ready to be drawn in any size.
struct ShapedText {
  std::vector<Run> runs;
  double length = 0;  ///< in em, along the line
};

using ShapedTextPtr = std::shared_ptr<const ShapedText>;

/// Turns text into glyphs, and remembers what it did: forms repeat themselves.
class TextShaper {
 public:
  explicit TextShaper(FontStore& fonts) : m_fonts(fonts) {}

  ShapedTextPtr shape(Typeface face, const QString& text, bool vertical = false);
  /// The first so many characters are drawn, the others only kept as text of the last one drawn:
  /// what does not fit on the paper is still found in the document.
  ShapedTextPtr shapeCut(Typeface face, const QString& text, qsizetype shown, bool vertical);
  /// Width of one character in em.
  double advance(Typeface face, char32_t character);

 private:
  FontStore& m_fonts;
  QHash<QString, ShapedTextPtr> m_known;
};

}  // namespace report
