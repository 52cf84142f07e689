#pragma once

#include "platform/report/pdf_canvas.h"
#include "platform/report/pdf_writer.h"

namespace report {

/// A font as it is embedded, ready to be written into any number of documents.
struct FontProgram {
  QByteArray name;  ///< with the mark of a subset
  PackedStream file;
  PackedStream texts;  ///< the text of each glyph number
  QByteArray widths;

  /// The number of the font's object in the document.
  int write(PdfWriter& writer) const;
};

FontProgram makeProgram(const Font& font, const std::set<unsigned>& numbers);

/// The fonts of a printed frame, with all glyphs of its labels. Data on the same page use them too.
struct FrameFonts {
  GlyphSet glyphs;
  std::map<Font*, FontProgram> programs;
};

/// The frame in one state of its items, as content that any number of pages share.
struct FramePart {
  PackedStream content;
  std::vector<int> paragraphs;
  GlyphSet ownGlyphs;  ///< of labels that were replaced, beyond those of the frame's fonts
  std::shared_ptr<const FrameFonts> fonts;
};

}  // namespace report
