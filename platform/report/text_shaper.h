#pragma once

#include "platform/report/font_store.h"

#include <vector>

namespace report {

struct PlacedGlyph {
  unsigned index = 0;
  double x = 0;  ///< from the start of the text, in em, to the right
  double y = 0;  ///< in em, downwards
};

/// Glyphs of one font, with the text that they stand for, cluster by cluster.
struct Run {
  Font* font = nullptr;
  QByteArray utf8;
  std::vector<PlacedGlyph> glyphs;
  std::vector<cairo_text_cluster_t> clusters;
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
